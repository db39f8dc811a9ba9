#pragma once

#include "CoreMinimal.h"

class UTexture2D;
struct FImage;

/** Pictures from files and from memory. Failures give null or false and one line in the log. */
class ENGINE_API FImageUtils
{
public:
	/** A transient texture from the content of an image file. */
	static UTexture2D* ImportBufferAsTexture2D(const TArray<uint8>& Buffer);

	/** A transient texture from an image file. */
	static UTexture2D* ImportFileAsTexture2D(const FString& Filename);

	/** Reads the content of an image file, in whatever format it is. */
	static bool DecompressImage(const void* InCompressedData, int64 InCompressedSize, FImage& OutImage);
};
