#pragma once

#include "CoreMinimal.h"
#include "UObject/SoftObjectPath.h"
#include "HalvexItemOverrideData.generated.h"

/** What lists show of a category, subcategory or product of the configurator. */
USTRUCT(BlueprintType)
struct HALVEXPRO_API FHalvexItemOverrideData
{
	GENERATED_BODY()

	/** Key of the category, subcategory or product. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ItemOverrideData")
	FName KeyName;

	/** What people read. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ItemOverrideData")
	FText DisplayText;

	/** Picture that is an asset; null when there is none. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ItemOverrideData")
	FSoftObjectPath Thumbnail;

	/** Key of the picture among the images of the configurator; none when there is none. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ItemOverrideData")
	FName Image;
};
