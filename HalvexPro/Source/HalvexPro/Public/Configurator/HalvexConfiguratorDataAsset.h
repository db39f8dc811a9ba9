#pragma once

#include "CoreMinimal.h"
#include "Configurator/HalvexItemOverrideData.h"
#include "Engine/DataAsset.h"
#include "Images/HalvexImageModels.h"
#include "Project/ConfiguratorCatalogue.h"
#include "Project/ProjectData.h"
#include "HalvexConfiguratorDataAsset.generated.h"

class FHalvexCatalogueIndex;

/**
 * What the units of a level can be configured with: the catalogue of a project, what is shown in place of its texts and
 * pictures, and the list of chosen products.
 *
 * What cannot be told apart is left out, with one line in the log: categories and subcategories without a key or of a key that
 * was there before, categories with a full stop in their key, products without a key or of a key that is anywhere before.
 */
UCLASS(BlueprintType)
class HALVEXPRO_API UHalvexConfiguratorDataAsset : public UDataAsset
{
	GENERATED_BODY()

public:
	/** Raised after the catalogue was exchanged. */
	FSimpleMulticastDelegate OnCatalogueChanged;

	/** Raised after a product came into the list or left it. */
	FSimpleMulticastDelegate OnProductListChanged;

	/** Where the pictures are that the catalogue names by their keys. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexConfigurator")
	TMap<FName, FImageObjectData> Images;

	/** What lists show of categories in place of what the catalogue says, by the category's key. What is empty or none replaces nothing. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexConfigurator")
	TMap<FName, FHalvexItemOverrideData> CategoryOverrides;

	/** The same of subcategories, by "Category.SubCategory". */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexConfigurator")
	TMap<FName, FHalvexItemOverrideData> SubCategoryOverrides;

	/** The same of products, by the product's key. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexConfigurator")
	TMap<FName, FHalvexItemOverrideData> ProductOverrides;

	/**
	 * Makes an asset of a project's catalogue.
	 * @param InImages	the project's; what is no address is a path in the folder of the images' setting
	 */
	UFUNCTION(BlueprintCallable, Category = "HalvexConfigurator")
	static UHalvexConfiguratorDataAsset* CreateFromCatalogue(const FConfiguratorCatalogue& InCatalogue, const TArray<FProjectImage>& InImages);

	UFUNCTION(BlueprintCallable, Category = "HalvexConfigurator")
	const FConfiguratorCatalogue& GetCatalogue() const { return Catalogue; }

	/** Exchanges the catalogue; handlers keep the choices that are in the new one too. */
	UFUNCTION(BlueprintCallable, Category = "HalvexConfigurator")
	void SetCatalogue(const FConfiguratorCatalogue& InCatalogue);

	/** Whether a product counts as chosen when it is in the list, whatever variant is active. */
	UFUNCTION(BlueprintCallable, Category = "HalvexConfigurator")
	bool IsSelectingByProductList() const { return Catalogue.bSelectByProductList; }

	/** The product of that key; false when there is none. */
	UFUNCTION(BlueprintCallable, Category = "HalvexConfigurator")
	bool GetConfiguratorProductByKey(const FName& ProductKey, FHalvexConfigProduct& OutProduct) const;

	/** Keys of the products in the list, in the order in which they came. */
	UFUNCTION(BlueprintCallable, Category = "HalvexConfigurator")
	const TArray<FName>& GetProductList() const { return ProductList; }

	UFUNCTION(BlueprintCallable, Category = "HalvexConfigurator")
	bool IsProductInList(const FName& ProductKey) const { return ProductList.Contains(ProductKey); }

	/** Adds a product that is not in the list yet. One that the catalogue does not have is one line in the log. */
	UFUNCTION(BlueprintCallable, Category = "HalvexConfigurator")
	void AddProductToList(const FName& ProductKey);

	UFUNCTION(BlueprintCallable, Category = "HalvexConfigurator")
	void RemoveProductFromList(const FName& ProductKey);

	/** Exchanges the whole list; products that the catalogue does not have are left out, with one line in the log. */
	UFUNCTION(BlueprintCallable, Category = "HalvexConfigurator")
	void SetProductList(const TArray<FName>& ProductKeys);

	/** Where things stand in the catalogue; for the handler of variants. */
	const FHalvexCatalogueIndex& GetIndex() const;

#if WITH_EDITOR
	virtual void PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent) override;
#endif

private:
	void ReceivedCatalogueChange();

	UPROPERTY(EditAnywhere, Category = "HalvexConfigurator")
	FConfiguratorCatalogue Catalogue;

	UPROPERTY(EditAnywhere, Category = "HalvexConfigurator")
	TArray<FName> ProductList;

	/** Made when it is first needed. */
	mutable TSharedPtr<FHalvexCatalogueIndex> Index;
};
