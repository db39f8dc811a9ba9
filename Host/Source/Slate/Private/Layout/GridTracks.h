#pragma once

#include "CoreMinimal.h"

namespace Host
{
	/** Sizes of the columns, or of the rows, of a grid. Keeps its memory from one layout to the next. */
	class FGridTracks
	{
	public:
		/** Share in the space left over, by track; a track beyond the end of the array, or with 0, keeps the size of its content. */
		TArray<float> FillCoefficients;

		/** Starts to measure: Count tracks without content. */
		void Reset(int32 Count);

		/** Notes content of one track. To be called for all such content ahead of the first RequireSpan. */
		void Require(int32 Track, float Size);

		/**
		 * Notes content that lies over several tracks: what they lack together is shared evenly among those of them
		 * that fill, or among all of them when none does.
		 */
		void RequireSpan(int32 FirstTrack, int32 Span, float Size);

		float GetDesiredTotal() const;

		/** Gives each track its size within Allotted, and so its place. */
		void Arrange(float Allotted);

		/** Start of a track after Arrange; the end of the last one for the index that follows it. */
		float GetOffset(int32 Track) const;

		/** Room of a range of tracks after Arrange. */
		float GetExtent(int32 FirstTrack, int32 Span) const;

	private:
		float GetFill(int32 Track) const;

		TArray<float> DesiredSizes;
		TArray<float> Offsets;
	};
}
