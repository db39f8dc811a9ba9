#pragma once

#include "CoreMinimal.h"
#include "Host/SceneView.h"
#include "Math/Box.h"

namespace Host
{
	/**
	 * A camera that turns about a point, moves it and comes nearer, and eases toward where it was sent. Lengths in
	 * centimetres, angles in degrees.
	 */
	class FSceneCamera
	{
	public:
		/** What it looks at and from where. */
		struct FPose
		{
			FVector Target = FVector(0.0, 0.0, 0.0);
			/** Direction in which it looks, from X toward Y. */
			double Yaw = 40.0;
			/** Up from the horizon: it looks down on the scene from below 0. */
			double Pitch = -28.0;
			/** From the target. */
			double Distance = 5000.0;

			bool operator==(const FPose&) const = default;
		};

		/** Never quite from above, where the yaw would turn about itself, and never from below the ground. */
		static constexpr double LowestPitch = -89.0;
		static constexpr double HighestPitch = -2.0;

		/** What the camera is made for: keeps targets and distances in reach of it. Invalid bounds let everything be as it is. */
		void SetBounds(const FBox& InBounds);

		/** Turns about the target. */
		void Orbit(double DeltaYaw, double DeltaPitch);

		/**
		 * Moves the target, so that what is seen at its distance follows the pointer.
		 * @param Pixels	way of the pointer, right and down
		 * @param ViewHeight	of the picture in pixels
		 */
		void Pan(const FVector2D& Pixels, double ViewHeight);

		/**
		 * Multiplies the distance by the factor, while the given place stays where it is seen.
		 * @param Factor	above 0; below 1 comes nearer
		 */
		void Zoom(double Factor, const FVector& Around);

		/** Looks at the place, from as far as needed to see a sphere about it. */
		void Focus(const FVector& Place, double Radius, double AspectRatio);

		/** Looks at the whole box from where it looks now. */
		void Frame(const FBox& Box, double AspectRatio);

		/** Goes there without easing. */
		void JumpTo(const FPose& Pose);
		/** Ends easing where it leads. */
		void Finish() { Current = Goal; }

		/**
		 * Goes on by the seconds. How far it comes does not depend on the length of the steps.
		 * @return true when it moved
		 */
		bool Tick(double Seconds);
		bool IsMoving() const { return !(Current == Goal); }

		const FPose& GetPose() const { return Current; }
		const FPose& GetGoal() const { return Goal; }

		/** How the scene is seen now; near and far are chosen for the bounds. */
		FSceneView GetView() const;

	private:
		void Constrain();

		FPose Current;
		FPose Goal;
		FBox Bounds = FBox(ForceInit);
	};
}
