#include "CoreMinimal.h"
#include "Host/PathRoots.h"
#include "Host/StartModules.h"
#include "Modules/ModuleManager.h"

#include <unistd.h>

#include <filesystem>

namespace Host
{
	namespace
	{
		/** The user's folder of this run: tests never touch the real one. */
		std::filesystem::path UserFolder;
	}

	void StartTestProgram()
	{
		UserFolder = std::filesystem::temp_directory_path() / ("HalvexTests" + std::to_string(::getpid()));
		FPathRoots::SetSavedDir(FString(UTF8_TO_TCHAR(UserFolder.c_str())));
		StartLinkedModules();
	}

	void StopTestProgram()
	{
		FModuleManager::Get().UnloadModulesAtShutdown();
		std::filesystem::remove_all(UserFolder);
	}
}
