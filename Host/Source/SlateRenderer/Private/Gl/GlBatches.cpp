#include "Gl/GlBatches.h"

#include "Host/ShapedRun.h"
#include "Host/SizedFont.h"
#include "Host/Texture.h"
#include "Shared/GlyphPlacement.h"
#include "Shared/LineShape.h"

namespace Host
{
	namespace
	{
		const TSharedPtr<const FTexture>& GetSharedTexture(const FDrawElement& Element)
		{
			return *std::get_if<TSharedPtr<const FTexture>>(&Element.Payload);
		}

		bool IsEmpty(const FGlInstance& Instance)
		{
			return Instance.Bounds[0] >= Instance.Bounds[2] || Instance.Bounds[1] >= Instance.Bounds[3];
		}
	}

	void FGlBatches::Reset()
	{
		Instances.Reset();
		Batches.Reset();
	}

	void FGlBatches::Add(const FDrawElement& Element, const FPixelRect& Area, FGlyphAtlas& Atlas)
	{
		switch (Element.Kind)
		{
		case EDrawElementKind::Box:
		case EDrawElementKind::Image:
		case EDrawElementKind::Sliced:
			AddBox(Element, Area);
			break;
		case EDrawElementKind::Glyphs:
			AddGlyphs(Element, Area, Atlas);
			break;
		case EDrawElementKind::Lines:
			AddLines(Element, Area);
			break;
		}
	}

	FGlBatch& FGlBatches::Open(const FDrawElement& Element, bool bTextured)
	{
		const bool bRepeat = Element.HasFlag(EDrawElementFlags::Tiled);
		if (Batches.Num() > 0)
		{
			FGlBatch& Last = Batches.Last();
			const bool bSameTexture = !bTextured || !Last.Texture.IsValid() || (Last.Texture == GetSharedTexture(Element) && Last.bRepeat == bRepeat);
			if (bSameTexture && Last.ClipQuads == Element.ClipQuads)
			{
				if (bTextured)
				{
					Last.Texture = GetSharedTexture(Element);
					Last.bRepeat = bRepeat;
				}
				return Last;
			}
		}
		FGlBatch& Batch = Batches.AddDefaulted_GetRef();
		Batch.FirstInstance = Instances.Num();
		Batch.ClipQuads = Element.ClipQuads;
		if (bTextured)
		{
			Batch.Texture = GetSharedTexture(Element);
			Batch.bRepeat = bRepeat;
		}
		return Batch;
	}

	void FGlBatches::Append(FGlBatch& Batch, const FGlInstance& Instance)
	{
		if (!IsEmpty(Instance))
		{
			Instances.Add(Instance);
			++Batch.NumInstances;
		}
	}

	void FGlBatches::AddBox(const FDrawElement& Element, const FPixelRect& Area)
	{
		FGlBatch& Batch = Open(Element, Element.GetTexture() != nullptr);
		int32 Level = 0;
		Append(Batch, MakeBoxInstance(Element, Area, Level));
		Batch.Level = FMath::Max(Batch.Level, Level);
	}

	void FGlBatches::AddGlyphs(const FDrawElement& Element, const FPixelRect& Area, FGlyphAtlas& Atlas)
	{
		FGlBatch& Batch = Open(Element, false);
		const FGlyphPlacement Placement(Element, Atlas);
		const auto AddPart = [&](EGlyphPart Part, const FColor& Colour)
		{
			for (const FShapedGlyph& Glyph : Element.GetRun()->GetGlyphs())
			{
				FPlacedGlyph Placed;
				if (Placement.Place(Glyph, Part, Placed))
				{
					Append(Batch, MakeGlyphInstance(Element, Placed, Placement.IsUpright() && Placed.RunPerTexel == 1.0f, Colour, Area));
				}
			}
		};
		if (Element.GetRun()->GetFont().HasOutline() && Element.OutlineColour.A > 0)
		{
			AddPart(EGlyphPart::Outline, Element.OutlineColour);
		}
		if (Element.Colour.A > 0)
		{
			AddPart(EGlyphPart::Fill, Element.Colour);
		}
	}

	void FGlBatches::AddLines(const FDrawElement& Element, const FPixelRect& Area)
	{
		FGlBatch& Batch = Open(Element, false);
		const FLinePoints& Lines = *Element.GetLines();
		for (int32 Index = 0; Index + 1 < Lines.Points.Num(); ++Index)
		{
			Append(Batch, MakeLineInstance(Element, MakeSegment(Lines, Index), Lines.bAntialias, Area));
		}
	}
}
