#pragma once

#include "CoreMinimal.h"
#include "Blueprint/UserWidget.h"
#include "HalvexButtonGroupSelectionUW.generated.h"

class UHalvexButtonUW;
class UPanelWidget;

DECLARE_DYNAMIC_MULTICAST_DELEGATE(FOnClearSelection);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnSelectionChange, int32, SelectionIndex, FName, ButtonSelected);

/** Base of widget blueprints that hold button user widgets in a panel, of which one is selected at most. */
UCLASS()
class HALVEXPROUI_API UHalvexButtonGroupSelectionUW : public UUserWidget
{
	GENERATED_BODY()

public:
	/** The panel whose direct children are the members. */
	UPROPERTY(BlueprintReadOnly, Category = "HalvexButtonGroupSelectionUW", meta = (BindWidget))
	TObjectPtr<UPanelWidget> ButtonsContainer;

	/** The members in the order of the panel. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexButtonGroupSelectionUW", meta = (EditInline = "true"))
	TArray<TObjectPtr<UHalvexButtonUW>> ButtonList;

	/** Called when the selection was cleared. */
	UPROPERTY(BlueprintAssignable, Category = "HalvexButtonGroupSelectionUW")
	FOnClearSelection OnClearSelection;

	/** Called when another member becomes the current one, before the previous one is deselected. */
	UPROPERTY(BlueprintAssignable, Category = "HalvexButtonGroupSelectionUW")
	FOnSelectionChange OnSelectionChange;

	/** The selected member, or none. */
	UPROPERTY(Transient, BlueprintReadOnly, Category = "HalvexButtonGroupSelectionUW", meta = (EditInline = "true"))
	TObjectPtr<UHalvexButtonUW> CurrentSelection;

	/** Replaces the members and listens to them. */
	UFUNCTION(BlueprintCallable, Category = "HalvexColorHandler")
	void RefreshButtonReferences(TArray<UHalvexButtonUW*> InButtonList);

	/**
	 * Makes the member the current one, tells of it, and deselects the previous one. The member's own button is not touched:
	 * one that does not show selected stays so. For the current member this clears the selection; callers rely on it.
	 */
	UFUNCTION(BlueprintCallable, Category = "HalvexButtonGroupSelectionUW")
	void SetSelectionByButton(UHalvexButtonUW* ButtonReference);

	/** As SetSelectionByButton, for the first member whose button has the name. The list must not hold null. */
	UFUNCTION(BlueprintCallable, Category = "HalvexButtonGroupSelectionUW")
	void SetSelectionByButtonID(FName ButtonID);

	/** As SetSelectionByButton, for the member at the place; nothing happens for a place without one. */
	UFUNCTION(BlueprintCallable, Category = "HalvexButtonGroupSelectionUW")
	void SetSelectionByIndex(int32 ButtonIndex);

	/** Deselects every member. */
	UFUNCTION(BlueprintCallable, Category = "HalvexButtonGroupSelectionUW")
	void ClearAllButtonSelection();

	/** Place of the current member; -1 without one. */
	UFUNCTION(BlueprintPure, Category = "HalvexButtonGroupSelectionUW")
	int32 GetSelectedButtonIndex() const;

	/** Name of the current member's button; none without one. */
	UFUNCTION(BlueprintPure, Category = "HalvexButtonGroupSelectionUW")
	FName GetSelectedButtonID() const;

	UFUNCTION(BlueprintPure, Category = "HalvexButtonGroupSelectionUW")
	bool HasSelection() const;

	/** Bound to each member's change of selection. */
	UFUNCTION(BlueprintCallable, Category = "HalvexButtonGroupSelectionUW")
	void Received_ButtonSelectionChanged(UHalvexButtonUW* ButtonChangeSelection);

protected:
	/** Listens to every member, once. */
	virtual void BindButtonActions();

	/** Adds the panel's members that are not in the list yet. */
	virtual void ScanForChildren();

	virtual void NativeOnInitialized() override;
	virtual void NativePreConstruct() override;
	virtual void NativeConstruct() override;
};
