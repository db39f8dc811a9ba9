#pragma once

#include "CoreMinimal.h"

namespace Host::GlShaders
{
	/** Source of the one program: a quad of pixels for each instance, filled by the formulas of the CPU renderer. */
	extern const ANSICHAR* const Vertex;
	extern const ANSICHAR* const Fragment;
}
