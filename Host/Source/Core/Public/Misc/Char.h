#pragma once

#include "CoreTypes.h"
#include "Templates/UnrealTypeTraits.h"

namespace Host
{
	/** Unicode's answers for a UTF-16 code unit that is not ASCII. */
	CORE_API TCHAR ToUpperNonAscii(TCHAR Char);
	CORE_API TCHAR ToLowerNonAscii(TCHAR Char);
	CORE_API bool IsUpperNonAscii(TCHAR Char);
	CORE_API bool IsLowerNonAscii(TCHAR Char);
	CORE_API bool IsAlphaNonAscii(TCHAR Char);
	CORE_API bool IsDigitNonAscii(TCHAR Char);
	CORE_API bool IsPunctNonAscii(TCHAR Char);
	CORE_API bool IsWhitespaceNonAscii(TCHAR Char);
}

/** Character classes and cases; of 8-bit characters only ASCII ones belong to a class. */
template <typename CharType>
struct TChar
{
	static constexpr bool IsAscii(CharType Char) { return (uint32)Char < 0x80; }

	static CharType ToUpper(CharType Char) { return IsAscii(Char) ? (Char >= 'a' && Char <= 'z' ? (CharType)(Char - 32) : Char) : NonAscii(&Host::ToUpperNonAscii, Char, Char); }
	static CharType ToLower(CharType Char) { return IsAscii(Char) ? (Char >= 'A' && Char <= 'Z' ? (CharType)(Char + 32) : Char) : NonAscii(&Host::ToLowerNonAscii, Char, Char); }
	static bool IsUpper(CharType Char) { return IsAscii(Char) ? Char >= 'A' && Char <= 'Z' : NonAscii(&Host::IsUpperNonAscii, Char, false); }
	static bool IsLower(CharType Char) { return IsAscii(Char) ? Char >= 'a' && Char <= 'z' : NonAscii(&Host::IsLowerNonAscii, Char, false); }
	static bool IsAlpha(CharType Char) { return IsAscii(Char) ? IsUpper(Char) || IsLower(Char) : NonAscii(&Host::IsAlphaNonAscii, Char, false); }
	static bool IsDigit(CharType Char) { return IsAscii(Char) ? Char >= '0' && Char <= '9' : NonAscii(&Host::IsDigitNonAscii, Char, false); }
	static bool IsAlnum(CharType Char) { return IsAlpha(Char) || IsDigit(Char); }
	static bool IsPunct(CharType Char) { return IsAscii(Char) ? Char > ' ' && Char != 0x7f && !IsAlnum(Char) : NonAscii(&Host::IsPunctNonAscii, Char, false); }
	static bool IsWhitespace(CharType Char) { return IsAscii(Char) ? Char == ' ' || (Char >= '\t' && Char <= '\r') : NonAscii(&Host::IsWhitespaceNonAscii, Char, false); }
	static bool IsIdentifier(CharType Char) { return IsAlnum(Char) || Char == '_'; }
	static constexpr bool IsUnderscore(CharType Char) { return Char == '_'; }
	static constexpr bool IsLinebreak(CharType Char) { return (Char >= 0x0a && Char <= 0x0d) || Char == (CharType)0x85 || (sizeof(CharType) > 1 && ((uint32)Char == 0x2028 || (uint32)Char == 0x2029)); }
	static constexpr bool IsHexDigit(CharType Char) { return (Char >= '0' && Char <= '9') || (Char >= 'a' && Char <= 'f') || (Char >= 'A' && Char <= 'F'); }
	static constexpr bool IsOctDigit(CharType Char) { return Char >= '0' && Char <= '7'; }

	/** Value of a decimal digit. */
	static constexpr int32 ConvertCharDigitToInt(CharType Char) { return (int32)Char - (int32)'0'; }

private:
	template <typename ResultType>
	static ResultType NonAscii(ResultType (*Function)(TCHAR), CharType Char, ResultType OfOthers)
	{
		if constexpr (std::is_same_v<CharType, TCHAR>)
		{
			return Function(Char);
		}
		else
		{
			(void)Function;
			(void)Char;
			return OfOthers;
		}
	}

	template <typename ResultType>
	static CharType NonAscii(ResultType (*Function)(TCHAR), CharType Char, CharType OfOthers)
		requires(!std::is_same_v<ResultType, CharType>)
	{
		(void)Function;
		(void)Char;
		return OfOthers;
	}
};

using FChar = TChar<TCHAR>;
using FCharAnsi = TChar<ANSICHAR>;
