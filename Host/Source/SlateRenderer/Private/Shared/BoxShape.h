#pragma once

#include <cmath>

#include "CoreMinimal.h"
#include "Host/DrawElement.h"

namespace Host
{
	/** How far a point lies outside an edge (negative: inside), and the direction in which that grows. */
	struct FEdgeDistance
	{
		float Distance = 0.0f;
		float GradientX = 0.0f;
		float GradientY = 0.0f;
	};

	/**
	 * Distance from a rounded corner, by the distances from the corner's two sides (positive inward). Valid in the quarter
	 * of the box that belongs to the corner. The OpenGL shader computes the same; keep the two alike.
	 */
	inline FEdgeDistance DistanceFromCorner(float FromSideX, float FromSideY, float Radius)
	{
		const float X = Radius - FromSideX;
		const float Y = Radius - FromSideY;
		if (X > 0.0f && Y > 0.0f)
		{
			const float Length = std::sqrt(X * X + Y * Y);
			return { Length - Radius, X / Length, Y / Length };
		}
		return X > Y ? FEdgeDistance{ X - Radius, 1.0f, 0.0f } : FEdgeDistance{ Y - Radius, 0.0f, 1.0f };
	}

	/** A box with rounded corners, to be asked how much of a pixel it covers. */
	struct FBoxShape
	{
		FVector2f Size;
		FCornerRadii Radii;

		/** Distance from the edge in local units, with the gradient by local axes. */
		FEdgeDistance GetDistance(float X, float Y) const
		{
			const bool bRight = X > 0.5f * Size.X;
			const bool bBelow = Y > 0.5f * Size.Y;
			const float Radius = bBelow ? (bRight ? Radii.BottomRight : Radii.BottomLeft) : (bRight ? Radii.TopRight : Radii.TopLeft);
			FEdgeDistance Result = DistanceFromCorner(bRight ? Size.X - X : X, bBelow ? Size.Y - Y : Y, Radius);
			Result.GradientX = bRight ? Result.GradientX : -Result.GradientX;
			Result.GradientY = bBelow ? Result.GradientY : -Result.GradientY;
			return Result;
		}
	};

	/** From pixels of the window back to local units. */
	struct FPixelToLocal
	{
		float XByX;
		float XByY;
		float X0;
		float YByX;
		float YByY;
		float Y0;

		explicit FPixelToLocal(const FPixelTransform& Transform)
		{
			const float Determinant = Transform.Xx * Transform.Yy - Transform.Xy * Transform.Yx;
			const float Inverse = Determinant != 0.0f ? 1.0f / Determinant : 0.0f;
			XByX = Transform.Yy * Inverse;
			XByY = -Transform.Yx * Inverse;
			YByX = -Transform.Xy * Inverse;
			YByY = Transform.Xx * Inverse;
			X0 = -(XByX * Transform.X + XByY * Transform.Y);
			Y0 = -(YByX * Transform.X + YByY * Transform.Y);
		}

		float GetX(float PixelX, float PixelY) const { return XByX * PixelX + XByY * PixelY + X0; }
		float GetY(float PixelX, float PixelY) const { return YByX * PixelX + YByY * PixelY + Y0; }

		/** Local units that the distance changes for a step of one pixel along its gradient. */
		float StepOf(const FEdgeDistance& Edge) const
		{
			const float AlongX = Edge.GradientX * XByX + Edge.GradientY * YByX;
			const float AlongY = Edge.GradientX * XByY + Edge.GradientY * YByY;
			return std::sqrt(AlongX * AlongX + AlongY * AlongY);
		}

		/** Most local units that any step of one pixel can cover. */
		float GetLargestStep() const
		{
			return std::sqrt(XByX * XByX + XByY * XByY + YByX * YByX + YByY * YByY);
		}
	};
}
