#pragma once

#include "CoreMinimal.h"
#include "Host/SceneContent.h"

namespace Host
{
	/** Distances at which a ray, its direction of length 1, meets a shape from outside; negative when it does not. */
	double GetDistanceToBox(const FVector& Start, const FVector& Direction, const FSceneContent::FPlacedBox& Box);
	double GetDistanceToExtrusion(const FVector& Start, const FVector& Direction, const FSceneContent::FExtrusion& Extrusion);
}
