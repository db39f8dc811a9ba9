#pragma once

#include "CoreMinimal.h"
#include "Images/HalvexImageAction.h"
#include "Images/HalvexImageModels.h"
#include "ImageSolver.generated.h"

class UHalvexImageDownloader;
class UTexture2D;

DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FImageSolvedEvent, int32, Index, FHalvexDownloadedImage, DownloadedImage);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FImageSolverProgressEvent, int32, NumDone, int32, NumImages);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FImageSolverFinishedEvent, const TArray<FHalvexDownloadedImage>&, DownloadedImages);
DECLARE_DELEGATE_OneParam(FImagesSolvedDelegate, const TArray<UTexture2D*>& /*Textures*/);

/** Downloads several pictures and tells when all have ended, well or not. */
UCLASS()
class HALVEXSDK_API UImageSolver : public UHalvexImageAction
{
	GENERATED_BODY()

public:
	/** One picture has ended; Index is its place among those asked for. */
	UPROPERTY(BlueprintAssignable, Category = "HalvexImage")
	FImageSolvedEvent OnImageSolved;

	/** Comes after each picture. */
	UPROPERTY(BlueprintAssignable, Category = "HalvexImage")
	FImageSolverProgressEvent OnProgress;

	/** All have ended; the results stand in the order in which they were asked for. Comes once. */
	UPROPERTY(BlueprintAssignable, Category = "HalvexImage")
	FImageSolverFinishedEvent OnFinished;

	/**
	 * Makes a download of several pictures.
	 * @param ImageObjectData	describes the pictures
	 * @param SizeImage	which rendition of them is asked for
	 */
	UFUNCTION(BlueprintCallable, Category = "HalvexImage", meta = (BlueprintInternalUseOnly = "true"))
	static UImageSolver* SolveImages(const TArray<FImageObjectData>& ImageObjectData, TEnumAsByte<EImageRequestSize> SizeImage);

	/** Makes a download that RunImageSolverWithDelegate tells its pictures. */
	static UImageSolver* CreateImagesSolver();

	/**
	 * Begins a download of several pictures.
	 * @param Solved	called once, with the textures that arrived in the order in which they were asked for; without any when all failed
	 */
	void RunImageSolverWithDelegate(const TArray<FImageObjectData>& ImageObjectData, TEnumAsByte<EImageRequestSize> SizeImage, const FImagesSolvedDelegate& Solved);

	/** Begins the downloads. */
	virtual void Activate() override;

	/** Gives up what has not ended yet; the finished event tells so. */
	virtual void Cancel() override;

	/** Pictures that have ended. */
	UFUNCTION(BlueprintPure, Category = "HalvexImage")
	int32 GetNumDone() const { return NumDone; }

protected:
	virtual bool HasListeners() const override;

private:
	void SetImages(const TArray<FImageObjectData>& ImageObjectData, TEnumAsByte<EImageRequestSize> SizeImage);
	void ReceiveImage(const FHalvexDownloadedImage& Image, int32 Index);
	bool FinishEmpty(float DeltaSeconds);
	void Finish();

	UPROPERTY()
	TArray<TObjectPtr<UHalvexImageDownloader>> Downloaders;

	UPROPERTY()
	TArray<FHalvexDownloadedImage> Results;

	FImagesSolvedDelegate OnSolved;
	int32 NumDone = 0;
};
