#include "CoreGlobals.h"

#include "Logging/LogMacros.h"

#include <atomic>
#include <thread>

namespace
{
	// Set while globals are made, which happens on the thread that the program starts on.
	const std::thread::id GameThread = std::this_thread::get_id();
	std::atomic<bool> bExitRequested = false;
}

uint64 GFrameCounter = 0;

bool IsInGameThread()
{
	return std::this_thread::get_id() == GameThread || GameThread == std::thread::id();
}

void RequestEngineExit(const FString& ReasonString)
{
	UE_LOG(LogCore, Log, TEXT("The end of the program is requested: %s"), *ReasonString);
	bExitRequested = true;
}

bool IsEngineExitRequested()
{
	return bExitRequested;
}
