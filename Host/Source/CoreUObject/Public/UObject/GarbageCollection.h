#pragma once

#include "UObject/GCObject.h"
#include "UObject/ReferenceCollector.h"
#include "UObject/UObjectGlobals.h"

namespace Host
{
	/** What the last collection found. */
	struct FGarbageStats
	{
		int32 NumReached = 0;
		int32 NumDestroyed = 0;
		/** Objects that are not yet ready to go; the next collection asks them again. */
		int32 NumPending = 0;
	};

	COREUOBJECT_API const FGarbageStats& GetLastGarbageStats();
}
