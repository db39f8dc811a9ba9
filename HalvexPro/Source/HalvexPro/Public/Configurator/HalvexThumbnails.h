#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "HalvexThumbnails.generated.h"

class UHalvexImageDownloader;
class UTexture2D;
struct FHalvexDownloadedImage;
struct FImageObjectData;

DECLARE_DELEGATE_TwoParams(FHalvexThumbnailArrived, FName, UTexture2D*);

/** Fetches small pictures as they are asked for, each once at a time, and knows those that are shown. */
UCLASS()
class HALVEXPRO_API UHalvexThumbnails : public UObject
{
	GENERATED_BODY()

public:
	/** Called in a later frame than that of the request, without a texture when there is none to be had. */
	FHalvexThumbnailArrived OnArrived;

	/** The picture of that key; null when it is on its way, or cannot be had. */
	UTexture2D* Get(FName Image, const TMap<FName, FImageObjectData>& Images);

	/** Forgets all pictures and gives up those that are on their way, without a word. */
	void Reset();

private:
	struct FThumbnail
	{
		/** Those that nobody shows are the memory cache's; when they are gone from there, they are fetched anew. */
		TWeakObjectPtr<UTexture2D> Texture;
		/** While it is on its way. */
		TWeakObjectPtr<UHalvexImageDownloader> Downloader;
		bool bFailed = false;
	};

	void Fetch(FName Image, FThumbnail& Thumbnail, const FImageObjectData& Picture);
	void Receive(const FHalvexDownloadedImage& Download, FName Image);

	TMap<FName, FThumbnail> Known;
};
