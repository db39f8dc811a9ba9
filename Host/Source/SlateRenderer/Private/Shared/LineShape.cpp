#include "Shared/LineShape.h"

namespace Host
{
	namespace
	{
		FVector2f DirectionBetween(FVector2f From, FVector2f To, float& OutLength)
		{
			const float X = To.X - From.X;
			const float Y = To.Y - From.Y;
			OutLength = std::sqrt(X * X + Y * Y);
			return FVector2f(X / OutLength, Y / OutLength);
		}

		/** The normal of the line between two segments that meet; where the second turns straight back, across both. */
		FVector2f DividingNormal(FVector2f First, FVector2f Second)
		{
			const float X = First.X + Second.X;
			const float Y = First.Y + Second.Y;
			return X * X + Y * Y > 1e-6f ? FVector2f(X, Y) : First;
		}
	}

	FLineSegment MakeSegment(const FLinePoints& Lines, int32 Index)
	{
		const TArray<FVector2f>& Points = Lines.Points;
		FLineSegment Segment;
		Segment.Start = Points[Index];
		Segment.Direction = DirectionBetween(Points[Index], Points[Index + 1], Segment.Length);
		Segment.HalfThickness = 0.5f * Lines.Thickness;
		Segment.bJoinedStart = Index > 0;
		Segment.bJoinedEnd = Index + 2 < Points.Num();
		Segment.StartNormal = FVector2f(0.0f, 0.0f);
		Segment.EndNormal = FVector2f(0.0f, 0.0f);
		float Ignored = 0.0f;
		if (Segment.bJoinedStart)
		{
			Segment.StartNormal = DividingNormal(DirectionBetween(Points[Index - 1], Points[Index], Ignored), Segment.Direction);
		}
		if (Segment.bJoinedEnd)
		{
			Segment.EndNormal = DividingNormal(Segment.Direction, DirectionBetween(Points[Index + 1], Points[Index + 2], Ignored));
		}
		return Segment;
	}

	FPixelRect BoundsOfSegment(const FLineSegment& Segment)
	{
		const float Margin = Segment.HalfThickness + 0.5f;
		const float EndX = Segment.Start.X + Segment.Direction.X * Segment.Length;
		const float EndY = Segment.Start.Y + Segment.Direction.Y * Segment.Length;
		return FPixelRect::Around(FMath::Min(Segment.Start.X, EndX) - Margin, FMath::Min(Segment.Start.Y, EndY) - Margin,
			FMath::Max(Segment.Start.X, EndX) + Margin, FMath::Max(Segment.Start.Y, EndY) + Margin);
	}
}
