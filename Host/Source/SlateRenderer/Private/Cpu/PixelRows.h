#pragma once

#include "CoreMinimal.h"

/**
 * Blending of rows of pixels. Every function exists a second time in plain form, which says what is computed: the fast
 * ones give the same to the bit.
 */
namespace Host::PixelRows
{
	/** Writes the colour to all. */
	void Fill(uint32* Destination, int32 Count, uint32 Colour);

	/** One colour over all. */
	void BlendColour(uint32* Destination, int32 Count, uint32 Colour);

	/** One colour over each, as much of it as the mask says. */
	void BlendMask(uint32* Destination, const uint8* Mask, int32 Count, uint32 Colour);

	/** Pixels over pixels. */
	void BlendPixels(uint32* Destination, const uint32* Source, int32 Count);

	/** Each pixel times its share. */
	void ScaleByMask(uint32* Pixels, const uint8* Mask, int32 Count);

	namespace Plain
	{
		void BlendColour(uint32* Destination, int32 Count, uint32 Colour);
		void BlendMask(uint32* Destination, const uint8* Mask, int32 Count, uint32 Colour);
		void BlendPixels(uint32* Destination, const uint32* Source, int32 Count);
		void ScaleByMask(uint32* Pixels, const uint8* Mask, int32 Count);
	}
}
