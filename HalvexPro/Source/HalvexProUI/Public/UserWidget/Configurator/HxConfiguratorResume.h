#pragma once

#include "CoreMinimal.h"
#include "Blueprint/UserWidget.h"
#include "Records/HalvexConfigProduct.h"
#include "HxConfiguratorResume.generated.h"

class UHalvexVariantHandler;

/** A change of the configuration, without the category that it is filed under. */
USTRUCT(BlueprintType)
struct HALVEXPROUI_API FConfiguratorFilterValues
{
	GENERATED_BODY()

	/** The subcategory that was changed. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxConfiguratorResume")
	FName SubCat;

	/** The product that was chosen. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxConfiguratorResume")
	FHalvexConfigProduct Product;
};

/** Shows what was changed in the configurator of the level. Without one when it is initialised, it stays empty. */
UCLASS()
class HALVEXPROUI_API UHxConfiguratorResume : public UUserWidget
{
	GENERATED_BODY()

public:
	/** Cuts the key of a change, "Category.SubCategory", at its first full stop. Both are none for a key without one. */
	UFUNCTION(BlueprintCallable, Category = "HxConfiguratorResume")
	void GetKeySplit(const FName& InKey, FName& OutCat, FName& OutSubCat);

	/** The changes by their category; of several in a category the last one is kept. */
	UFUNCTION(BlueprintCallable, Category = "HxConfiguratorResume")
	TMap<FName, FConfiguratorFilterValues> FilterCatValues(const TMap<FName, FHalvexConfigProduct>& ChangeList);

	/** Called with all changes when they are others. */
	UFUNCTION(BlueprintImplementableEvent, Category = "HxConfiguratorResume")
	void OnConfiguratorChangesListUpdate(const TMap<FName, FHalvexConfigProduct>& ChangeList);

	/** Bound to the handler's change list. */
	UFUNCTION(BlueprintCallable, Category = "HxConfiguratorResume")
	void Received_ConfigurationListChanged();

protected:
	virtual void NativeOnInitialized() override;

	/** The handler of the level; null when there was none at the initialisation. */
	UPROPERTY(BlueprintReadOnly, Category = "HxConfiguratorResume")
	TObjectPtr<UHalvexVariantHandler> VariantHandler;
};
