#pragma once

#include "CoreMinimal.h"

namespace Host
{
	class FSizedFont;

	/** One positioned glyph of a run. Twelve bytes, because every text on screen keeps an array of them. */
	struct FShapedGlyph
	{
		/** Left to right from the start of the run to the glyph's origin, in pixels of the run's font size. */
		float X;
		/** Index of the first UTF-16 unit that the glyph stands for, within the text that the run was made of. */
		uint32 Cluster : 22;
		/** Which of the font's slots (FSizedFont::GetSlots) the glyph comes from. */
		uint32 Slot : 9;
		uint32 bRightToLeft : 1;
		/** Index of the glyph in its face. */
		uint16 Glyph;
		/** Downward from the baseline, in 1/64 pixel. */
		int16 Y;
	};
	static_assert(sizeof(FShapedGlyph) == 12);

	/** A rectangle of floats relative to the start of a run's baseline, y downward. */
	struct FInkBounds
	{
		float Left = 0.0f;
		float Top = 0.0f;
		float Right = 0.0f;
		float Bottom = 0.0f;

		bool IsEmpty() const { return Right <= Left || Bottom <= Top; }
	};

	/**
	 * One line of text turned into glyphs, in visual order from left to right, whatever scripts, directions and faces it
	 * mixes. Immutable once made and shared by everyone who shows the same text in the same font: the widget, its draw
	 * elements and the cache of FFontServices.
	 *
	 * It holds no pictures of glyphs: a renderer asks the FGlyphAtlas for these when it draws (FSizedFont::MakeKey).
	 */
	struct FShapedRun
	{
	public:
		/** The font it was shaped with: its size is the unit of all positions here. */
		const FSizedFont& GetFont() const { return *Font; }

		TConstArrayView<FShapedGlyph> GetGlyphs() const
		{
			return TConstArrayView<FShapedGlyph>(Glyphs(), NumGlyphs);
		}

		/** The text that it was made of. */
		FStringView GetText() const
		{
			return FStringView(Text(), TextLength);
		}

		/** Advance of the whole run in pixels, letter spacing included. */
		float GetWidth() const { return Width; }

		/** Whether the text reads from right to left as a whole. */
		bool IsRightToLeft() const { return bRightToLeft; }

		/**
		 * A rectangle that holds every outline of the run, skew and outline width included; the edge of an antialiased
		 * pixel can reach one pixel further. Computed when first asked for.
		 */
		const FInkBounds& GetInkBounds() const;

		/** Bytes held, for the account of the cache. */
		SIZE_T GetAllocatedSize() const;

		/** Runs alive now, cached ones included. */
		static int32 GetNumAlive();

		/** Makes room for that many glyphs, which EditGlyphs and the setters then fill in. */
		FShapedRun(const TSharedRef<const FSizedFont>& InFont, FStringView InText, int32 InNumGlyphs);
		~FShapedRun();
		FShapedRun(const FShapedRun&) = delete;
		FShapedRun& operator=(const FShapedRun&) = delete;

		/** For whoever makes the run, before it is shared. */
		FShapedGlyph* EditGlyphs() { return const_cast<FShapedGlyph*>(Glyphs()); }
		void SetWidth(float InWidth) { Width = InWidth; }
		void SetRightToLeft(bool bInRightToLeft) { bRightToLeft = bInRightToLeft; }

	private:
		const FShapedGlyph* Glyphs() const { return reinterpret_cast<const FShapedGlyph*>(Storage); }
		const TCHAR* Text() const { return reinterpret_cast<const TCHAR*>(Storage + sizeof(FShapedGlyph) * NumGlyphs); }

		TSharedRef<const FSizedFont> Font;
		/** Glyphs, then the text, in one block. */
		uint8* Storage;
		int32 NumGlyphs;
		int32 TextLength;
		float Width = 0.0f;
		bool bRightToLeft = false;
		mutable bool bHasInkBounds = false;
		mutable FInkBounds InkBounds;
	};

	using FShapedRunRef = TSharedRef<const FShapedRun>;
	using FShapedRunPtr = TSharedPtr<const FShapedRun>;
}
