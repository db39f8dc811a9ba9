#pragma once

#include "CoreMinimal.h"
#include "Host/GlyphAtlas.h"
#include "Host/ShapedRun.h"
#include "Host/SizedFont.h"

struct FCompositeFont;
struct FSlateFontInfo;

namespace Host
{
	class FFontFaces;
	class FFontTable;
	class FRunCache;
	class FTextShaper;

	/** What the font services hold and have done, for tests and the profiler. */
	struct FFontServiceCounts
	{
		/** Faces loaded now, the built-in one included when it was needed. */
		int32 Faces = 0;
		/** Runs in the cache, and the bytes they take. */
		int32 CachedRuns = 0;
		SIZE_T CachedBytes = 0;
		/** Runs shaped since the start: cache misses. */
		uint64 RunsShaped = 0;
	};

	/**
	 * Fonts from file to glyph: loads faces, resolves font descriptions, shapes text and keeps the results. Game thread
	 * only.
	 *
	 * A font that cannot be loaded gives one line in the log; its text is then drawn with the built-in face.
	 */
	class FFontServices
	{
	public:
		/** The one instance; made when first asked for. */
		static FFontServices& Get();
		/** Drops the instance with all it holds. Fonts and runs held elsewhere stay valid. */
		static void Shutdown();

		FFontServices();
		~FFontServices();
		FFontServices(const FFontServices&) = delete;
		FFontServices& operator=(const FFontServices&) = delete;

		/**
		 * The font at a scale. Equal requests give the same object while anyone holds it. Cheap, but a widget should
		 * keep the result and ask again only when its font, its scale or GetGeneration() changes.
		 *
		 * @param Scale	pixels for a slate unit; the size in pixels is Info.Size * 96/72 * Scale, in steps of 1/64
		 */
		FSizedFontRef GetFont(const FSlateFontInfo& Info, float Scale);

		/**
		 * Shapes one line of text, or finds it in the cache. Line breaks and other control characters show nothing and
		 * have no width, except the tabulator: it is as wide as four blanks. The paragraph's direction follows from its
		 * first strong character.
		 */
		FShapedRunRef Shape(const FSizedFontRef& Font, FStringView Text);

		/** As Shape, without looking in the cache or adding to it: for text that is shown once. */
		FShapedRunRef ShapeUncached(const FSizedFontRef& Font, FStringView Text);

		/** The font drawn for descriptions that name none. Null restores the built-in face. */
		void SetDefaultFont(TSharedPtr<const FCompositeFont> Font);

		/**
		 * To be called when font files were replaced: drops faces, fonts and runs, and raises the generation, by which
		 * holders of fonts know that they must ask again. What they hold stays as it was until then.
		 */
		void Flush();
		uint32 GetGeneration() const { return Generation; }

		/** Bytes of runs that the cache may hold; the least recently used go first. */
		void SetRunCacheLimit(SIZE_T Bytes);

		FGlyphAtlas& GetAtlas() { return *Atlas; }
		FFontServiceCounts GetCounts() const;

		/** For FTextLayout, which needs more than finished runs. */
		FTextShaper& GetShaper() { return *Shaper; }
		FFontFaces& GetFaces() { return *Faces; }

	private:
		TUniquePtr<FFontFaces> Faces;
		TUniquePtr<FGlyphAtlas> Atlas;
		TUniquePtr<FTextShaper> Shaper;
		TUniquePtr<FFontTable> Fonts;
		TUniquePtr<FRunCache> Runs;
		TSharedPtr<const FCompositeFont> DefaultFont;
		uint32 Generation = 1;
		uint64 RunsShaped = 0;
	};
}
