#include "Host/JsonTokens.h"

#include "Containers/StringConv.h"

#include <charconv>
#include <cstdlib>
#include <string>

namespace
{
	bool IsDigit(UTF8CHAR Char)
	{
		return Char >= '0' && Char <= '9';
	}

	void AppendUtf8(TArray<UTF8CHAR>& Out, uint32 CodePoint)
	{
		if (CodePoint < 0x80)
		{
			Out.Add(UTF8CHAR(CodePoint));
			return;
		}
		if (CodePoint < 0x800)
		{
			Out.Add(UTF8CHAR(0xC0 | CodePoint >> 6));
		}
		else
		{
			if (CodePoint < 0x10000)
			{
				Out.Add(UTF8CHAR(0xE0 | CodePoint >> 12));
			}
			else
			{
				Out.Add(UTF8CHAR(0xF0 | CodePoint >> 18));
				Out.Add(UTF8CHAR(0x80 | (CodePoint >> 12 & 0x3F)));
			}
			Out.Add(UTF8CHAR(0x80 | (CodePoint >> 6 & 0x3F)));
		}
		Out.Add(UTF8CHAR(0x80 | (CodePoint & 0x3F)));
	}
}

namespace Host
{
	double JsonNumber(FUtf8StringView Text)
	{
		const char* const First = reinterpret_cast<const char*>(Text.GetData());
		double Number = 0.0;
		if (std::from_chars(First, First + Text.Len(), Number).ec == std::errc::result_out_of_range)
		{
			// Says which of the two it is: too large, or too close to zero.
			Number = std::strtod(std::string(First, SIZE_T(Text.Len())).c_str(), nullptr);
		}
		return Number;
	}

	void JsonText(FString& Out, FUtf8StringView Text)
	{
		TArray<TCHAR>& Characters = Out.GetCharArray();
		Characters.SetNumUninitialized(Text.Len() * MaxUtf16PerUtf8 + 1, EAllowShrinking::No);
		const int32 Written = Utf8ToUtf16(Characters.GetData(), reinterpret_cast<const ANSICHAR*>(Text.GetData()), Text.Len());
		Characters[Written] = 0;
		Characters.SetNumUninitialized(Written == 0 ? 0 : Written + 1, EAllowShrinking::No);
	}

	TArray<UTF8CHAR> JsonBytes(const FString& Text)
	{
		const FTCHARToUTF8 Bytes(*Text, Text.Len());
		return TArray<UTF8CHAR>(reinterpret_cast<const UTF8CHAR*>(Bytes.Get()), Bytes.Length());
	}

	FJsonTokens::FJsonTokens(FUtf8StringView InText)
		: First(InText.GetData())
		, End(InText.GetData() + InText.Len())
		, At(First)
		, TokenStart(First)
		, Counted(First)
		, LineStart(First)
	{
		if (InText.Len() >= 3 && uint8(First[0]) == 0xEF && uint8(First[1]) == 0xBB && uint8(First[2]) == 0xBF)
		{
			At += 3;
			TokenStart = Counted = LineStart = At;
		}
	}

	bool FJsonTokens::Next(EJsonNotation& OutNotation)
	{
		OutNotation = EJsonNotation::Error;
		if (!Error.IsEmpty())
		{
			return false;
		}
		Name = FUtf8StringView();
		Text = FUtf8StringView();
		SkipSpace();
		TokenStart = At;
		switch (Expected)
		{
		case EExpected::Root:
			if (At == End || (*At != '{' && *At != '['))
			{
				return Fail(TEXT("'{' or '['"));
			}
			return ReadValue(OutNotation);
		case EExpected::Nothing:
			if (At != End)
			{
				return Fail(TEXT("nothing more after the value"));
			}
			return false;
		case EExpected::FirstMember:
			if (At != End && *At == '}')
			{
				OutNotation = EJsonNotation::ObjectEnd;
				return Close();
			}
			return ReadMember(OutNotation);
		case EExpected::FirstElement:
			if (At != End && *At == ']')
			{
				OutNotation = EJsonNotation::ArrayEnd;
				return Close();
			}
			return ReadValue(OutNotation);
		case EExpected::CommaOrEnd:
			break;
		}
		const bool bObject = OpenValues.Last();
		if (At != End && *At == (bObject ? '}' : ']'))
		{
			OutNotation = bObject ? EJsonNotation::ObjectEnd : EJsonNotation::ArrayEnd;
			return Close();
		}
		if (At == End || *At != ',')
		{
			return Fail(bObject ? TEXT("',' or '}' after the member") : TEXT("',' or ']' after the element"));
		}
		++At;
		SkipSpace();
		TokenStart = At;
		return bObject ? ReadMember(OutNotation) : ReadValue(OutNotation);
	}

	bool FJsonTokens::ReadMember(EJsonNotation& OutNotation)
	{
		if (At == End || *At != '"')
		{
			return Fail(TEXT("a member name in quotes"));
		}
		FUtf8StringView Read;
		if (!ReadString(NameScratch, Read))
		{
			return false;
		}
		SkipSpace();
		if (At == End || *At != ':')
		{
			return Fail(TEXT("':' after the member name"));
		}
		++At;
		SkipSpace();
		TokenStart = At;
		Name = Read;
		return ReadValue(OutNotation);
	}

	bool FJsonTokens::ReadValue(EJsonNotation& OutNotation)
	{
		const UTF8CHAR Char = At == End ? UTF8CHAR(0) : *At;
		bool bRead = false;
		EJsonNotation Notation = EJsonNotation::Error;
		switch (Char)
		{
		case '{':
		case '[':
			if (!Open(Char == '{'))
			{
				return false;
			}
			OutNotation = Char == '{' ? EJsonNotation::ObjectStart : EJsonNotation::ArrayStart;
			return true;
		case '"':
			Notation = EJsonNotation::String;
			bRead = ReadString(TextScratch, Text);
			break;
		case 't':
		case 'f':
			Notation = EJsonNotation::Boolean;
			bBoolean = Char == 't';
			bRead = ReadWord(bBoolean ? "true" : "false");
			break;
		case 'n':
			Notation = EJsonNotation::Null;
			bRead = ReadWord("null");
			break;
		default:
			if (Char != '-' && !IsDigit(Char))
			{
				return Fail(TEXT("a value"));
			}
			Notation = EJsonNotation::Number;
			bRead = ReadNumber();
		}
		if (bRead)
		{
			OutNotation = Notation;
			Expected = EExpected::CommaOrEnd;
		}
		return bRead;
	}

	bool FJsonTokens::ReadString(TArray<UTF8CHAR>& Scratch, FUtf8StringView& OutText)
	{
		const UTF8CHAR* const Start = ++At;
		while (At != End && *At != '"' && *At != '\\' && uint8(*At) >= 0x20)
		{
			++At;
		}
		if (At != End && *At == '"')
		{
			OutText = FUtf8StringView(Start, int32(At - Start));
			++At;
			return true;
		}
		Scratch.Reset();
		Scratch.Append(Start, int32(At - Start));
		while (At != End && *At != '"')
		{
			if (uint8(*At) < 0x20)
			{
				return Fail(TEXT("control characters only as escapes"));
			}
			if (*At == '\\')
			{
				if (!ReadEscape(Scratch))
				{
					return false;
				}
				continue;
			}
			Scratch.Add(*At++);
		}
		if (At == End)
		{
			return Fail(TEXT("the closing quote of the string"));
		}
		++At;
		OutText = FUtf8StringView(Scratch.GetData(), Scratch.Num());
		return true;
	}

	bool FJsonTokens::ReadEscape(TArray<UTF8CHAR>& Scratch)
	{
		static constexpr char Escapes[] = "\"\"\\\\//b\bf\fn\nr\rt\t";
		const UTF8CHAR* const Start = At++;
		const char Char = At == End ? '\0' : char(*At);
		for (int32 Index = 0; Escapes[Index] != '\0'; Index += 2)
		{
			if (Escapes[Index] == Char)
			{
				Scratch.Add(UTF8CHAR(Escapes[Index + 1]));
				++At;
				return true;
			}
		}
		if (Char != 'u')
		{
			At = Start;
			return Fail(TEXT("one of the escapes \\\" \\\\ \\/ \\b \\f \\n \\r \\t \\u"));
		}
		++At;
		uint32 Unit = 0;
		if (!ReadHex(Unit))
		{
			return false;
		}
		const bool bHigh = (Unit & 0xFC00) == 0xD800;
		if (bHigh && End - At >= 2 && At[0] == '\\' && At[1] == 'u')
		{
			At += 2;
			uint32 Low = 0;
			if (!ReadHex(Low))
			{
				return false;
			}
			Unit = (Low & 0xFC00) == 0xDC00 ? 0x10000 + ((Unit & 0x3FF) << 10) + (Low & 0x3FF) : 0xD800;
		}
		if ((Unit & 0xF800) == 0xD800)
		{
			At = Start;
			return Fail(TEXT("a valid surrogate pair"));
		}
		AppendUtf8(Scratch, Unit);
		return true;
	}

	bool FJsonTokens::ReadHex(uint32& OutUnit)
	{
		OutUnit = 0;
		for (int32 Digit = 0; Digit < 4; ++Digit, ++At)
		{
			const char Char = At == End ? '\0' : char(*At);
			if (!TChar<ANSICHAR>::IsHexDigit(Char))
			{
				return Fail(TEXT("four hexadecimal digits after \\u"));
			}
			OutUnit = OutUnit * 16 + uint32(Char <= '9' ? Char - '0' : (Char | 0x20) - 'a' + 10);
		}
		return true;
	}

	bool FJsonTokens::ReadNumber()
	{
		const UTF8CHAR* const Start = At;
		const auto SkipDigits = [this]
		{
			const UTF8CHAR* const FirstDigit = At;
			while (At != End && IsDigit(*At))
			{
				++At;
			}
			return At != FirstDigit;
		};
		if (*At == '-')
		{
			++At;
		}
		if (At != End && *At == '0')
		{
			++At;
		}
		else if (!SkipDigits())
		{
			return Fail(TEXT("a digit"));
		}
		if (At != End && *At == '.')
		{
			++At;
			if (!SkipDigits())
			{
				return Fail(TEXT("a digit after the point"));
			}
		}
		if (At != End && (*At == 'e' || *At == 'E'))
		{
			++At;
			if (At != End && (*At == '+' || *At == '-'))
			{
				++At;
			}
			if (!SkipDigits())
			{
				return Fail(TEXT("a digit in the exponent"));
			}
		}
		Text = FUtf8StringView(Start, int32(At - Start));
		return true;
	}

	bool FJsonTokens::ReadWord(const char* Word)
	{
		for (; *Word != '\0'; ++Word, ++At)
		{
			if (At == End || char(*At) != *Word)
			{
				At = TokenStart;
				return Fail(TEXT("a value"));
			}
		}
		return true;
	}

	bool FJsonTokens::Open(bool bObject)
	{
		if (OpenValues.Num() == MaxDepth)
		{
			Error = FString::Printf(TEXT("arrays and objects are nested more than %d deep"), MaxDepth);
			return false;
		}
		++At;
		OpenValues.Add(bObject);
		Expected = bObject ? EExpected::FirstMember : EExpected::FirstElement;
		return true;
	}

	bool FJsonTokens::Close()
	{
		++At;
		OpenValues.Pop(EAllowShrinking::No);
		Expected = OpenValues.IsEmpty() ? EExpected::Nothing : EExpected::CommaOrEnd;
		return true;
	}

	void FJsonTokens::SkipSpace()
	{
		while (At != End && (*At == ' ' || *At == '\n' || *At == '\r' || *At == '\t'))
		{
			++At;
		}
	}

	bool FJsonTokens::Fail(const TCHAR* WasExpected)
	{
		FString Found = TEXT("the end of the text");
		if (At != End)
		{
			const UTF8CHAR* Last = At + 1;
			while (Last != End && (uint8(*Last) & 0xC0) == 0x80)
			{
				++Last;
			}
			const uint8 Byte = uint8(*At);
			Found = Byte < 0x20 || Byte == 0x7F ? FString::Printf(TEXT("the byte 0x%02X"), uint32(Byte))
				: FString::Printf(TEXT("'%s'"), *FString(FUtf8StringView(At, int32(Last - At))));
		}
		TokenStart = At;
		Error = FString::Printf(TEXT("expected %s, found %s"), WasExpected, *Found);
		return false;
	}

	void FJsonTokens::FindPlace() const
	{
		if (TokenStart < Counted)
		{
			Counted = LineStart = First;
			Line = 1;
		}
		for (; Counted != TokenStart; ++Counted)
		{
			if (*Counted == '\n')
			{
				++Line;
				LineStart = Counted + 1;
			}
		}
	}

	int32 FJsonTokens::GetLine() const
	{
		FindPlace();
		return Line;
	}

	int32 FJsonTokens::GetColumn() const
	{
		FindPlace();
		int32 Column = 1;
		for (const UTF8CHAR* Char = LineStart; Char != TokenStart; ++Char)
		{
			Column += (uint8(*Char) & 0xC0) != 0x80;
		}
		return Column;
	}
}
