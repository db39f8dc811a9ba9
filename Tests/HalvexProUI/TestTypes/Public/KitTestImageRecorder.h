#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "Widgets/HxImage.h"
#include "KitTestImageRecorder.generated.h"

/** Writes down the states of an image, in the order in which they came, with the picture that the image shows by then. */
UCLASS()
class HALVEXPROUITESTTYPES_API UKitTestImageRecorder : public UObject
{
	GENERATED_BODY()

public:
	void Listen(UHxImage& InImage);

	UFUNCTION()
	void OnStateChanged(EImageDownloaderState ImageState);

	/** "Downloading Downloaded(8x4) ..."; a picture is told by its size. */
	FString States;

private:
	UPROPERTY()
	TObjectPtr<UHxImage> Image;
};
