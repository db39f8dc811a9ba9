#pragma once

#include "HAL/Platform.h"

namespace Host
{
	/**
	 * The one clock of the game, in seconds. It stands still during a tick and moves only when it is told to: by the loop,
	 * to follow real time, or by a test.
	 */
	class FClock
	{
	public:
		/** The time of the current tick, counted from the start of the program. */
		CORE_API static double Now();
		/** How far the last move went. */
		CORE_API static double DeltaTime();

		/** Moves the clock forward; a negative step is a failed assertion. */
		CORE_API static void Advance(double Seconds);
		/** Moves the clock by the real time that has passed since it last followed real time; the first such move, or one after a Set, is of no length. */
		CORE_API static void FollowRealTime();
		/** Puts the clock to a time; the length of the last move becomes 0. */
		CORE_API static void Set(double Seconds);
	};
}
