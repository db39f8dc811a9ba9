#include "Misc/IniText.h"

#include "Misc/Char.h"
#include "Misc/Parse.h"

namespace
{
	constexpr const TCHAR* Operations = TEXT("+-.!");

	bool IsOperation(TCHAR Unit)
	{
		return Unit != 0 && FCString::Strchr(Operations, Unit) != nullptr;
	}

	Host::FIniLine MakeFault(Host::FIniLine&& Line, const TCHAR* Reason)
	{
		Line.Kind = Host::EIniLine::Fault;
		Line.Reason = Reason;
		return MoveTemp(Line);
	}

	/** What would not come back from a value that stands without quotes. */
	bool NeedsQuotes(const FString& Value)
	{
		for (const TCHAR Unit : Value)
		{
			if (Unit < 0x20)
			{
				return true;
			}
		}
		return !Value.IsEmpty() && (Value[0] == TEXT('"') || FChar::IsWhitespace(Value[0]) || FChar::IsWhitespace(Value[Value.Len() - 1]));
	}

	FString WriteValue(const FString& Value)
	{
		if (!NeedsQuotes(Value))
		{
			return Value;
		}
		FString Written = TEXT("\"");
		for (const TCHAR Unit : Value)
		{
			switch (Unit)
			{
			case TEXT('\n'): Written += TEXT("\\n"); break;
			case TEXT('\r'): Written += TEXT("\\r"); break;
			case TEXT('\t'): Written += TEXT("\\t"); break;
			case TEXT('"'): Written += TEXT("\\\""); break;
			case TEXT('\\'): Written += TEXT("\\\\"); break;
			default:
				Unit < 0x20 ? Written.Appendf(TEXT("\\u%04x"), uint32(Unit)) : Written.AppendChar(Unit);
				break;
			}
		}
		return Written + TEXT("\"");
	}

	FString ReadValue(FStringView Written)
	{
		FString Value;
		return Written.StartsWith(TEXT('"')) && FParse::QuotedString(*FString(Written), Value) ? Value : FString(Written);
	}
}

Host::FIniLine Host::ParseIniLine(FStringView Text)
{
	FIniLine Line;
	Line.Text = FString(Text);
	const FStringView Trimmed = Text.TrimStartAndEnd();
	if (Trimmed.IsEmpty() || Trimmed[0] == TEXT(';') || Trimmed[0] == TEXT('#'))
	{
		return Line;
	}
	if (Trimmed[0] == TEXT('['))
	{
		int32 End = INDEX_NONE;
		if (!Trimmed.FindChar(TEXT(']'), End))
		{
			return MakeFault(MoveTemp(Line), TEXT("expected ']' at the end of the section's name; the lines below it are left out"));
		}
		Line.Kind = EIniLine::Section;
		Line.Section = FString(Trimmed.Mid(1, End - 1).TrimStartAndEnd());
		return Line;
	}
	int32 Equals = INDEX_NONE;
	if (!Trimmed.FindChar(TEXT('='), Equals))
	{
		return MakeFault(MoveTemp(Line), TEXT("expected Key=Value, found no '='"));
	}
	FStringView Key = Trimmed.Left(Equals).TrimEnd();
	if (!Key.IsEmpty() && IsOperation(Key[0]))
	{
		Line.Operation = Key[0];
		Key = Key.RightChop(1).TrimStart();
	}
	if (Key.IsEmpty())
	{
		return MakeFault(MoveTemp(Line), TEXT("expected a key before '='"));
	}
	Line.Kind = EIniLine::Entry;
	Line.Key = FString(Key);
	Line.Value = ReadValue(Trimmed.RightChop(Equals + 1).TrimStart());
	return Line;
}

Host::FIniLine Host::MakeIniEntry(const FString& Section, const FString& Key, const FString& Value, TCHAR Operation)
{
	FIniLine Line;
	Line.Kind = EIniLine::Entry;
	Line.Section = Section;
	Line.Key = Key;
	Line.Value = Value;
	Line.Operation = Operation;
	if (Operation != 0)
	{
		Line.Text.AppendChar(Operation);
	}
	Line.Text += Key + TEXT("=") + WriteValue(Value);
	return Line;
}

Host::FIniLine Host::MakeIniSection(const FString& Section)
{
	FIniLine Line;
	Line.Kind = EIniLine::Section;
	Line.Section = Section;
	Line.Text = TEXT("[") + Section + TEXT("]");
	return Line;
}
