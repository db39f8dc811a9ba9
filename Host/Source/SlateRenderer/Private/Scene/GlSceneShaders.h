#pragma once

#include "CoreMinimal.h"

/** Sources of the programs of a scene. */
namespace Host::GlSceneShaders
{
	/** Version and what one picture has in common (FGlSceneFrame); ahead of every source of the scene. */
	extern const ANSICHAR* const Frame;

	/** Light, shadows and haze, for VolumeFragment and GroundFragment. */
	extern const ANSICHAR* const Light;

	/** Boxes and extruded outlines, by the attributes of FGlSceneShapes. */
	extern const ANSICHAR* const VolumeVertex;
	extern const ANSICHAR* const VolumeFragment;
	/** As seen by the sun: nothing but depth. */
	extern const ANSICHAR* const DepthFragment;
	/** As seen from below the ground: white where a volume stands. */
	extern const ANSICHAR* const FootprintFragment;

	extern const ANSICHAR* const GroundVertex;
	extern const ANSICHAR* const GroundFragment;

	/** A triangle over everything. */
	extern const ANSICHAR* const ScreenVertex;
	extern const ANSICHAR* const SkyFragment;
	extern const ANSICHAR* const BlurFragment;
	/** Scales a finished picture. */
	extern const ANSICHAR* const ScaleFragment;
}
