#pragma once

#include "HAL/Platform.h"
#include "Templates/Function.h"

namespace Host
{
	/** Work that other threads hand to the game thread, done in order at the start of a tick. */
	class FGameThreadQueue
	{
	public:
		/** From any thread: runs the function at the start of the next tick. */
		CORE_API static void Post(TUniqueFunction<void()> Function);

		/**
		 * On the game thread: runs what was posted before the call, and nothing that is posted meanwhile.
		 * @return how many functions ran
		 */
		CORE_API static int32 Run();

		/** Whether anything waits to be run. */
		CORE_API static bool IsEmpty();

		/** The function is called, on the posting thread, whenever the queue stops being empty, so that a sleeping loop can wake up. Null for none. */
		CORE_API static void SetWakeUp(TFunction<void()> WakeUp);
	};
}
