#pragma once

#include "CoreMinimal.h"
#include "Blueprint/UserWidget.h"
#include "Widgets/HxButton.h"
#include "HalvexButtonUW.generated.h"

class UHalvexButtonUW;
class UWidgetAnimation;

DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnButtonSelectionChanged, UHalvexButtonUW*, ButtonReference);

/** Base of widget blueprints that are one selectable button with a layout of their own. */
UCLASS()
class HALVEXPROUI_API UHalvexButtonUW : public UUserWidget
{
	GENERATED_BODY()

public:
	/** The wrapped button. */
	UPROPERTY(BlueprintReadOnly, Category = "HalvexButtonUW", meta = (BindWidget))
	TObjectPtr<UHxButton> SelectableButton;

	/** For the blueprint to play when the pointer comes. */
	UPROPERTY(Transient, BlueprintReadOnly, Category = "HalvexButtonUW", meta = (BindWidgetAnimOptional))
	TObjectPtr<UWidgetAnimation> HoverAnimation;

	/** For the blueprint to play when the pointer goes. */
	UPROPERTY(Transient, BlueprintReadOnly, Category = "HalvexButtonUW", meta = (BindWidgetAnimOptional))
	TObjectPtr<UWidgetAnimation> UnHoverAnimation;

	/** Events */
	UPROPERTY(BlueprintAssignable, Category = "HalvexButtonUW")
	FOnClickWithID OnButtonPressed;

	/** Called after the selection of the wrapped button changed. */
	UPROPERTY(BlueprintAssignable, Category = "HalvexButtonUW")
	FOnButtonSelectionChanged OnButtonSelectionChange;

	/** Name that the clicks carry; the wrapped button takes it at construction. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexButtonUW", meta = (ExposeOnSpawn = "true"))
	FName ButtonID = NAME_None;

	/** Whether the wrapped button is selected at construction. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexButtonUW")
	bool bStartSelected = false;

	/** What a click does to the selection; the wrapped button takes it at construction. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexButtonUW")
	EButtonSelectionMode ButtonSelectionMode = EButtonSelectionMode::EBSM_None;

	/** Selects the wrapped button, which must be bound. */
	UFUNCTION(BlueprintCallable, Category = "HalvexButtonUW")
	void SelectButton();

	UFUNCTION(BlueprintCallable, Category = "HalvexButtonUW")
	void UnSelectButton();

	/** True for a selected button that has a selection mode. */
	UFUNCTION(BlueprintPure, Category = "HalvexButtonUW")
	bool IsSelectedButton() const;

	/** Name of the wrapped button, which may differ from this widget's before construction. */
	UFUNCTION(BlueprintPure, Category = "HalvexButtonUW")
	FName GetButtonID() const;

	/** Called on every change of the selection, ahead of OnButtonSelectionChange. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCallable, Category = "HalvexButtonUW")
	void OnSelectionButtonChanged(bool Selected);

	/** Bound to the wrapped button's change of selection. */
	UFUNCTION(BlueprintCallable, Category = "HalvexButtonUW")
	void Received_ButtonSelectionChanged(UHxButton* ButtonChanged, bool bSelected);

protected:
	virtual void NativeOnInitialized() override;
	virtual void NativePreConstruct() override;
	virtual void NativeConstruct() override;

private:
	/** Hands mode, start selection and name to the wrapped button, in this order. */
	void PushSettingsToButton();
};
