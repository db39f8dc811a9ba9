#include "Misc/Parse.h"

#include "Misc/Char.h"
#include "Misc/CString.h"
#include "UObject/NameTypes.h"

namespace
{
	/** What follows the word, where no letter or digit stands before it; null when it is not there. */
	const TCHAR* FindValue(const TCHAR* Stream, const TCHAR* Match)
	{
		const int32 MatchLength = FCString::Strlen(Match);
		bool bInsideWord = false;
		for (; *Stream != TEXT('\0'); ++Stream)
		{
			if (!bInsideWord && FCString::Strnicmp(Stream, Match, SIZE_T(MatchLength)) == 0)
			{
				return Stream + MatchLength;
			}
			bInsideWord = FChar::IsAlnum(*Stream);
		}
		return nullptr;
	}

	/** The number that the text starts with. Returns false when it starts with none. */
	bool ReadInteger(const TCHAR* Text, int64& OutValue)
	{
		TCHAR* End = nullptr;
		const int64 Value = FCString::Strtoi64(Text, &End, 10);
		if (End == Text)
		{
			return false;
		}
		OutValue = Value;
		return true;
	}

	bool StartsNumber(const TCHAR* Text)
	{
		if (*Text == TEXT('-') || *Text == TEXT('+'))
		{
			++Text;
		}
		if (*Text == TEXT('.'))
		{
			++Text;
		}
		return FChar::IsDigit(*Text);
	}

	template <typename IntegerType>
	bool ReadIntegerValue(const TCHAR* Stream, const TCHAR* Match, IntegerType& OutValue)
	{
		const TCHAR* const Found = FindValue(Stream, Match);
		int64 Value = 0;
		if (Found == nullptr || !ReadInteger(Found, Value))
		{
			return false;
		}
		OutValue = IntegerType(Value);
		return true;
	}

	void SkipWhitespace(const TCHAR*& Text)
	{
		while (FChar::IsWhitespace(*Text))
		{
			++Text;
		}
	}

	/** The value of four hexadecimal digits, or -1. */
	int32 ReadHexDigits(const TCHAR* Text)
	{
		int32 Value = 0;
		for (int32 Index = 0; Index < 4; ++Index)
		{
			if (!FChar::IsHexDigit(Text[Index]))
			{
				return -1;
			}
			Value = Value * 16 + FParse::HexDigit(Text[Index]);
		}
		return Value;
	}

	/** Reads what follows a backslash and moves behind it. An unknown escape stands for itself. */
	TCHAR ReadEscape(const TCHAR*& Text)
	{
		const TCHAR Escape = *Text++;
		switch (Escape)
		{
		case TEXT('n'): return TEXT('\n');
		case TEXT('r'): return TEXT('\r');
		case TEXT('t'): return TEXT('\t');
		case TEXT('u'):
			if (const int32 Value = ReadHexDigits(Text); Value >= 0)
			{
				Text += 4;
				return TCHAR(Value);
			}
			return Escape;
		default: return Escape;
		}
	}
}

bool FParse::Value(const TCHAR* Stream, const TCHAR* Match, FString& Value, bool bShouldStopOnSeparator)
{
	const TCHAR* Found = FindValue(Stream, Match);
	if (Found == nullptr)
	{
		return false;
	}
	const TCHAR* Stops = bShouldStopOnSeparator ? TEXT(" ,)\t\r\n") : TEXT("\r\n");
	if (*Found == TEXT('"'))
	{
		++Found;
		Stops = TEXT("\"");
	}
	const TCHAR* End = Found;
	while (*End != TEXT('\0') && FCString::Strchr(Stops, *End) == nullptr)
	{
		++End;
	}
	Value = FString(int32(End - Found), Found);
	return true;
}

bool FParse::Value(const TCHAR* Stream, const TCHAR* Match, FName& Name)
{
	FString Text;
	if (!Value(Stream, Match, Text))
	{
		return false;
	}
	Name = FName(*Text);
	return true;
}

bool FParse::Value(const TCHAR* Stream, const TCHAR* Match, uint8& Value)
{
	return ReadIntegerValue(Stream, Match, Value);
}

bool FParse::Value(const TCHAR* Stream, const TCHAR* Match, int32& Value)
{
	return ReadIntegerValue(Stream, Match, Value);
}

bool FParse::Value(const TCHAR* Stream, const TCHAR* Match, uint32& Value)
{
	return ReadIntegerValue(Stream, Match, Value);
}

bool FParse::Value(const TCHAR* Stream, const TCHAR* Match, int64& Value)
{
	return ReadIntegerValue(Stream, Match, Value);
}

bool FParse::Value(const TCHAR* Stream, const TCHAR* Match, float& Value)
{
	double Wide = 0.0;
	if (!FParse::Value(Stream, Match, Wide))
	{
		return false;
	}
	Value = float(Wide);
	return true;
}

bool FParse::Value(const TCHAR* Stream, const TCHAR* Match, double& Value)
{
	const TCHAR* const Found = FindValue(Stream, Match);
	if (Found == nullptr || !StartsNumber(Found))
	{
		return false;
	}
	Value = FCString::Atod(Found);
	return true;
}

bool FParse::Bool(const TCHAR* Stream, const TCHAR* Match, bool& OnOff)
{
	FString Text;
	if (!Value(Stream, Match, Text))
	{
		return false;
	}
	OnOff = FCString::ToBool(*Text);
	return true;
}

bool FParse::Param(const TCHAR* Stream, const TCHAR* Param)
{
	const int32 Length = FCString::Strlen(Param);
	FString Word;
	for (const TCHAR* Rest = Stream; Token(Rest, Word, false);)
	{
		const bool bSwitch = Word.StartsWith(TEXT("-")) || Word.StartsWith(TEXT("/"));
		if (bSwitch && Word.Len() == Length + 1 && FCString::Stricmp(*Word + 1, Param) == 0)
		{
			return true;
		}
	}
	return false;
}

bool FParse::Command(const TCHAR** Stream, const TCHAR* Match)
{
	const TCHAR* Rest = *Stream;
	SkipWhitespace(Rest);
	const int32 Length = FCString::Strlen(Match);
	if (FCString::Strnicmp(Rest, Match, SIZE_T(Length)) != 0 || FChar::IsAlnum(Rest[Length]))
	{
		return false;
	}
	Rest += Length;
	SkipWhitespace(Rest);
	*Stream = Rest;
	return true;
}

bool FParse::Token(const TCHAR*& Str, FString& Result, bool bUseEscape)
{
	SkipWhitespace(Str);
	if (*Str == TEXT('\0'))
	{
		return false;
	}
	Result.Reset();
	bool bQuoted = false;
	// Quotes inside a word hold its spaces together: -Title="Two words" is one.
	for (; *Str != TEXT('\0') && (bQuoted || !FChar::IsWhitespace(*Str)); ++Str)
	{
		if (bUseEscape && *Str == TEXT('\\') && Str[1] == TEXT('"'))
		{
			++Str;
			Result.AppendChar(*Str);
		}
		else if (*Str == TEXT('"'))
		{
			bQuoted = !bQuoted;
		}
		else
		{
			Result.AppendChar(*Str);
		}
	}
	return true;
}

bool FParse::QuotedString(const TCHAR* Stream, FString& Value, int32* OutNumCharsRead)
{
	if (*Stream != TEXT('"'))
	{
		return false;
	}
	FString Text;
	const TCHAR* Rest = Stream + 1;
	while (*Rest != TEXT('"'))
	{
		if (*Rest == TEXT('\0') || (*Rest == TEXT('\\') && Rest[1] == TEXT('\0')))
		{
			return false;
		}
		if (*Rest == TEXT('\\'))
		{
			++Rest;
			Text.AppendChar(ReadEscape(Rest));
		}
		else
		{
			Text.AppendChar(*Rest++);
		}
	}
	Value = MoveTemp(Text);
	if (OutNumCharsRead != nullptr)
	{
		*OutNumCharsRead = int32(Rest + 1 - Stream);
	}
	return true;
}

int32 FParse::HexDigit(TCHAR Char)
{
	if (Char >= TEXT('0') && Char <= TEXT('9'))
	{
		return Char - TEXT('0');
	}
	const TCHAR Lower = TCHAR(Char | 0x20);
	return Lower >= TEXT('a') && Lower <= TEXT('f') ? Lower - TEXT('a') + 10 : 0;
}
