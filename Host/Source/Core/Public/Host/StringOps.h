#pragma once

#include "CoreTypes.h"

#include <cstring>

/** Whether letters' case counts. Of the letters only ASCII ones have a case here. */
namespace ESearchCase
{
	enum Type
	{
		CaseSensitive,
		IgnoreCase
	};
}

/** From which end a search goes. */
namespace ESearchDir
{
	enum Type
	{
		FromStart,
		FromEnd
	};
}

/** Operations on runs of UTF-16 given by address and length, on which the string types stand. */
namespace Host::Strings
{
	/** Four UTF-16 units at a time with ASCII letters made lower case. */
	FORCEINLINE constexpr uint64 FoldFour(uint64 Units)
	{
		constexpr uint64 High = 0x8000800080008000ull;
		constexpr uint64 Ones = 0x0001000100010001ull;
		const uint64 Beyond = Units & (0xFF80ull * Ones);
		const uint64 NonAscii = Beyond | ((Beyond & ~High) + ~High);
		const uint64 Low = Units & (0x7Full * Ones);
		const uint64 FromA = Low + (0x8000ull - 'A') * Ones;
		const uint64 BeyondZ = Low + (0x8000ull - 'Z' - 1) * Ones;
		return Units | ((FromA & ~BeyondZ & ~NonAscii & High) >> 10);
	}

	FORCEINLINE constexpr TCHAR Fold(TCHAR Char)
	{
		return Char >= u'A' && Char <= u'Z' ? (TCHAR)(Char + 32) : Char;
	}

	FORCEINLINE uint64 LoadFour(const TCHAR* Text)
	{
		uint64 Units;
		std::memcpy(&Units, Text, sizeof(Units));
		return Units;
	}

	/** The last Count (0 to 3) units of a run, the rest zero. */
	FORCEINLINE uint64 LoadTail(const TCHAR* Text, int32 Count)
	{
		uint64 Units = 0;
		for (int32 Index = 0; Index < Count; ++Index)
		{
			Units |= (uint64)Text[Index] << (Index * 16);
		}
		return Units;
	}

	FORCEINLINE constexpr uint64 MixHash(uint64 Hash, uint64 Units)
	{
		Hash = (Hash ^ Units) * 0x9E3779B97F4A7C15ull;
		return Hash ^ (Hash >> 29);
	}

	template <bool bFold>
	inline uint64 Hash(const TCHAR* Text, int32 Len)
	{
		uint64 Hash = (uint64)Len * 0xD6E8FEB86659FD93ull;
		const TCHAR* const End = Text + (Len & ~3);
		for (; Text != End; Text += 4)
		{
			Hash = MixHash(Hash, bFold ? FoldFour(LoadFour(Text)) : LoadFour(Text));
		}
		const uint64 Tail = LoadTail(Text, Len & 3);
		Hash = MixHash(Hash, bFold ? FoldFour(Tail) : Tail);
		return Hash ^ (Hash >> 32);
	}

	/** Whether two runs of the same length are equal but for the case of ASCII letters. */
	inline bool EqualIgnoreCase(const TCHAR* A, const TCHAR* B, int32 Len)
	{
		const TCHAR* const End = A + (Len & ~3);
		for (; A != End; A += 4, B += 4)
		{
			const uint64 FourOfA = LoadFour(A);
			const uint64 FourOfB = LoadFour(B);
			if (FourOfA != FourOfB && FoldFour(FourOfA) != FoldFour(FourOfB))
			{
				return false;
			}
		}
		return FoldFour(LoadTail(A, Len & 3)) == FoldFour(LoadTail(B, Len & 3));
	}

	inline bool Equal(const TCHAR* A, int32 LenA, const TCHAR* B, int32 LenB, ESearchCase::Type SearchCase)
	{
		if (LenA != LenB)
		{
			return false;
		}
		return SearchCase == ESearchCase::CaseSensitive ? LenA == 0 || std::memcmp(A, B, sizeof(TCHAR) * (SIZE_T)LenA) == 0 : EqualIgnoreCase(A, B, LenA);
	}

	/** Negative, 0 or positive; a run comes before every longer one that it begins. */
	CORE_API int32 Compare(const TCHAR* A, int32 LenA, const TCHAR* B, int32 LenB, ESearchCase::Type SearchCase);

	/** Index of the first occurrence at or behind Start, INDEX_NONE when there is none. */
	CORE_API int32 FindForward(const TCHAR* Text, int32 Len, const TCHAR* Sought, int32 SoughtLen, int32 Start, ESearchCase::Type SearchCase);
	/** Index of the last occurrence that begins at or before Start. */
	CORE_API int32 FindBackward(const TCHAR* Text, int32 Len, const TCHAR* Sought, int32 SoughtLen, int32 Start, ESearchCase::Type SearchCase);

	inline int32 Length(const TCHAR* Text)
	{
		const TCHAR* End = Text;
		while (End != nullptr && *End != 0)
		{
			++End;
		}
		return (int32)(End - Text);
	}
}
