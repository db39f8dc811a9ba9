#pragma once

#include "CoreMinimal.h"

namespace Host
{
	/** Pixels with straight alpha, rows from the top. */
	struct FPicture
	{
		FIntPoint Size = FIntPoint(0, 0);
		TArray<FColor> Pixels;

		const FColor& At(int32 X, int32 Y) const { return Pixels[Y * Size.X + X]; }
	};

	/** How two pictures differ. */
	struct FPictureDifference
	{
		bool bSameSize = true;
		/** Pixels of which a channel differs by more than was tolerated. */
		int32 NumDifferent = 0;
		/** Greatest difference of a channel, tolerated or not. */
		int32 Largest = 0;
		/** The first pixel beyond tolerance, by rows. */
		FIntPoint FirstPlace = FIntPoint(-1, -1);

		bool IsSame() const { return bSameSize && NumDifferent == 0; }

		/** One line for people. */
		FString ToString() const;
	};

	/**
	 * Compares pixel by pixel. Colours count as much as their alpha lets them show: those of fully see-through pixels do
	 * not matter.
	 * @param Tolerance	difference of a channel, of 255, up to which pixels count as the same; 0 for exact
	 */
	FPictureDifference ComparePictures(const FPicture& Expected, const FPicture& Actual, int32 Tolerance = 0);

	/** The expected picture faintly, with differing pixels in red, the brighter the more they differ. */
	FPicture MakeDifferencePicture(const FPicture& Expected, const FPicture& Actual);

	/** Both return false with one line that says why. */
	bool LoadPicture(const FString& Path, FPicture& OutPicture, FString& OutError);
	bool SavePicture(const FString& Path, const FPicture& Picture, FString& OutError);
}
