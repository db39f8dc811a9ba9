#include "HAL/PlatformTime.h"

#include <chrono>

uint64 FPlatformTime::Cycles64()
{
	return uint64(std::chrono::duration_cast<std::chrono::nanoseconds>(std::chrono::steady_clock::now().time_since_epoch()).count());
}

uint32 FPlatformTime::Cycles()
{
	return uint32(Cycles64() / 1000);
}

double FPlatformTime::Seconds()
{
	return double(Cycles64()) * GetSecondsPerCycle64();
}
