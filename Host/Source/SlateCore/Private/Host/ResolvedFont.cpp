#include "Host/ResolvedFont.h"

#include "Host/ShapedRun.h"

namespace Host
{
	static uint32 LastFontId = 0;

	uint32 GetTypeHash(const FFontRequest& Request)
	{
		uint32 Hash = HashCombine(::GetTypeHash(Request.Revision), GetTypeHash(Request.Typeface));
		Hash = HashCombine(Hash, ::GetTypeHash(Request.Size));
		Hash = HashCombine(Hash, ::GetTypeHash(Request.LetterSpacing));
		return HashCombine(Hash, ::GetTypeHash((static_cast<int32>(Request.Skew) << 16) ^ Request.Outline));
	}

	FResolvedFont::FResolvedFont(const FFontRequest& InRequest, const TSharedRef<const FCompositeFaces>& InFaces)
		: Request(InRequest)
		, Faces(InFaces)
	{
		Id = ++LastFontId;
		Size = Request.Size;
		LetterSpacing = GetPixelSize() * static_cast<float>(Request.LetterSpacing) / 1000.0f;
		Skew = Request.Skew;
		Outline = Request.Outline;
		bHollowOutline = Request.bHollowOutline;
		Slots.SetNum(Faces->Num());
		ShapingFonts.SetNumZeroed(Faces->Num());
		OpenSlot(0);
		ComputeMetrics();
	}

	FResolvedFont::~FResolvedFont()
	{
		for (hb_font_t* Font : ShapingFonts)
		{
			hb_font_destroy(Font);
		}
	}

	hb_font_t* FResolvedFont::OpenSlot(int32 SlotIndex) const
	{
		const FFontFace& Face = Faces->GetFace(SlotIndex);
		FFontSlot& Slot = Slots[SlotIndex];
		Slot.Face = Face.GetId();
		Slot.Hinting = Faces->GetHinting(SlotIndex);
		Slot.Size = FMath::Max(1, FMath::RoundToInt32(static_cast<float>(Size) * Faces->GetScaling(SlotIndex)));
		ShapingFonts[SlotIndex] = Face.MakeShapingFont(Slot.Size);
		return ShapingFonts[SlotIndex];
	}

	void FResolvedFont::ComputeMetrics()
	{
		const FFontFace& Face = GetFace(0);
		const FFaceMetrics& Units = Face.GetMetrics();
		const float Scale = GetPixelSize() / static_cast<float>(Units.UnitsPerEm);
		Metrics.Ascender = static_cast<float>(Units.Ascender) * Scale;
		Metrics.Descender = static_cast<float>(-Units.Descender) * Scale;
		const float LineHeight = static_cast<float>(Units.LineHeight) * Scale;
		const float Gap = LineHeight - Metrics.Ascender - Metrics.Descender;
		Metrics.LineHeight = FMath::Max(1.0f, FMath::RoundToFloat(LineHeight));
		Metrics.Baseline = FMath::RoundToFloat(Gap / 2.0f + Metrics.Ascender);
		Metrics.UnderlineOffset = static_cast<float>(-Units.UnderlinePosition) * Scale;
		Metrics.UnderlineThickness = FMath::Max(1.0f, FMath::RoundToFloat(static_cast<float>(Units.UnderlineThickness) * Scale));
		const uint16 Space = Face.FindGlyph(' ');
		Metrics.SpaceAdvance = Space ? static_cast<float>(Face.GetAdvance(Space)) * Scale : GetPixelSize() / 4.0f;
	}

	int32 FResolvedFont::GetMaxRasterSize(const FShapedGlyph& Glyph) const
	{
		// Ornaments can be many times wider than the em.
		const FFontFace& Face = GetFace(Glyph.Slot);
		const FGlyphExtents Box = Face.GetExtents(Glyph.Glyph);
		const int32 Largest = FMath::Max(1, FMath::Max(Box.Right - Box.Left, Box.Top - Box.Bottom));
		constexpr int64 LargestPixels = FFontFace::MaxGlyphPixels / 2;
		return static_cast<int32>(FMath::Clamp<int64>(LargestPixels * 64 * Face.GetMetrics().UnitsPerEm / Largest, 64, FGlyphAtlas::MaxPixelSize * 64));
	}
}
