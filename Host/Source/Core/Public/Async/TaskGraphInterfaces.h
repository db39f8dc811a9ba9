#pragma once

#include "HAL/Platform.h"

/** Kinds of threads that work can be given to. */
namespace ENamedThreads
{
	enum Type : int32
	{
		/** The thread of objects and widgets. */
		GameThread = 2,
		/** A thread for work that takes longer than a frame. */
		AnyBackgroundThreadNormalTask = 0x100,
	};
}
