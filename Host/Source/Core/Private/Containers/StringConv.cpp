#include "Containers/StringConv.h"

#include <unicode/ustring.h>

namespace
{
	constexpr UChar32 ReplacementCharacter = 0xFFFD;

	/** Copies the ASCII that a text begins with; returns its length. Most texts are nothing else. */
	template <typename DestType, typename SourceType>
	int32 CopyAscii(DestType* Dest, const SourceType* Source, int32 SourceLen)
	{
		int32 Index = 0;
		while (Index < SourceLen && (uint32)Source[Index] < 0x80)
		{
			Dest[Index] = (DestType)Source[Index];
			++Index;
		}
		return Index;
	}
}

int32 Host::Utf8ToUtf16(TCHAR* Dest, const ANSICHAR* Source, int32 SourceLen)
{
	const int32 NumAscii = CopyAscii(Dest, reinterpret_cast<const uint8*>(Source), SourceLen);
	if (NumAscii == SourceLen)
	{
		return NumAscii;
	}
	int32 Written = 0;
	UErrorCode Error = U_ZERO_ERROR;
	const int32 Rest = SourceLen - NumAscii;
	u_strFromUTF8WithSub(Dest + NumAscii, Rest * MaxUtf16PerUtf8, &Written, Source + NumAscii, Rest, ReplacementCharacter, nullptr, &Error);
	return NumAscii + Written;
}

int32 Host::Utf16ToUtf8(ANSICHAR* Dest, const TCHAR* Source, int32 SourceLen)
{
	const int32 NumAscii = CopyAscii(Dest, Source, SourceLen);
	if (NumAscii == SourceLen)
	{
		return NumAscii;
	}
	int32 Written = 0;
	UErrorCode Error = U_ZERO_ERROR;
	const int32 Rest = SourceLen - NumAscii;
	u_strToUTF8WithSub(Dest + NumAscii, Rest * MaxUtf8PerUtf16, &Written, Source + NumAscii, Rest, ReplacementCharacter, nullptr, &Error);
	return NumAscii + Written;
}

int32 Host::Utf32ToUtf16(TCHAR* Dest, const UTF32CHAR* Source, int32 SourceLen)
{
	int32 Written = 0;
	for (int32 Index = 0; Index < SourceLen; ++Index)
	{
		const bool bValid = Source[Index] <= 0x10FFFF && !U_IS_SURROGATE(Source[Index]);
		const UChar32 CodePoint = bValid ? (UChar32)Source[Index] : ReplacementCharacter;
		U16_APPEND_UNSAFE(Dest, Written, CodePoint);
	}
	return Written;
}
