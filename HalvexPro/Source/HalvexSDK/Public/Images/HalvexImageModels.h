#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectPtr.h"
#include "HalvexImageModels.generated.h"

class UTexture2D;

/** Which rendition of a picture is asked for, by the length of its longer side. */
UENUM(BlueprintType)
enum EImageRequestSize : int
{
	/** About 128 pixels, for lists. */
	EIRS_Thumbnail UMETA(DisplayName = "Thumbnail"),
	/** About 256 pixels. */
	EIRS_Small UMETA(DisplayName = "Small"),
	/** About 512 pixels, for cards. */
	EIRS_Medium UMETA(DisplayName = "Medium"),
	/** About 1024 pixels, for a large part of the screen. */
	EIRS_Large UMETA(DisplayName = "Large"),
	/** As the picture was handed in. */
	EIRS_Original UMETA(DisplayName = "Original")
};

/** One rendition of a picture. */
USTRUCT(BlueprintType)
struct HALVEXSDK_API FHalvexImageRendition
{
	GENERATED_BODY()

	/** The size that this rendition was made for. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexImage")
	TEnumAsByte<EImageRequestSize> Size = EIRS_Original;

	/** Where it is: an address of http, https or file. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexImage")
	FString Address;
};

/** Describes a picture that is elsewhere: on a server, or among the project's files. */
USTRUCT(BlueprintType)
struct HALVEXSDK_API FImageObjectData
{
	GENERATED_BODY()

	/** Name of the picture, for people. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexImage")
	FString ImageName;

	/**
	 * Where the picture is: an address of http, https or file. {size} in it becomes thumbnail, small, medium, large or original,
	 * {pixels} the length of the longer side, 0 for the original.
	 */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexImage")
	FString Address;

	/** Addresses of single sizes; each counts more than Address. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexImage")
	TArray<FHalvexImageRendition> Renditions;
};

/** How the download of a picture ended. */
USTRUCT(BlueprintType)
struct HALVEXSDK_API FHalvexDownloadedImage
{
	GENERATED_BODY()

	/** The picture; none when the download failed. */
	UPROPERTY(BlueprintReadWrite, Category = "HalvexImage")
	TObjectPtr<UTexture2D> Texture;

	/** What was asked for. */
	UPROPERTY(BlueprintReadWrite, Category = "HalvexImage")
	FImageObjectData ImageData;

	/** The size that was asked for. */
	UPROPERTY(BlueprintReadWrite, Category = "HalvexImage")
	TEnumAsByte<EImageRequestSize> Size = EIRS_Original;

	/** Why the download failed, for programmers; empty when it did not. */
	UPROPERTY(BlueprintReadWrite, Category = "HalvexImage")
	FString Error;

	/** The download was given up on demand. */
	UPROPERTY(BlueprintReadWrite, Category = "HalvexImage")
	bool bCancelled = false;
};
