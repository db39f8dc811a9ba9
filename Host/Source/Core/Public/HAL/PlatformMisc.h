#pragma once

#include "Containers/UnrealString.h"

struct FPlatformMisc
{
	/** Empty when there is no such variable. */
	CORE_API static FString GetEnvironmentVariable(const TCHAR* VariableName);
	/** Processors that this process may run on. */
	CORE_API static int32 NumberOfCoresIncludingHyperthreads();

	/**
	 * Keeps a value for the user who runs the program, beyond its end: in the desktop's store of secrets when there is one that
	 * answers, else in a file that nobody but the user can read (see Host::FStoredValues). No name may be empty; their case
	 * counts. Returns false, with one line in the log, when it cannot be kept.
	 */
	CORE_API static bool SetStoredValue(const FString& InStoreId, const FString& InSectionName, const FString& InKeyName, const FString& InValue);
	/** Returns false, and leaves the output alone, when no such value is kept. */
	CORE_API static bool GetStoredValue(const FString& InStoreId, const FString& InSectionName, const FString& InKeyName, FString& OutValue);
	/** Forgets a value. Returns false when there was none, or, with one line in the log, when it cannot be forgotten. */
	CORE_API static bool DeleteStoredValue(const FString& InStoreId, const FString& InSectionName, const FString& InKeyName);
};
