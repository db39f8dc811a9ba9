#include "Host/ImageFile.h"

#include "Host/ImageCodec.h"
#include "Misc/FileHelper.h"

namespace Host
{
	bool WritePngFile(const FString& Path, const FImageView& Image, FString& OutError)
	{
		TArray64<uint8> Data;
		if (!FImageCodec::Encode(EImageFormat::PNG, Image, 0, Data, OutError))
		{
			OutError = FString::Printf(TEXT("%s: %s"), *Path, *OutError);
			return false;
		}
		if (!FFileHelper::SaveArrayToFile(Data, *Path))
		{
			OutError = FString::Printf(TEXT("%s: the file cannot be written"), *Path);
			return false;
		}
		return true;
	}

	bool ReadImageFile(const FString& Path, FImage& OutImage, FString& OutError)
	{
		TArray<uint8> Data;
		if (!FFileHelper::LoadFileToArray(Data, *Path))
		{
			OutImage.Reset();
			OutError = FString::Printf(TEXT("%s: the file cannot be read"), *Path);
			return false;
		}
		if (!FImageCodec::Decode(Data, OutImage, OutError))
		{
			OutError = FString::Printf(TEXT("%s: %s"), *Path, *OutError);
			return false;
		}
		return true;
	}
}
