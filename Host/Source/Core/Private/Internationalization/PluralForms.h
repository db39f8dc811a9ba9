#pragma once

#include "Containers/UnrealString.h"

namespace Host
{
	/** Which form a word takes beside a number: "zero", "one", "two", "few", "many" or "other". */
	FString GetPluralForm(const FString& CultureName, double Number, bool bOrdinal);
}
