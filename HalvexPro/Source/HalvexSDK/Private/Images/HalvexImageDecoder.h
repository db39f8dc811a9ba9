#pragma once

#include "CoreMinimal.h"

class IImageWrapperModule;

/** Pixels of a picture: rows from the top, blue, green, red, alpha. */
struct FHalvexDecodedImage
{
	int32 Width = 0;
	int32 Height = 0;
	TArray64<uint8> Pixels;
	/** Why there are none; empty when there are. */
	FString Error;
	/** The log has the reason already. */
	bool bErrorTold = false;
};

namespace HalvexImageDecoder
{
	/**
	 * Decodes the content of an image file. May be used on any thread.
	 * @param Name		the picture's name for the log
	 * @param MaxPixels	a larger picture is refused before memory is taken for it
	 */
	FHalvexDecodedImage Decode(IImageWrapperModule& Codecs, const TArray<uint8>& Content, const FString& Name, int64 MaxPixels);
}
