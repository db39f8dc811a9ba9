#pragma once

#include "CoreMinimal.h"

namespace Host
{
	/** How many characters must be changed, added or taken away to make one text of the other; case does not count. */
	int32 GetEditDistance(const FString& A, const FString& B);

	/** The candidate that somebody may have meant; empty when none is like what was sought. */
	FString FindNearest(const FString& Sought, const TArray<FString>& Candidates);
}
