#pragma once

#include "GenericPlatform/GenericPlatformFile.h"

/** Gives access to the files of the system. */
class FPlatformFileManager
{
public:
	CORE_API static FPlatformFileManager& Get();
	CORE_API IPlatformFile& GetPlatformFile();
};
