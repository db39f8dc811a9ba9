#pragma once

#include "CoreMinimal.h"
#include "Host/DrawElement.h"

namespace Host
{
	struct FLineSegment;
	struct FPlacedGlyph;

	/** What an instance is, for the shader. The numbers stand in the shader too. */
	enum class EGlInstanceKind : uint32
	{
		Box = 0,
		/** A glyph whose texels are pixels. */
		CopiedGlyph = 1,
		SampledGlyph = 2,
		Line = 3,
	};

	/** One quad: the pixels to fill, and all that the shader needs to know for them. Seven vectors of four numbers. */
	struct FGlInstance
	{
		/** Pixels of the window: left, top, right, bottom. */
		float Bounds[4];
		/**
		 * Boxes and sampled glyphs: pixel to local, as XByX, XByY, X0, YByX, YByY, Y0; then the size.
		 * Copied glyphs: first pixel minus first texel, in X0 and Y0.
		 * Lines: start, direction, length, half thickness.
		 */
		float ToLocal[6];
		float Size[2];
		/** Corner radii, or margins of slices. Sampled glyphs: texel for local unit, first texel. Lines: both normals. */
		float Corners[4];
		/** Area of the texture, or margins as shares. Sampled glyphs: first and last texel. */
		float Texture[4];
		/** Outline width, level of detail, repeat of a frame along X and along Y. */
		float Numbers[4];
		/** Fill and outline, B lowest, straight alpha; kind; flags. */
		uint32 Words[4];
	};
	static_assert(sizeof(FGlInstance) == 112);

	/** Bits of the last word. */
	namespace EGlInstanceFlags
	{
		enum Type : uint32
		{
			Textured = 1,
			Sliced = 2,
			Frame = 4,
			IgnoreAlpha = 8,
			BottomUp = 16,
			JoinedStart = 32,
			JoinedEnd = 64,
			Aliased = 128,
		};
	}

	/** All return instances limited to Area. */
	FGlInstance MakeBoxInstance(const FDrawElement& Element, const FPixelRect& Area, int32& OutLevel);
	FGlInstance MakeGlyphInstance(const FDrawElement& Element, const FPlacedGlyph& Glyph, bool bCopied, const FColor& Colour, const FPixelRect& Area);
	FGlInstance MakeLineInstance(const FDrawElement& Element, const FLineSegment& Segment, bool bAntialias, const FPixelRect& Area);
}
