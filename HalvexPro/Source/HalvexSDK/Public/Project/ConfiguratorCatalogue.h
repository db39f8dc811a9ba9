#pragma once

#include "CoreMinimal.h"
#include "Records/HalvexConfigProduct.h"
#include "ConfiguratorCatalogue.generated.h"

/** How a surface of a configured room looks with a variant. */
USTRUCT(BlueprintType)
struct HALVEXSDK_API FVariantSurfaceLook
{
	GENERATED_BODY()

	/** Key of the surface, as the parts of interiors name it: "KitchenFronts". */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ConfiguratorCatalogue")
	FName Surface;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ConfiguratorCatalogue")
	FLinearColor Color = FLinearColor::White;

	/** 0 for a mirror, 1 for chalk. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ConfiguratorCatalogue", meta = (ClampMin = "0", ClampMax = "1"))
	float Roughness = 0.8f;
};

/** One of the choices of a subcategory. */
USTRUCT(BlueprintType)
struct HALVEXSDK_API FCatalogueVariant
{
	GENERATED_BODY()

	/** The product of the variant; its key is the name of the variant too. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ConfiguratorCatalogue")
	FHalvexConfigProduct Product;

	/** What it changes in the room; empty for what is not seen. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ConfiguratorCatalogue")
	TArray<FVariantSurfaceLook> Looks;
};

/** Variants of which one at a time is active. */
USTRUCT(BlueprintType)
struct HALVEXSDK_API FCatalogueSubCategory
{
	GENERATED_BODY()

	/** Key of the subcategory, unique in its category. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ConfiguratorCatalogue")
	FName SubCategoryId;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ConfiguratorCatalogue")
	FString Name;

	/** Key of the project's image that shows it; none when there is none. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ConfiguratorCatalogue")
	FName Image;

	/** Key of the product that units come with; none when nothing is active until it is chosen. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ConfiguratorCatalogue")
	FName DefaultProduct;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ConfiguratorCatalogue")
	TArray<FCatalogueVariant> Variants;
};

/** What belongs together when a unit is configured: most often a room. */
USTRUCT(BlueprintType)
struct HALVEXSDK_API FCatalogueCategory
{
	GENERATED_BODY()

	/** Key of the category, unique in its catalogue. Without a full stop: keys of changes divide category and subcategory by one. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ConfiguratorCatalogue")
	FName CategoryId;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ConfiguratorCatalogue")
	FString Name;

	/** Key of the project's image that shows it; none when there is none. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ConfiguratorCatalogue")
	FName Image;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ConfiguratorCatalogue")
	TArray<FCatalogueSubCategory> SubCategories;
};

/** All that the units of a project can be configured with. */
USTRUCT(BlueprintType)
struct HALVEXSDK_API FConfiguratorCatalogue
{
	GENERATED_BODY()

	/** Whether a product counts as chosen when it is in the list of chosen products, whatever variant is active. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ConfiguratorCatalogue")
	bool bSelectByProductList = false;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ConfiguratorCatalogue")
	TArray<FCatalogueCategory> Categories;
};
