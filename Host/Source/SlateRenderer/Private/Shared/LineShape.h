#pragma once

#include <cmath>

#include "CoreMinimal.h"
#include "Host/DrawElement.h"

namespace Host
{
	/**
	 * One segment of a polyline, in pixels. Neighbouring segments share out the pixels around their joint by the line that
	 * halves the angle, so that no pixel is blended twice; joints are round, the ends of the polyline are cut straight. The
	 * OpenGL shader computes the same; keep the two alike.
	 */
	struct FLineSegment
	{
		FVector2f Start;
		FVector2f Direction;
		float Length;
		float HalfThickness;
		/** Normals of the dividing lines, towards the segment at the start and away from it at the end. */
		FVector2f StartNormal;
		FVector2f EndNormal;
		bool bJoinedStart;
		bool bJoinedEnd;

		/** Share of the pixel around the point that the segment covers; 0 for pixels of its neighbours. */
		float GetCoverage(float X, float Y) const
		{
			const float FromStartX = X - Start.X;
			const float FromStartY = Y - Start.Y;
			const float FromEndX = FromStartX - Direction.X * Length;
			const float FromEndY = FromStartY - Direction.Y * Length;
			if (bJoinedStart && FromStartX * StartNormal.X + FromStartY * StartNormal.Y < 0.0f)
			{
				return 0.0f;
			}
			if (bJoinedEnd && FromEndX * EndNormal.X + FromEndY * EndNormal.Y >= 0.0f)
			{
				return 0.0f;
			}
			const float Along = FromStartX * Direction.X + FromStartY * Direction.Y;
			const float Across = FromStartX * Direction.Y - FromStartY * Direction.X;
			float Distance = std::fabs(Across);
			float Ends = 1.0f;
			if (Along < 0.0f && bJoinedStart)
			{
				Distance = std::sqrt(FromStartX * FromStartX + FromStartY * FromStartY);
			}
			else if (Along > Length && bJoinedEnd)
			{
				Distance = std::sqrt(FromEndX * FromEndX + FromEndY * FromEndY);
			}
			if (!bJoinedStart)
			{
				Ends *= Clamp(Along + 0.5f);
			}
			if (!bJoinedEnd)
			{
				Ends *= Clamp(Length - Along + 0.5f);
			}
			const float Overlap = FMath::Min(Distance + 0.5f, HalfThickness) - FMath::Max(Distance - 0.5f, -HalfThickness);
			return Clamp(Overlap) * Ends;
		}

	private:
		static float Clamp(float Value) { return Value < 0.0f ? 0.0f : (Value > 1.0f ? 1.0f : Value); }
	};

	/** The segment from the given point to the next. */
	FLineSegment MakeSegment(const FLinePoints& Lines, int32 Index);

	/** The pixels that a segment can touch. */
	FPixelRect BoundsOfSegment(const FLineSegment& Segment);
}
