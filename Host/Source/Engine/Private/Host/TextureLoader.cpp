#include "Host/TextureLoader.h"

#include "Engine/Texture2D.h"
#include "Host/ImageCodec.h"
#include "ImageCore.h"
#include "Misc/FileHelper.h"
#include "UObject/Package.h"

namespace Host
{
	UObject* LoadTexture(const FAssetRequest& Request)
	{
		TArray<uint8> Data;
		FImage Image;
		FString Error;
		if (!FFileHelper::LoadFileToArray(Data, *Request.Filename))
		{
			Error = TEXT("the file cannot be read");
		}
		else if (FImageCodec::Decode(Data, Image, Error))
		{
			UTexture2D* Texture = NewObject<UTexture2D>(Request.Package, Request.AssetName, RF_Public | RF_Standalone);
			Texture->SetImage(Image);
			return Texture;
		}
		UE_LOG(LogAssets, Error, TEXT("%s: %s"), *Request.Filename, *Error);
		return nullptr;
	}
}
