#include "Rendering/DrawElementTypes.h"

#include <cmath>

#include "Fonts/SlateFontInfo.h"
#include "Host/FontServices.h"
#include "Layout/Geometry.h"
#include "Rendering/DrawElements.h"
#include "Rendering/ElementGeometry.h"

using namespace Host;

namespace
{
	/** Scales closer to 1 than this count as 1: the difference over a whole line stays below a quarter of a pixel. */
	constexpr float ScaleTolerance = 1e-4f;

	bool IsNearOne(float Value)
	{
		return std::fabs(Value - 1.0f) < ScaleTolerance;
	}

	/** The transform from the run's pixels, measured from the start of its baseline, to those of the window. */
	FPixelTransform MakeRunTransform(const FElementGeometry& Geometry, float DrawScale, float Baseline)
	{
		const float Inverse = DrawScale > 0.0f ? 1.0f / DrawScale : 1.0f;
		FPixelTransform Result = Geometry.Transform;
		Result.Xx *= Inverse;
		Result.Xy *= Inverse;
		Result.Yx *= Inverse;
		Result.Yy *= Inverse;
		if (Geometry.IsUpright() && IsNearOne(Result.Xx) && IsNearOne(Result.Yy))
		{
			Result.Xx = 1.0f;
			Result.Yy = 1.0f;
		}
		const FVector2f Start = Result.Apply(0.0f, Baseline);
		Result.X = Start.X;
		Result.Y = Start.Y;
		return Result;
	}
}

void FSlateDrawElement::MakeShapedText(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry, const FShapedRunRef& InRun,
	ESlateDrawEffect InDrawEffects, const FLinearColor& InTint, const FLinearColor& InOutlineTint)
{
	const FElementGeometry Geometry(PaintGeometry);
	const FSizedFont& Font = InRun->GetFont();
	FDrawElement Element;
	Element.Kind = EDrawElementKind::Glyphs;
	Element.Layer = ToElementLayer(InLayer);
	Element.Colour = ResolveColour(InTint, InDrawEffects);
	if (Font.HasOutline())
	{
		Element.OutlineColour = ResolveColour(InOutlineTint, InDrawEffects);
	}
	const FInkBounds& Ink = InRun->GetInkBounds();
	if (Ink.IsEmpty() || (Element.Colour.A == 0 && Element.OutlineColour.A == 0))
	{
		return;
	}
	Element.LocalToPixel = MakeRunTransform(Geometry, PaintGeometry.DrawScale, Font.GetMetrics().Baseline);
	if (Element.LocalToPixel.Xx == 1.0f && Element.LocalToPixel.Yy == 1.0f && Geometry.IsUpright())
	{
		// Baselines stand on whole pixels, so that horizontal strokes stay sharp.
		Element.LocalToPixel.Y = std::floor(Element.LocalToPixel.Y + 0.5f);
		Element.Flags |= EDrawElementFlags::Translated;
	}
	// Antialiased edges reach a pixel further than the outlines.
	Element.Bounds = BoundsOf(Element.LocalToPixel, Ink.Left - 1.0f, Ink.Top - 1.0f, Ink.Right + 1.0f, Ink.Bottom + 1.0f);
	Element.Payload = FShapedRunPtr(InRun);
	ElementList.Append(MoveTemp(Element));
}

void FSlateDrawElement::MakeText(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry, const FString& InText,
	const FSlateFontInfo& InFontInfo, ESlateDrawEffect InDrawEffects, const FLinearColor& InTint)
{
	if (InText.IsEmpty())
	{
		return;
	}
	FFontServices& Fonts = FFontServices::Get();
	const FShapedRunRef Run = Fonts.Shape(Fonts.GetFont(InFontInfo, PaintGeometry.DrawScale), InText);
	MakeShapedText(ElementList, InLayer, PaintGeometry, Run, InDrawEffects, InTint, InFontInfo.OutlineSettings.OutlineColor);
}

void FSlateDrawElement::MakeText(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry, const FText& InText,
	const FSlateFontInfo& InFontInfo, ESlateDrawEffect InDrawEffects, const FLinearColor& InTint)
{
	MakeText(ElementList, InLayer, PaintGeometry, InText.ToString(), InFontInfo, InDrawEffects, InTint);
}
