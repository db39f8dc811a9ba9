#pragma once

#include "CoreMinimal.h"
#include "IImageWrapper.h"
#include "ImageCore.h"
#include "Modules/ModuleInterface.h"

/** Reads and writes image files held in memory. May be used on any thread. */
class IImageWrapperModule : public IModuleInterface
{
public:
	/** A wrapper for one image. Null for formats that are not known. */
	virtual TSharedPtr<IImageWrapper> CreateImageWrapper(const EImageFormat InFormat, const TCHAR* InOptionalDebugImageName = nullptr) = 0;

	/** The format by the first bytes of the content, whatever a file is named. */
	virtual EImageFormat DetectImageFormat(const void* InCompressedData, int64 InCompressedSize) = 0;

	/**
	 * Writes an image.
	 * @param Quality	1 to 100 for lossy formats; 0 for the default
	 */
	virtual bool CompressImage(TArray64<uint8>& OutData, EImageFormat ToFormat, const FImageView& InImage, int32 Quality = 0) = 0;

	/** Reads an image of any known format. False, with one line in the log, when that fails; the output is then empty. */
	virtual bool DecompressImage(const void* InCompressedData, int64 InCompressedSize, FImage& OutImage) = 0;
};
