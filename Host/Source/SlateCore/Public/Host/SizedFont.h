#pragma once

#include "CoreMinimal.h"
#include "Host/GlyphAtlas.h"

namespace Host
{
	struct FShapedGlyph;

	/** Vertical measures of a font at its size, in pixels. */
	struct FFontMetrics
	{
		/** Height of a line: from one baseline to the next. Whole pixels. */
		float LineHeight = 0.0f;
		/** From the top of the line down to its baseline. Whole pixels. */
		float Baseline = 0.0f;
		/** From the baseline up to the top of the highest letters, as the face states it. */
		float Ascender = 0.0f;
		/** From the baseline down to the bottom of the lowest letters; positive. */
		float Descender = 0.0f;
		/** From the baseline down to the middle of an underline. */
		float UnderlineOffset = 0.0f;
		float UnderlineThickness = 1.0f;
		/** Advance of a blank. */
		float SpaceAdvance = 0.0f;
	};

	/** A face at a size: what a glyph of a run comes from. */
	struct FFontSlot
	{
		/** Index among the loaded faces. */
		uint16 Face = 0;
		EGlyphFlags Hinting = EGlyphFlags::HintLight;
		/** Pixels to the em, in 1/64 pixel. */
		int32 Size = 0;
	};

	/** Which of the two pictures of an outlined glyph is meant. */
	enum class EGlyphPart : uint8
	{
		Fill,
		/** The glyph widened by the stroke, drawn below the fill. Only for fonts that have an outline. */
		Outline,
	};

	/**
	 * What a FSlateFontInfo and a scale come to: typeface chosen, faces loaded, size in pixels. Made by
	 * FFontServices::GetFont, which gives the same object for the same request; immutable, except that the faces of
	 * fallbacks are opened as text needs them. It keeps its faces open.
	 */
	class FSizedFont
	{
	public:
		virtual ~FSizedFont() = default;
		FSizedFont(const FSizedFont&) = delete;
		FSizedFont& operator=(const FSizedFont&) = delete;

		/** Unique in this process, never used again. */
		uint32 GetId() const { return Id; }
		/** Pixels to the em. */
		float GetPixelSize() const { return static_cast<float>(Size) / 64.0f; }
		/** Extra advance after each character, in pixels. */
		float GetLetterSpacing() const { return LetterSpacing; }
		/** Shear to the right for a pixel up. */
		float GetSkew() const { return static_cast<float>(Skew) / 4096.0f; }
		/** Width of the outline in pixels, 0 for none. */
		float GetOutlineWidth() const { return static_cast<float>(Outline) / 64.0f; }
		bool HasOutline() const { return Outline != 0; }
		const FFontMetrics& GetMetrics() const { return Metrics; }

		/** The first is the font's own face; FShapedGlyph::Slot indexes them. Face 0: no text needed that slot so far. */
		TConstArrayView<FFontSlot> GetSlots() const { return TConstArrayView<FFontSlot>(Slots.GetData(), Slots.Num()); }

		/**
		 * The key by which the atlas finds the picture of a glyph.
		 *
		 * @param Magnification	drawn pixels for a pixel of this font's size: 1 unless the text stands under a transform.
		 * @param Subpixel	where in a pixel the glyph's origin falls, in quarters; 0 when the text is sampled under a transform
		 * @param bFitToGrid	false under a transform that is not a mere shift: hinting would be wrong there
		 * @param OutScale	drawn pixels for a texel of the picture; 1, or close to it, unless the glyph is larger than the atlas takes
		 */
		FGlyphKey MakeKey(const FShapedGlyph& Glyph, EGlyphPart Part, float Magnification, int32 Subpixel, bool bFitToGrid, float& OutScale) const;

	protected:
		FSizedFont() = default;

		/** The largest size at which a picture of the glyph fits the atlas, in 1/64 pixel. */
		virtual int32 GetMaxRasterSize(const FShapedGlyph& Glyph) const = 0;

		uint32 Id = 0;
		int32 Size = 0;
		float LetterSpacing = 0.0f;
		int16 Skew = 0;
		uint16 Outline = 0;
		bool bHollowOutline = false;
		FFontMetrics Metrics;
		mutable TArray<FFontSlot> Slots;
	};

	using FSizedFontRef = TSharedRef<const FSizedFont>;
	using FSizedFontPtr = TSharedPtr<const FSizedFont>;
}
