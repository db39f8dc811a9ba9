#pragma once

#include "CoreMinimal.h"
#include "Host/DrawElement.h"

namespace Host
{
	class FSpanTarget;

	/** Draws a polyline. */
	void RasterizeLines(const FDrawElement& Element, FSpanTarget& Target);
}
