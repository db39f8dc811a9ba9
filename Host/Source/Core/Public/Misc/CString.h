#pragma once

#include "Host/StringOps.h"
#include "Misc/Char.h"

/** Functions on terminated texts, after those of the C library. The I forms ignore the case of ASCII letters. */
struct FCString
{
	static int32 Strlen(const TCHAR* Text) { return Host::Strings::Length(Text); }

	static CORE_API int32 Strcmp(const TCHAR* A, const TCHAR* B);
	static CORE_API int32 Stricmp(const TCHAR* A, const TCHAR* B);
	static CORE_API int32 Strncmp(const TCHAR* A, const TCHAR* B, SIZE_T Count);
	static CORE_API int32 Strnicmp(const TCHAR* A, const TCHAR* B, SIZE_T Count);

	/** First occurrence, or null. */
	static CORE_API const TCHAR* Strstr(const TCHAR* Text, const TCHAR* Sought);
	static CORE_API const TCHAR* Stristr(const TCHAR* Text, const TCHAR* Sought);
	static CORE_API const TCHAR* Strchr(const TCHAR* Text, TCHAR Sought);
	static CORE_API const TCHAR* Strrchr(const TCHAR* Text, TCHAR Sought);

	/** Copies at most CountWithTerminator - 1 units and a terminator. */
	static CORE_API TCHAR* Strncpy(TCHAR* Dest, const TCHAR* Source, SIZE_T CountWithTerminator);

	/** The number that a text begins with, 0 when there is none. The point is the decimal separator everywhere. */
	static int32 Atoi(const TCHAR* Text) { return (int32)Strtoi64(Text, nullptr, 10); }
	static int64 Atoi64(const TCHAR* Text) { return Strtoi64(Text, nullptr, 10); }
	static float Atof(const TCHAR* Text) { return (float)Atod(Text); }
	static CORE_API double Atod(const TCHAR* Text);
	static int32 Strtoi(const TCHAR* Text, TCHAR** End, int32 Base) { return (int32)Strtoi64(Text, End, Base); }
	static CORE_API int64 Strtoi64(const TCHAR* Text, TCHAR** End, int32 Base);
	static CORE_API uint64 Strtoui64(const TCHAR* Text, TCHAR** End, int32 Base);

	/** Whether the text is a decimal number: a sign, digits, at most one point. */
	static CORE_API bool IsNumeric(const TCHAR* Text);
	/** "true", "yes", "on" and numbers other than 0 are true. */
	static CORE_API bool ToBool(const TCHAR* Text);
	/** Whether all units are ASCII. */
	static CORE_API bool IsPureAnsi(const TCHAR* Text);
	static constexpr bool IsPureAnsi(const TCHAR* Text, int32 Len)
	{
		uint32 Units = 0;
		for (int32 Index = 0; Index < Len; ++Index)
		{
			Units |= Text[Index];
		}
		return Units < 0x80;
	}
};
