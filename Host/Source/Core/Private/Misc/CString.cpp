#include "Misc/CString.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>

namespace
{
	using namespace Host::Strings;

	/** The start of a number as 8-bit text, for the C library; no number is longer. */
	struct FNumberText
	{
		char Chars[128];

		explicit FNumberText(const TCHAR* Text)
		{
			int32 Len = 0;
			while (Text[Len] != 0 && Text[Len] < 0x80 && Len < (int32)sizeof(Chars) - 1)
			{
				Chars[Len] = (char)Text[Len];
				++Len;
			}
			Chars[Len] = 0;
		}
	};

	int32 LengthUpTo(const TCHAR* Text, SIZE_T Count)
	{
		SIZE_T Len = 0;
		while (Len < Count && Text[Len] != 0)
		{
			++Len;
		}
		return (int32)Len;
	}

	const TCHAR* FindText(const TCHAR* Text, const TCHAR* Sought, ESearchCase::Type SearchCase)
	{
		const int32 Index = FindForward(Text, Length(Text), Sought, Length(Sought), 0, SearchCase);
		return Index != INDEX_NONE ? Text + Index : nullptr;
	}

	void SetEnd(TCHAR** End, const TCHAR* Text, const char* Chars, const char* CharsEnd)
	{
		if (End != nullptr)
		{
			*End = const_cast<TCHAR*>(Text) + (CharsEnd - Chars);
		}
	}
}

int32 FCString::Strcmp(const TCHAR* A, const TCHAR* B)
{
	return Compare(A, Length(A), B, Length(B), ESearchCase::CaseSensitive);
}

int32 FCString::Stricmp(const TCHAR* A, const TCHAR* B)
{
	return Compare(A, Length(A), B, Length(B), ESearchCase::IgnoreCase);
}

int32 FCString::Strncmp(const TCHAR* A, const TCHAR* B, SIZE_T Count)
{
	return Compare(A, LengthUpTo(A, Count), B, LengthUpTo(B, Count), ESearchCase::CaseSensitive);
}

int32 FCString::Strnicmp(const TCHAR* A, const TCHAR* B, SIZE_T Count)
{
	return Compare(A, LengthUpTo(A, Count), B, LengthUpTo(B, Count), ESearchCase::IgnoreCase);
}

const TCHAR* FCString::Strstr(const TCHAR* Text, const TCHAR* Sought)
{
	return FindText(Text, Sought, ESearchCase::CaseSensitive);
}

const TCHAR* FCString::Stristr(const TCHAR* Text, const TCHAR* Sought)
{
	return FindText(Text, Sought, ESearchCase::IgnoreCase);
}

const TCHAR* FCString::Strchr(const TCHAR* Text, TCHAR Sought)
{
	while (*Text != 0 && *Text != Sought)
	{
		++Text;
	}
	return *Text == Sought ? Text : nullptr;
}

const TCHAR* FCString::Strrchr(const TCHAR* Text, TCHAR Sought)
{
	for (const TCHAR* Place = Text + Length(Text); Place >= Text; --Place)
	{
		if (*Place == Sought)
		{
			return Place;
		}
	}
	return nullptr;
}

TCHAR* FCString::Strncpy(TCHAR* Dest, const TCHAR* Source, SIZE_T CountWithTerminator)
{
	if (CountWithTerminator > 0)
	{
		const int32 Count = LengthUpTo(Source, CountWithTerminator - 1);
		std::copy(Source, Source + Count, Dest);
		Dest[Count] = 0;
	}
	return Dest;
}

double FCString::Atod(const TCHAR* Text)
{
	return std::strtod(FNumberText(Text).Chars, nullptr);
}

int64 FCString::Strtoi64(const TCHAR* Text, TCHAR** End, int32 Base)
{
	const FNumberText Number(Text);
	char* NumberEnd = nullptr;
	const int64 Value = std::strtoll(Number.Chars, &NumberEnd, Base);
	SetEnd(End, Text, Number.Chars, NumberEnd);
	return Value;
}

uint64 FCString::Strtoui64(const TCHAR* Text, TCHAR** End, int32 Base)
{
	const FNumberText Number(Text);
	char* NumberEnd = nullptr;
	const uint64 Value = std::strtoull(Number.Chars, &NumberEnd, Base);
	SetEnd(End, Text, Number.Chars, NumberEnd);
	return Value;
}

bool FCString::IsNumeric(const TCHAR* Text)
{
	if (*Text == '-' || *Text == '+')
	{
		++Text;
	}
	bool bDigits = false;
	bool bPoint = false;
	for (; *Text != 0; ++Text)
	{
		if (*Text == '.' && !bPoint)
		{
			bPoint = true;
		}
		else if (*Text >= '0' && *Text <= '9')
		{
			bDigits = true;
		}
		else
		{
			return false;
		}
	}
	return bDigits;
}

bool FCString::ToBool(const TCHAR* Text)
{
	for (const TCHAR* Word : { TEXT("true"), TEXT("yes"), TEXT("on") })
	{
		if (Stricmp(Text, Word) == 0)
		{
			return true;
		}
	}
	return Atoi(Text) != 0;
}

bool FCString::IsPureAnsi(const TCHAR* Text)
{
	return IsPureAnsi(Text, Length(Text));
}
