#pragma once

#include "Containers/StringView.h"
#include "Containers/UnrealString.h"
#include "Misc/CoreMiscDefines.h"
#include "Templates/TypeHash.h"

/** Longest name with its terminator, in UTF-16 units. */
inline constexpr int32 NAME_SIZE = 1024;

/** What to do about a name that is not in the table yet. */
enum EFindName
{
	/** The result is NAME_None. */
	FNAME_Find,
	/** The name is added. */
	FNAME_Add
};

/** The names that have an identifier of their own. */
enum class EName : uint32
{
	None = 0
};

#define NAME_NO_NUMBER_INTERNAL 0
#define NAME_INTERNAL_TO_EXTERNAL(Number) ((Number) - 1)
#define NAME_EXTERNAL_TO_INTERNAL(Number) ((Number) + 1)

/** Place of a text in the table of names. */
struct FNameEntryId
{
	constexpr FNameEntryId() = default;
	constexpr FNameEntryId(EName) {}

	constexpr bool IsNone() const { return Value == 0; }
	constexpr explicit operator bool() const { return Value != 0; }
	/** Differs from run to run. */
	constexpr uint32 ToUnstableInt() const { return Value; }
	static constexpr FNameEntryId FromUnstableInt(uint32 UnstableInt) { FNameEntryId Id; Id.Value = UnstableInt; return Id; }
	/** Any order that holds for this run. */
	constexpr bool FastLess(FNameEntryId Other) const { return Value < Other.Value; }

	friend constexpr bool operator==(FNameEntryId A, FNameEntryId B) { return A.Value == B.Value; }
	friend constexpr uint32 GetTypeHash(FNameEntryId Id) { return Id.Value; }

private:
	uint32 Value = 0;
};

/**
 * A text kept once for the whole process, so that comparing and hashing cost next to nothing. The case of ASCII letters
 * does not count in comparisons; each spelling is shown as it was written.
 *
 * A trailing "_<digits>" without leading zeros is kept as a number beside the text: "Item_2" is "Item" with the number 2
 * (internally 3; 0 means that there is none). The empty text and "None" in any case are NAME_None. Longer than
 * NAME_SIZE - 1 units is a failed check. Names may be made and used on any thread.
 */
class CORE_API FName
{
public:
	constexpr FName() = default;
	constexpr FName(EName) {}
	FName(const TCHAR* Name, EFindName FindType = FNAME_Add) : FName(FStringView(Name), FindType) {}
	FName(int32 Len, const TCHAR* Name, EFindName FindType = FNAME_Add) : FName(FStringView(Name, Len), FindType) {}
	FName(const ANSICHAR* Name, EFindName FindType = FNAME_Add);
	explicit FName(const FString& Name, EFindName FindType = FNAME_Add) : FName(FStringView(Name), FindType) {}
	explicit FName(FStringView Name, EFindName FindType = FNAME_Add);
	/** The text without splitting a number off it, and an internal number. */
	FName(const TCHAR* Name, int32 InNumber);
	constexpr FName(FName Other, int32 InNumber)
		: ComparisonIndex(Other.ComparisonIndex)
		, Number((uint32)InNumber)
		, DisplayIndex(Other.DisplayIndex)
	{
	}
	constexpr FName(FNameEntryId InComparisonIndex, FNameEntryId InDisplayIndex, int32 InNumber)
		: ComparisonIndex(InComparisonIndex)
		, Number((uint32)InNumber)
		, DisplayIndex(InDisplayIndex)
	{
	}

	constexpr bool IsNone() const { return ComparisonIndex.IsNone() && Number == NAME_NO_NUMBER_INTERNAL; }
	/** True of every name that was made properly, None included. */
	bool IsValid() const;

	/** The text with its number. */
	FString ToString() const;
	void ToString(FString& Out) const;
	void AppendString(FString& Out) const;
	/** Writes the text and a terminator into a buffer of at least NAME_SIZE + 11 units; returns the length. */
	uint32 ToString(TCHAR* Out, uint32 OutSize) const;
	/** The text without its number. */
	FString GetPlainNameString() const;
	/** Units of ToString(). */
	uint32 GetStringLength() const;

	/** Alphabetical order, the number counting as one: negative, 0 or positive. */
	int32 Compare(const FName& Other) const;
	bool LexicalLess(const FName& Other) const { return Compare(Other) < 0; }
	/** Any order that holds for this run of the program. */
	constexpr bool FastLess(const FName& Other) const { return GetComparisonKey() < Other.GetComparisonKey(); }
	/** Whether the spelling is the same too. */
	constexpr bool IsEqual(const FName& Other, bool bCompareNumber = true) const { return ComparisonIndex == Other.ComparisonIndex && (!bCompareNumber || Number == Other.Number); }

	constexpr FNameEntryId GetComparisonIndex() const { return ComparisonIndex; }
	constexpr FNameEntryId GetDisplayIndex() const { return DisplayIndex; }
	/** The internal number: one above the shown one, 0 for none. */
	constexpr int32 GetNumber() const { return (int32)Number; }
	constexpr void SetNumber(int32 NewNumber) { Number = (uint32)NewNumber; }

	friend constexpr bool operator==(FName A, FName B) { return A.GetComparisonKey() == B.GetComparisonKey(); }
	friend constexpr bool operator==(FName A, EName B) { return A.IsNone() && B == EName::None; }
	/** As == of texts: without regard to case. */
	friend bool operator==(FName A, const TCHAR* B) { return A.EqualsText(FStringView(B)); }
	friend constexpr uint32 GetTypeHash(FName Name) { return Name.ComparisonIndex.ToUnstableInt() + Name.Number * 0x9E3779B1u; }

private:
	constexpr uint64 GetComparisonKey() const { return (uint64)ComparisonIndex.ToUnstableInt() << 32 | Number; }
	bool EqualsText(FStringView Text) const;

	FNameEntryId ComparisonIndex;
	uint32 Number = NAME_NO_NUMBER_INTERNAL;
	FNameEntryId DisplayIndex;
};

inline constexpr EName NAME_None = EName::None;

inline FString LexToString(const FName& Name)
{
	return Name.ToString();
}

inline void LexFromString(FName& Name, const TCHAR* Text)
{
	Name = FName(Text);
}

/** Sorts names alphabetically. */
struct FNameLexicalLess
{
	bool operator()(const FName& A, const FName& B) const { return A.LexicalLess(B); }
};

/** Sorts names quickly into an order that holds for this run of the program. */
struct FNameFastLess
{
	constexpr bool operator()(const FName& A, const FName& B) const { return A.FastLess(B); }
	constexpr bool operator()(FNameEntryId A, FNameEntryId B) const { return A.FastLess(B); }
};

/** The name of a member, checked when compiled. The member must be accessible where this stands. */
#define GET_MEMBER_NAME_CHECKED(ClassName, MemberName) ((void)sizeof(((ClassName*)nullptr)->MemberName), FName(TEXT(#MemberName)))
