#pragma once

#include "CoreMinimal.h"
#include "Host/PathRoots.h"
#include "Misc/Paths.h"

/** Puts the program's folders back at its end. */
class FRestoredRoots
{
public:
	FRestoredRoots()
		: ProjectDir(FPaths::ProjectDir())
		, SavedDir(FPaths::ProjectSavedDir())
	{
	}

	~FRestoredRoots()
	{
		Host::FPathRoots::SetProjectDir(ProjectDir);
		Host::FPathRoots::SetSavedDir(SavedDir);
	}

	FRestoredRoots(const FRestoredRoots&) = delete;
	FRestoredRoots& operator=(const FRestoredRoots&) = delete;

private:
	const FString ProjectDir;
	const FString SavedDir;
};
