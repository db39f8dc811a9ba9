#pragma once

#include "CoreMinimal.h"
#include "Host/SceneCamera.h"

namespace Host
{
	class FSceneContent;

	/** What a project's units stand on where the project says nothing of it: a quay of pale stone in calm water. */
	namespace ProjectSurroundings
	{
		/**
		 * Adds the quay and sets light and water.
		 * @param Units	bounds of all units, which is valid; the lowest of them stands on the quay
		 */
		void Build(FSceneContent& Content, const FBox& Units);

		/** Direction from which units look best in that light; its target and distance are still to be chosen. */
		FSceneCamera::FPose GetPose();
	}
}
