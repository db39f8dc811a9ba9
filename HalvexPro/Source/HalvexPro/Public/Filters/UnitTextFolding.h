#pragma once

#include "CoreMinimal.h"

/** Text as searches compare it: lower case, letters without their marks and strokes, ligatures as two letters. */
struct HALVEXPRO_API FUnitTextFolding
{
	static FString Fold(FStringView Text);

	/** Appends the folded text to an array of characters, without a terminator. */
	static void Append(TArray<TCHAR>& Out, FStringView Text);
};
