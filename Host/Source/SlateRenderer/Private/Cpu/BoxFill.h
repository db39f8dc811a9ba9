#pragma once

#include "CoreMinimal.h"
#include "Cpu/SpanTarget.h"
#include "Cpu/TextureSampler.h"
#include "Misc/Optional.h"

namespace Host
{
	/** What a box is filled and outlined with, put into rows of pixels by coverage. */
	class FBoxFill
	{
	public:
		FBoxFill(const FDrawElement& Element, FSpanTarget& InTarget);

		/** True when nothing would be drawn. */
		bool IsEmpty() const { return Sampler.IsSet() && Sampler->IsEmpty(); }

		bool HasOutline() const { return bOutlined; }

		/** Pixels from Left up to Right, fully inside. */
		void Inside(int32 Y, int32 Left, int32 Right);

		/** Pixels of which all is covered, and the given share belongs to the fill, the rest to the outline. */
		void Uniform(int32 Y, int32 Left, int32 Right, uint32 InnerShare);

		/** Pixels with coverage each: of the whole box, and of the area within the outline (unused without one). */
		void Masked(int32 Y, int32 Left, const uint8* Outer, const uint8* Inner, int32 Count);

	private:
		void MaskedPixels(int32 Y, int32 Left, const uint8* Outer, const uint8* Inner, int32 Count);

		FSpanTarget& Target;
		uint32 Colour;
		uint32 OutlineColour;
		bool bOutlined;
		TOptional<FTextureSampler> Sampler;
		TArray<uint32> Mixed;
	};
}
