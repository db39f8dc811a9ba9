#pragma once

#include "CoreMinimal.h"
#include "ImageCore.h"

namespace Host
{
	/** Writes a PNG file, making its folder if need be. False, with the reason, when that fails. */
	bool WritePngFile(const FString& Path, const FImageView& Image, FString& OutError);

	/** Reads an image file of any known format. False, with the path and the reason, when that fails. */
	bool ReadImageFile(const FString& Path, FImage& OutImage, FString& OutError);
}
