#include "Layout/Geometry.h"

#include <cmath>

#include "Layout/ArrangedWidget.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/SWidget.h"

namespace
{
	/** The transform about a point that stays in place. */
	FSlateRenderTransform About(const FSlateRenderTransform& Transform, const FVector2f& Point)
	{
		if (Point.IsZero())
		{
			return Transform;
		}
		return FSlateRenderTransform(-Point).Concatenate(Transform).Concatenate(FSlateRenderTransform(Point));
	}

	FSlateRect BoundingRect(const FSlateRenderTransform& Transform, const FSlateRect& Rect)
	{
		const FVector2f Corners[4] = {
			Transform.TransformPoint(FVector2f(Rect.Left, Rect.Top)), Transform.TransformPoint(FVector2f(Rect.Right, Rect.Top)),
			Transform.TransformPoint(FVector2f(Rect.Left, Rect.Bottom)), Transform.TransformPoint(FVector2f(Rect.Right, Rect.Bottom)) };
		FSlateRect Bounds(Corners[0], Corners[0]);
		for (const FVector2f& Corner : Corners)
		{
			Bounds = Bounds.Expand(FSlateRect(Corner, Corner));
		}
		return Bounds;
	}
}

FGeometry::FGeometry(const FVector2f& InLocalSize, const FSlateLayoutTransform& Local, const FSlateLayoutTransform& Accumulated, const FSlateRenderTransform& Render, bool bInHasRenderTransform)
	: Size(InLocalSize), Scale(Accumulated.GetScale()), AbsolutePosition(Accumulated.GetTranslation()), Position(Local.GetTranslation())
	, AccumulatedRenderTransform(Render), LocalScale(Local.GetScale()), bHasRenderTransform(bInHasRenderTransform)
{
}

FGeometry FGeometry::MakeRoot(const UE::Slate::FDeprecateVector2DParameter& InLocalSize, const FSlateLayoutTransform& LayoutTransform)
{
	return FGeometry(InLocalSize, LayoutTransform, LayoutTransform, LayoutTransform.ToRenderTransform(), false);
}

FGeometry FGeometry::MakeRoot(const UE::Slate::FDeprecateVector2DParameter& InLocalSize, const FSlateLayoutTransform& LayoutTransform, const FSlateRenderTransform& RenderTransform)
{
	return FGeometry(InLocalSize, LayoutTransform, LayoutTransform, RenderTransform, true);
}

FGeometry FGeometry::MakeChild(const UE::Slate::FDeprecateVector2DParameter& InLocalSize, const FSlateLayoutTransform& LayoutTransform) const
{
	const FSlateLayoutTransform Accumulated = LayoutTransform.Concatenate(GetAccumulatedLayoutTransform());
	// Without render transforms it is made from layout alone, so that both agree to the bit.
	const FSlateRenderTransform Render = bHasRenderTransform ? LayoutTransform.ToRenderTransform().Concatenate(AccumulatedRenderTransform) : Accumulated.ToRenderTransform();
	return FGeometry(InLocalSize, LayoutTransform, Accumulated, Render, bHasRenderTransform);
}

FGeometry FGeometry::MakeChild(const UE::Slate::FDeprecateVector2DParameter& InLocalSize, const FSlateLayoutTransform& LayoutTransform,
	const FSlateRenderTransform& RenderTransform, const UE::Slate::FDeprecateVector2DParameter& RenderTransformPivot) const
{
	if (RenderTransform.IsIdentity())
	{
		return MakeChild(InLocalSize, LayoutTransform);
	}
	const FSlateRenderTransform Render = About(RenderTransform, InLocalSize * FVector2f(RenderTransformPivot)).Concatenate(LayoutTransform.ToRenderTransform()).Concatenate(AccumulatedRenderTransform);
	return FGeometry(InLocalSize, LayoutTransform, LayoutTransform.Concatenate(GetAccumulatedLayoutTransform()), Render, true);
}

FGeometry FGeometry::MakeChild(const FSlateRenderTransform& RenderTransform, const UE::Slate::FDeprecateVector2DParameter& RenderTransformPivot) const
{
	return MakeChild(Size, FSlateLayoutTransform(), RenderTransform, RenderTransformPivot);
}

FArrangedWidget FGeometry::MakeChild(const TSharedRef<SWidget>& ChildWidget, const UE::Slate::FDeprecateVector2DParameter& InLocalSize, const FSlateLayoutTransform& LayoutTransform) const
{
	const TOptional<FSlateRenderTransform>& Transform = ChildWidget->GetRenderTransform();
	return FArrangedWidget(ChildWidget, Transform.IsSet()
		? MakeChild(InLocalSize, LayoutTransform, Transform.GetValue(), ChildWidget->GetRenderTransformPivot())
		: MakeChild(InLocalSize, LayoutTransform));
}

FArrangedWidget FGeometry::MakeChild(const TSharedRef<SWidget>& ChildWidget, const UE::Slate::FDeprecateVector2DParameter& ChildOffset,
	const UE::Slate::FDeprecateVector2DParameter& InLocalSize, float ChildScale) const
{
	return MakeChild(ChildWidget, InLocalSize, FSlateLayoutTransform(ChildScale, FVector2f(ChildOffset)));
}

FPaintGeometry FGeometry::ToPaintGeometry() const
{
	return FPaintGeometry(GetAccumulatedLayoutTransform(), AccumulatedRenderTransform, Size, bHasRenderTransform);
}

FPaintGeometry FGeometry::ToPaintGeometry(const UE::Slate::FDeprecateVector2DParameter& InLocalSize, const FSlateLayoutTransform& InLayoutTransform) const
{
	return MakeChild(InLocalSize, InLayoutTransform).ToPaintGeometry();
}

FPaintGeometry FGeometry::ToPaintGeometry(const UE::Slate::FDeprecateVector2DParameter& InLocalSize, const FSlateLayoutTransform& InLayoutTransform,
	const FSlateRenderTransform& RenderTransform, const UE::Slate::FDeprecateVector2DParameter& RenderTransformPivot) const
{
	return MakeChild(InLocalSize, InLayoutTransform, RenderTransform, RenderTransformPivot).ToPaintGeometry();
}

FPaintGeometry FGeometry::ToPaintGeometry(const FSlateLayoutTransform& LayoutTransform) const
{
	return ToPaintGeometry(Size, LayoutTransform);
}

bool FGeometry::IsUnderLocation(const UE::Slate::FDeprecateVector2DParameter& AbsoluteCoordinate) const
{
	const float Determinant = AccumulatedRenderTransform.GetMatrix().Determinant();
	if (Determinant == 0.0f || !std::isfinite(Determinant))
	{
		return false;
	}
	const FVector2f Local = AbsoluteToLocal(AbsoluteCoordinate);
	return Local.X >= 0.0f && Local.Y >= 0.0f && Local.X < Size.X && Local.Y < Size.Y;
}

UE::Slate::FDeprecateVector2DResult FGeometry::AbsoluteToLocal(const UE::Slate::FDeprecateVector2DParameter& AbsoluteCoordinate) const
{
	const float Determinant = AccumulatedRenderTransform.GetMatrix().Determinant();
	if (Determinant == 0.0f || !std::isfinite(Determinant))
	{
		return UE::Slate::FDeprecateVector2DResult(0.0f, 0.0f);
	}
	return UE::Slate::FDeprecateVector2DResult(AccumulatedRenderTransform.Inverse().TransformPoint(FVector2f(AbsoluteCoordinate)));
}

UE::Slate::FDeprecateVector2DResult FGeometry::LocalToAbsolute(const UE::Slate::FDeprecateVector2DParameter& LocalCoordinate) const
{
	return UE::Slate::FDeprecateVector2DResult(AccumulatedRenderTransform.TransformPoint(FVector2f(LocalCoordinate)));
}

UE::Slate::FDeprecateVector2DResult FGeometry::GetAbsoluteSize() const
{
	return UE::Slate::FDeprecateVector2DResult(AccumulatedRenderTransform.TransformVector(Size));
}

UE::Slate::FDeprecateVector2DResult FGeometry::GetAbsolutePosition() const
{
	return UE::Slate::FDeprecateVector2DResult(AccumulatedRenderTransform.GetTranslation());
}

UE::Slate::FDeprecateVector2DResult FGeometry::GetAbsolutePositionAtCoordinates(const UE::Slate::FDeprecateVector2DParameter& NormalCoordinates) const
{
	return LocalToAbsolute(GetLocalPositionAtCoordinates(NormalCoordinates));
}

UE::Slate::FDeprecateVector2DResult FGeometry::GetLocalPositionAtCoordinates(const UE::Slate::FDeprecateVector2DParameter& NormalCoordinates) const
{
	return UE::Slate::FDeprecateVector2DResult(Size * FVector2f(NormalCoordinates));
}

FSlateRect FGeometry::GetLayoutBoundingRect() const
{
	return FSlateRect::FromPointAndExtent(AbsolutePosition, Size * Scale);
}

FSlateRect FGeometry::GetLayoutBoundingRect(const FSlateRect& LocalRect) const
{
	return BoundingRect(GetAccumulatedLayoutTransform().ToRenderTransform(), LocalRect);
}

FSlateRect FGeometry::GetRenderBoundingRect() const
{
	return bHasRenderTransform ? BoundingRect(AccumulatedRenderTransform, FSlateRect(0.0f, 0.0f, Size.X, Size.Y)) : GetLayoutBoundingRect();
}

FSlateRect FGeometry::GetRenderBoundingRect(const FSlateRect& LocalRect) const
{
	return BoundingRect(AccumulatedRenderTransform, LocalRect);
}

FString FGeometry::ToString() const
{
	return FString::Printf(TEXT("[Abs=%g,%g, Scale=%g, Size=%g x %g]"), AbsolutePosition.X, AbsolutePosition.Y, Scale, Size.X, Size.Y);
}

const FArrangedWidget& FArrangedWidget::GetNullWidget()
{
	static const FArrangedWidget Null(SNullWidget::NullWidget, FGeometry());
	return Null;
}

FString FArrangedWidget::ToString() const
{
	return Widget->ToString() + TEXT(" @ ") + Geometry.ToString();
}
