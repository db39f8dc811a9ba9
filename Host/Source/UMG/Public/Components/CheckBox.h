#pragma once

#include "CoreMinimal.h"
#include "Components/ContentWidget.h"
#include "Framework/SlateDelegates.h"
#include "Styling/SlateTypes.h"
#include "Types/SlateEnums.h"
#include "CheckBox.generated.h"

class SCheckBox;

DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnCheckBoxComponentStateChanged, bool, bIsChecked);

/** A box to check and uncheck, or a button that stays down, beside or around one child. */
UCLASS(MinimalAPI)
class UCheckBox : public UContentWidget
{
	GENERATED_BODY()

public:
	/** Where the content lies from left to right; takes effect when the Slate side is made. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Appearance")
	TEnumAsByte<EHorizontalAlignment> HorizontalAlignment = HAlign_Fill;

	/** Called when the user changed the state, which is in force already; changes from code raise nothing. */
	UPROPERTY(BlueprintAssignable, Category = "CheckBox|Event")
	FOnCheckBoxComponentStateChanged OnCheckStateChanged;

	UMG_API UCheckBox(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** True while the user holds the box down. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API bool IsPressed() const;

	/** True when the box is checked; false also while that is undetermined. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API bool IsChecked() const;

	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API ECheckBoxState GetCheckedState() const;

	/** Checks or unchecks the box; raises nothing. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API void SetIsChecked(bool InIsChecked);

	/** Sets the state; raises nothing. */
	UFUNCTION(BlueprintCallable, Category = "Widget")
	UMG_API void SetCheckedState(ECheckBoxState InCheckedState);

	const FCheckBoxStyle& GetWidgetStyle() const { return WidgetStyle; }

	/** Replaces the style. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	UMG_API void SetWidgetStyle(const FCheckBoxStyle& InStyle);

	EButtonClickMethod::Type GetClickMethod() const { return ClickMethod; }

	/** Sets which presses and releases of the mouse change the state. */
	UFUNCTION(BlueprintCallable, Category = "Interaction")
	UMG_API void SetClickMethod(EButtonClickMethod::Type InClickMethod);

	EButtonTouchMethod::Type GetTouchMethod() const { return TouchMethod; }

	/** Sets which touches change the state. */
	UFUNCTION(BlueprintCallable, Category = "Interaction")
	UMG_API void SetTouchMethod(EButtonTouchMethod::Type InTouchMethod);

	EButtonPressMethod::Type GetPressMethod() const { return PressMethod; }

	/** Sets which presses and releases of a key change the state. */
	UFUNCTION(BlueprintCallable, Category = "Interaction")
	UMG_API void SetPressMethod(EButtonPressMethod::Type InPressMethod);

	bool GetIsFocusable() const { return IsFocusable; }

	UMG_API virtual void SynchronizeProperties() override;
	UMG_API virtual void ReleaseSlateResources(bool bReleaseChildren) override;

#if WITH_EDITOR
	UMG_API virtual const FText GetPaletteCategory() override;
#endif

protected:
	UMG_API virtual TSharedRef<SWidget> RebuildWidget() override;
	UMG_API virtual void OnSlotAdded(UPanelSlot* InSlot) override;
	UMG_API virtual void OnSlotRemoved(UPanelSlot* InSlot) override;

	/** Sets whether the box can have the keyboard; for constructors, before the Slate side is made. */
	UMG_API void InitIsFocusable(bool InIsFocusable);

	UMG_API void SlateOnCheckStateChangedCallback(ECheckBoxState NewState);

	TSharedPtr<SCheckBox> MyCheckbox;

private:
	/** Keeps the state and tells who listens to states of the widget. */
	void StoreCheckedState(ECheckBoxState NewState);

	/** Whether the box is checked. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance", meta = (AllowPrivateAccess = "true"))
	ECheckBoxState CheckedState = ECheckBoxState::Unchecked;

	/** How the box looks in its states. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance", meta = (DisplayName = "Style", AllowPrivateAccess = "true"))
	FCheckBoxStyle WidgetStyle;

	/** Which presses and releases of the mouse change the state. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Interaction", meta = (AllowPrivateAccess = "true"))
	TEnumAsByte<EButtonClickMethod::Type> ClickMethod = EButtonClickMethod::DownAndUp;

	/** Which touches change the state. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Interaction", meta = (AllowPrivateAccess = "true"))
	TEnumAsByte<EButtonTouchMethod::Type> TouchMethod = EButtonTouchMethod::DownAndUp;

	/** Which presses and releases of a key change the state. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Interaction", meta = (AllowPrivateAccess = "true"))
	TEnumAsByte<EButtonPressMethod::Type> PressMethod = EButtonPressMethod::DownAndUp;

	/** Whether the box can have the keyboard. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Interaction", meta = (AllowPrivateAccess = "true"))
	bool IsFocusable = true;
};
