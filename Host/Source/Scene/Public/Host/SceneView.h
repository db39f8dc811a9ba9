#pragma once

#include "CoreMinimal.h"
#include "Math/Matrix.h"

namespace Host
{
	/** From where a scene is seen, and how much of it. */
	struct FSceneView
	{
		/** In centimetres. */
		FVector Location = FVector(0.0, 0.0, 0.0);
		/** These three are of length 1 and at right angles: X, Y and Z of the eye. */
		FVector Forward = FVector(1.0, 0.0, 0.0);
		FVector Right = FVector(0.0, 1.0, 0.0);
		FVector Up = FVector(0.0, 0.0, 1.0);
		/** Angle between the upper and the lower side of the picture, in degrees. */
		double FieldOfView = 32.0;
		/** What is nearer or farther is not drawn, in centimetres along Forward. */
		double NearDistance = 50.0;
		double FarDistance = 100000.0;

		/** Looks along the angles: yaw from X toward Y, pitch up from the horizon, in degrees, within 90. */
		static FSceneView FromAngles(const FVector& Location, double Yaw, double Pitch);

		/** Half the height of the picture at distance 1. */
		double GetHalfHeight() const;

		/**
		 * From places relative to Origin to clip space: X right, Y up, Z from -1 near to 1 far.
		 * @param AspectRatio	width of the picture for a height of 1
		 */
		FMatrix GetViewProjection(double AspectRatio, const FVector& Origin) const;

		/**
		 * Where a place is seen in a picture of the given size, in pixels from the top left.
		 * @return false when it is behind the eye
		 */
		bool Project(const FVector& Place, const FVector2D& Size, FVector2D& OutPixel) const;

		/** Direction, of length 1, in which the place of the picture is seen. */
		FVector Deproject(const FVector2D& Pixel, const FVector2D& Size) const;

		bool operator==(const FSceneView&) const = default;
	};
}
