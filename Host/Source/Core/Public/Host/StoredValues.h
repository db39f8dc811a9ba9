#pragma once

#include "Containers/UnrealString.h"

namespace Host
{
	/** Which of the user's values: the case of all three counts, and none is empty. */
	struct FStoredValueName
	{
		FString Store;
		FString Section;
		FString Key;
	};

	enum class ESecretAnswer : uint8
	{
		Done,
		/** It keeps no such value. */
		Absent,
		/** There is no such store, it is locked, or it took too long: what it keeps is not known. */
		Unavailable,
	};

	/**
	 * Something of the system that keeps secrets better than a file does, such as the desktop's store of passwords. Each call
	 * comes back in a few seconds at most, asks the user nothing, and logs nothing.
	 */
	class ISecretStore
	{
	public:
		virtual ~ISecretStore() = default;

		/** Done or Unavailable. */
		virtual ESecretAnswer Set(const FStoredValueName& Name, const FString& Value) = 0;
		/** Sets the output only when it is Done. */
		virtual ESecretAnswer Get(const FStoredValueName& Name, FString& OutValue) = 0;
		virtual ESecretAnswer Delete(const FStoredValueName& Name) = 0;
	};

	/**
	 * What stands behind FPlatformMisc::SetStoredValue and its like. A program whose folder for what it saves was set
	 * (FPathRoots::SetSavedDir) keeps its values in that folder alone, so that none reaches those of the user.
	 */
	class FStoredValues
	{
	public:
		/** Values go there as long as it answers; null for none. It must live until another is set. */
		CORE_API static void SetSecretStore(ISecretStore* Store);

		/**
		 * The folder with the files of values, one a store: "StoredValues" in the folder for what the program saves when that
		 * was set, else "HalvexStoredValues" in the user's own folder for data, for all programs of the user.
		 */
		CORE_API static FString GetFolder();
	};
}
