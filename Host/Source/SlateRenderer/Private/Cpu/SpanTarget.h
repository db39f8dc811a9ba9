#pragma once

#include "CoreMinimal.h"
#include "Host/ClipState.h"
#include "Host/PixelRect.h"

namespace Host
{
	/**
	 * The pixels of a window, for drawing one element: limited to an area, and to rotated clips where there are any.
	 * Coordinates are pixels of the window. Callers stay within the area.
	 */
	class FSpanTarget
	{
	public:
		/** Pixels: the window's first row; Stride: pixels from row to row. */
		FSpanTarget(uint32* InPixels, int32 InStride, const FPixelRect& InArea, const FClipQuads* InQuads);

		const FPixelRect& GetArea() const { return Area; }

		/** Blends one premultiplied colour over the pixels from Left up to Right. */
		void Fill(int32 Y, int32 Left, int32 Right, uint32 Colour);

		/** Blends the colour by the mask, one byte a pixel. */
		void FillMask(int32 Y, int32 Left, const uint8* Mask, int32 Count, uint32 Colour);

		/** Blends pixels. Opaque ones may be said to be so. */
		void Blend(int32 Y, int32 Left, const uint32* Pixels, int32 Count, bool bOpaque = false);

	private:
		uint32* Row(int32 Y, int32 Left) const { return Pixels + static_cast<int64>(Y) * Stride + Left; }
		const uint8* MakeClipMask(int32 Y, int32 Left, int32 Count);

		uint32* Pixels;
		int32 Stride;
		FPixelRect Area;
		const FClipQuads* Quads;
		TArray<uint8> ClipMask;
		TArray<uint32> Clipped;
	};
}
