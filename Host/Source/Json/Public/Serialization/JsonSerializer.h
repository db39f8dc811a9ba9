#pragma once

#include "Dom/JsonObject.h"
#include "Serialization/JsonReader.h"
#include "Serialization/JsonWriter.h"

/** Reads and writes whole documents. */
class JSON_API FJsonSerializer
{
public:
	/**
	 * Each reads the document, and is false, with the message at the reader and nothing in the output, when it is wrong or its
	 * outermost value is of another kind. Of members of one name the last one counts.
	 */
	template <class CharType>
	static bool Deserialize(const TSharedRef<TJsonReader<CharType>>& Reader, TSharedPtr<FJsonObject>& OutObject)
	{
		TSharedPtr<FJsonValue> Value;
		const TSharedPtr<FJsonObject>* Object = nullptr;
		const bool bRead = Deserialize(Reader, Value) && Value->TryGetObject(Object);
		OutObject = bRead ? *Object : nullptr;
		return bRead;
	}

	template <class CharType>
	static bool Deserialize(const TSharedRef<TJsonReader<CharType>>& Reader, TArray<TSharedPtr<FJsonValue>>& OutArray)
	{
		TSharedPtr<FJsonValue> Value;
		const TArray<TSharedPtr<FJsonValue>>* Array = nullptr;
		const bool bRead = Deserialize(Reader, Value) && Value->TryGetArray(Array);
		OutArray = bRead ? *Array : TArray<TSharedPtr<FJsonValue>>();
		return bRead;
	}

	template <class CharType>
	static bool Deserialize(const TSharedRef<TJsonReader<CharType>>& Reader, TSharedPtr<FJsonValue>& OutValue)
	{
		FBuilder Builder;
		for (EJsonNotation Notation; Reader->ReadNext(Notation);)
		{
			Builder.Add(Notation, Reader->GetIdentifier(), Reader->GetValueAsString(), Reader->GetValueAsNumber(), Reader->GetValueAsBoolean());
		}
		OutValue = Reader->GetErrorMessage().IsEmpty() ? Builder.Root : nullptr;
		return OutValue.IsValid();
	}

	/** Each writes the document and, unless told otherwise, closes the writer. */
	template <class CharType>
	static bool Serialize(const TSharedRef<FJsonObject>& Object, const TSharedRef<TJsonWriter<CharType>>& Writer, bool bCloseWriter = true)
	{
		WriteValue(FJsonValueObject(Object), *Writer);
		return !bCloseWriter || Writer->Close();
	}

	template <class CharType>
	static bool Serialize(const TArray<TSharedPtr<FJsonValue>>& Array, const TSharedRef<TJsonWriter<CharType>>& Writer, bool bCloseWriter = true)
	{
		WriteValue(FJsonValueArray(Array), *Writer);
		return !bCloseWriter || Writer->Close();
	}

private:
	/** Puts the tokens of a text together. */
	struct JSON_API FBuilder
	{
		struct FOpen
		{
			FString Name;
			/** Null for an array. */
			TSharedPtr<FJsonObject> Object;
			TArray<TSharedPtr<FJsonValue>> Array;
		};

		TSharedPtr<FJsonValue> Root;
		TArray<FOpen> Open;

		void Add(EJsonNotation Notation, const FString& Name, const FString& String, double Number, bool bBoolean);
		void AddValue(const FString& Name, const TSharedPtr<FJsonValue>& Value);
	};

	/** A null pointer is written as null. */
	template <class CharType>
	static void WriteValue(const FJsonValue& Value, TJsonWriter<CharType>& Writer)
	{
		switch (Value.Type)
		{
		case EJson::String:
			Writer.WriteValue(Value.AsString());
			break;
		case EJson::Number:
			Writer.WriteValue(Value.AsNumber());
			break;
		case EJson::Boolean:
			Writer.WriteValue(Value.AsBool());
			break;
		case EJson::Array:
			Writer.WriteArrayStart();
			for (const TSharedPtr<FJsonValue>& Element : Value.AsArray())
			{
				Element ? WriteValue(*Element, Writer) : Writer.WriteNull();
			}
			Writer.WriteArrayEnd();
			break;
		case EJson::Object:
			Writer.WriteObjectStart();
			for (const TPair<FString, TSharedPtr<FJsonValue>>& Member : Value.AsObject()->Values)
			{
				Writer.WriteIdentifierPrefix(Member.Key);
				Member.Value ? WriteValue(*Member.Value, Writer) : Writer.WriteNull();
			}
			Writer.WriteObjectEnd();
			break;
		default:
			Writer.WriteNull();
		}
	}
};
