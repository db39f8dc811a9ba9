#pragma once

#include "Host/JsonDocument.h"

#include <string>
#include <vector>

namespace Host
{
	inline constexpr uint32 NoJsonNode = ~0u;

	/** What was read from a number, so that no whole number loses digits. */
	enum class EJsonNumber : uint8
	{
		Signed,
		Unsigned,
		Floating
	};

	/** Both counted from 1; a column is a code point. */
	struct FJsonPlace
	{
		int32 Line = 0;
		int32 Column = 0;
	};

	struct FJsonText
	{
		uint32 Start = 0;
		uint32 Length = 0;
	};

	struct FJsonChildren
	{
		uint32 First = NoJsonNode;
		uint32 Count = 0;
	};

	struct FJsonValue
	{
		/** Where the value starts in the source. */
		uint32 Offset = 0;
		FJsonText Key;
		uint32 NextSibling = NoJsonNode;
		EJsonKind Kind = EJsonKind::Null;
		EJsonNumber NumberKind = EJsonNumber::Signed;
		bool bBoolean = false;
		union
		{
			FJsonText Text;
			FJsonChildren Children;
			int64 Signed;
			uint64 Unsigned;
			double Floating;
		};

		FJsonValue() : Signed(0) {}
	};

	struct FJsonContent
	{
		FString Name;
		/** The text as it was given, for the places of its values. */
		TArray<uint8> Source;
		/** In the order of the text, parents before their children; the root first. */
		std::vector<FJsonValue> Values;
		/** All strings and keys, each ended by a zero. */
		std::u16string Texts;
		TArray<FString> Errors;

		/** The place of a byte of the source. */
		FJsonPlace FindPlace(uint32 Offset) const;

	private:
		/** Where the lines start; found when a place is asked for, which is rare. */
		mutable std::vector<uint32> LineStarts;
	};
}
