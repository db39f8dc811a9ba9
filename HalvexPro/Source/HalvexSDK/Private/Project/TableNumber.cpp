#include "Project/TableNumber.h"

namespace
{
	constexpr TCHAR NoBreakSpace = 0x00A0;
	constexpr TCHAR NarrowNoBreakSpace = 0x202F;
	constexpr TCHAR RightQuote = 0x2019;

	bool IsMarginal(TCHAR Char)
	{
		return Char == ' ' || Char == NoBreakSpace || Char == NarrowNoBreakSpace || Char == '$' || Char == 0x20AC || Char == 0x00A3;
	}

	bool IsGrouping(TCHAR Char, bool bDecimalComma)
	{
		return Char == (bDecimalComma ? '.' : ',') || Char == ' ' || Char == NoBreakSpace || Char == NarrowNoBreakSpace || Char == '\'' || Char == RightQuote;
	}

	bool IsDigit(TCHAR Char)
	{
		return Char >= '0' && Char <= '9';
	}
}

bool FTableNumber::Parse(FStringView Text, bool bDecimalComma, double& OutNumber)
{
	while (!Text.IsEmpty() && IsMarginal(Text[0]))
	{
		Text.RemovePrefix(1);
	}
	while (!Text.IsEmpty() && IsMarginal(Text[Text.Len() - 1]))
	{
		Text.RemoveSuffix(1);
	}

	FString Plain;
	int32 At = 0;
	if (At < Text.Len() && (Text[At] == '-' || Text[At] == '+'))
	{
		Plain.AppendChar(Text[At++]);
	}
	// Digits since the last grouping mark, which there must be three of from the first one on.
	int32 NumInGroup = 0;
	bool bGrouped = false;
	int32 NumDigits = 0;
	for (; At < Text.Len() && (IsDigit(Text[At]) || IsGrouping(Text[At], bDecimalComma)); ++At)
	{
		if (IsDigit(Text[At]))
		{
			Plain.AppendChar(Text[At]);
			++NumInGroup;
			++NumDigits;
			continue;
		}
		if (NumInGroup == 0 || NumInGroup > 3 || (bGrouped && NumInGroup != 3))
		{
			return false;
		}
		bGrouped = true;
		NumInGroup = 0;
	}
	if (bGrouped && NumInGroup != 3)
	{
		return false;
	}
	if (At < Text.Len() && Text[At] == (bDecimalComma ? ',' : '.'))
	{
		Plain.AppendChar('.');
		for (++At; At < Text.Len() && IsDigit(Text[At]); ++At)
		{
			Plain.AppendChar(Text[At]);
			++NumDigits;
		}
	}
	if (At != Text.Len() || NumDigits == 0)
	{
		return false;
	}
	OutNumber = FCString::Atod(*Plain);
	return true;
}
