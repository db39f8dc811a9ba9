#include "PropertyText.h"

#include "Misc/OutputDevice.h"
#include "UObject/Property.h"

namespace Host
{
	namespace
	{
		bool IsBlank(TCHAR Character)
		{
			return Character == u' ' || Character == u'\t' || Character == u'\r' || Character == u'\n';
		}

		bool EndsToken(TCHAR Character)
		{
			return Character == 0 || Character == u',' || Character == u')';
		}

		/** Reads what follows a backslash. Null when it is no escape. */
		const TCHAR* ReadEscape(const TCHAR* Buffer, TCHAR& OutCharacter)
		{
			switch (*Buffer)
			{
			case u'n':
				OutCharacter = u'\n';
				return Buffer + 1;
			case u'r':
				OutCharacter = u'\r';
				return Buffer + 1;
			case u't':
				OutCharacter = u'\t';
				return Buffer + 1;
			case u'"':
			case u'\\':
			case u'\'':
				OutCharacter = *Buffer;
				return Buffer + 1;
			case u'u':
				break;
			default:
				return nullptr;
			}
			uint32 Code = 0;
			for (int32 Digit = 1; Digit <= 4; ++Digit)
			{
				const TCHAR Character = Buffer[Digit];
				if (!FChar::IsHexDigit(Character))
				{
					return nullptr;
				}
				Code = Code * 16 + static_cast<uint32>(FChar::IsDigit(Character) ? Character - u'0' : FChar::ToLower(Character) - u'a' + 10);
			}
			OutCharacter = static_cast<TCHAR>(Code);
			return Buffer + 5;
		}
	}

	const TCHAR* SkipBlanks(const TCHAR* Buffer)
	{
		while (IsBlank(*Buffer))
		{
			++Buffer;
		}
		return Buffer;
	}

	const TCHAR* ReadQuoted(const TCHAR* Buffer, FString& OutText)
	{
		if (*Buffer != u'"')
		{
			return nullptr;
		}
		FString Text;
		for (++Buffer; *Buffer != u'"';)
		{
			TCHAR Character = *Buffer++;
			if (Character == 0)
			{
				return nullptr;
			}
			if (Character == u'\\')
			{
				Buffer = ReadEscape(Buffer, Character);
				if (!Buffer)
				{
					return nullptr;
				}
			}
			Text.AppendChar(Character);
		}
		OutText = MoveTemp(Text);
		return Buffer + 1;
	}

	const TCHAR* ReadToken(const TCHAR* Buffer, FString& OutText)
	{
		Buffer = SkipBlanks(Buffer);
		const TCHAR* End = Buffer;
		while (!EndsToken(*End))
		{
			++End;
		}
		OutText = FString(FStringView(Buffer, static_cast<int32>(End - Buffer))).TrimEnd();
		return End;
	}

	const TCHAR* ReadText(const TCHAR* Buffer, int32 PortFlags, FString& OutText)
	{
		const bool bAmongOthers = (PortFlags & PPF_Delimited) != 0;
		const TCHAR* Start = bAmongOthers ? SkipBlanks(Buffer) : Buffer;
		if (const TCHAR* Behind = ReadQuoted(Start, OutText))
		{
			return Behind;
		}
		if (bAmongOthers && *Start == u'"')
		{
			return nullptr;
		}
		if (bAmongOthers)
		{
			return ReadToken(Buffer, OutText);
		}
		OutText = Buffer;
		return Buffer + OutText.Len();
	}

	FString Quote(const FString& Text)
	{
		FString Result;
		Result.Reserve(Text.Len() + 2);
		Result.AppendChar(u'"');
		for (const TCHAR Character : Text)
		{
			switch (Character)
			{
			case u'\n':
				Result += TEXT("\\n");
				break;
			case u'\r':
				Result += TEXT("\\r");
				break;
			case u'\t':
				Result += TEXT("\\t");
				break;
			case u'"':
			case u'\\':
				Result.AppendChar(u'\\');
				[[fallthrough]];
			default:
				Result.AppendChar(Character);
			}
		}
		Result.AppendChar(u'"');
		return Result;
	}

	const TCHAR* RefuseText(const FProperty& Property, const FString& Text, FOutputDevice* ErrorText)
	{
		if (ErrorText)
		{
			ErrorText->Logf(TEXT("property '%s': '%s' is no %s"), *Property.GetName(), *Text, *Property.GetCPPType());
		}
		return nullptr;
	}
}
