#pragma once

#include "Containers/ContainersFwd.h"
#include "Host/StringOps.h"
#include "Misc/AssertionMacros.h"
#include "Misc/Char.h"
#include "Templates/TypeHash.h"

#include <concepts>

namespace Host
{
	template <typename CharType>
	constexpr int32 TextLength(const CharType* Text)
	{
		int32 Len = 0;
		while (Text != nullptr && Text[Len] != 0)
		{
			++Len;
		}
		return Len;
	}
}

/**
 * Characters that stand elsewhere: an address and a length. They need not be terminated, and must outlive the view.
 * As for strings, ==, < and the hash ignore the case of ASCII letters; Equals and Compare count it unless told otherwise.
 */
template <typename CharType>
class TStringView
{
public:
	using ElementType = CharType;
	using ViewType = TStringView;

	constexpr TStringView() = default;

	/** Views a terminated text; null is empty. */
	constexpr TStringView(const CharType* Text)
		: DataPtr(Text)
		, Size(Host::TextLength(Text))
	{
	}

	constexpr TStringView(const CharType* Text, int32 Len)
		: DataPtr(Text)
		, Size(Len)
	{
	}

	/** Views a string. */
	template <typename StringType>
		requires requires(const StringType& String) { { String.GetCharArray() }; { *String } -> std::same_as<const CharType*>; }
	constexpr TStringView(const StringType& String)
		: DataPtr(*String)
		, Size(String.Len())
	{
	}

	constexpr const CharType* GetData() const { return DataPtr; }
	constexpr int32 Len() const { return Size; }
	constexpr int32 Num() const { return Size; }
	constexpr int32 NumBytes() const { return Size * (int32)sizeof(CharType); }
	constexpr bool IsEmpty() const { return Size == 0; }
	constexpr bool IsValidIndex(int32 Index) const { return Index >= 0 && Index < Size; }
	constexpr const CharType* begin() const { return DataPtr; }
	constexpr const CharType* end() const { return DataPtr + Size; }
	void Reset() { *this = TStringView(); }

	const CharType& operator[](int32 Index) const
	{
		check(IsValidIndex(Index));
		return DataPtr[Index];
	}

	constexpr TStringView Left(int32 CharCount) const { return TStringView(DataPtr, Clamp(CharCount)); }
	constexpr TStringView LeftChop(int32 CharCount) const { return TStringView(DataPtr, Clamp(Size - CharCount)); }
	constexpr TStringView Right(int32 CharCount) const { return TStringView(DataPtr + Size - Clamp(CharCount), Clamp(CharCount)); }
	constexpr TStringView RightChop(int32 CharCount) const { return Right(Size - CharCount); }

	/** At most CharCount characters from Position on. */
	constexpr TStringView Mid(int32 Position, int32 CharCount = MAX_int32) const
	{
		const int32 Start = Clamp(Position);
		const int32 Rest = Size - Start;
		return TStringView(DataPtr + Start, CharCount < 0 ? 0 : (CharCount < Rest ? CharCount : Rest));
	}

	constexpr TStringView SubStr(int32 Position, int32 CharCount) const { return Mid(Position, CharCount); }

	TStringView TrimStart() const
	{
		int32 Start = 0;
		while (Start < Size && TChar<CharType>::IsWhitespace(DataPtr[Start]))
		{
			++Start;
		}
		return RightChop(Start);
	}

	TStringView TrimEnd() const
	{
		int32 NewLen = Size;
		while (NewLen > 0 && TChar<CharType>::IsWhitespace(DataPtr[NewLen - 1]))
		{
			--NewLen;
		}
		return Left(NewLen);
	}

	TStringView TrimStartAndEnd() const { return TrimStart().TrimEnd(); }

	/** Shortens the view. */
	void LeftInline(int32 CharCount) { *this = Left(CharCount); }
	void LeftChopInline(int32 CharCount) { *this = LeftChop(CharCount); }
	void RightInline(int32 CharCount) { *this = Right(CharCount); }
	void RightChopInline(int32 CharCount) { *this = RightChop(CharCount); }
	void RemovePrefix(int32 CharCount) { *this = RightChop(CharCount); }
	void RemoveSuffix(int32 CharCount) { *this = LeftChop(CharCount); }
	void TrimStartAndEndInline() { *this = TrimStartAndEnd(); }

	bool Equals(TStringView Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const
	{
		if constexpr (std::is_same_v<CharType, TCHAR>)
		{
			return Host::Strings::Equal(DataPtr, Size, Other.DataPtr, Other.Size, SearchCase);
		}
		else
		{
			return Size == Other.Size && Compare(Other, SearchCase) == 0;
		}
	}

	/** Negative, 0 or positive. */
	int32 Compare(TStringView Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const
	{
		if constexpr (std::is_same_v<CharType, TCHAR>)
		{
			return Host::Strings::Compare(DataPtr, Size, Other.DataPtr, Other.Size, SearchCase);
		}
		else
		{
			for (int32 Index = 0; Index < Size && Index < Other.Size; ++Index)
			{
				const bool bFold = SearchCase == ESearchCase::IgnoreCase;
				const int32 Difference = Unit(Index, bFold) - Other.Unit(Index, bFold);
				if (Difference != 0)
				{
					return Difference;
				}
			}
			return Size - Other.Size;
		}
	}

	bool StartsWith(TStringView Prefix, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const { return Size >= Prefix.Size && Left(Prefix.Size).Equals(Prefix, SearchCase); }
	bool StartsWith(CharType Prefix) const { return Size > 0 && DataPtr[0] == Prefix; }
	bool EndsWith(TStringView Suffix, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const { return Size >= Suffix.Size && Right(Suffix.Size).Equals(Suffix, SearchCase); }
	bool EndsWith(CharType Suffix) const { return Size > 0 && DataPtr[Size - 1] == Suffix; }

	/** Index of the first occurrence at or behind StartPosition, or INDEX_NONE. */
	int32 Find(TStringView Search, int32 StartPosition = 0, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const
	{
		for (int32 Index = Clamp(StartPosition); Index <= Size - Search.Size; ++Index)
		{
			if (Mid(Index, Search.Size).Equals(Search, SearchCase))
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}

	bool Contains(TStringView Search, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const { return Find(Search, 0, SearchCase) != INDEX_NONE; }

	bool FindChar(CharType Search, int32& OutIndex) const
	{
		for (OutIndex = 0; OutIndex < Size; ++OutIndex)
		{
			if (DataPtr[OutIndex] == Search)
			{
				return true;
			}
		}
		OutIndex = INDEX_NONE;
		return false;
	}

	bool FindLastChar(CharType Search, int32& OutIndex) const
	{
		OutIndex = Size - 1;
		while (OutIndex >= 0 && DataPtr[OutIndex] != Search)
		{
			--OutIndex;
		}
		return OutIndex != INDEX_NONE;
	}

	friend bool operator==(TStringView A, TStringView B) { return A.Equals(B, ESearchCase::IgnoreCase); }
	friend bool operator<(TStringView A, TStringView B) { return A.Compare(B, ESearchCase::IgnoreCase) < 0; }
	friend bool operator<=(TStringView A, TStringView B) { return A.Compare(B, ESearchCase::IgnoreCase) <= 0; }
	friend bool operator>(TStringView A, TStringView B) { return A.Compare(B, ESearchCase::IgnoreCase) > 0; }
	friend bool operator>=(TStringView A, TStringView B) { return A.Compare(B, ESearchCase::IgnoreCase) >= 0; }

	friend uint32 GetTypeHash(TStringView View)
		requires(std::is_same_v<CharType, TCHAR>)
	{
		return (uint32)Host::Strings::Hash<true>(View.DataPtr, View.Size);
	}

private:
	constexpr int32 Clamp(int32 Count) const { return Count < 0 ? 0 : (Count < Size ? Count : Size); }

	int32 Unit(int32 Index, bool bFold) const
	{
		const uint32 Char = (std::conditional_t<sizeof(CharType) == 1, uint8, uint32>)DataPtr[Index];
		return bFold && Char >= 'A' && Char <= 'Z' ? (int32)Char + 32 : (int32)Char;
	}

	const CharType* DataPtr = nullptr;
	int32 Size = 0;
};

/** A view of a literal, its length known when compiled. */
inline constexpr FStringView operator""_SV(const TCHAR* Text, std::size_t Len)
{
	return FStringView(Text, (int32)Len);
}

#define TEXTVIEW(Literal) FStringView(TEXT(Literal), (int32)(sizeof(TEXT(Literal)) / sizeof(TCHAR)) - 1)

inline constexpr FStringView MakeStringView(const TCHAR* Text)
{
	return FStringView(Text);
}

inline constexpr FStringView MakeStringView(const TCHAR* Text, int32 Len)
{
	return FStringView(Text, Len);
}
