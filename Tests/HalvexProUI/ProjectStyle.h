#pragma once

#include "CoreMinimal.h"

/** Makes a style asset the project's, as its settings page does; an empty path leaves the project without one. */
void UseProjectStyle(const FString& Path);

/** The two styles that are shipped, by the names of their assets. */
void UseShippedStyle(const TCHAR* Name);
