#include "Configurator/HalvexThumbnails.h"

#include "Engine/Texture2D.h"
#include "HalvexProLog.h"
#include "Images/HalvexImageDownloader.h"

UTexture2D* UHalvexThumbnails::Get(FName Image, const TMap<FName, FImageObjectData>& Images)
{
	if (Image.IsNone())
	{
		return nullptr;
	}
	FThumbnail& Thumbnail = Known.FindOrAdd(Image);
	if (Thumbnail.Texture.IsValid() || Thumbnail.Downloader.IsValid() || Thumbnail.bFailed)
	{
		return Thumbnail.Texture.Get();
	}
	if (const FImageObjectData* const Picture = Images.Find(Image))
	{
		Fetch(Image, Thumbnail, *Picture);
	}
	else
	{
		Thumbnail.bFailed = true;
		UE_LOG(LogHalvexPro, Warning, TEXT("Configurator: there is no image '%s'"), *Image.ToString());
	}
	return nullptr;
}

void UHalvexThumbnails::Fetch(FName Image, FThumbnail& Thumbnail, const FImageObjectData& Picture)
{
	UHalvexImageDownloader* const Downloader = UHalvexImageDownloader::DownloadImage(Picture, EIRS_Thumbnail);
	Thumbnail.Downloader = Downloader;
	Downloader->OnEnded.BindUObject(this, &UHalvexThumbnails::Receive, Image);
	Downloader->Activate();
}

void UHalvexThumbnails::Reset()
{
	for (const TPair<FName, FThumbnail>& Thumbnail : Known)
	{
		if (UHalvexImageDownloader* const Downloader = Thumbnail.Value.Downloader.Get())
		{
			Downloader->OnEnded.Unbind();
			Downloader->Cancel();
		}
	}
	Known.Empty();
}

void UHalvexThumbnails::Receive(const FHalvexDownloadedImage& Download, FName Image)
{
	FThumbnail& Thumbnail = Known.FindOrAdd(Image);
	Thumbnail.Texture = Download.Texture;
	Thumbnail.Downloader = nullptr;
	Thumbnail.bFailed = !Download.Texture;
	OnArrived.ExecuteIfBound(Image, Download.Texture);
}
