#pragma once

#include "Host/ShapedParagraph.h"
#include "Host/TextLayout.h"

namespace Host
{
	/** A part of the text between line breaks. */
	struct FTextLayout::FParagraph
	{
		/** Units of the text; the line break after it, of one or two units, is not part of it. */
		int32 Begin = 0;
		int32 End = 0;
		/** Null until it is shaped. */
		TUniquePtr<FShapedParagraph> Shaped;
		/** Advance, in pixels, of all that precedes each unit in reading order; one more than units. */
		TArray<float> Offsets;
		/** Where lines may be broken; found when first wrapped. */
		TArray<int32> Breaks;

		int32 Len() const { return End - Begin; }
		float GetAdvance(int32 First, int32 Last) const { return Offsets[Last] - Offsets[First]; }
	};
}
