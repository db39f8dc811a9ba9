#pragma once

#include "HAL/Platform.h"

namespace Host
{
	/** The threads behind AsyncTask. They start with the first work. */
	class FBackgroundThreads
	{
	public:
		/** Ends the threads when their work of now is done; what has not begun is dropped. Later work starts them again. */
		CORE_API static void Stop();

		/** Work that has not ended yet. */
		CORE_API static int32 GetNumPending();
	};
}
