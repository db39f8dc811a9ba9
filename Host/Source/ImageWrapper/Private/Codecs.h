#pragma once

#include "CoreMinimal.h"
#include "ImageCore.h"

/** Each format's library, wrapped once. All return false with the reason in one line. */
namespace Host::Codecs
{
	bool ReadPngSize(TConstArrayView<uint8> Data, FIntPoint& OutSize, FString& OutError);
	bool ReadPng(TConstArrayView<uint8> Data, FImage& OutImage, FString& OutError);
	bool WritePng(const FImageView& Image, TArray64<uint8>& OutData, FString& OutError);

	bool ReadJpegSize(TConstArrayView<uint8> Data, FIntPoint& OutSize, FString& OutError);
	bool ReadJpeg(TConstArrayView<uint8> Data, FImage& OutImage, FString& OutError);
	bool WriteJpeg(const FImageView& Image, int32 Quality, TArray64<uint8>& OutData, FString& OutError);

	bool ReadWebPSize(TConstArrayView<uint8> Data, FIntPoint& OutSize, FString& OutError);
	bool ReadWebP(TConstArrayView<uint8> Data, FImage& OutImage, FString& OutError);
}
