#pragma once

#include "CoreMinimal.h"
#include "Configurator/HalvexConfiguratorState.h"
#include "Configurator/HalvexItemOverrideData.h"
#include "Project/ConfiguratorCatalogue.h"
#include "UObject/Object.h"
#include "HalvexVariantHandler.generated.h"

class UHalvexConfiguratorDataAsset;
class UHalvexThumbnails;
class UTexture2D;

DECLARE_DYNAMIC_MULTICAST_DELEGATE(FOnVariantChange);
DECLARE_DYNAMIC_MULTICAST_DELEGATE(FOnChangeListChanged);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnSurfaceLooksChange, const TArray<FVariantSurfaceLook>&, SurfaceLooks);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnThumbnailReady, FName, Image, UTexture2D*, Thumbnail);

/**
 * Walks the catalogue of a configurator (category, subcategory, variant) and keeps which variants are active.
 *
 * What is selected is where the user stands in the catalogue. What is active is what the unit gets: in each subcategory the
 * variant that was chosen, else the default, else none. The change list holds the subcategories in which a variant other than
 * the default is active; choosing the default takes the change back.
 *
 * A change raises OnVariantChange, then OnSurfaceLooksChange, then OnChangeListChanged, once each and only what it concerns.
 */
UCLASS(BlueprintType)
class HALVEXPRO_API UHalvexVariantHandler : public UObject
{
	GENERATED_BODY()

public:
	/** Raised when other variants are active, or other products in the list of chosen ones. */
	UPROPERTY(BlueprintAssignable, Category = "VariantHandler")
	FOnVariantChange OnVariantChange;

	/** Raised when the change list is another. */
	UPROPERTY(BlueprintAssignable, Category = "VariantHandler")
	FOnChangeListChanged OnChangeListChanged;

	/** Raised with the looks of all surfaces that active variants change, when they are others. A surface that is not among them looks as it was made. */
	UPROPERTY(BlueprintAssignable, Category = "VariantHandler")
	FOnSurfaceLooksChange OnSurfaceLooksChange;

	/** Raised when a thumbnail that was asked for has arrived, with the key of its image; without a texture when there is none to be had. */
	UPROPERTY(BlueprintAssignable, Category = "VariantHandler")
	FOnThumbnailReady OnThumbnailReady;

	UHalvexVariantHandler();

	/**
	 * Takes the catalogue of an asset, or of none. Choices that are in it too are kept; the others are dropped, with one line in
	 * the log. The same happens when the asset's own catalogue is exchanged.
	 */
	UFUNCTION(BlueprintCallable, Category = "VariantHandler")
	void SetVariantConfigurator(UHalvexConfiguratorDataAsset* InConfigurator);

	/** The asset with the catalogue; null when there is none. */
	UFUNCTION(BlueprintCallable, Category = "VariantHandler")
	UHalvexConfiguratorDataAsset* GetVariantConfigurator() const { return Configurator; }

	// Selection.

	/** Forgets which category, subcategory and variant are selected. What is active stays. */
	UFUNCTION(BlueprintCallable, Category = "VariantHandler")
	void ClearSelections();

	/** Selects a category, and no subcategory. With one that is not in the catalogue nothing is selected, and one line goes to the log. */
	UFUNCTION(BlueprintCallable, Category = "VariantHandler")
	void SetCategory(const FName& Category);

	/** Selects a subcategory of the selected category, and no variant. With one that the category does not have none is selected, and one line goes to the log. */
	UFUNCTION(BlueprintCallable, Category = "VariantHandler")
	void SetSubCategory(const FName& SubCategory);

	/**
	 * Makes a variant active or, with false, puts its subcategory back to the default. Selects the variant's place in the
	 * catalogue: screens may show the variants of several subcategories at once.
	 * @return whether the variant is active now as asked: false for a default that is to be put back, and, with one line in the
	 *         log, for one that is not in the catalogue
	 */
	UFUNCTION(BlueprintCallable, Category = "VariantHandler")
	bool SetVariant(const FName& Variant, bool bActive);

	UFUNCTION(BlueprintCallable, Category = "VariantHandler")
	FName GetSelectedCategory() const { return SelectedCategory; }

	UFUNCTION(BlueprintCallable, Category = "VariantHandler")
	FName GetSelectedSubCategory() const { return SelectedSubCategory; }

	UFUNCTION(BlueprintCallable, Category = "VariantHandler")
	FName GetSelectedVariant() const { return SelectedVariant; }

	// Catalogue.

	/** Keys of all categories. */
	UFUNCTION(BlueprintCallable, Category = "VariantHandler")
	TArray<FName> GetAllCategoryValues() const;

	/**
	 * Keys of the subcategories of the selected category.
	 * @param bDropMissing	unselects what the catalogue has no longer, with one line in the log
	 */
	UFUNCTION(BlueprintCallable, Category = "VariantHandler")
	TArray<FName> GetSubCatsFromSelectedCat(bool bDropMissing);

	/** Names of the variants of the selected subcategory. @param bDropMissing as for subcategories */
	UFUNCTION(BlueprintCallable, Category = "VariantHandler")
	TArray<FName> GetVariantsFromSelectedSubCat(bool bDropMissing);

	/** What lists show of all categories. */
	UFUNCTION(BlueprintCallable, Category = "VariantHandler")
	TArray<FHalvexItemOverrideData> GetAllCategoryOverrideData() const;

	/** What lists show of the subcategories of the selected category. */
	UFUNCTION(BlueprintCallable, Category = "VariantHandler")
	TArray<FHalvexItemOverrideData> GetSubCategoryOverrideData() const;

	/** What lists show of the products of the selected subcategory. */
	UFUNCTION(BlueprintCallable, Category = "VariantHandler")
	TArray<FHalvexItemOverrideData> GetProductOverrideData() const;

	/** What people read of the category and of the subcategory of a key, "Category.SubCategory"; false when there is no such subcategory. */
	UFUNCTION(BlueprintCallable, Category = "VariantHandler")
	bool GetDisplayTexts(const FName& Key, FText& OutCategory, FText& OutSubCategory) const;

	/** The product of a variant, wherever it stands in the catalogue; false when there is none. */
	UFUNCTION(BlueprintCallable, Category = "VariantHandler")
	bool GetProductDataFromVariant(const FName& Variant, FHalvexConfigProduct& OutProduct) const;

	// Pictures.

	/**
	 * The picture of a variant, as GetThumbnail gives it.
	 * @return whether it is there already
	 */
	UFUNCTION(BlueprintCallable, Category = "VariantHandler")
	bool GetVariantThumbnail(UTexture2D*& OutThumbnail, FName Variant);

	/**
	 * The small rendition of an image of the configurator. Nothing waits for it: one that is not there is fetched, and
	 * OnThumbnailReady tells when it is. One that cannot be had is asked for once, until the catalogue is exchanged.
	 * @return whether it is there already
	 */
	UFUNCTION(BlueprintCallable, Category = "VariantHandler")
	bool GetThumbnail(FName Image, UTexture2D*& OutThumbnail);

	// Active variants.

	/** The place of the active variant among those of the selected subcategory; false, with -1, when none is. */
	UFUNCTION(BlueprintCallable, Category = "VariantHandler")
	bool GetVariantActiveIndex(int32& OutIndex) const;

	/** The active variant of the selected subcategory; none when there is none. */
	UFUNCTION(BlueprintCallable, Category = "VariantHandler")
	FName GetVariantActivatedFromSelection() const;

	/** The active variant of a subcategory; none when there is none, or no such subcategory. */
	UFUNCTION(BlueprintCallable, Category = "VariantHandler")
	FName GetActiveVariant(FName Category, FName SubCategory) const;

	/** Whether a variant is active, wherever it stands in the catalogue. */
	UFUNCTION(BlueprintCallable, Category = "VariantHandler")
	bool IsVariantActive(const FName& Variant) const;

	/** The active variants by "Category.SubCategory", in the order of the catalogue; without those where none is. */
	UFUNCTION(BlueprintCallable, Category = "VariantHandler")
	TMap<FName, FName> GetActiveVariants() const;

	/** How the active variants have the surfaces look; of a surface that several change, the last in the catalogue counts. */
	UFUNCTION(BlueprintCallable, Category = "VariantHandler")
	TArray<FVariantSurfaceLook> GetSurfaceLooks() const;

	// Changes.

	/** What differs from the defaults, by "Category.SubCategory", in the order in which it was chosen: the latest is last. */
	UFUNCTION(BlueprintCallable, Category = "VariantHandler")
	TMap<FName, FHalvexConfigProduct> GetConfigtorChangeList() const;

	/** Puts the subcategory of that key ("Category.SubCategory") back to its default. @return whether it had a change */
	UFUNCTION(BlueprintCallable, Category = "VariantHandler")
	bool TakeBackChange(const FName& Key);

	/** Puts all subcategories back to their defaults. */
	UFUNCTION(BlueprintCallable, Category = "VariantHandler")
	void ResetChanges();

	/** What a variant costs more than the default of its subcategory, in whole units of the currency; less than 0 where it costs less. */
	UFUNCTION(BlueprintCallable, Category = "VariantHandler")
	double GetPriceDifference(const FName& Variant) const;

	/** What all changes cost together. */
	UFUNCTION(BlueprintCallable, Category = "VariantHandler")
	double GetPriceOfChanges() const;

	/** All that was configured, to be kept for the unit it belongs to. */
	UFUNCTION(BlueprintCallable, Category = "VariantHandler")
	FHalvexConfiguratorState GetConfiguratorState() const;

	/** Configures as it was kept. What the catalogue does not have is left out, with one line in the log. */
	UFUNCTION(BlueprintCallable, Category = "VariantHandler")
	void SetConfiguratorState(const FHalvexConfiguratorState& State);

	/**
	 * Goes on with another unit: what is configured is kept for the unit from before, and what was kept for the new one is taken
	 * up. What was configured before there was any unit belongs to the first one.
	 */
	UFUNCTION(BlueprintCallable, Category = "VariantHandler")
	void SetConfiguredUnit(FName UnitId);

	/** Key of the unit that is configured; none when there is none yet. */
	UFUNCTION(BlueprintCallable, Category = "VariantHandler")
	FName GetConfiguredUnit() const { return ConfiguredUnit; }

private:
	void ReceivedCatalogueChange();
	void ReceivedProductListChange();
	void DropMissingSelection();

	/**
	 * Exchanges the choices and the list of products, and tells of it. Choices of defaults are none; those that are not in the
	 * catalogue are left out, with one line in the log.
	 */
	void Change(const TArray<FHalvexVariantChoice>& NewChoices, const TArray<FName>& NewProductList, bool bCatalogueChanged);
	TArray<FHalvexVariantChoice> FindPossible(const TArray<FHalvexVariantChoice>& Wanted) const;

	TArray<FName> GetProductList() const;
	bool ExchangeProductList(const TArray<FName>& NewProductList);

	UPROPERTY()
	TObjectPtr<UHalvexConfiguratorDataAsset> Configurator;

	UPROPERTY()
	TObjectPtr<UHalvexThumbnails> Thumbnails;

	/** In the order in which they were made; none is a default. */
	UPROPERTY()
	TArray<FHalvexVariantChoice> Choices;

	/** The same by "Category.SubCategory". */
	TMap<FName, FName> ChosenOfKey;

	/** What OnSurfaceLooksChange told last. */
	UPROPERTY()
	TArray<FVariantSurfaceLook> LastLooks;

	/** What was configured for other units than the present one, by their key. */
	TMap<FName, FHalvexConfiguratorState> StateOfUnit;

	FName ConfiguredUnit;
	FName SelectedCategory;
	FName SelectedSubCategory;
	FName SelectedVariant;
	/** While the list of products follows the choices, it is not told of by itself. */
	bool bExchangingProductList = false;
};
