#pragma once

#include "Containers/UnrealString.h"

struct FPlatformMisc
{
	/** Empty when there is no such variable. */
	CORE_API static FString GetEnvironmentVariable(const TCHAR* VariableName);
	/** Processors that this process may run on. */
	CORE_API static int32 NumberOfCoresIncludingHyperthreads();
};
