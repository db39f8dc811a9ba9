#include "Host/SizedFont.h"

#include "Host/ShapedRun.h"

namespace Host
{
	FGlyphKey FSizedFont::MakeKey(const FShapedGlyph& Glyph, EGlyphPart Part, float Magnification, int32 Subpixel, bool bFitToGrid, float& OutScale) const
	{
		const FFontSlot& Slot = Slots[Glyph.Slot];
		FGlyphKey Key;
		Key.Face = Slot.Face;
		Key.Glyph = Glyph.Glyph;
		Key.Skew = Skew;
		Key.Flags = bFitToGrid ? Slot.Hinting : EGlyphFlags::HintNone;

		constexpr int32 Pixel = 64;
		const float WantedSize = static_cast<float>(Slot.Size) * Magnification;
		// Sizes change with every frame of a zoom: a quarter of a pixel apart is close enough, and keeps pictures in use.
		constexpr int32 Step = Pixel / 4;
		float RasterSize = Magnification == 1.0f ? WantedSize : FMath::RoundToFloat(WantedSize / Step) * Step;
		RasterSize = FMath::Clamp(RasterSize, static_cast<float>(Pixel), static_cast<float>(FGlyphAtlas::MaxPixelSize * Pixel));
		// Only pictures of large text can burst the atlas.
		constexpr float LargeSize = 100 * Pixel;
		if (RasterSize > LargeSize)
		{
			RasterSize = FMath::Min(RasterSize, static_cast<float>(GetMaxRasterSize(Glyph)));
		}
		Key.Size = static_cast<uint16>(RasterSize);
		OutScale = RasterSize == WantedSize ? 1.0f : WantedSize / static_cast<float>(Key.Size);
		Key.Subpixel = OutScale == 1.0f ? static_cast<uint8>(Subpixel & 3) : 0;

		if (Part == EGlyphPart::Outline)
		{
			const float Stroke = static_cast<float>(Outline) * Magnification / OutScale;
			Key.Outline = static_cast<uint16>(FMath::Clamp(Stroke, 1.0f, static_cast<float>(MAX_uint16)));
			if (bHollowOutline)
			{
				Key.Flags |= EGlyphFlags::Hollow;
			}
		}
		return Key;
	}
}
