#pragma once

#include "CoreMinimal.h"

namespace Host
{
	/** Work done by Slate since the start; the difference of two readings is the work between. For tests and benchmarks. */
	struct SLATECORE_API FSlateCounters
	{
		/** Calls of ComputeDesiredSize. */
		int64 Measured = 0;
		/** Calls of OnArrangeChildren by the arrange pass. */
		int64 Arranged = 0;
		/** Calls of OnPaint. */
		int64 Painted = 0;
		/** Draw elements appended by these. */
		int64 Elements = 0;
		/** Widgets looked at by the passes, whether there was something to do or not. */
		int64 Visited = 0;
		/** Runs of text shaped, not found in the cache. */
		int64 ShapedRuns = 0;
		/** Getters of attributes asked. */
		int64 PolledAttributes = 0;
		int64 Ticked = 0;

		static FSlateCounters& Get();

		FSlateCounters operator-(const FSlateCounters& Other) const;
		FString ToString() const;
	};
}
