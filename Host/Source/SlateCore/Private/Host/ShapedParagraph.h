#pragma once

#include "CoreMinimal.h"
#include "Host/SizedFont.h"

namespace Host
{
	/** A glyph as the shaper placed it, to be moved with its line. Positions are in 1/1024 pixel. */
	struct FPlacedGlyph
	{
		int32 Cluster = 0;
		int32 Advance = 0;
		int32 OffsetX = 0;
		/** Upward. */
		int32 OffsetY = 0;
		uint16 Glyph = 0;
		/** Breaking a line before this glyph's cluster would change how the text around it is shaped. */
		bool bUnsafeToBreak = false;
	};

	/** A part of a paragraph in one script, direction and face. */
	struct FShapedItem
	{
		int32 Begin = 0;
		int32 End = 0;
		/** Embedding level: odd for right to left. */
		uint8 Level = 0;
		uint16 Slot = 0;
		/** Four-letter code of the script. */
		uint32 Script = 0;
		/** Its glyphs, from left to right. */
		int32 FirstGlyph = 0;
		int32 EndGlyph = 0;

		bool IsRightToLeft() const { return (Level & 1) != 0; }
	};

	/** A paragraph shaped once, from which lines of any width can be taken. Items stand in the order of the text. */
	struct FShapedParagraph
	{
		static constexpr float UnitsPerPixel = 1024.0f;

		FSizedFontPtr Font;
		TArray<TCHAR> Text;
		TArray<FShapedItem> Items;
		TArray<FPlacedGlyph> Glyphs;
		uint8 BaseLevel = 0;

		bool IsRightToLeft() const { return (BaseLevel & 1) != 0; }
		FStringView GetText() const { return FStringView(Text.GetData(), Text.Num()); }
	};
}
