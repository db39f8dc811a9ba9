#pragma once

#include "CoreMinimal.h"

/** Numbers as people write them in tables. */
struct FTableNumber
{
	/**
	 * Reads "1,234.5", or "1.234,5" with a decimal comma: thousands may be grouped by threes, with spaces and apostrophes too,
	 * and a currency sign may stand at either end. False when the text is no such number.
	 */
	static bool Parse(FStringView Text, bool bDecimalComma, double& OutNumber);
};
