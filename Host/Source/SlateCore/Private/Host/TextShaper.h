#pragma once

#include "CoreMinimal.h"
#include "Host/ResolvedFont.h"
#include "Host/ShapedParagraph.h"
#include "Host/ShapedRun.h"
#include "Host/TextItemiser.h"

#include <hb.h>

namespace Host
{
	/** Which way a paragraph reads as a whole. */
	enum class ETextDirection : uint8
	{
		/** As its first letter does; left to right when there is none. */
		Auto,
		LeftToRight,
		RightToLeft,
	};

	/** Turns text into glyphs. Keeps no results, only what is expensive to make anew. */
	class FTextShaper
	{
	public:
		/** Characters of a line beyond this many are left out: no line on screen has them. */
		static constexpr int32 MaxLineLength = 1 << 20;

		FTextShaper();
		~FTextShaper();
		FTextShaper(const FTextShaper&) = delete;
		FTextShaper& operator=(const FTextShaper&) = delete;

		/** Shapes a line at once. */
		FShapedRunRef ShapeLine(const FSizedFontRef& Font, FStringView Text, ETextDirection Direction = ETextDirection::Auto);

		/** Shapes a paragraph, from which lines are taken later. */
		void ShapeParagraph(const FSizedFontRef& Font, FStringView Text, ETextDirection Direction, FShapedParagraph& OutParagraph);

		/**
		 * Shapes a part of an item again, for a line that ends within it: text at the ends of lines can look different
		 * from the same text in the middle.
		 * @param OutGlyphs	gets them appended, from left to right
		 */
		void ShapePart(const FShapedParagraph& Paragraph, const FShapedItem& Item, int32 Begin, int32 End, TArray<FPlacedGlyph>& OutGlyphs);

	private:
		FShapedRunPtr ShapeSimpleLine(const FSizedFontRef& Font, FStringView Text);
		void FillBuffer(FStringView Text, int32 Begin, int32 End);
		void RunShaper(const FResolvedFont& Font, int32 Slot, const FShapePlanKey& Key);
		void AppendGlyphs(const FResolvedFont& Font, FStringView Text, int32 Slot, TArray<FPlacedGlyph>& OutGlyphs) const;

		hb_buffer_t* Buffer;
		FTextItemiser Itemiser;
	};
}
