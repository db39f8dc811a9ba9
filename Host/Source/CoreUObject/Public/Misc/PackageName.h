#pragma once

#include "CoreMinimal.h"

/** Names of packages, such as "/HalvexPro/Widgets/Style", and the files that they stand for. */
class FPackageName
{
public:
	/**
	 * The file, or the folder, that a package path below a mounted root names, whether or not it is there.
	 * @param InExtension	appended to the outcome
	 * @return false, leaving the output alone, when the path stands under no root
	 */
	COREUOBJECT_API static bool TryConvertLongPackageNameToFilename(const FString& InLongPackageName, FString& OutFilename, const FString& InExtension = TEXT(""));
};
