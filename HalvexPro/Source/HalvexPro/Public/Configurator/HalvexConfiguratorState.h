#pragma once

#include "CoreMinimal.h"
#include "HalvexConfiguratorState.generated.h"

/** The variant that was chosen in a subcategory. */
USTRUCT(BlueprintType)
struct HALVEXPRO_API FHalvexVariantChoice
{
	GENERATED_BODY()

	/** "Category.SubCategory". */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ConfiguratorState")
	FName Key;

	/** Name of the variant, which is the key of its product. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ConfiguratorState")
	FName Variant;

	bool operator==(const FHalvexVariantChoice& Other) const { return Key == Other.Key && Variant == Other.Variant; }
};

/** All that was configured, of one unit for instance: to be kept, and given back to a handler of variants. */
USTRUCT(BlueprintType)
struct HALVEXPRO_API FHalvexConfiguratorState
{
	GENERATED_BODY()

	/** In the order in which they were made. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ConfiguratorState")
	TArray<FHalvexVariantChoice> Choices;

	/** The list of chosen products; counts where the catalogue selects by it. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ConfiguratorState")
	TArray<FName> ProductList;
};
