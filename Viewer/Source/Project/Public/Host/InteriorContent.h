#pragma once

#include "CoreMinimal.h"
#include "Host/SceneCamera.h"
#include "Host/SceneContent.h"
#include "Project/ConfiguratorCatalogue.h"
#include "Project/ProjectInterior.h"

namespace Host
{
	/** The rooms of a unit as a scene, a volume for each part, coloured as the active variants say. */
	class FInteriorContent
	{
	public:
		explicit FInteriorContent(const FProjectInterior& Interior);

		const TSharedRef<FSceneContent>& GetContent() const { return Content; }

		/** The rooms without what they stand on. */
		const FBox& GetBounds() const { return Bounds; }

		/**
		 * From where the rooms look best. Where the interior says no distance, it is that from which all is seen.
		 * @param AspectRatio	width of the picture for a height of 1
		 */
		FSceneCamera::FPose GetPose(double AspectRatio) const;

		/** Whether the interior says from how far it looks best. */
		bool HasDistance() const { return Camera.Distance > 0.0; }

		/**
		 * Shows the parts of these surfaces so, and all others as they are by themselves, in their colour and matt.
		 * @return whether anything looks different
		 */
		bool ShowLooks(TConstArrayView<FVariantSurfaceLook> Looks);

		/** The volumes whose parts are of that surface. */
		TArray<int32> FindVolumes(FName Surface) const;

	private:
		struct FPart
		{
			FName Surface;
			FColor Own;
			int32 Volume;
		};

		TSharedRef<FSceneContent> Content;
		TArray<FPart> Parts;
		FInteriorCamera Camera;
		FBox Bounds = FBox(ForceInit);
	};
}
