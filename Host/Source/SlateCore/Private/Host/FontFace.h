#pragma once

#include "CoreMinimal.h"
#include "Host/FontFileStream.h"
#include "Host/FreeTypeLibrary.h"
#include "Host/GlyphAtlas.h"

#include <hb.h>

namespace Host
{
	/** Box of a glyph's outline in units of the em, y upward. Empty for blanks. */
	struct FGlyphExtents
	{
		int16 Left = 0;
		int16 Bottom = 0;
		int16 Right = 0;
		int16 Top = 0;
	};

	/** Measures of a face in units of the em, y upward. */
	struct FFaceMetrics
	{
		int32 UnitsPerEm = 1000;
		int32 Ascender = 0;
		/** Negative. */
		int32 Descender = 0;
		/** From one baseline to the next. */
		int32 LineHeight = 0;
		/** Centre of the underline; negative. */
		int32 UnderlinePosition = 0;
		int32 UnderlineThickness = 0;
	};

	/** Coverage of a glyph, rows from the top. */
	struct FGlyphBitmap
	{
		TArray<uint8> Coverage;
		int32 Width = 0;
		int32 Height = 0;
		int32 Left = 0;
		int32 Top = 0;
	};

	/** What tells one shaping plan of a face from another. */
	struct FShapePlanKey
	{
		hb_script_t Script = HB_SCRIPT_LATIN;
		hb_direction_t Direction = HB_DIRECTION_LTR;
		/** Optional ligatures would swallow the spaces between letters. */
		bool bLigatures = true;

		bool operator==(const FShapePlanKey& Other) const = default;
	};

	/** An open face of a font file: glyphs by character, advances, outlines, and what the shaper wants to know. */
	class FFontFace
	{
	public:
		/** Files beyond this, packed or unpacked, are refused. */
		static constexpr int64 MaxFileSize = 64 << 20;
		/** Glyphs whose picture would be wider or higher, outlines of fantastic size, are not drawn. */
		static constexpr int32 MaxGlyphPixels = 2000;

		/** Opens a face of a file that was read into memory. Null when it is not a usable font; OutError says why. */
		static TSharedPtr<FFontFace> FromMemory(const TSharedRef<FFreeTypeLibrary>& Library, TArray<uint8>&& Data, int32 SubFaceIndex, FString& OutError);
		/** As FromMemory, but glyphs are read from the file when they are needed. */
		static TSharedPtr<FFontFace> FromFile(const TSharedRef<FFreeTypeLibrary>& Library, const FString& Filename, int32 SubFaceIndex, FString& OutError);

		explicit FFontFace(const TSharedRef<FFreeTypeLibrary>& InLibrary);
		~FFontFace();
		FFontFace(const FFontFace&) = delete;
		FFontFace& operator=(const FFontFace&) = delete;

		uint16 GetId() const { return Id; }
		const FFaceMetrics& GetMetrics() const { return Metrics; }
		const FString& GetName() const { return Name; }

		/** The glyph of a character; 0 when there is none. */
		uint16 FindGlyph(uint32 Character) const
		{
			if (Character < MaxPagedCharacter)
			{
				if (const FPage* Page = Pages[Character / PageSize])
				{
					return Page->Glyphs[Character % PageSize];
				}
			}
			return FindGlyphSlow(Character);
		}

		/** In units of the em. */
		int32 GetAdvance(uint32 Glyph) const { return Glyph < static_cast<uint32>(Advances.Num()) ? Advances[static_cast<int32>(Glyph)] : 0; }
		FGlyphExtents GetExtents(uint16 Glyph) const
		{
			const uint32 PageIndex = Glyph / PageSize;
			if (PageIndex < static_cast<uint32>(ExtentsPages.Num()))
			{
				const FExtentsPage* Page = ExtentsPages[static_cast<int32>(PageIndex)].Get();
				if (Page && Page->bKnown[Glyph % PageSize])
				{
					return Page->Extents[Glyph % PageSize];
				}
			}
			return ReadExtents(Glyph);
		}

		/** A font of this face for HarfBuzz, whose positions come in 1/1024 pixel. The caller destroys it, before the face. */
		hb_font_t* MakeShapingFont(int32 Size) const;
		/** A plan that lives as long as the face. */
		hb_shape_plan_t* GetPlan(const FShapePlanKey& Key) const;

		/** Draws a glyph. False when it is blank, or cannot be drawn. */
		bool Rasterise(const FGlyphKey& Key, FGlyphBitmap& OutBitmap) const;

	private:
		static constexpr uint32 PageSize = 256;
		static constexpr uint32 MaxPagedCharacter = 0x10000;

		struct FPage
		{
			uint16 Glyphs[PageSize];
		};

		struct FExtentsPage
		{
			FGlyphExtents Extents[PageSize];
			bool bKnown[PageSize] = {};
		};

		struct FPlan
		{
			FShapePlanKey Key;
			hb_shape_plan_t* Plan;
		};

		bool Finish(FString& OutError);
		/** Whether a file that begins so is a WOFF font. */
		static bool IsPacked(TConstArrayView<uint8> Start);
		void ReadMetrics();
		void ReadAdvances();
		void MakeShapingFace();
		uint16 FindGlyphSlow(uint32 Character) const;
		uint16 LookUpGlyph(uint32 Character) const;
		FGlyphExtents ReadExtents(uint16 Glyph) const;
		bool LoadOutline(const FGlyphKey& Key) const;

		TSharedRef<FFreeTypeLibrary> Library;
		/** The file's contents, or the file itself. */
		TArray<uint8> Data;
		TUniquePtr<FFontFileStream> Stream;
		FT_Face Face = nullptr;
		hb_face_t* ShapingFace = nullptr;
		hb_font_t* RootFont = nullptr;
		FString Name;
		FFaceMetrics Metrics;
		uint16 Id = 0;
		bool bSymbol = false;
		TArray<uint16> Advances;
		mutable FPage* Pages[MaxPagedCharacter / PageSize] = {};
		mutable TArray<FPlan> Plans;
		mutable TArray<TUniquePtr<FExtentsPage>> ExtentsPages;
		/** The size that Face is set to. */
		mutable int32 RasterSize = 0;
	};
}
