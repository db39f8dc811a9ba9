#include "Engine/Texture2D.h"

#include "Framework/Application/SlateApplication.h"
#include "Host/Texture.h"
#include "ImageCore.h"
#include "RHITypes.h"
#include "Rendering/SlateRenderer.h"
#include "UObject/Package.h"

DEFINE_LOG_CATEGORY_STATIC(LogTexture, Log, All);

int32 UTexture2D::GetSizeX() const
{
	return SlateTexture ? SlateTexture->GetSize().X : TransientSize.X;
}

int32 UTexture2D::GetSizeY() const
{
	return SlateTexture ? SlateTexture->GetSize().Y : TransientSize.Y;
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

UTexture2D* UTexture2D::CreateTransient(int32 InSizeX, int32 InSizeY, EPixelFormat InFormat, const FName InName)
{
	const int32 MaxSize = Host::FTexture::MaxSize;
	if (InSizeX <= 0 || InSizeY <= 0 || InSizeX > MaxSize || InSizeY > MaxSize || InFormat != PF_B8G8R8A8)
	{
		UE_LOG(LogTexture, Warning, TEXT("There can be no transient texture of %d x %d pixels in format %d."), InSizeX, InSizeY, static_cast<int32>(InFormat));
		return nullptr;
	}
	UTexture2D* Texture = NewObject<UTexture2D>(GetTransientPackage(), InName, RF_Transient);
	Texture->TransientSize = FIntPoint(InSizeX, InSizeY);
	return Texture;
}

void UTexture2D::UpdateResource()
{
	if (!SlateTexture && TransientSize != FIntPoint(0, 0))
	{
		Updatable = Host::FTexture::MakeUnfilled(TransientSize, GetPathName());
		SlateTexture = Updatable;
	}
}

void UTexture2D::UpdateTextureRegions(int32 MipIndex, uint32 NumRegions, const FUpdateTextureRegion2D* Regions, uint32 SrcPitch, uint32 SrcBpp, uint8* SrcData,
	TFunction<void(uint8* SrcData, const FUpdateTextureRegion2D* Regions)> DataCleanupFunc)
{
	check(MipIndex == 0 && SrcBpp == sizeof(FColor));
	if (!Updatable)
	{
		return;
	}
	TArray<FColor> Rows;
	for (uint32 Index = 0; Index < NumRegions; ++Index)
	{
		const FUpdateTextureRegion2D& Region = Regions[Index];
		const int32 Width = static_cast<int32>(Region.Width);
		const int32 Height = static_cast<int32>(Region.Height);
		const uint8* Source = SrcData + static_cast<int64>(Region.SrcY) * SrcPitch + static_cast<int64>(Region.SrcX) * SrcBpp;
		const FColor* Pixels = reinterpret_cast<const FColor*>(Source);
		if (Region.Width * SrcBpp != SrcPitch)
		{
			Rows.SetNumUninitialized(Width * Height);
			for (int32 Y = 0; Y < Height; ++Y)
			{
				FMemory::Memcpy(Rows.GetData() + Y * Width, Source + static_cast<int64>(Y) * SrcPitch, Width * sizeof(FColor));
			}
			Pixels = Rows.GetData();
		}
		const int32 Left = static_cast<int32>(Region.DestX);
		const int32 Top = static_cast<int32>(Region.DestY);
		const Host::FPixelRect Area = Host::FPixelRect::Make(Left, Top, Left + Width, Top + Height);
		Updatable->Update(Area, TConstArrayView<FColor>(Pixels, Width * Height), Host::EPixelAlpha::Straight);
		if (FSlateRenderer* Renderer = FSlateApplication::IsInitialized() ? FSlateApplication::Get().GetRenderer() : nullptr)
		{
			Renderer->TakeFilled(Updatable.ToSharedRef(), Area);
		}
	}
	DataCleanupFunc(SrcData, Regions);
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
