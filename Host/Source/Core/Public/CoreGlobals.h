#pragma once

#include "Containers/UnrealString.h"
#include "HAL/Platform.h"

/** True on the thread that the program started on. */
CORE_API bool IsInGameThread();

/** Asks the loop to end after the current tick. */
CORE_API void RequestEngineExit(const FString& ReasonString);
CORE_API bool IsEngineExitRequested();

/** Ticks of the loop so far. */
extern CORE_API uint64 GFrameCounter;
