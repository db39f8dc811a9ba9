#pragma once

#include "CoreMinimal.h"
#include "Host/ShapedParagraph.h"
#include "Host/ShapedRun.h"

namespace Host
{
	class FTextShaper;

	/** The area of a line that belongs to some characters which cannot be told apart in it: mostly one character. */
	struct FClusterBox
	{
		/** UTF-16 units, relative to the paragraph. */
		int32 Begin = 0;
		int32 End = 0;
		/** Pixels from the left end of the line. */
		float Left = 0.0f;
		float Right = 0.0f;
		bool bRightToLeft = false;
	};

	/**
	 * Takes a line out of a shaped paragraph: puts its parts into visual order, and shapes anew only what looks
	 * different at the end of a line.
	 */
	class FLineBuilder
	{
	public:
		FLineBuilder(FTextShaper& InShaper, const FShapedParagraph& InParagraph);

		/** The line from one UTF-16 unit to before another. */
		FShapedRunRef Build(int32 Begin, int32 End);
		/** Its width in pixels. */
		float Measure(int32 Begin, int32 End);
		/** Its clusters from left to right. */
		void FindClusters(int32 Begin, int32 End, TArray<FClusterBox>& OutBoxes);

		/** From the shaper's upward offset to a run's downward one in 1/64 pixel. */
		static int16 ToRunOffset(int32 OffsetY);

	private:
		/** What a line has of an item. */
		struct FPiece
		{
			const FShapedItem* Item = nullptr;
			int32 Begin = 0;
			int32 End = 0;
			uint8 Level = 0;
			/** Into the paragraph's glyphs, or into Reshaped. */
			bool bReshaped = false;
			int32 FirstGlyph = 0;
			int32 EndGlyph = 0;
		};

		void FindPieces(int32 Begin, int32 End);
		void AddPiece(const FShapedItem& Item, int32 Begin, int32 End, uint8 Level);
		void SortVisually();
		/** The item that a position falls into. */
		int32 FindItem(int32 Position) const;
		/** The item's first glyph beyond a position in visual order: where glyphs of text before and after it meet. */
		int32 FindGlyph(const FShapedItem& Item, int32 Position) const;
		bool CanBreakAt(const FShapedItem& Item, int32 Position) const;
		int32 CountGlyphs() const;
		TConstArrayView<FPlacedGlyph> GetGlyphs(const FPiece& Piece) const;

		FTextShaper& Shaper;
		const FShapedParagraph& Paragraph;
		TArray<FPiece> Pieces;
		TArray<FPlacedGlyph> Reshaped;
	};
}
