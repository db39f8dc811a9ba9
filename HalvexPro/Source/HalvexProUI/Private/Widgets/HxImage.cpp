#include "Widgets/HxImage.h"

#include "Engine/Texture2D.h"
#include "Images/HalvexImageDownloader.h"
#include "Widgets/HxWidgetSupport.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SScaleBox.h"

void UHxImage::SetImageFromData(FImageObjectData ImageObjectData, TEnumAsByte<EImageRequestSize> SizeImage)
{
	// An earlier download stays bound: callers rely on its late result being shown too.
	ImageDownloader = UHalvexImageDownloader::DownloadImage(ImageObjectData, SizeImage);
	ImageDownloader->OnImageDownloaded.AddDynamic(this, &UHxImage::ReceivedDownloadImage);
	ImageDownloader->OnDownloadFailed.AddDynamic(this, &UHxImage::ReceivedDownloadImage);
	ImageDownloader->Activate();
	SetChangeState(EImageDownloaderState::EID_Downloading);
}

void UHxImage::ReceivedDownloadImage(FHalvexDownloadedImage DownloadedImage)
{
	if (DownloadedImage.Texture)
	{
		SetBrushFromTexture(DownloadedImage.Texture, bMatchTexture);
		SetChangeState(EImageDownloaderState::EID_Downloaded);
	}
	else
	{
		SetBrushFromTexture(AltImage, bMatchTexture);
		SetChangeState(EImageDownloaderState::EID_FailedDownload);
	}
}

void UHxImage::SetChangeState(EImageDownloaderState ImageState) const
{
	if (OnImageStateChanged.IsBound())
	{
		OnImageStateChanged.Broadcast(ImageState);
	}
}

void UHxImage::SynchronizeProperties()
{
	Super::SynchronizeProperties();
	if (MySizeBox.IsValid())
	{
		HxWidgetSupport::ApplySizeOverride(*MySizeBox, OverrideSize);
	}
	if (MyScaleBox.IsValid())
	{
		MyScaleBox->SetStretch(Stretch);
	}
	if (AltImage)
	{
		SetBrushFromTexture(AltImage, bMatchTexture);
	}
}

void UHxImage::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	MySizeBox.Reset();
	MyScaleBox.Reset();
}

#if WITH_EDITOR
const FText UHxImage::GetPaletteCategory()
{
	return HxWidgetSupport::GetPaletteCategory();
}
#endif

TSharedRef<SWidget> UHxImage::RebuildWidget()
{
	MySizeBox = SNew(SBox)
		[
			Super::RebuildWidget()
		];
	MyScaleBox = SNew(SScaleBox)
		[
			MySizeBox.ToSharedRef()
		];
	return MyScaleBox.ToSharedRef();
}
