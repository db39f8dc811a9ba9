#pragma once

#include "CoreMinimal.h"
#include "Configurator/HalvexItemOverrideData.h"
#include "UObject/Object.h"
#include "HxConfiguratorListElement.generated.h"

class UHalvexVariantHandler;
class UHxConfiguratorListElement;
class UTexture2D;
struct FHalvexConfigProduct;

/** Level of the configurator's catalogue. */
UENUM(BlueprintType)
enum EConfiguratorListElementType : int
{
	ECLET_Category UMETA(DisplayName = "Category"),
	ECLET_SubCategory UMETA(DisplayName = "SubCategory"),
	ECLET_Product UMETA(DisplayName = "Product")
};

DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnVariantProductChange, int32, NewIndexVariant);

/** What a row of the configurator's list gets its text and its thumbnail from. Without a variant handler it only has its data. */
UCLASS(BlueprintType)
class HALVEXPROUI_API UHxConfiguratorListElement : public UObject
{
	GENERATED_BODY()

public:
	/** Raised by product elements that were made of a subcategory, when other variants are active: the place of the active one in the selected subcategory, or -1. */
	UPROPERTY(BlueprintAssignable, Category = "HxConfiguratorListElement")
	FOnVariantProductChange OnVariantProductChange;

	/** What the row shows; the key is that of the category, subcategory or product. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxConfiguratorListElement")
	FHalvexItemOverrideData ItemData;

	/** The level at which the element was made. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxConfiguratorListElement")
	TEnumAsByte<EConfiguratorListElementType> ConfiguratorElementType = ECLET_Category;

	/** The handler that the element comes from. */
	UPROPERTY(BlueprintReadWrite, Category = "HxConfiguratorListElement")
	TObjectPtr<UHalvexVariantHandler> VariantHandler;

	/** The variant that was active when the element was made of a subcategory. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxConfiguratorListElement")
	FName VariantActivated;

	/** For the row that shows the element: whether it shows it as selected. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxConfiguratorListElement")
	bool ItemSelected = false;

	/** Selects the category or subcategory, or makes the variant active. */
	UFUNCTION(BlueprintCallable, Category = "HxConfiguratorListElement")
	void SetItemHasSelected();

	/** The product; false for elements of other levels, and when there is none. */
	UFUNCTION(BlueprintCallable, Category = "HxConfiguratorListElement")
	bool GetProductDataFromVariant(FHalvexConfigProduct& OutProduct);

	/** The product's picture; null for elements of other levels, and until the handler's OnThumbnailReady tells that it is there. */
	UFUNCTION(BlueprintCallable, Category = "HxConfiguratorListElement")
	UTexture2D* GetThumbnailFromVariant();

	/** The picture that is an asset, loaded at once; null when there is none. */
	UFUNCTION(BlueprintCallable, Category = "HxConfiguratorListElement")
	UObject* GetThumbnailFromOverride();

	/** Whether the element's variant was active when the element was made of a subcategory. */
	UFUNCTION(BlueprintCallable, Category = "HxConfiguratorListElement")
	bool IsVariantSelected();

	/** Whether the product is in the list of chosen products, where the catalogue selects by it, or else whether its variant is selected. */
	UFUNCTION(BlueprintCallable, Category = "HxConfiguratorListElement")
	bool IsProductSelected();

	/** Checks for a selected item in the given array of configurator list elements. The first one; null when there is none. */
	UFUNCTION(BlueprintCallable, Category = "HxConfiguratorListElement")
	UHxConfiguratorListElement* CheckForSelectedItem(TArray<UHxConfiguratorListElement*> InItems);

	/**
	 * Generates a list of product elements from a sub-category. Selects the subcategory; empty for elements of other levels.
	 * @param SelectedElement	the last of them whose product is selected; left as it is when there is none
	 */
	UFUNCTION(BlueprintCallable, Category = "HxConfiguratorListElement")
	TArray<UHxConfiguratorListElement*> GenerateProductListElementsFromSubCategory(UHxConfiguratorListElement*& SelectedElement);

	/** Bound to the handler's change of variants. */
	UFUNCTION(BlueprintCallable, Category = "HxConfiguratorListElement")
	void Received_VariantProductChange();

private:
	/** Whether it is of that level, and comes from a handler. */
	bool IsElementOf(EConfiguratorListElementType Level) const;
};
