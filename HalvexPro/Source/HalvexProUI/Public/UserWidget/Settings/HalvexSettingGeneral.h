#pragma once

#include "CoreMinimal.h"
#include "Blueprint/UserWidget.h"
#include "HalvexSettingGeneral.generated.h"

class UHalvexSettingItem;
class UHxButton;

/** When the rows of a settings panel apply what is changed. */
UENUM(BlueprintType)
enum class ESettingApplyType : uint8
{
	ESAT_Confirmation = 0 UMETA(DisplayName = "Confirmation"),
	ESAT_AutoApply = 1 UMETA(DisplayName = "Auto Apply"),
	ESAT_Custom = 2 UMETA(DisplayName = "Custom Apply")
};

/** A panel of setting rows: finds them in its tree, decides when they apply, and applies and saves on confirmation. */
UCLASS()
class HALVEXPROUI_API UHalvexSettingGeneral : public UUserWidget
{
	GENERATED_BODY()

public:
	/** How the rows apply: all on confirmation, each at once, or each as it says itself. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexSettingGeneral")
	ESettingApplyType SettingsApplyType = ESettingApplyType::ESAT_Confirmation;

	/** Applies what waits. */
	UPROPERTY(BlueprintReadOnly, Category = "HalvexSettingGeneral", meta = (BindWidgetOptional))
	TObjectPtr<UHxButton> Btn_ApplyConfirmation;

	/** Applies and saves the user settings, and shows them in every row. */
	UFUNCTION(BlueprintCallable, Category = "HalvexSettingGeneral")
	void ApplySettings();

	/** As ApplySettings when something waits. Returns whether something did. */
	UFUNCTION(BlueprintCallable, Category = "HalvexSettingGeneral")
	bool ApplySettingsIfMarkedAsDirty();

	UFUNCTION(BlueprintPure, Category = "HalvexSettingGeneral")
	bool IsSettingsMarkAsDirty() const;

	UFUNCTION(BlueprintCallable, Category = "HalvexSettingGeneral")
	void MarkSettingsAsDirty();

	/** Shows the values of the user settings in every row. */
	UFUNCTION(BlueprintCallable, Category = "HalvexSettingGeneral")
	void RefreshChildrenSettingsItems();

	/** Bound to the apply button's click; the name does not matter. */
	UFUNCTION(BlueprintCallable, Category = "HalvexSettingGeneral")
	void ReceivedApplyConfirmation(FName InId);

	/** Bound to each row's change that waits. */
	UFUNCTION(BlueprintCallable, Category = "HalvexSettingGeneral")
	void ReceivedSettingItemDirty(UHalvexSettingItem* Item);

protected:
	virtual void NativeOnInitialized() override;
	virtual void NativeConstruct() override;

	/** The rows in the order of the tree. The tree keeps them alive. */
	TArray<UHalvexSettingItem*> SettingsItems;

	/** Whether a row changed since the last apply. */
	bool bSettingsDirty = false;
};
