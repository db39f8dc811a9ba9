#include "Layout/Clipping.h"

#include "Layout/Geometry.h"
#include "Layout/PaintGeometry.h"

namespace
{
	float Cross(const FVector2f& A, const FVector2f& B)
	{
		return A.X * B.Y - A.Y * B.X;
	}

	bool IsNear(float A, float B)
	{
		return FMath::Abs(A - B) < 0.01f;
	}
}

FSlateClippingZone::FSlateClippingZone(const FSlateRect& AxisAlignedRect)
	: TopLeft(AxisAlignedRect.GetTopLeft()), TopRight(AxisAlignedRect.GetTopRight()), BottomLeft(AxisAlignedRect.GetBottomLeft()), BottomRight(AxisAlignedRect.GetBottomRight())
{
}

FSlateClippingZone::FSlateClippingZone(const FGeometry& BoundingGeometry) : FSlateClippingZone(BoundingGeometry.ToPaintGeometry())
{
}

FSlateClippingZone::FSlateClippingZone(const FPaintGeometry& PaintGeometry)
{
	const FSlateRenderTransform& Transform = PaintGeometry.GetAccumulatedRenderTransform();
	const FVector2f Size = PaintGeometry.GetLocalSize();
	TopLeft = Transform.TransformPoint(FVector2f(0.0f, 0.0f));
	TopRight = Transform.TransformPoint(FVector2f(Size.X, 0.0f));
	BottomLeft = Transform.TransformPoint(FVector2f(0.0f, Size.Y));
	BottomRight = Transform.TransformPoint(Size);
}

FSlateClippingZone::FSlateClippingZone(const FVector2f& InTopLeft, const FVector2f& InTopRight, const FVector2f& InBottomLeft, const FVector2f& InBottomRight)
	: TopLeft(InTopLeft), TopRight(InTopRight), BottomLeft(InBottomLeft), BottomRight(InBottomRight)
{
}

bool FSlateClippingZone::IsAxisAligned() const
{
	const bool bUpright = IsNear(TopLeft.Y, TopRight.Y) && IsNear(BottomLeft.Y, BottomRight.Y) && IsNear(TopLeft.X, BottomLeft.X) && IsNear(TopRight.X, BottomRight.X);
	const bool bQuarterTurn = IsNear(TopLeft.X, TopRight.X) && IsNear(BottomLeft.X, BottomRight.X) && IsNear(TopLeft.Y, BottomLeft.Y) && IsNear(TopRight.Y, BottomRight.Y);
	return bUpright || bQuarterTurn;
}

bool FSlateClippingZone::HasZeroArea() const
{
	return FMath::Abs(Cross(TopRight - TopLeft, BottomLeft - TopLeft)) < 1e-4f;
}

bool FSlateClippingZone::IsPointInside(const FVector2f& Point) const
{
	const FVector2f Corners[4] = { TopLeft, TopRight, BottomRight, BottomLeft };
	bool bAnyLeft = false;
	bool bAnyRight = false;
	for (int32 Index = 0; Index < 4; ++Index)
	{
		const float Side = Cross(Corners[(Index + 1) % 4] - Corners[Index], Point - Corners[Index]);
		bAnyLeft |= Side < 0.0f;
		bAnyRight |= Side > 0.0f;
	}
	return !(bAnyLeft && bAnyRight);
}

FSlateRect FSlateClippingZone::GetBoundingBox() const
{
	return FSlateRect(TopLeft, TopLeft).Expand(FSlateRect(TopRight, TopRight)).Expand(FSlateRect(BottomLeft, BottomLeft)).Expand(FSlateRect(BottomRight, BottomRight));
}
