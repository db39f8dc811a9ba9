#pragma once

#include "CoreMinimal.h"
#include "Host/SceneContent.h"

namespace Host
{
	/** Where a ray meets the first volume. */
	struct FSceneHit
	{
		int32 Volume = INDEX_NONE;
		/** From the start of the ray in centimetres. */
		double Distance = 0.0;
		FVector Place = FVector(0.0, 0.0, 0.0);
	};

	/**
	 * Finds what rays meet among the volumes of a scene that are solid; ghosts and what is not drawn let them through. Exact to
	 * the shapes. The search is over a hierarchy of bounds, made when it is first asked after shapes changed.
	 */
	class FSceneRayCaster
	{
	public:
		explicit FSceneRayCaster(const TSharedRef<const FSceneContent>& InContent)
			: Content(InContent)
		{
		}

		/**
		 * @param Direction	of any length above 0
		 * @return false when nothing is met
		 */
		bool Cast(const FVector& Start, const FVector& Direction, FSceneHit& OutHit);

		/**
		 * True when something stands between the places.
		 * @param Tolerance	centimetres at the end where it does not count, so that a place on a surface is not hidden by that
		 */
		bool IsBlocked(const FVector& Start, const FVector& End, double Tolerance = 5.0);

		/** The ray meets the ground of the environment at this distance; negative when it does not. */
		double GetDistanceToGround(const FVector& Start, const FVector& Direction) const;

		/** Volumes that were tried for their exact shape since it was made. */
		int64 GetNumTried() const { return NumTried; }
		/** How often the hierarchy was made. */
		int32 GetNumBuilds() const { return NumBuilds; }

	private:
		struct FNode
		{
			FVector3f Min;
			FVector3f Max;
			/** Leaf: place in Order of the first volume. Else: the second child; the first one follows. */
			int32 Link;
			/** Of a leaf; 0 for others. */
			int32 Count;
		};

		struct FRay;

		void BuildIfNeeded();
		void BuildNode(TArray<FBox3f>& Bounds, int32 First, int32 Count);
		/** Shortens the ray to the nearest hit, or to any. */
		bool Search(FRay& Ray, bool bAny);
		bool Try(FRay& Ray, int32 Volume);

		TSharedRef<const FSceneContent> Content;
		TArray<FNode> Nodes;
		TArray<int32> Order;
		/** Nodes are relative to this, so that single precision suffices. */
		FVector Origin = FVector(0.0, 0.0, 0.0);
		uint64 ShapeRevision = 0;
		int64 NumTried = 0;
		int32 NumBuilds = 0;
	};
}
