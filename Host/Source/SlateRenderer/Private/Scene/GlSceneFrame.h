#pragma once

#include "CoreMinimal.h"
#include "Math/Matrix.h"
#include "Math/Vector4.h"

namespace Host
{
	/** What the programs of a scene share: the uniform block "Frame" in their sources, which says what the members are. */
	struct FGlSceneFrame
	{
		FMatrix44f ViewProjection = FMatrix44f::Identity;
		FMatrix44f ToSun = FMatrix44f::Identity;
		FVector4f ToFootprints = FVector4f(0.0f, 0.0f, 0.0f, 0.0f);
		FVector4f Eye = FVector4f(0.0f, 0.0f, 0.0f, 0.0f);
		FVector4f RayForward = FVector4f(0.0f, 0.0f, 0.0f, 0.0f);
		FVector4f RayRight = FVector4f(0.0f, 0.0f, 0.0f, 0.0f);
		FVector4f RayUp = FVector4f(0.0f, 0.0f, 0.0f, 0.0f);
		FVector4f SunDirection = FVector4f(0.0f, 0.0f, 0.0f, 0.0f);
		FVector4f SunColour = FVector4f(0.0f, 0.0f, 0.0f, 0.0f);
		FVector4f SkyLight = FVector4f(0.0f, 0.0f, 0.0f, 0.0f);
		FVector4f GroundLight = FVector4f(0.0f, 0.0f, 0.0f, 0.0f);
		FVector4f Zenith = FVector4f(0.0f, 0.0f, 0.0f, 0.0f);
		FVector4f Horizon = FVector4f(0.0f, 0.0f, 0.0f, 0.0f);
		FVector4f GroundColour = FVector4f(0.0f, 0.0f, 0.0f, 0.0f);
		FVector4f Haze = FVector4f(0.0f, 0.0f, 0.0f, 0.0f);
		FVector4f Edges = FVector4f(0.0f, 0.0f, 0.0f, 0.0f);
	};
	static_assert(sizeof(FGlSceneFrame) == 2 * 64 + 14 * 16);
}
