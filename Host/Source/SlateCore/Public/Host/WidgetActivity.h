#pragma once

#include "CoreMinimal.h"

namespace Host
{
	/**
	 * The few widgets that do something on their own: timers, ticks, getters, painting on every frame. Others cost nothing
	 * here.
	 */
	class SLATECORE_API FWidgetActivity
	{
	public:
		/** Before the passes of a frame: runs due timers, asks getters, ticks, and marks volatile widgets. */
		static void BeginFrame(double CurrentTime, float DeltaTime);

		/** Seconds when the next timer is due; infinite when there is none. */
		static double GetNextTimerTime();

		/** The time that new timers count from. */
		static double GetCurrentTime();
	};
}
