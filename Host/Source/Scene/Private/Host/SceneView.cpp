#include "Host/SceneView.h"

namespace Host
{
	FSceneView FSceneView::FromAngles(const FVector& Location, double Yaw, double Pitch)
	{
		const double YawRadians = FMath::DegreesToRadians(Yaw);
		const double PitchRadians = FMath::DegreesToRadians(Pitch);
		const FVector Ahead(FMath::Cos(YawRadians), FMath::Sin(YawRadians), 0.0);
		FSceneView View;
		View.Location = Location;
		View.Forward = Ahead * FMath::Cos(PitchRadians) + FVector(0.0, 0.0, FMath::Sin(PitchRadians));
		View.Right = FVector(-Ahead.Y, Ahead.X, 0.0);
		View.Up = View.Forward ^ View.Right;
		return View;
	}

	double FSceneView::GetHalfHeight() const
	{
		return FMath::Tan(FMath::DegreesToRadians(0.5 * FieldOfView));
	}

	FMatrix FSceneView::GetViewProjection(double AspectRatio, const FVector& Origin) const
	{
		const FVector Eye = Location - Origin;
		const FMatrix ToEye(FVector4(Right.X, Up.X, Forward.X, 0.0), FVector4(Right.Y, Up.Y, Forward.Y, 0.0), FVector4(Right.Z, Up.Z, Forward.Z, 0.0),
			FVector4(-(Eye | Right), -(Eye | Up), -(Eye | Forward), 1.0));
		const double Scale = 1.0 / GetHalfHeight();
		const double Depth = FarDistance - NearDistance;
		const FMatrix ToClip(FVector4(Scale / AspectRatio, 0.0, 0.0, 0.0), FVector4(0.0, Scale, 0.0, 0.0),
			FVector4(0.0, 0.0, (FarDistance + NearDistance) / Depth, 1.0), FVector4(0.0, 0.0, -2.0 * FarDistance * NearDistance / Depth, 0.0));
		return ToEye * ToClip;
	}

	bool FSceneView::Project(const FVector& Place, const FVector2D& Size, FVector2D& OutPixel) const
	{
		const FVector Offset = Place - Location;
		const double Depth = Offset | Forward;
		if (!(Depth > 0.0))
		{
			return false;
		}
		const double PixelsPerSlope = 0.5 * Size.Y / GetHalfHeight();
		OutPixel = Size * 0.5 + FVector2D(Offset | Right, -(Offset | Up)) * (PixelsPerSlope / Depth);
		return true;
	}

	FVector FSceneView::Deproject(const FVector2D& Pixel, const FVector2D& Size) const
	{
		const FVector2D Slope = (Pixel - Size * 0.5) * (GetHalfHeight() / (0.5 * Size.Y));
		return (Forward + Right * Slope.X - Up * Slope.Y).GetSafeNormal();
	}
}
