#include "Host/SceneCamera.h"

namespace Host
{
	namespace
	{
		/** Shares of the way that is left, a second: e to the minus this is left after one. */
		constexpr double EasingRate = 11.0;
		/** What is left of the way is done at once below these shares of the distance and degrees. */
		constexpr double LeastWay = 2.0e-4;
		constexpr double LeastTurn = 0.01;

		/** A little air about what is framed. */
		constexpr double FramingMargin = 1.06;
		constexpr double LeastDistance = 150.0;
		/** The camera goes no farther than so many times the size of the scene. */
		constexpr double FarthestSizes = 4.0;

		double GetRadius(const FBox& Box)
		{
			return 0.5 * (Box.Max - Box.Min).Size();
		}

		/** Distance from which a sphere fits into the narrower side of the picture. */
		double GetFramingDistance(double Radius, double AspectRatio)
		{
			const double HalfSlope = FSceneView().GetHalfHeight() * FMath::Min(1.0, AspectRatio);
			return FramingMargin * Radius * FMath::Sqrt(1.0 + HalfSlope * HalfSlope) / HalfSlope;
		}
	}

	void FSceneCamera::SetBounds(const FBox& InBounds)
	{
		Bounds = InBounds;
		Constrain();
	}

	void FSceneCamera::Orbit(double DeltaYaw, double DeltaPitch)
	{
		Goal.Yaw += DeltaYaw;
		Goal.Pitch += DeltaPitch;
		Constrain();
	}

	void FSceneCamera::Pan(const FVector2D& Pixels, double ViewHeight)
	{
		const FSceneView View = FSceneView::FromAngles(FVector::ZeroVector, Goal.Yaw, Goal.Pitch);
		const double Scale = 2.0 * View.GetHalfHeight() * Goal.Distance / ViewHeight;
		Goal.Target += (View.Up * Pixels.Y - View.Right * Pixels.X) * Scale;
		Constrain();
	}

	void FSceneCamera::Zoom(double Factor, const FVector& Around)
	{
		const double Before = Goal.Distance;
		Goal.Distance *= Factor;
		Constrain();
		Goal.Target = Around + (Goal.Target - Around) * (Goal.Distance / Before);
		Constrain();
	}

	void FSceneCamera::Focus(const FVector& Place, double Radius, double AspectRatio)
	{
		Goal.Target = Place;
		Goal.Distance = GetFramingDistance(Radius, AspectRatio);
		Constrain();
	}

	void FSceneCamera::Frame(const FBox& Box, double AspectRatio)
	{
		if (!Box.IsValid)
		{
			return;
		}
		// The smallest distance at which all corners are in the picture, seen from the direction of now.
		const FVector Centre = (Box.Min + Box.Max) * 0.5;
		const FSceneView View = FSceneView::FromAngles(Centre, Goal.Yaw, Goal.Pitch);
		const double HalfHeight = View.GetHalfHeight() / FramingMargin;
		const double HalfWidth = HalfHeight * AspectRatio;
		double Distance = 0.0;
		for (int32 Corner = 0; Corner < 8; ++Corner)
		{
			const FVector Offset = FVector(Corner & 1 ? Box.Max.X : Box.Min.X, Corner & 2 ? Box.Max.Y : Box.Min.Y, Corner & 4 ? Box.Max.Z : Box.Min.Z) - Centre;
			const double Needed = FMath::Max(FMath::Abs(Offset | View.Right) / HalfWidth, FMath::Abs(Offset | View.Up) / HalfHeight);
			Distance = FMath::Max(Distance, Needed - (Offset | View.Forward));
		}
		Goal.Target = Centre;
		Goal.Distance = Distance;
		Constrain();
	}

	void FSceneCamera::JumpTo(const FPose& Pose)
	{
		Goal = Pose;
		Constrain();
		Current = Goal;
	}

	void FSceneCamera::Constrain()
	{
		Goal.Pitch = FMath::Clamp(Goal.Pitch, LowestPitch, HighestPitch);
		Goal.Distance = FMath::Max(Goal.Distance, LeastDistance);
		if (Bounds.IsValid)
		{
			Goal.Target = FVector::Max(Bounds.Min, FVector::Min(Bounds.Max, Goal.Target));
			Goal.Distance = FMath::Min(Goal.Distance, FMath::Max(2.0 * LeastDistance, FarthestSizes * 2.0 * GetRadius(Bounds)));
		}
	}

	bool FSceneCamera::Tick(double Seconds)
	{
		if (!IsMoving())
		{
			return false;
		}
		const double Left = FMath::Exp(-EasingRate * FMath::Max(0.0, Seconds));
		Current.Target = Goal.Target + (Current.Target - Goal.Target) * Left;
		Current.Yaw = Goal.Yaw + (Current.Yaw - Goal.Yaw) * Left;
		Current.Pitch = Goal.Pitch + (Current.Pitch - Goal.Pitch) * Left;
		// By ratio, so that coming nearer looks as fast at every distance.
		Current.Distance = Goal.Distance * FMath::Pow(Current.Distance / Goal.Distance, Left);
		const bool bNear = FVector::Dist(Current.Target, Goal.Target) < LeastWay * Goal.Distance && FMath::Abs(Current.Distance / Goal.Distance - 1.0) < LeastWay
			&& FMath::Abs(Current.Yaw - Goal.Yaw) < LeastTurn && FMath::Abs(Current.Pitch - Goal.Pitch) < LeastTurn;
		if (bNear)
		{
			Current = Goal;
		}
		return true;
	}

	FSceneView FSceneCamera::GetView() const
	{
		FSceneView View = FSceneView::FromAngles(FVector::ZeroVector, Current.Yaw, Current.Pitch);
		View.Location = Current.Target - View.Forward * Current.Distance;
		const double Reach = Bounds.IsValid ? FVector::Dist(View.Location, (Bounds.Min + Bounds.Max) * 0.5) + GetRadius(Bounds) : 2.0 * Current.Distance;
		// The ground reaches beyond the volumes, until the haze hides it.
		constexpr double GroundSizes = 30.0;
		View.FarDistance = Reach + GroundSizes * (Bounds.IsValid ? GetRadius(Bounds) : Current.Distance);
		View.NearDistance = FMath::Max(10.0, 0.02 * Current.Distance);
		return View;
	}
}
