#pragma once

#include "CoreMinimal.h"
#include "Gl/GlObjects.h"

namespace Host
{
	/** Compiles and links a program. Invalid, with what the driver says, when that fails. */
	FGlObject MakeGlProgram(const ANSICHAR* Label, TConstArrayView<const ANSICHAR*> VertexSources, TConstArrayView<const ANSICHAR*> FragmentSources, FString& OutError);
}
