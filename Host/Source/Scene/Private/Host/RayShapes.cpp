#include "Host/RayShapes.h"

namespace Host
{
	namespace
	{
		/** Narrows the part of a ray that lies between two parallel planes. */
		bool Clip(double Start, double Direction, double Min, double Max, double& Near, double& Far)
		{
			if (Direction == 0.0)
			{
				return Start >= Min && Start <= Max;
			}
			const double First = (Min - Start) / Direction;
			const double Second = (Max - Start) / Direction;
			Near = FMath::Max(Near, FMath::Min(First, Second));
			Far = FMath::Min(Far, FMath::Max(First, Second));
			return Near <= Far;
		}

		/** By counting the sides that a line to the right crosses. */
		bool IsInside(const FVector2D& Place, const TArray<FVector2D>& Points)
		{
			bool bInside = false;
			for (int32 Index = 0, Last = Points.Num() - 1; Index < Points.Num(); Last = Index++)
			{
				const FVector2D& A = Points[Index];
				const FVector2D& B = Points[Last];
				if ((A.Y > Place.Y) != (B.Y > Place.Y) && Place.X < A.X + (B.X - A.X) * (Place.Y - A.Y) / (B.Y - A.Y))
				{
					bInside = !bInside;
				}
			}
			return bInside;
		}

		/** Distance to the wall over a side, if it is met from outside. */
		double GetDistanceToWall(const FVector& Start, const FVector& Direction, const FVector2D& From, const FVector2D& To, double Bottom, double Top)
		{
			const FVector2D Along = To - From;
			const FVector2D Offset = From - FVector2D(Start);
			const FVector2D Flat(Direction);
			const double Facing = Flat ^ Along;
			// Outside is to the right of a side.
			if (!(Facing < 0.0))
			{
				return -1.0;
			}
			const double Distance = (Offset ^ Along) / Facing;
			const double Share = (Offset ^ Flat) / Facing;
			const double Height = Start.Z + Direction.Z * Distance;
			return Distance >= 0.0 && Share >= 0.0 && Share <= 1.0 && Height >= Bottom && Height <= Top ? Distance : -1.0;
		}
	}

	double GetDistanceToBox(const FVector& Start, const FVector& Direction, const FSceneContent::FPlacedBox& Box)
	{
		const FVector Offset = Start - Box.Centre;
		const auto TurnBack = [&Box](const FVector& V) { return FVector2D(V.X * Box.Turn.X + V.Y * Box.Turn.Y, V.Y * Box.Turn.X - V.X * Box.Turn.Y); };
		const FVector2D LocalStart = TurnBack(Offset);
		const FVector2D LocalDirection = TurnBack(Direction);
		double Near = -MAX_dbl;
		double Far = MAX_dbl;
		const bool bMet = Clip(LocalStart.X, LocalDirection.X, -Box.Extent.X, Box.Extent.X, Near, Far)
			&& Clip(LocalStart.Y, LocalDirection.Y, -Box.Extent.Y, Box.Extent.Y, Near, Far) && Clip(Offset.Z, Direction.Z, -Box.Extent.Z, Box.Extent.Z, Near, Far);
		return bMet ? Near : -1.0;
	}

	double GetDistanceToExtrusion(const FVector& Start, const FVector& Direction, const FSceneContent::FExtrusion& Extrusion)
	{
		double Nearest = MAX_dbl;
		if (Direction.Z != 0.0)
		{
			const double Cap = Direction.Z < 0.0 ? Extrusion.Top : Extrusion.Bottom;
			const double Distance = (Cap - Start.Z) / Direction.Z;
			if (Distance >= 0.0 && IsInside(FVector2D(Start + Direction * Distance), Extrusion.Points))
			{
				Nearest = Distance;
			}
		}
		const int32 Num = Extrusion.Points.Num();
		for (int32 Index = 0; Index < Num; ++Index)
		{
			const double Distance = GetDistanceToWall(Start, Direction, Extrusion.Points[Index], Extrusion.Points[(Index + 1) % Num], Extrusion.Bottom, Extrusion.Top);
			if (Distance >= 0.0)
			{
				Nearest = FMath::Min(Nearest, Distance);
			}
		}
		return Nearest < MAX_dbl ? Nearest : -1.0;
	}
}
