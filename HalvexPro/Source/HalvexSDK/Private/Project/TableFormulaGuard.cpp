#include "Project/TableFormulaGuard.h"

namespace
{
	constexpr TCHAR Guard = '\'';

	/** Whether a spreadsheet might read on behind blanks and apostrophes and find a formula there. */
	bool MayBeFormula(const FString& Text)
	{
		for (const TCHAR Char : Text)
		{
			if (Char == Guard || FChar::IsWhitespace(Char))
			{
				continue;
			}
			// The wide forms count too: some spreadsheets take them for the narrow ones.
			return Char == '=' || Char == '+' || Char == '-' || Char == '@' || Char == 0xFF1D || Char == 0xFF0B || Char == 0xFF0D || Char == 0xFF20;
		}
		return false;
	}
}

FString FTableFormulaGuard::Add(const FString& Text)
{
	return MayBeFormula(Text) ? TEXT("'") + Text : Text;
}

FString FTableFormulaGuard::Remove(const FString& Text)
{
	return !Text.IsEmpty() && Text[0] == Guard && MayBeFormula(Text) ? Text.RightChop(1) : Text;
}
