#pragma once

#include "CoreMinimal.h"
#include "Host/PixelRect.h"

namespace Host
{
	class FFontFaces;

	enum class EGlyphFlags : uint8
	{
		None = 0,
		/** How the outline is fitted to the pixel grid: one of the four, in the lowest two bits. */
		HintNone = 0,
		/** Heights only; widths stay as designed, so that positions are independent of hinting. */
		HintLight = 1,
		HintFull = 2,
		/** Black and white, for small sizes of fonts made for it. */
		HintMonochrome = 3,
		HintMask = 3,
		/** The outline stroke only, without the area of the glyph itself. */
		Hollow = 1 << 2,
	};
	ENUM_CLASS_FLAGS(EGlyphFlags)

	/** Everything that tells one picture of a glyph from another. FSizedFont::MakeKey makes them. */
	struct FGlyphKey
	{
		uint16 Face = 0;
		uint16 Glyph = 0;
		/** Pixels to the em, in 1/64 pixel; at most FGlyphAtlas::MaxPixelSize. */
		uint16 Size = 0;
		/** Width of the stroke added around the outline, in 1/64 pixel. */
		uint16 Outline = 0;
		/** Horizontal shear for upright faces shown slanted: pixels to the right for a pixel up, in 1/4096. */
		int16 Skew = 0;
		/** Position of the origin within a pixel, in quarters, 0 to 3. */
		uint8 Subpixel = 0;
		EGlyphFlags Flags = EGlyphFlags::None;

		bool operator==(const FGlyphKey& Other) const = default;
	};
	static_assert(sizeof(FGlyphKey) == 12);

	/** Where the picture of a glyph lies in the atlas, and how it lies to the glyph's origin. */
	struct FAtlasGlyph
	{
		/** Top left corner and size in texels. Size 0: nothing to draw (a blank). */
		uint16 X = 0;
		uint16 Y = 0;
		uint16 Width = 0;
		uint16 Height = 0;
		/** Pixels from the origin (rounded down to a whole pixel) to the left edge of the picture. */
		int16 Left = 0;
		/** Pixels from the baseline up to the top edge of the picture. */
		int16 Top = 0;

		bool IsBlank() const { return Width == 0; }
	};

	/**
	 * The one picture that holds all glyphs in use, 8 bits of coverage a texel; shared by both renderers. Glyphs are
	 * rasterised when first looked up. Each keeps an empty border of one texel, so that it can be sampled bilinearly.
	 *
	 * The atlas is as wide as Width and grows downward. When it has reached its soft limit, whole shelves of glyphs
	 * that no one looked up since the last BeginFrame make room for new ones; it never takes away what was looked up
	 * during the current frame.
	 */
	class FGlyphAtlas
	{
	public:
		static constexpr int32 Width = 2048;
		/** Larger glyphs are rasterised at this size and magnified by the renderer. */
		static constexpr int32 MaxPixelSize = 512;

		explicit FGlyphAtlas(FFontFaces& InFaces);
		~FGlyphAtlas();
		FGlyphAtlas(const FGlyphAtlas&) = delete;
		FGlyphAtlas& operator=(const FGlyphAtlas&) = delete;

		/** To be called once before drawing: what is looked up from now on belongs to the new frame. */
		void BeginFrame();

		/** The glyph's place, rasterising it first if need be. Valid until the next BeginFrame. */
		FAtlasGlyph Find(const FGlyphKey& Key);

		/** Number of rows now; it only grows. Rows beyond were never used. */
		int32 GetHeight() const { return Height; }
		/** GetHeight() rows of Width texels. The address changes when the atlas grows. */
		const uint8* GetTexels() const;

		/** Raised whenever places handed out before may have been given to other glyphs. */
		uint32 GetGeneration() const { return Generation; }

		/** Raised whenever texels change. */
		uint64 GetRevision() const { return Revision; }
		/** The areas that changed after the given revision; one that covers everything when that is too long ago. */
		void GetChangesSince(uint64 SinceRevision, TArray<FPixelRect>& OutAreas) const;

		/** Number of rows up to which the atlas grows before it reuses shelves; rounded up to a power of two. 4096 at first. */
		void SetSoftLimit(int32 Rows);

		/** Forgets every glyph, for when faces were unloaded. */
		void Clear();

		int32 GetNumGlyphs() const;
		/** Glyphs rasterised since the start. */
		uint64 GetNumRasterised() const { return NumRasterised; }

	private:
		struct FState;

		FAtlasGlyph Rasterise(const FGlyphKey& Key);

		FFontFaces& Faces;
		TUniquePtr<FState> State;
		int32 Height = 0;
		uint32 Generation = 1;
		uint64 Revision = 1;
		uint64 NumRasterised = 0;
	};
}
