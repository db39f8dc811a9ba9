#pragma once

#include "Gl/GlContext.h"

namespace Host
{
	/** A context for windows. The video system must have been started. Null, with the reason, when there is none. */
	TUniquePtr<FGlContext> MakeSdlGlContext(FString& OutError);
}
