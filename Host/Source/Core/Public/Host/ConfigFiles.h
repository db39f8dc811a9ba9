#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"

namespace Host
{
	/** The files behind GConfig. */
	class FConfigFiles
	{
	public:
		/** Adds a plugin's Config folder, whose Default<Name>.ini files count before the project's. Takes effect on what is read from then on. */
		CORE_API static void AddPluginFolder(const FString& ConfigFolder);
		CORE_API static void RemovePluginFolder(const FString& ConfigFolder);

		/** The files of a configuration, lowest layer first, the user's last, whether or not they exist. */
		CORE_API static TArray<FString> GetLayers(const FString& Name);
		/** The user's file of a configuration. */
		CORE_API static FString GetUserFile(const FString& Name);
		/** The project's file of a configuration. */
		CORE_API static FString GetProjectFile(const FString& Name);

		/**
		 * Whether a value has not been found wrong before since its configuration was read: many may read it, and one line in
		 * the log says so.
		 */
		CORE_API static bool IsFirstReport(const FString& Name, const FString& Section, const FString& Key, const FString& Value);

		/**
		 * Gives the user's file of a configuration another name, with ".old" behind it, as one whose values mean something else
		 * now; what was read from it is forgotten. A failure is one log line.
		 */
		CORE_API static void SetAside(const FString& Name);

		/**
		 * Writes the values of a key into the project's file, at once, keeping the rest of it; no values clear what lower
		 * layers say. Returns false, with one log line, when the file cannot be written.
		 */
		CORE_API static bool SaveProjectDefault(const FString& Name, const FString& Section, const FString& Key, const TArray<FString>& Values);
	};
}
