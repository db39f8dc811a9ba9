#pragma once

#include "CoreMinimal.h"
#include "Host/DrawElement.h"
#include "Host/GlyphAtlas.h"
#include "Host/SizedFont.h"

namespace Host
{
	/** One glyph on its way to the screen: where its picture lies in the atlas, and how that maps to the window. */
	struct FPlacedGlyph
	{
		FAtlasGlyph Picture;
		/** The pixel of the picture's top left texel, when texels are pixels. */
		int32 PixelX;
		int32 PixelY;
		/** The place of the picture's top left corner, in pixels of the run. */
		float RunX;
		float RunY;
		/** Pixels of the run for a texel. */
		float RunPerTexel;
	};

	/** Finds the pictures of all glyphs of a text element and places them. Both renderers place alike. */
	class FGlyphPlacement
	{
	public:
		FGlyphPlacement(const FDrawElement& InElement, FGlyphAtlas& InAtlas);

		/** True when texels fall on pixels one to one, so that pictures can be copied. */
		bool IsUpright() const { return bUpright; }

		/** False for a glyph that shows nothing. Rasterises the glyph if need be. */
		bool Place(const FShapedGlyph& Glyph, EGlyphPart Part, FPlacedGlyph& OutPlaced) const;

	private:
		const FDrawElement& Element;
		const FSizedFont& Font;
		FGlyphAtlas& Atlas;
		bool bUpright;
		/** Pixels of the window for a pixel of the run. */
		float Magnification;
	};
}
