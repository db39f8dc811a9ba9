#pragma once

#include "HAL/Platform.h"

/** What the application knows of itself. */
struct FApp
{
	/** The name of the project, under which the user's files are kept; the program's own name until it is set. */
	CORE_API static const TCHAR* GetProjectName();
	CORE_API static void SetProjectName(const TCHAR* InProjectName);

	/** Game time of the current tick, in seconds. */
	CORE_API static double GetCurrentTime();
	/** Length of the current tick, in seconds of game time. */
	CORE_API static double GetDeltaTime();
};
