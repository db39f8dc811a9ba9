#pragma once

#include "CoreMinimal.h"
#include "Host/DrawElement.h"

namespace Host
{
	class FCornerMasks;
	class FSpanTarget;

	/** Draws boxes, images and sliced pictures. */
	void RasterizeBox(const FDrawElement& Element, FSpanTarget& Target, FCornerMasks& Masks);
}
