#include "Records/UnitVolumeShape.h"

#include "Algo/Reverse.h"

namespace
{
	/** Twice the area inside the corners; negative when they go clockwise. */
	double GetTwiceSignedArea(const TArray<FVector2D>& Corners)
	{
		double Sum = 0.0;
		for (int32 Index = 0; Index < Corners.Num(); ++Index)
		{
			const FVector2D& Here = Corners[Index];
			const FVector2D& Next = Corners[(Index + 1) % Corners.Num()];
			Sum += Here.X * Next.Y - Next.X * Here.Y;
		}
		return Sum;
	}
}

FUnitVolumeShape FUnitVolumeShape::MakeBox(const FVector& Min, const FVector& Max)
{
	FUnitVolumeShape Shape;
	Shape.Min = Min;
	Shape.Max = Max;
	return Shape;
}

FUnitVolumeShape FUnitVolumeShape::MakeExtrusion(TArray<FVector2D> Outline, double Bottom, double Top)
{
	FUnitVolumeShape Shape;
	Shape.Outline = MoveTemp(Outline);
	Shape.Min.Z = Bottom;
	Shape.Max.Z = Top;
	for (int32 Index = 0; Index < Shape.Outline.Num(); ++Index)
	{
		const FVector2D& Corner = Shape.Outline[Index];
		Shape.Min.X = Index == 0 ? Corner.X : FMath::Min(Shape.Min.X, Corner.X);
		Shape.Min.Y = Index == 0 ? Corner.Y : FMath::Min(Shape.Min.Y, Corner.Y);
		Shape.Max.X = Index == 0 ? Corner.X : FMath::Max(Shape.Max.X, Corner.X);
		Shape.Max.Y = Index == 0 ? Corner.Y : FMath::Max(Shape.Max.Y, Corner.Y);
	}
	return Shape;
}

double FUnitVolumeShape::GetGroundArea() const
{
	return FMath::Abs(GetTwiceSignedArea(GetCorners())) / 2.0;
}

TArray<FVector2D> FUnitVolumeShape::GetCorners() const
{
	if (IsBox())
	{
		return { FVector2D(Min.X, Min.Y), FVector2D(Max.X, Min.Y), FVector2D(Max.X, Max.Y), FVector2D(Min.X, Max.Y) };
	}
	TArray<FVector2D> Corners = Outline;
	if (GetTwiceSignedArea(Corners) < 0.0)
	{
		Algo::Reverse(Corners);
	}
	return Corners;
}

bool FUnitVolumeShape::Contains(const FVector& Point) const
{
	if (Point.X < Min.X || Point.X > Max.X || Point.Y < Min.Y || Point.Y > Max.Y || Point.Z < Min.Z || Point.Z > Max.Z)
	{
		return false;
	}
	// Inside an outline, a line to the far left crosses its edges an odd number of times.
	bool bInside = IsBox();
	for (int32 Index = 0, Last = Outline.Num() - 1; Index < Outline.Num(); Last = Index++)
	{
		const FVector2D& A = Outline[Index];
		const FVector2D& B = Outline[Last];
		const bool bSpans = (A.Y > Point.Y) != (B.Y > Point.Y);
		if (bSpans && Point.X < A.X + (Point.Y - A.Y) / (B.Y - A.Y) * (B.X - A.X))
		{
			bInside = !bInside;
		}
	}
	return bInside;
}
