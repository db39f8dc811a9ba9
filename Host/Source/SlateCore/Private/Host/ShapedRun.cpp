#include "Host/ShapedRun.h"

#include "Host/ResolvedFont.h"

#include <cstring>

namespace Host
{
	static int32 NumRunsAlive = 0;

	FShapedRun::FShapedRun(const TSharedRef<const FSizedFont>& InFont, FStringView InText, int32 InNumGlyphs)
		: Font(InFont)
		, NumGlyphs(InNumGlyphs)
		, TextLength(InText.Len())
	{
		const SIZE_T TextSize = static_cast<SIZE_T>(TextLength) * sizeof(TCHAR);
		Storage = static_cast<uint8*>(FMemory::Malloc(static_cast<SIZE_T>(NumGlyphs) * sizeof(FShapedGlyph) + TextSize + 1));
		if (TextSize != 0)
		{
			std::memcpy(const_cast<TCHAR*>(Text()), InText.GetData(), TextSize);
		}
		++NumRunsAlive;
	}

	FShapedRun::~FShapedRun()
	{
		FMemory::Free(Storage);
		--NumRunsAlive;
	}

	SIZE_T FShapedRun::GetAllocatedSize() const
	{
		// The two reference counts stand beside the run.
		constexpr SIZE_T Counts = 16;
		return sizeof(FShapedRun) + Counts + static_cast<SIZE_T>(NumGlyphs) * sizeof(FShapedGlyph) + static_cast<SIZE_T>(TextLength) * sizeof(TCHAR);
	}

	int32 FShapedRun::GetNumAlive()
	{
		return NumRunsAlive;
	}

	const FInkBounds& FShapedRun::GetInkBounds() const
	{
		if (bHasInkBounds)
		{
			return InkBounds;
		}
		bHasInkBounds = true;
		const FResolvedFont& Resolved = FResolvedFont::Of(*Font);
		const float Skew = Resolved.GetSkew();
		// Hinting moves heights by less than a pixel.
		const float Margin = Resolved.GetOutlineWidth() + 1.0f;
		for (const FShapedGlyph& Glyph : GetGlyphs())
		{
			const FFontFace& Face = Resolved.GetFace(Glyph.Slot);
			const FGlyphExtents Box = Face.GetExtents(Glyph.Glyph);
			if (Box.Right <= Box.Left || Box.Top <= Box.Bottom)
			{
				continue;
			}
			const float Scale = static_cast<float>(Resolved.GetSlots()[Glyph.Slot].Size) / 64.0f / static_cast<float>(Face.GetMetrics().UnitsPerEm);
			const float Baseline = static_cast<float>(Glyph.Y) / 64.0f;
			const float Lean[] = { Skew * static_cast<float>(Box.Bottom), Skew * static_cast<float>(Box.Top) };
			const FInkBounds Ink = {
				Glyph.X + (static_cast<float>(Box.Left) + FMath::Min(Lean[0], Lean[1])) * Scale - Margin,
				Baseline - static_cast<float>(Box.Top) * Scale - Margin,
				Glyph.X + (static_cast<float>(Box.Right) + FMath::Max(Lean[0], Lean[1])) * Scale + Margin,
				Baseline - static_cast<float>(Box.Bottom) * Scale + Margin,
			};
			if (InkBounds.IsEmpty())
			{
				InkBounds = Ink;
				continue;
			}
			InkBounds.Left = FMath::Min(InkBounds.Left, Ink.Left);
			InkBounds.Top = FMath::Min(InkBounds.Top, Ink.Top);
			InkBounds.Right = FMath::Max(InkBounds.Right, Ink.Right);
			InkBounds.Bottom = FMath::Max(InkBounds.Bottom, Ink.Bottom);
		}
		return InkBounds;
	}
}
