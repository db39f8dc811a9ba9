#pragma once

#include "CoreMinimal.h"
#include "Host/SceneCamera.h"

namespace Host
{
	class FSceneContent;

	/** A small scene to look at: a handful of apartment blocks about a green court. */
	namespace SampleScene
	{
		/** Adds the blocks and what grows about them. */
		void Build(FSceneContent& Content);

		/** From where it looks best. */
		FSceneCamera::FPose GetPose();
	}
}
