#pragma once

#include "CoreMinimal.h"
#include "Blueprint/UserWidget.h"
#include "UserWidget/Configurator/HxConfiguratorListElement.h"
#include "HxConfiguratorList.generated.h"

class AHalvexLevelVariantSetsActor;
class UListView;

DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnConfiguratorElementSelected, UHxConfiguratorListElement*, ConfiguratorListElement);

/**
 * Widget specialized to work closely with the AHalvexLevelVariantSetActor class: it displays the category and variant elements
 * connected to it. A click on a category shows its subcategories; the blueprint leads on to the products, by SetElementType.
 */
UCLASS()
class HALVEXPROUI_API UHxConfiguratorList : public UUserWidget
{
	GENERATED_BODY()

public:
	/** The list; its items are UHxConfiguratorListElement, and nothing else. */
	UPROPERTY(BlueprintReadOnly, Category = "HxConfiguratorList", meta = (BindWidgetOptional, EditInline = "true"))
	TObjectPtr<UListView> ListDisplay;

	/** The level of the catalogue that is shown. */
	UPROPERTY(BlueprintReadOnly, Category = "HxConfiguratorList")
	TEnumAsByte<EConfiguratorListElementType> CurrentElementType = ECLET_Category;

	/** Raised for every element that is clicked. */
	UPROPERTY(BlueprintAssignable, Category = "HxConfiguratorList")
	FOnConfiguratorElementSelected OnElementSelected;

	/** Whose variant handler the catalogue comes from; the level's, unless another one is set. */
	UPROPERTY(BlueprintReadOnly, Category = "HxConfiguratorList")
	TObjectPtr<AHalvexLevelVariantSetsActor> HxLevelVariantSetRef;

	/** Forgets what is selected in the catalogue and shows the categories; as soon as there is a handler. Nothing happens without an actor. */
	UFUNCTION(BlueprintCallable, Category = "HxConfiguratorList")
	void ResetToFirstLevel();

	/** Shows another level of what is selected in the catalogue. */
	UFUNCTION(BlueprintCallable, Category = "HxConfiguratorList")
	void SetElementType(TEnumAsByte<EConfiguratorListElementType> ElementType);

	/** Takes another actor, and shows its categories. */
	UFUNCTION(BlueprintCallable, Category = "HxConfiguratorList")
	void SetHalvexLevelVariantActor(AHalvexLevelVariantSetsActor* LevelVariantSetsActor);

	/** Called for every element that is clicked, ahead of the event. */
	UFUNCTION(BlueprintImplementableEvent, Category = "HxConfiguratorList")
	void OnConfiguratorElementSelected(UHxConfiguratorListElement* ConfiguratorListElement);

protected:
	/** Takes the actor of the level, if it has one. */
	void CheckForLevelVariantActor();

	void ReceivedItemClick(UObject* Item);

	/** Makes an element of all that the level has to show. */
	void RefreshDisplayList() const;

	virtual void NativeOnInitialized() override;
	virtual void NativeConstruct() override;
};
