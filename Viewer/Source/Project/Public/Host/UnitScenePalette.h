#pragma once

#include "Host/SceneVolumeStates.h"

namespace Host
{
	/** Colours of units by the style of the project: Primary for selected ones; Success, Warning and Danger by EUnitStatus. */
	FSceneVolumePalette MakeUnitScenePalette();
}
