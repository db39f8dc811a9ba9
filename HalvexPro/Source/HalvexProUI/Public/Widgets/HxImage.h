#pragma once

#include "CoreMinimal.h"
#include "Components/Image.h"
#include "Images/HalvexImageModels.h"
#include "Style/HalvexStyleModels.h"
#include "Widgets/Layout/SScaleBox.h"
#include "HxImage.generated.h"

class SBox;
class UHalvexImageDownloader;
class UTexture2D;

/** How far the picture of an image widget is. */
UENUM(BlueprintType)
enum class EImageDownloaderState : uint8
{
	/** No picture was asked for. */
	EID_None UMETA(DisplayName = "None"),
	/** A picture is on its way. */
	EID_Downloading UMETA(DisplayName = "Downloading"),
	/** The picture is shown. */
	EID_Downloaded UMETA(DisplayName = "Downloaded"),
	/** There is no picture; the alternative image is shown. */
	EID_FailedDownload UMETA(DisplayName = "Failed Download")
};

DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FHxImageStateChanged, EImageDownloaderState, ImageState);

/** An image that can fetch its picture from a server or the project's files, in a scale box and a box of a fixed size, if wanted. */
UCLASS()
class HALVEXPROUI_API UHxImage : public UImage
{
	GENERATED_BODY()

public:
	/** Comes with each new state of the picture. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, BlueprintAssignable, Category = "HxImage")
	FHxImageStateChanged OnImageStateChanged;

	/** Gives the image the size of each texture that it shows. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxImage")
	bool bMatchTexture = true;

	/** Image for the time of a download; shown by the blueprint, when the state changes to Downloading. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxImage")
	TObjectPtr<UTexture2D> DownloadingImage;

	/** Image that is shown at first, and when a download brings none. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxImage")
	TObjectPtr<UTexture2D> AltImage;

	/** How the image is fitted into its area. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxImage")
	TEnumAsByte<EStretch::Type> Stretch = EStretch::ScaleToFit;

	/** Fixed size of the image, before it is fitted, if any. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxImage")
	FHalvexSizeOverride OverrideSize;

	/**
	 * Starts to fetch a picture. One that is on its way already is still shown when it arrives: the last to arrive stays.
	 * @param ImageObjectData	describes the picture
	 * @param SizeImage	which rendition of it is asked for
	 */
	UFUNCTION(BlueprintCallable, Category = "HxImage")
	void SetImageFromData(FImageObjectData ImageObjectData, TEnumAsByte<EImageRequestSize> SizeImage);

	/** Shows a picture that arrived, or the alternative image where there is none. */
	UFUNCTION()
	void ReceivedDownloadImage(FHalvexDownloadedImage DownloadedImage);

	/** Tells a state to those who listen. */
	void SetChangeState(EImageDownloaderState ImageState) const;

	virtual void SynchronizeProperties() override;
	virtual void ReleaseSlateResources(bool bReleaseChildren) override;

#if WITH_EDITOR
	virtual const FText GetPaletteCategory() override;
#endif

protected:
	virtual TSharedRef<SWidget> RebuildWidget() override;

	/** Around the image; rules its size. */
	TSharedPtr<SBox> MySizeBox;

	/** Around the size box; fits it into the widget's area. */
	TSharedPtr<SScaleBox> MyScaleBox;

private:
	/** The last download that was begun. */
	UPROPERTY(Transient)
	TObjectPtr<UHalvexImageDownloader> ImageDownloader;
};
