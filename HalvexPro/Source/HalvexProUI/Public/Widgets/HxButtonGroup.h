#pragma once

#include "CoreMinimal.h"
#include "Components/Widget.h"
#include "HxButtonGroup.generated.h"

class UHxButton;

/** How many buttons of a group can be selected. */
UENUM(BlueprintType)
enum class EButtonGroupControlMode : uint8
{
	EBGM_SingleSelection = 0 UMETA(DisplayName = "Single Selection"),
	EBGM_MultiSelection = 1 UMETA(DisplayName = "Multi Selection")
};

DECLARE_DYNAMIC_MULTICAST_DELEGATE(FOnGroupClearSelection);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnGroupSelectionChange, bool, bEmptySelection, const TArray<int32>&, ChangeList);

/** Represents a UI component that manages a group of buttons, enabling behavior and selection control. */
UCLASS()
class HALVEXPROUI_API UHxButtonGroup : public UWidget
{
	GENERATED_BODY()

public:
	/** Called when de selection have been cleaned. */
	UPROPERTY(BlueprintAssignable, Category = "HxButtonGroup")
	FOnGroupClearSelection OnClearSelection;

	/** Called when the selection has changed. */
	UPROPERTY(BlueprintAssignable, Category = "HxButtonGroup")
	FOnGroupSelectionChange OnSelectionChange;

	/** Selection behaviour of the group. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxButtonGroup")
	EButtonGroupControlMode ButtonGroupControlMode = EButtonGroupControlMode::EBGM_SingleSelection;

	/** When false, at least one button stays selected. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxButtonGroup")
	bool bAllowNoneSelection = true;

	/** Buttons to select at first, by their place in the list. Single selection considers only the first index, multi-selection several. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxButtonGroup")
	TArray<int32> SelectedButtonsIndex;

	/** The managed buttons; the place of a button is its index in the group. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxButtonGroup", meta = (EditInline = "true"))
	TArray<TObjectPtr<UHxButton>> ButtonList;

	/** The selected buttons by their index in the group. The order of the map is the order of the group's lists. */
	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "HxButtonGroup", meta = (EditInline = "true"))
	TMap<int32, TObjectPtr<UHxButton>> SelectionButtons;

	/** Appends a button; call RefreshButtonReferences to make it one of the group. */
	UFUNCTION(BlueprintCallable, Category = "Halvex | Button Group")
	void AddButton(UHxButton* InButton);

	/** Takes a button out of the list. It stays bound, and selected in the record if it was, until the next refresh. */
	UFUNCTION(BlueprintCallable, Category = "Halvex | Button Group")
	void RemoveButton(UHxButton* InButton);

	/** Override ButtonList and refresh references bindings */
	UFUNCTION(BlueprintCallable, Category = "Halvex | Button Group")
	void SetButtonList(TArray<UHxButton*> InButtonGroup);

	UFUNCTION(BlueprintCallable, Category = "Halvex | Button Group")
	TArray<UHxButton*> GetButtonList() const;

	/** Binds and numbers the buttons and applies the initial selection, without an event. */
	UFUNCTION(BlueprintCallable, Category = "Halvex | Button Group")
	void RefreshButtonReferences();

	/** Clean all buttons in ButtonList by removing all event bindings and references */
	UFUNCTION(BlueprintCallable, Category = "Halvex | Button Group")
	void CleanButtonList();

	/**
	 * Deselects every button and raises OnClearSelection, also after each button's own change has raised it. A group that does
	 * not allow an empty selection keeps it and raises the event all the same.
	 */
	UFUNCTION(BlueprintCallable, Category = "Halvex | Button Group")
	void ClearAllButtonSelection();

	/** Replaces the initial selection and applies it; raises OnSelectionChange once. */
	UFUNCTION(BlueprintCallable, Category = "Halvex | Button Group")
	void SetSelectedIndex(TArray<int32> InSelection);

	/** Selects the button of the place; nothing happens for a place without one. */
	UFUNCTION(BlueprintCallable, Category = "Halvex | Button Group")
	void SetSelectionByIndex(int32 ButtonIndex);

	/** Selects the button, which must be one of the list. */
	UFUNCTION(BlueprintCallable, Category = "Halvex | Button Group")
	void SetSelectionByButton(UHxButton* InButton);

	/** Selects the first button of the name. The list must not hold null. */
	UFUNCTION(BlueprintCallable, Category = "Halvex | Button Group")
	void SetSelectionByButtonID(FName ButtonID);

	/** Places of the selected buttons in the order of the record, without those that are not in the list any more. */
	UFUNCTION(BlueprintCallable, Category = "Halvex | Button Group")
	TArray<int32> GetSelectionButtonIndexs() const;

	/** Names of the selected buttons in the order of the record. */
	UFUNCTION(BlueprintCallable, Category = "Halvex | Button Group")
	TArray<FName> GetSelectionButtonIDs() const;

	UFUNCTION(BlueprintCallable, Category = "Halvex | Button Group")
	bool HasSelection() const;

	/** Bound to each button's change of selection. */
	UFUNCTION(BlueprintCallable, Category = "Halvex | Button Group")
	void ReceivedOnSelectionChange(UHxButton* ButtonChanged, bool bSelected);

#if WITH_EDITOR
	virtual void PostEditChangeChainProperty(FPropertyChangedChainEvent& PropertyChangedEvent) override;
	virtual const FText GetPaletteCategory() override;
#endif

protected:
	virtual TSharedRef<SWidget> RebuildWidget() override;

	/** Keeps one button selected at most. */
	virtual void OnSingleSelectionChange(UHxButton* Button, bool bSelected);

	/** Keeps the record, and the last button selected where the group must have one. */
	virtual void OnMultiSelectionChange(UHxButton* Button, bool bSelected);

	/** Selects the buttons of the initial selection and deselects the others, without an event. */
	void InitialSelection();

	/** Raises OnSelectionChange with what is selected now. */
	void CallOnSelectionChanged() const;

private:
	/** Drops the records of buttons that do not live any more. */
	void PruneInValidSelectionObject();

	/** Takes the first record away and deselects its button without an event. */
	void DeselectFirstRecorded();
};
