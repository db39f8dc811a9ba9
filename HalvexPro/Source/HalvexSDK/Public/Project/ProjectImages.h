#pragma once

#include "CoreMinimal.h"
#include "Images/HalvexImageModels.h"
#include "Project/ProjectData.h"

/** Finds the images of a project. */
class HALVEXSDK_API FProjectImages
{
public:
	/**
	 * The image of a key, ready to be downloaded: its address is absolute, by the project's source when the project's is relative.
	 * Without an address when the project has no such image.
	 */
	static FImageObjectData Find(const FProjectData& Project, FName ImageId);

	/** The address of file that a full path has; what an address does not hold as it is becomes %XX. */
	static FString ToFileAddress(const FString& Path);
};
