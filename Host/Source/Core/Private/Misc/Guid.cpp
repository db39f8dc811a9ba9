#include "Misc/Guid.h"

#include "Misc/AssertionMacros.h"
#include "Misc/Char.h"
#include "Misc/Parse.h"

#include <sys/random.h>

FGuid FGuid::NewGuid()
{
	FGuid Guid;
	// So few bytes come at once or not at all.
	verify(getrandom(&Guid, sizeof(Guid), 0) == ssize_t(sizeof(Guid)));
	// Version 4, variant 1: marked as random for whoever reads it elsewhere.
	Guid.B = (Guid.B & 0xFFFF0FFFu) | 0x00004000u;
	Guid.C = (Guid.C & 0x3FFFFFFFu) | 0x80000000u;
	return Guid;
}

FString FGuid::ToString(EGuidFormats Format) const
{
	if (Format == EGuidFormats::DigitsWithHyphens)
	{
		return FString::Printf(TEXT("%08X-%04X-%04X-%04X-%04X%08X"), A, B >> 16, B & 0xFFFFu, C >> 16, C & 0xFFFFu, D);
	}
	return FString::Printf(TEXT("%08X%08X%08X%08X"), A, B, C, D);
}

bool FGuid::Parse(const FString& GuidString, FGuid& OutGuid)
{
	const bool bHyphens = GuidString.Len() == 36;
	if (!bHyphens && GuidString.Len() != 32)
	{
		return false;
	}
	uint32 Parts[4] = {};
	int32 DigitCount = 0;
	for (int32 Index = 0; Index < GuidString.Len(); ++Index)
	{
		const TCHAR Unit = GuidString[Index];
		if (bHyphens && (Index == 8 || Index == 13 || Index == 18 || Index == 23))
		{
			if (Unit != TEXT('-'))
			{
				return false;
			}
			continue;
		}
		if (!FChar::IsHexDigit(Unit))
		{
			return false;
		}
		Parts[DigitCount / 8] = Parts[DigitCount / 8] << 4 | uint32(FParse::HexDigit(Unit));
		++DigitCount;
	}
	OutGuid = FGuid(Parts[0], Parts[1], Parts[2], Parts[3]);
	return true;
}
