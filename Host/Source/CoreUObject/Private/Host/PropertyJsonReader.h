#pragma once

#include "Host/PropertyJson.h"
#include "UObject/UnrealType.h"

namespace Host
{
	/** Reads values, keeping track of where it is for its messages. */
	class FPropertyJsonReader
	{
	public:
		FPropertyJsonReader(UObject* InOwner, FPropertyJson::FReport InReport) : Owner(InOwner), Report(InReport) {}

		/** Each returns false after a message, with the value as it was. */
		bool ReadMembers(const FJsonNode& Node, const UStruct* Struct, void* Value);
		bool ReadProperty(const FJsonNode& Node, const FProperty& Property, void* Value);
		/** One element of a property that may be a C array. */
		bool ReadElement(const FJsonNode& Node, const FProperty& Property, void* Value);

		int32 GetNumMessages() const { return NumMessages; }

	private:
		class FScope;

		bool ReadCArray(const FJsonNode& Node, const FProperty& Property, void* Value);
		bool ReadBool(const FJsonNode& Node, const FBoolProperty& Property, void* Value);
		bool ReadNumber(const FJsonNode& Node, const FNumericProperty& Property, void* Value);
		bool ReadEnum(const FJsonNode& Node, const UEnum& Enum, const FNumericProperty& Underlying, void* Value);
		bool ReadText(const FJsonNode& Node, const FTextProperty& Property, void* Value);
		bool ReadStruct(const FJsonNode& Node, const FStructProperty& Property, void* Value);
		bool ReadPositional(const FJsonNode& Node, const UScriptStruct& Struct, void* Value);
		bool ReadArray(const FJsonNode& Node, const FArrayProperty& Property, void* Value);
		bool ReadSet(const FJsonNode& Node, const FSetProperty& Property, void* Value);
		bool ReadMap(const FJsonNode& Node, const FMapProperty& Property, void* Value);
		bool ReadKeyOfPair(const FJsonNode& Node, const FMapProperty& Property, void* Key);
		bool ReadKeyOfMember(const FJsonNode& Node, const FMapProperty& Property, void* Key);
		bool ReadObject(const FJsonNode& Node, const FObjectPropertyBase& Property, void* Value);
		bool ReadInstanced(const FJsonNode& Node, const FObjectPropertyBase& Property, void* Value);
		bool ReadSoft(const FJsonNode& Node, const FSoftObjectProperty& Property, void* Value);
		bool ReadInterface(const FJsonNode& Node, const FInterfaceProperty& Property, void* Value);
		/** Reads any value from a string in the form of text properties. */
		bool ReadAsText(const FJsonNode& Node, const FProperty& Property, void* Value);

		UObject* LoadReference(const FJsonNode& Node, const FString& Path);

		bool Fail(const FJsonNode& Node, const FString& What);
		bool FailExpected(const FJsonNode& Node, const TCHAR* Expected);
		void ReportUnknown(const FJsonNode& Node, const UStruct& Struct);

		UObject* Owner;
		FPropertyJson::FReport Report;
		/** Way to the value being read, "Style.Colors[2]". */
		FString Path;
		int32 NumMessages = 0;
	};

	/** Extends the way to the value for as long as it lives. */
	class FPropertyJsonReader::FScope
	{
	public:
		FScope(FPropertyJsonReader& InReader, const FString& Part) : Path(InReader.Path), OldLength(Path.Len())
		{
			if (!Path.IsEmpty() && !Part.StartsWith(TEXT("[")))
			{
				Path.AppendChar(TEXT('.'));
			}
			Path += Part;
		}
		FScope(FPropertyJsonReader& InReader, int32 Index) : FScope(InReader, FString::Printf(TEXT("[%d]"), Index)) {}
		FScope(const FScope&) = delete;
		FScope& operator=(const FScope&) = delete;
		~FScope() { Path.LeftInline(OldLength); }

	private:
		FString& Path;
		int32 OldLength;
	};

	/** The reader added for a structure; null when there is none. */
	FPropertyJson::FStructReader FindStructReader(const UScriptStruct& Struct);
}
