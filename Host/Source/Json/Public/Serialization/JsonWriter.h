#pragma once

#include "Host/JsonWriter.h"
#include "Serialization/JsonTypes.h"
#include "Templates/SharedPointer.h"

/** Writes JSON text for people to read, a member a line, indented by tabs. The calls follow the structure of the text. */
template <class CharType = TCHAR>
class TJsonWriter
{
public:
	TJsonWriter(const TJsonWriter&) = delete;
	TJsonWriter& operator=(const TJsonWriter&) = delete;

	void WriteObjectStart() { Writer.BeginObject(); }
	void WriteObjectStart(FStringView Identifier) { Writer.Key(Identifier); Writer.BeginObject(); }
	void WriteObjectEnd() { Writer.EndObject(); }
	void WriteArrayStart() { Writer.BeginArray(); }
	void WriteArrayStart(FStringView Identifier) { Writer.Key(Identifier); Writer.BeginArray(); }
	void WriteArrayEnd() { Writer.EndArray(); }

	/** Adds an element to an array. */
	template <class ValueType>
	void WriteValue(const ValueType& Value)
	{
		if constexpr (std::is_same_v<ValueType, bool>)
		{
			Writer.Bool(Value);
		}
		else if constexpr (std::is_integral_v<ValueType>)
		{
			Writer.Integer(Value);
		}
		else if constexpr (std::is_floating_point_v<ValueType>)
		{
			Writer.Number(Value);
		}
		else
		{
			Writer.String(FStringView(Value));
		}
	}

	/** Adds a member to an object. */
	template <class ValueType>
	void WriteValue(FStringView Identifier, const ValueType& Value)
	{
		Writer.Key(Identifier);
		WriteValue(Value);
	}

	void WriteIdentifierPrefix(FStringView Identifier) { Writer.Key(Identifier); }
	void WriteNull() { Writer.Null(); }
	void WriteNull(FStringView Identifier) { Writer.Key(Identifier); Writer.Null(); }

	/** Appends the text, which must be complete, to the string that the writer was made for. */
	bool Close()
	{
		FString Text = Writer.ToString();
		Text.TrimEndInline();
		*Stream += Text;
		return true;
	}

private:
	template <class FactoryCharType>
	friend class TJsonWriterFactory;

	explicit TJsonWriter(FString* InStream) : Stream(InStream) {}

	FString* Stream;
	Host::FJsonWriter Writer;
};

template <class CharType = TCHAR>
class TJsonWriterFactory
{
public:
	/** The string outlives the writer. */
	static TSharedRef<TJsonWriter<CharType>> Create(FString* Stream)
	{
		return MakeShareable(new TJsonWriter<CharType>(Stream));
	}
};
