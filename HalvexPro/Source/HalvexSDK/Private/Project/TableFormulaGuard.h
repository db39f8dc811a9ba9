#pragma once

#include "CoreMinimal.h"

/**
 * Spreadsheets take a text that begins with =, +, - or @ for a formula, and would run it when a table is opened. A guarded text
 * has an apostrophe in front, which they take for the mark of a text. A text that begins with apostrophes and then such a
 * character gets one more, so that taking the guard away always gives the text that was guarded.
 */
class FTableFormulaGuard
{
public:
	static FString Add(const FString& Text);
	static FString Remove(const FString& Text);
};
