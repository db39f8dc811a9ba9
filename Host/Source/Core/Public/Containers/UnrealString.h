#pragma once

#include "Containers/Array.h"
#include "Containers/StringView.h"
#include "Host/PrintfArguments.h"
#include "Host/StringOps.h"
#include "Misc/CString.h"

#include <type_traits>

/**
 * A text: an array of UTF-16 units that ends in a terminator, or is wholly empty.
 *
 * ==, !=, <, <=, >, >= and the hash ignore the case of ASCII letters. Compare, Equals and StartsWith, which name the case
 * in a parameter, have the defaults that stand there. Lengths and indices count UTF-16 units.
 */
class CORE_API FString
{
public:
	using ElementType = TCHAR;
	using AllocatorType = FDefaultAllocator;

	FString() = default;
	FString(const FString&) = default;
	FString(FString&&) = default;
	FString& operator=(const FString&) = default;
	FString& operator=(FString&&) = default;

	/** Copies a terminated text; null is empty. */
	FString(const TCHAR* Text);
	/** Each byte of the text becomes one unit. */
	explicit FString(const ANSICHAR* Text);
	/** Decodes UTF-8. */
	explicit FString(const UTF8CHAR* Text);
	/** Copies Len units, which need no terminator. */
	FString(int32 Len, const TCHAR* Text);
	explicit FString(FStringView View);
	explicit FString(FAnsiStringView View);
	explicit FString(FUtf8StringView View);
	/** Copies with room for ExtraSlack more units. */
	FString(const FString& Other, int32 ExtraSlack);
	/** A FString from nothing or a single character is a mistake. */
	FString(TYPE_OF_NULLPTR) = delete;
	FString(TCHAR) = delete;

	static FString ConstructFromPtrSize(const TCHAR* Text, int32 Len) { return FString(Len, Text); }

	FString& operator=(const TCHAR* Text);
	FString& operator=(FStringView View);

	// Access

	/** The terminated text, never null. */
	FORCEINLINE const TCHAR* operator*() const { return Data.Num() ? Data.GetData() : TEXT(""); }
	int32 Len() const { return Data.Num() ? Data.Num() - 1 : 0; }
	bool IsEmpty() const { return Data.Num() <= 1; }
	bool IsValidIndex(int32 Index) const { return Index >= 0 && Index < Len(); }
	TCHAR& operator[](int32 Index) { CheckIndex(Index); return Data.GetData()[Index]; }
	const TCHAR& operator[](int32 Index) const { CheckIndex(Index); return Data.GetData()[Index]; }
	/** The units with their terminator; empty for an empty string. */
	TArray<TCHAR>& GetCharArray() { return Data; }
	const TArray<TCHAR>& GetCharArray() const { return Data; }
	SIZE_T GetAllocatedSize() const { return Data.GetAllocatedSize(); }
	TCHAR* begin() { return Data.GetData(); }
	TCHAR* end() { return Data.GetData() + Len(); }
	const TCHAR* begin() const { return Data.GetData(); }
	const TCHAR* end() const { return Data.GetData() + Len(); }

	void Empty(int32 Slack = 0) { Data.Empty(Slack ? Slack + 1 : 0); }
	void Reset(int32 NewReservedSize = 0) { Data.Reset(NewReservedSize ? NewReservedSize + 1 : 0); }
	void Reserve(int32 CharacterCount) { if (CharacterCount > 0) { Data.Reserve(CharacterCount + 1); } }
	void Shrink() { Data.Shrink(); }

	// Building

	FString& Append(const TCHAR* Text) { return Append(Text, Host::Strings::Length(Text)); }
	FString& Append(const TCHAR* Text, int32 Count);
	FString& Append(const FString& Text) { return Append(Text.Data.GetData(), Text.Len()); }
	FString& Append(FStringView Text) { return Append(Text.GetData(), Text.Len()); }
	FString& AppendChars(const TCHAR* Text, int32 Count) { return Append(Text, Count); }
	FString& AppendChar(TCHAR Char);
	void AppendInt(int64 Number);
	template <typename FmtType, typename... ArgTypes>
	FString& Appendf(const FmtType& Format, const ArgTypes&... Args)
	{
		CheckFormat<FmtType>();
		AppendPrintf(Format, Host::TPrintfArguments<ArgTypes...>(Args...).Items, (int32)sizeof...(ArgTypes));
		return *this;
	}

	FString& operator+=(const TCHAR* Text) { return Append(Text); }
	FString& operator+=(const FString& Text) { return Append(Text); }
	FString& operator+=(FStringView Text) { return Append(Text); }
	FString& operator+=(TCHAR Char) { return AppendChar(Char); }

	void InsertAt(int32 Index, TCHAR Char) { InsertAt(Index, FStringView(&Char, 1)); }
	void InsertAt(int32 Index, FStringView Text);
	void RemoveAt(int32 Index, int32 Count = 1, EAllowShrinking AllowShrinking = EAllowShrinking::Default);

	/** Joins two parts of a path with exactly one slash between them. */
	void PathAppend(const TCHAR* Text, int32 Count);
	FString& operator/=(FStringView Text)
	{
		PathAppend(Text.GetData(), Text.Len());
		return *this;
	}

	/**
	 * Formats after a literal: %s and %ls (TCHAR), %hs (8-bit), %c, %d %i %u %x %X %o (with or without h, l, ll, z), %f %F %e %g %G %a, %p, %%,
	 * with flags, width and precision, either of them possibly *. An argument of the wrong kind is a failed check.
	 */
	template <typename FmtType, typename... ArgTypes>
	static FString Printf(const FmtType& Format, const ArgTypes&... Args)
	{
		CheckFormat<FmtType>();
		FString Result;
		Result.AppendPrintf(Format, Host::TPrintfArguments<ArgTypes...>(Args...).Items, (int32)sizeof...(ArgTypes));
		return Result;
	}

	static FString FromInt(int32 Number);
	/** The number with at least MinFractionalDigits decimals and no superfluous zeros. */
	static FString SanitizeFloat(double Number, int32 MinFractionalDigits = 1);
	/** With a comma between thousands. */
	static FString FormatAsNumber(int32 Number);
	static FString Chr(TCHAR Char) { return FString(1, &Char); }
	static FString ChrN(int32 NumCharacters, TCHAR Char);

	template <typename RangeType>
	static FString Join(const RangeType& Range, const TCHAR* Separator)
	{
		return JoinBy(Range, Separator, [](const auto& Element) -> const auto& { return Element; });
	}

	template <typename RangeType, typename ProjectionType>
	static FString JoinBy(const RangeType& Range, const TCHAR* Separator, ProjectionType Projection)
	{
		FString Result;
		bool bFirst = true;
		for (auto&& Element : Range)
		{
			if (!bFirst)
			{
				Result += Separator;
			}
			bFirst = false;
			Result += ::Invoke(Projection, Element);
		}
		return Result;
	}

	// Parts

	FString Left(int32 Count) const { return FString(View().Left(Count)); }
	/** All but the last Count units. */
	FString LeftChop(int32 Count) const { return FString(View().LeftChop(Count)); }
	FString Right(int32 Count) const { return FString(View().Right(Count)); }
	/** All but the first Count units. */
	FString RightChop(int32 Count) const { return FString(View().RightChop(Count)); }
	FString Mid(int32 Start, int32 Count = MAX_int32) const { return FString(View().Mid(Start, Count)); }
	void LeftInline(int32 Count, EAllowShrinking AllowShrinking = EAllowShrinking::Default) { KeepOnly(View().Left(Count), AllowShrinking); }
	void LeftChopInline(int32 Count, EAllowShrinking AllowShrinking = EAllowShrinking::Default) { KeepOnly(View().LeftChop(Count), AllowShrinking); }
	void RightInline(int32 Count, EAllowShrinking AllowShrinking = EAllowShrinking::Default) { KeepOnly(View().Right(Count), AllowShrinking); }
	void RightChopInline(int32 Count, EAllowShrinking AllowShrinking = EAllowShrinking::Default) { KeepOnly(View().RightChop(Count), AllowShrinking); }
	void MidInline(int32 Start, int32 Count = MAX_int32, EAllowShrinking AllowShrinking = EAllowShrinking::Default) { KeepOnly(View().Mid(Start, Count), AllowShrinking); }

	/**
	 * Cuts at the first occurrence of the separator from the given end. Either output may be null. Without an occurrence
	 * it returns false and the outputs keep their content.
	 */
	bool Split(const FString& InStr, FString* LeftS, FString* RightS, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase, ESearchDir::Type SearchDir = ESearchDir::FromStart) const;
	bool Split(const FString& InStr, FString* LeftS, FString* RightS, ESearchDir::Type SearchDir) const { return Split(InStr, LeftS, RightS, ESearchCase::IgnoreCase, SearchDir); }

	/** Cuts at every delimiter; returns the number of parts. */
	int32 ParseIntoArray(TArray<FString>& OutArray, const TCHAR* Delimiter, bool bInCullEmpty = true) const;
	/** Cuts at every one of the delimiters. */
	int32 ParseIntoArray(TArray<FString>& OutArray, const TCHAR* const* Delimiters, int32 NumDelimiters, bool bInCullEmpty = true) const;
	int32 ParseIntoArrayWS(TArray<FString>& OutArray, const TCHAR* ExtraDelimiter = nullptr, bool bInCullEmpty = true) const;
	int32 ParseIntoArrayLines(TArray<FString>& OutArray, bool bInCullEmpty = true) const;

	// Questions

	/** Negative, 0 or positive; case sensitive unless told otherwise. */
	int32 Compare(const FString& Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const { return View().Compare(Other.View(), SearchCase); }
	int32 Compare(FStringView Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const { return View().Compare(Other, SearchCase); }
	int32 Compare(const TCHAR* Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const { return View().Compare(Other, SearchCase); }
	bool Equals(const FString& Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const { return View().Equals(Other.View(), SearchCase); }
	bool Equals(FStringView Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const { return View().Equals(Other, SearchCase); }
	bool Equals(const TCHAR* Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const { return View().Equals(Other, SearchCase); }

	/** Index of the substring, or INDEX_NONE. From the end, StartPosition is where the searched part ends. */
	int32 Find(FStringView SubStr, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase, ESearchDir::Type SearchDir = ESearchDir::FromStart, int32 StartPosition = INDEX_NONE) const;
	/** An empty substring is contained in every string. */
	bool Contains(FStringView SubStr, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase, ESearchDir::Type SearchDir = ESearchDir::FromStart) const;
	bool FindChar(TCHAR Char, int32& OutIndex) const { return View().FindChar(Char, OutIndex); }
	bool FindLastChar(TCHAR Char, int32& OutIndex) const { return View().FindLastChar(Char, OutIndex); }

	template <typename PredicateType>
	int32 FindLastCharByPredicate(PredicateType Predicate, int32 Count = MAX_int32) const
	{
		for (int32 Index = (Count < Len() ? Count : Len()) - 1; Index >= 0; --Index)
		{
			if (Predicate(Data.GetData()[Index]))
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}

	bool StartsWith(FStringView Prefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const { return View().StartsWith(Prefix, SearchCase); }
	bool EndsWith(FStringView Suffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const { return View().EndsWith(Suffix, SearchCase); }
	/** Whether the whole text fits a pattern of * (any run) and ? (any unit). */
	bool MatchesWildcard(FStringView Wildcard, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;
	/** Whether the text is a decimal number: a sign, digits, at most one point. */
	bool IsNumeric() const;
	/** "true", "yes", "on" and numbers other than 0 are true. */
	bool ToBool() const;

	// Changed copies, and the same in place

	FString ToUpper() const;
	FString ToLower() const;
	void ToUpperInline();
	void ToLowerInline();
	FString TrimStart() const { return FString(View().TrimStart()); }
	FString TrimEnd() const { return FString(View().TrimEnd()); }
	FString TrimStartAndEnd() const { return FString(View().TrimStartAndEnd()); }
	void TrimStartInline() { KeepOnly(View().TrimStart(), EAllowShrinking::No); }
	void TrimEndInline() { KeepOnly(View().TrimEnd(), EAllowShrinking::No); }
	void TrimStartAndEndInline() { KeepOnly(View().TrimStartAndEnd(), EAllowShrinking::No); }
	/** Without one such character at each end where it stands there. */
	FString TrimChar(TCHAR Char) const;
	FString TrimQuotes(bool* bQuotesRemoved = nullptr) const;
	/** Removes the prefix if it is there; tells whether. */
	bool RemoveFromStart(FStringView Prefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);
	bool RemoveFromEnd(FStringView Suffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);
	FString Replace(const TCHAR* From, const TCHAR* To, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;
	/** Returns the number of replacements. */
	int32 ReplaceInline(const TCHAR* From, const TCHAR* To, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);
	void ReplaceCharInline(TCHAR From, TCHAR To, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);
	/** Writes backslash, quotes, tab and line ends as backslash sequences. */
	FString ReplaceCharWithEscapedChar() const;
	FString ReplaceEscapedCharWithChar() const;
	FString ReplaceQuotesWithEscapedQuotes() const;
	FString ConvertTabsToSpaces(int32 SpacesPerTab) const;
	FString Reverse() const;
	void ReverseString() { *this = Reverse(); }
	/** Spaces in front until the text is ChCount units long. */
	FString LeftPad(int32 ChCount) const;
	FString RightPad(int32 ChCount) const;

	friend bool operator==(const FString& A, const FString& B) { return A.View().Equals(B.View(), ESearchCase::IgnoreCase); }
	friend bool operator==(const FString& A, const TCHAR* B) { return A.View().Equals(B, ESearchCase::IgnoreCase); }
	friend bool operator<(const FString& A, const FString& B) { return A.View().Compare(B.View(), ESearchCase::IgnoreCase) < 0; }
	friend bool operator<(const FString& A, const TCHAR* B) { return A.View().Compare(B, ESearchCase::IgnoreCase) < 0; }
	friend bool operator<(const TCHAR* A, const FString& B) { return B.View().Compare(A, ESearchCase::IgnoreCase) > 0; }
	friend bool operator<=(const FString& A, const FString& B) { return A.View().Compare(B.View(), ESearchCase::IgnoreCase) <= 0; }
	friend bool operator<=(const FString& A, const TCHAR* B) { return A.View().Compare(B, ESearchCase::IgnoreCase) <= 0; }
	friend bool operator>(const FString& A, const FString& B) { return A.View().Compare(B.View(), ESearchCase::IgnoreCase) > 0; }
	friend bool operator>(const FString& A, const TCHAR* B) { return A.View().Compare(B, ESearchCase::IgnoreCase) > 0; }
	friend bool operator>=(const FString& A, const FString& B) { return A.View().Compare(B.View(), ESearchCase::IgnoreCase) >= 0; }
	friend bool operator>=(const FString& A, const TCHAR* B) { return A.View().Compare(B, ESearchCase::IgnoreCase) >= 0; }

	friend uint32 GetTypeHash(const FString& String) { return GetTypeHash(String.View()); }

	friend FString operator+(const FString& A, const FString& B) { return Concatenate(A.View(), B.View()); }
	friend FString operator+(const FString& A, const TCHAR* B) { return Concatenate(A.View(), B); }
	friend FString operator+(const TCHAR* A, const FString& B) { return Concatenate(A, B.View()); }
	friend FString operator+(const TCHAR* A, FString&& B) { return Concatenate(A, B.View()); }
	friend FString operator+(const FString& A, FStringView B) { return Concatenate(A.View(), B); }
	friend FString operator+(FStringView A, const FString& B) { return Concatenate(A, B.View()); }
	friend FString operator+(const FString& A, TCHAR B) { return Concatenate(A.View(), FStringView(&B, 1)); }
	friend FString operator+(FString&& A, const FString& B) { return MoveTemp(A.Append(B)); }
	friend FString operator+(FString&& A, FString&& B) { return MoveTemp(A.Append(B)); }
	friend FString operator+(const FString& A, FString&& B) { return Concatenate(A.View(), B.View()); }
	friend FString operator+(FString&& A, const TCHAR* B) { return MoveTemp(A.Append(B)); }
	friend FString operator+(FString&& A, TCHAR B) { return MoveTemp(A.AppendChar(B)); }
	friend FString operator/(const FString& A, FStringView B) { return FString(A, B.Len() + 1) /= B; }
	friend FString operator/(const FString& A, const TCHAR* B) { return A / FStringView(B); }
	friend FString operator/(const FString& A, const FString& B) { return A / FStringView(B); }

	/** Not part of the documented surface: what Printf expands to. */
	void AppendPrintf(const TCHAR* Format, const Host::FPrintfArgument* Arguments, int32 NumArguments);

private:
	FStringView View() const { return FStringView(Data.GetData(), Len()); }

	void CheckIndex(int32 Index) const
	{
		if (!IsValidIndex(Index)) [[unlikely]]
		{
			Host::ReportBadIndex(Index, Len());
		}
	}

	template <typename FmtType>
	static constexpr void CheckFormat()
	{
		static_assert(std::is_array_v<FmtType> && std::is_same_v<std::remove_cvref_t<decltype(std::declval<FmtType>()[0])>, TCHAR>, "The format must be a TEXT() literal");
	}

	/** Adds Count units behind the text and returns where they are to be written; the terminator is set. */
	TCHAR* Extend(int32 Count);
	void KeepOnly(FStringView Part, EAllowShrinking AllowShrinking);
	static FString Concatenate(FStringView A, FStringView B);

	TArray<TCHAR> Data;
};

inline TCHAR* GetData(FString& String)
{
	return String.GetCharArray().GetData();
}

inline const TCHAR* GetData(const FString& String)
{
	return String.GetCharArray().GetData();
}

inline int32 GetNum(const FString& String)
{
	return String.Len();
}

/** Hexadecimal digits of bytes, upper case. */
CORE_API FString BytesToHex(const uint8* Bytes, int32 NumBytes);

#include "Containers/StringConversions.h"
