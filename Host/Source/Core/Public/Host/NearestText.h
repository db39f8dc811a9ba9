#pragma once

#include "CoreMinimal.h"

namespace Host
{
	/**
	 * The candidate that somebody may have meant who wrote something else: the one that the fewest characters must be changed,
	 * added or taken away for, without regard to case; the first of several.
	 * @param MaxChanges how many these may be
	 * @return empty when none is as near, or when what was sought is longer than any name
	 */
	CORE_API FString FindNearest(const FString& Sought, const TArray<FString>& Candidates, int32 MaxChanges);
}
