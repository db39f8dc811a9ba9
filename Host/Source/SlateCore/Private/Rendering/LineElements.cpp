#include "Rendering/DrawElementTypes.h"

#include "Layout/Geometry.h"
#include "Rendering/DrawElements.h"
#include "Rendering/ElementGeometry.h"

using namespace Host;

namespace
{
	/** Equal neighbours have no direction between them; points that are not numbers have no place. */
	void AddPoint(TArray<FVector2f>& Points, FVector2f Point)
	{
		if (!FMath::IsFinite(Point.X) || !FMath::IsFinite(Point.Y) || (Points.Num() > 0 && Points.Last() == Point))
		{
			return;
		}
		Points.Add(Point);
	}

	FPixelRect BoundsOfPoints(TConstArrayView<FVector2f> Points, float Margin)
	{
		FVector2f Low = Points[0];
		FVector2f High = Low;
		for (const FVector2f& Point : Points)
		{
			Low = FVector2f(FMath::Min(Low.X, Point.X), FMath::Min(Low.Y, Point.Y));
			High = FVector2f(FMath::Max(High.X, Point.X), FMath::Max(High.Y, Point.Y));
		}
		return FPixelRect::Around(Low.X - Margin, Low.Y - Margin, High.X + Margin, High.Y + Margin);
	}
}

void FSlateDrawElement::MakeLines(FSlateWindowElementList& ElementList, uint32 InLayer, const FPaintGeometry& PaintGeometry, TArray<FVector2f> Points,
	ESlateDrawEffect InDrawEffects, const FLinearColor& InTint, bool bAntialias, float Thickness)
{
	const FElementGeometry Geometry(PaintGeometry);
	const TSharedRef<FLinePoints> Lines = MakeShared<FLinePoints>();
	Lines->Points.Reserve(Points.Num());
	for (const FVector2f& Point : Points)
	{
		AddPoint(Lines->Points, Geometry.Transform.Apply(Point.X, Point.Y));
	}
	Lines->Thickness = Thickness * Geometry.GetScale();
	Lines->bAntialias = bAntialias;
	FDrawElement Element;
	Element.Colour = ResolveColour(InTint, InDrawEffects);
	if (Lines->Points.Num() < 2 || !(Lines->Thickness > 0.0f) || Element.Colour.A == 0)
	{
		return;
	}
	Element.Kind = EDrawElementKind::Lines;
	Element.Layer = ToElementLayer(InLayer);
	// The smooth edge reaches half a pixel further.
	Element.Bounds = BoundsOfPoints(Lines->Points, 0.5f * Lines->Thickness + 0.5f);
	Element.Payload = TSharedPtr<const FLinePoints>(Lines);
	ElementList.Append(MoveTemp(Element));
}
