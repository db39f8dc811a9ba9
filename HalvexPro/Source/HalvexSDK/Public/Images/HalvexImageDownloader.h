#pragma once

#include "CoreMinimal.h"
#include "Images/HalvexImageAction.h"
#include "Images/HalvexImageModels.h"
#include "HalvexImageDownloader.generated.h"

DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FHalvexImageDownloadEvent, FHalvexDownloadedImage, DownloadedImage);
DECLARE_DELEGATE_OneParam(FHalvexImageDownloadEnded, const FHalvexDownloadedImage&);

/**
 * Downloads one picture. One of its two events comes, once, on the game thread, in a later frame than the begin. A picture
 * that was downloaded before is shown from the cache as far as its server allows, and several downloads of one picture are
 * one transfer.
 */
UCLASS()
class HALVEXSDK_API UHalvexImageDownloader : public UHalvexImageAction
{
	GENERATED_BODY()

public:
	/** The picture is there. */
	UPROPERTY(BlueprintAssignable, Category = "HalvexImage")
	FHalvexImageDownloadEvent OnImageDownloaded;

	/** There is no picture; the result says why. */
	UPROPERTY(BlueprintAssignable, Category = "HalvexImage")
	FHalvexImageDownloadEvent OnDownloadFailed;

	/** As the two events, for code; called before them. */
	FHalvexImageDownloadEnded OnEnded;

	/**
	 * Makes a download of a picture.
	 * @param ImageObjectData	describes the picture
	 * @param SizeImage	which rendition of it is asked for
	 */
	UFUNCTION(BlueprintCallable, Category = "HalvexImage", meta = (BlueprintInternalUseOnly = "true"))
	static UHalvexImageDownloader* DownloadImage(FImageObjectData ImageObjectData, TEnumAsByte<EImageRequestSize> SizeImage);

	/** Begins the download. */
	virtual void Activate() override;

	virtual void Cancel() override;

	const FImageObjectData& GetImageData() const { return ImageData; }
	EImageRequestSize GetSize() const { return Size; }

	/** Ends the download with its result. */
	void Receive(UTexture2D* Texture, const FString& Error, bool bCancelled);

protected:
	virtual bool HasListeners() const override;

private:
	UPROPERTY()
	FImageObjectData ImageData;

	UPROPERTY()
	TEnumAsByte<EImageRequestSize> Size = EIRS_Original;
};
