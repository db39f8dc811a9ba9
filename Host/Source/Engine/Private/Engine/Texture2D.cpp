#include "Engine/Texture2D.h"

#include "Host/Texture.h"
#include "ImageCore.h"
#include "UObject/Package.h"

int32 UTexture2D::GetSizeX() const
{
	return SlateTexture ? SlateTexture->GetSize().X : 0;
}

int32 UTexture2D::GetSizeY() const
{
	return SlateTexture ? SlateTexture->GetSize().Y : 0;
}

UTexture2D* UTexture2D::CreateTransientFromImage(const FImage* InImage, const FName InName)
{
	if (!InImage || InImage->GetNumPixels() == 0)
	{
		return nullptr;
	}
	UTexture2D* Texture = NewObject<UTexture2D>(GetTransientPackage(), InName, RF_Transient);
	Texture->SetImage(*InImage);
	return Texture;
}

bool UTexture2D::SetImage(const FImage& Image)
{
	if (Image.GetNumPixels() == 0)
	{
		return false;
	}
	SlateTexture = Host::FTexture::Make(FIntPoint(Image.SizeX, Image.SizeY), Image.AsBGRA8(), Host::EPixelAlpha::Straight, GetPathName());
	return true;
}
