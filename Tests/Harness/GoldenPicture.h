#pragma once

#include "CoreMinimal.h"
#include "Host/PictureCompare.h"

namespace Host
{
	/**
	 * Compares a picture with the approved one, Tests/Goldens/<Name>.png, pixel by pixel. A failure leaves <Name>.actual.png and
	 * <Name>.difference.png beside it. With HALVEX_ACCEPT_GOLDENS set in the environment the picture becomes the approved one:
	 * look at it before it is committed.
	 */
	void ExpectGolden(const FString& Name, const FPicture& Picture);

	/** Compares a picture that was drawn in another way with the approved one: channels may differ by as much as the tolerance, of 255. */
	void ExpectNearGolden(const FString& Name, const FPicture& Picture, int32 Tolerance);

	/**
	 * Compares a picture that graphics drivers draw differently in detail with the approved one: both are made smaller by the
	 * factor first, each pixel the mean of a square, so that single pixels along edges do not count and what is larger does.
	 * @param Tolerance	difference of a channel of these means, of 255
	 */
	FPictureDifference CompareWithGolden(const FString& Name, const FPicture& Picture, int32 Factor, int32 Tolerance);

	/** Fails when CompareWithGolden finds a difference, and leaves pictures as ExpectGolden does. */
	void ExpectSimilarGolden(const FString& Name, const FPicture& Picture, int32 Factor, int32 Tolerance);
}
