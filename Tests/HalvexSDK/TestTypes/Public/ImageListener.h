#pragma once

#include "CoreMinimal.h"
#include "Images/HalvexImageModels.h"
#include "UObject/Object.h"
#include "ImageListener.generated.h"

class UHalvexImageDownloader;
class UImageSolver;

/** Writes down what downloads tell. */
UCLASS()
class UImageListener : public UObject
{
	GENERATED_BODY()

public:
	void ListenTo(UHalvexImageDownloader& Downloader);
	void ListenTo(UImageSolver& Solver);

	UFUNCTION()
	void ReceiveDownloaded(FHalvexDownloadedImage DownloadedImage);

	UFUNCTION()
	void ReceiveFailed(FHalvexDownloadedImage DownloadedImage);

	UFUNCTION()
	void ReceiveSolved(int32 Index, FHalvexDownloadedImage DownloadedImage);

	UFUNCTION()
	void ReceiveProgress(int32 NumDone, int32 NumImages);

	UFUNCTION()
	void ReceiveFinished(const TArray<FHalvexDownloadedImage>& DownloadedImages);

	/** Of single downloads, in the order in which they came. */
	UPROPERTY()
	TArray<FHalvexDownloadedImage> Results;

	/** Of the last batch that has finished. */
	UPROPERTY()
	TArray<FHalvexDownloadedImage> Batch;

	int32 NumDownloaded = 0;
	int32 NumFailed = 0;
	int32 NumSolved = 0;
	int32 NumFinished = 0;
	/** "1/3 2/3 ..." */
	FString Progress;
};
