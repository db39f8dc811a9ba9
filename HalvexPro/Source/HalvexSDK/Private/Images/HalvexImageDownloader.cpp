#include "Images/HalvexImageDownloader.h"

#include "Engine/Texture2D.h"
#include "Images/HalvexImageService.h"
#include "Images/HalvexImageSubsystem.h"

UHalvexImageDownloader* UHalvexImageDownloader::DownloadImage(FImageObjectData ImageObjectData, TEnumAsByte<EImageRequestSize> SizeImage)
{
	UHalvexImageDownloader* Downloader = NewObject<UHalvexImageDownloader>();
	Downloader->ImageData = MoveTemp(ImageObjectData);
	Downloader->Size = SizeImage;
	return Downloader;
}

void UHalvexImageDownloader::Activate()
{
	UHalvexImageSubsystem* Subsystem = UHalvexImageSubsystem::Get();
	if (IsRunning() || !Subsystem)
	{
		return;
	}
	BeginRun();
	Subsystem->GetService().Begin(*this);
}

void UHalvexImageDownloader::Cancel()
{
	UHalvexImageSubsystem* Subsystem = UHalvexImageSubsystem::Get();
	if (IsRunning() && Subsystem)
	{
		Subsystem->GetService().GiveUp(*this);
	}
}

bool UHalvexImageDownloader::HasListeners() const
{
	return OnImageDownloaded.IsBound() || OnDownloadFailed.IsBound() || OnEnded.IsBound();
}

void UHalvexImageDownloader::Receive(UTexture2D* Texture, const FString& Error, const bool bCancelled)
{
	FHalvexDownloadedImage Result;
	Result.Texture = Texture;
	Result.ImageData = ImageData;
	Result.Size = Size;
	Result.Error = Error;
	Result.bCancelled = bCancelled;
	EndRun();
	OnEnded.ExecuteIfBound(Result);
	(Texture ? OnImageDownloaded : OnDownloadFailed).Broadcast(Result);
}
