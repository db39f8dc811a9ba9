#pragma once

#include "Containers/UnrealString.h"

namespace Host
{
	/** The folders that FPaths starts from. An empty path goes back to the default. */
	class FPathRoots
	{
	public:
		/** By default the folder of the program. */
		CORE_API static void SetProjectDir(const FString& Folder);

		/**
		 * By default folders named after the project in the user's own folders for data and for settings; a folder set here
		 * holds both, the settings in "Config" inside it.
		 */
		CORE_API static void SetSavedDir(const FString& Folder);
		/** Whether SetSavedDir has set a folder. */
		CORE_API static bool IsSavedDirSet();
	};
}
