#pragma once

#include "CoreMinimal.h"
#include "Host/DrawElement.h"

namespace Host
{
	class FGlyphAtlas;
	class FSpanTarget;

	/** Draws a run of glyphs: outlines first, when the font has them, then the letters. */
	void RasterizeGlyphs(const FDrawElement& Element, FSpanTarget& Target, FGlyphAtlas& Atlas);
}
