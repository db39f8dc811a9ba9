#include "Shared/GlyphPlacement.h"

#include <cmath>

#include "Host/ShapedRun.h"

namespace Host
{
	FGlyphPlacement::FGlyphPlacement(const FDrawElement& InElement, FGlyphAtlas& InAtlas)
		: Element(InElement)
		, Font(InElement.GetRun()->GetFont())
		, Atlas(InAtlas)
		, bUpright(InElement.HasFlag(EDrawElementFlags::Translated))
		, Magnification(1.0f)
	{
		if (!bUpright)
		{
			const FPixelTransform& Transform = Element.LocalToPixel;
			Magnification = std::sqrt(std::fabs(Transform.Xx * Transform.Yy - Transform.Xy * Transform.Yx));
		}
	}

	bool FGlyphPlacement::Place(const FShapedGlyph& Glyph, EGlyphPart Part, FPlacedGlyph& OutPlaced) const
	{
		const float Down = static_cast<float>(Glyph.Y) / 64.0f;
		int32 QuarterX = 0;
		if (bUpright)
		{
			const float Quarters = FMath::Clamp((Element.LocalToPixel.X + Glyph.X) * 4.0f + 0.5f, -1.0e6f, 1.0e6f);
			QuarterX = static_cast<int32>(std::floor(Quarters));
		}
		float PixelsPerTexel = 1.0f;
		const FGlyphKey Key = Font.MakeKey(Glyph, Part, Magnification, QuarterX & 3, bUpright, PixelsPerTexel);
		OutPlaced.Picture = Atlas.Find(Key);
		if (OutPlaced.Picture.IsBlank())
		{
			return false;
		}
		const float PixelY = FMath::Clamp(Element.LocalToPixel.Y + Down + 0.5f, -1.0e6f, 1.0e6f);
		OutPlaced.PixelX = (QuarterX >> 2) + OutPlaced.Picture.Left;
		OutPlaced.PixelY = static_cast<int32>(std::floor(PixelY)) - OutPlaced.Picture.Top;
		OutPlaced.RunPerTexel = Magnification > 0.0f ? PixelsPerTexel / Magnification : 0.0f;
		OutPlaced.RunX = Glyph.X + static_cast<float>(OutPlaced.Picture.Left) * OutPlaced.RunPerTexel;
		OutPlaced.RunY = Down - static_cast<float>(OutPlaced.Picture.Top) * OutPlaced.RunPerTexel;
		return true;
	}
}
