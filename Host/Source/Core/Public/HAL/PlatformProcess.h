#pragma once

#include "Containers/UnrealString.h"
#include "HAL/Platform.h"

/** The process and its user. Folders end with a slash. */
struct FPlatformProcess
{
	/** Full path of the program's file. */
	CORE_API static FString ExecutablePath();
	/** Name of the program's file, without its folder. */
	CORE_API static FString ExecutableName();
	/** The folder of the program's file. */
	CORE_API static FString BaseDir();
	CORE_API static uint32 GetCurrentProcessId();

	CORE_API static FString UserHomeDir();
	/** Where programs keep a user's settings: XDG_CONFIG_HOME, or ".config" in the home folder. */
	CORE_API static FString UserSettingsDir();
	/** Where programs keep a user's other files: XDG_DATA_HOME, or ".local/share" in the home folder. */
	CORE_API static FString ApplicationSettingsDir();
	CORE_API static FString UserTempDir();

	/** Lets other threads work for that many seconds. */
	CORE_API static void Sleep(float Seconds);
};
