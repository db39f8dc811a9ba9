#pragma once

#include "HAL/Platform.h"

/** Real time. For the time that the game runs by, see FApp and Host::FClock. */
struct FPlatformTime
{
	/** Seconds since some moment before the program started; never goes back. */
	CORE_API static double Seconds();
	/** In microseconds; wraps around after 71 minutes. */
	CORE_API static uint32 Cycles();
	/** In nanoseconds. */
	CORE_API static uint64 Cycles64();

	static double GetSecondsPerCycle() { return 1e-6; }
	static double GetSecondsPerCycle64() { return 1e-9; }
	static float ToSeconds(uint32 InCycles) { return float(InCycles * GetSecondsPerCycle()); }
	static double ToSeconds64(uint64 InCycles) { return InCycles * GetSecondsPerCycle64(); }
	static float ToMilliseconds(uint32 InCycles) { return float(InCycles * GetSecondsPerCycle() * 1e3); }
	static double ToMilliseconds64(uint64 InCycles) { return InCycles * GetSecondsPerCycle64() * 1e3; }
};
