#include "ImageListener.h"

#include "Engine/Texture2D.h"
#include "Images/HalvexImageDownloader.h"
#include "Images/ImageSolver.h"

void UImageListener::ListenTo(UHalvexImageDownloader& Downloader)
{
	Downloader.OnImageDownloaded.AddDynamic(this, &UImageListener::ReceiveDownloaded);
	Downloader.OnDownloadFailed.AddDynamic(this, &UImageListener::ReceiveFailed);
}

void UImageListener::ListenTo(UImageSolver& Solver)
{
	Solver.OnImageSolved.AddDynamic(this, &UImageListener::ReceiveSolved);
	Solver.OnProgress.AddDynamic(this, &UImageListener::ReceiveProgress);
	Solver.OnFinished.AddDynamic(this, &UImageListener::ReceiveFinished);
}

void UImageListener::ReceiveDownloaded(FHalvexDownloadedImage DownloadedImage)
{
	++NumDownloaded;
	Results.Add(DownloadedImage);
}

void UImageListener::ReceiveFailed(FHalvexDownloadedImage DownloadedImage)
{
	++NumFailed;
	Results.Add(DownloadedImage);
}

void UImageListener::ReceiveSolved(int32, FHalvexDownloadedImage)
{
	++NumSolved;
}

void UImageListener::ReceiveProgress(int32 NumDone, int32 NumImages)
{
	Progress += FString::Printf(TEXT("%s%d/%d"), Progress.IsEmpty() ? TEXT("") : TEXT(" "), NumDone, NumImages);
}

void UImageListener::ReceiveFinished(const TArray<FHalvexDownloadedImage>& DownloadedImages)
{
	++NumFinished;
	Batch = DownloadedImages;
}
