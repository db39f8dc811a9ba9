#include "Images/ImageSolver.h"

#include "Containers/Ticker.h"
#include "Engine/Texture2D.h"
#include "Images/HalvexImageDownloader.h"
#include "Images/HalvexImageSubsystem.h"

UImageSolver* UImageSolver::SolveImages(const TArray<FImageObjectData>& ImageObjectData, TEnumAsByte<EImageRequestSize> SizeImage)
{
	UImageSolver* Solver = CreateImagesSolver();
	Solver->SetImages(ImageObjectData, SizeImage);
	return Solver;
}

UImageSolver* UImageSolver::CreateImagesSolver()
{
	return NewObject<UImageSolver>();
}

void UImageSolver::RunImageSolverWithDelegate(const TArray<FImageObjectData>& ImageObjectData, TEnumAsByte<EImageRequestSize> SizeImage, const FImagesSolvedDelegate& Solved)
{
	if (!IsRunning())
	{
		SetImages(ImageObjectData, SizeImage);
		OnSolved = Solved;
		Activate();
	}
}

void UImageSolver::SetImages(const TArray<FImageObjectData>& ImageObjectData, TEnumAsByte<EImageRequestSize> SizeImage)
{
	Downloaders.Reset();
	for (const FImageObjectData& Data : ImageObjectData)
	{
		Downloaders.Add(UHalvexImageDownloader::DownloadImage(Data, SizeImage));
	}
}

void UImageSolver::Activate()
{
	if (IsRunning() || !UHalvexImageSubsystem::Get())
	{
		return;
	}
	BeginRun();
	NumDone = 0;
	Results.Reset();
	Results.SetNum(Downloaders.Num());
	if (Downloaders.IsEmpty())
	{
		// As for others, nothing is told during the begin.
		FTSTicker::GetCoreTicker().AddTicker(FTickerDelegate::CreateUObject(this, &UImageSolver::FinishEmpty));
	}
	for (int32 Index = 0; Index < Downloaders.Num(); ++Index)
	{
		Downloaders[Index]->OnEnded.BindUObject(this, &UImageSolver::ReceiveImage, Index);
		Downloaders[Index]->Activate();
	}
}

void UImageSolver::Cancel()
{
	if (!IsRunning())
	{
		return;
	}
	for (const TObjectPtr<UHalvexImageDownloader>& Downloader : Downloaders)
	{
		Downloader->Cancel();
	}
}

bool UImageSolver::HasListeners() const
{
	return OnImageSolved.IsBound() || OnProgress.IsBound() || OnFinished.IsBound() || OnSolved.IsBound();
}

void UImageSolver::ReceiveImage(const FHalvexDownloadedImage& Image, const int32 Index)
{
	Results[Index] = Image;
	++NumDone;
	OnImageSolved.Broadcast(Index, Image);
	OnProgress.Broadcast(NumDone, Downloaders.Num());
	if (NumDone == Downloaders.Num())
	{
		Finish();
	}
}

bool UImageSolver::FinishEmpty(float)
{
	Finish();
	return false;
}

void UImageSolver::Finish()
{
	EndRun();
	TArray<UTexture2D*> Textures;
	for (const FHalvexDownloadedImage& Result : Results)
	{
		if (Result.Texture)
		{
			Textures.Add(Result.Texture);
		}
	}
	OnSolved.ExecuteIfBound(Textures);
	OnFinished.Broadcast(Results);
}
