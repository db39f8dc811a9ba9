#include "ImageUtils.h"

#include "Engine/Texture2D.h"
#include "IImageWrapperModule.h"
#include "ImageCore.h"
#include "Misc/FileHelper.h"
#include "Modules/ModuleManager.h"

UTexture2D* FImageUtils::ImportBufferAsTexture2D(const TArray<uint8>& Buffer)
{
	FImage Image;
	return DecompressImage(Buffer.GetData(), Buffer.Num(), Image) ? UTexture2D::CreateTransientFromImage(&Image) : nullptr;
}

UTexture2D* FImageUtils::ImportFileAsTexture2D(const FString& Filename)
{
	TArray<uint8> Buffer;
	return FFileHelper::LoadFileToArray(Buffer, *Filename) ? ImportBufferAsTexture2D(Buffer) : nullptr;
}

bool FImageUtils::DecompressImage(const void* InCompressedData, int64 InCompressedSize, FImage& OutImage)
{
	IImageWrapperModule& ImageWrapper = FModuleManager::LoadModuleChecked<IImageWrapperModule>(TEXT("ImageWrapper"));
	return ImageWrapper.DecompressImage(InCompressedData, InCompressedSize, OutImage);
}
