#pragma once

#include "CoreMinimal.h"
#include "Components/ContentWidget.h"
#include "Framework/SlateDelegates.h"
#include "Input/Reply.h"
#include "Styling/SlateTypes.h"
#include "Types/SlateEnums.h"
#include "Button.generated.h"

class SButton;

DECLARE_DYNAMIC_MULTICAST_DELEGATE(FOnButtonClickedEvent);
DECLARE_DYNAMIC_MULTICAST_DELEGATE(FOnButtonPressedEvent);
DECLARE_DYNAMIC_MULTICAST_DELEGATE(FOnButtonReleasedEvent);
DECLARE_DYNAMIC_MULTICAST_DELEGATE(FOnButtonHoverEvent);

/** Something to click, around one child. */
UCLASS(MinimalAPI)
class UButton : public UContentWidget
{
	GENERATED_BODY()

public:
	/** Called when the button is clicked. */
	UPROPERTY(BlueprintAssignable, Category = "Button|Event")
	FOnButtonClickedEvent OnClicked;

	/** Called when the button is pressed. */
	UPROPERTY(BlueprintAssignable, Category = "Button|Event")
	FOnButtonPressedEvent OnPressed;

	/** Called when the button is released. */
	UPROPERTY(BlueprintAssignable, Category = "Button|Event")
	FOnButtonReleasedEvent OnReleased;

	/** Called when the pointer comes over the button. */
	UPROPERTY(BlueprintAssignable, Category = "Button|Event")
	FOnButtonHoverEvent OnHovered;

	/** Called when the pointer leaves the button. */
	UPROPERTY(BlueprintAssignable, Category = "Button|Event")
	FOnButtonHoverEvent OnUnhovered;

	UMG_API UButton(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	FLinearColor GetColorAndOpacity() const { return ColorAndOpacity; }

	/** Sets the colour that the content is multiplied with. */
	UFUNCTION(BlueprintCallable, Category = "Button|Appearance")
	UMG_API void SetColorAndOpacity(FLinearColor InColorAndOpacity);

	FLinearColor GetBackgroundColor() const { return BackgroundColor; }

	/** Sets the colour that the brushes of the style are multiplied with. */
	UFUNCTION(BlueprintCallable, Category = "Button|Appearance")
	UMG_API void SetBackgroundColor(FLinearColor InBackgroundColor);

	EButtonClickMethod::Type GetClickMethod() const { return ClickMethod; }

	/** Sets which presses and releases of the mouse are a click. */
	UFUNCTION(BlueprintCallable, Category = "Button")
	UMG_API void SetClickMethod(EButtonClickMethod::Type InClickMethod);

	EButtonTouchMethod::Type GetTouchMethod() const { return TouchMethod; }

	/** Sets which touches are a click. */
	UFUNCTION(BlueprintCallable, Category = "Button")
	UMG_API void SetTouchMethod(EButtonTouchMethod::Type InTouchMethod);

	EButtonPressMethod::Type GetPressMethod() const { return PressMethod; }

	/** Sets which keys are a click. */
	UFUNCTION(BlueprintCallable, Category = "Button")
	UMG_API void SetPressMethod(EButtonPressMethod::Type InPressMethod);

	/** Replaces the style. */
	UFUNCTION(BlueprintCallable, Category = "Button|Appearance")
	UMG_API void SetStyle(const FButtonStyle& InStyle);

	UMG_API const FButtonStyle& GetStyle() const { return WidgetStyle; }

	/** True while the user holds the button down. */
	UFUNCTION(BlueprintCallable, Category = "Button")
	UMG_API bool IsPressed() const;

	UMG_API bool GetIsFocusable() const { return IsFocusable; }

	UMG_API virtual void SynchronizeProperties() override;
	UMG_API virtual void ReleaseSlateResources(bool bReleaseChildren) override;

#if WITH_EDITOR
	UMG_API virtual const FText GetPaletteCategory() override;
#endif

protected:
	UMG_API virtual TSharedRef<SWidget> RebuildWidget() override;
	UMG_API virtual UClass* GetSlotClass() const override;
	UMG_API virtual void OnSlotAdded(UPanelSlot* InSlot) override;
	UMG_API virtual void OnSlotRemoved(UPanelSlot* InSlot) override;

	/** Sets whether the button can have the keyboard; for constructors, before the Slate side is made. */
	UMG_API void InitIsFocusable(bool InIsFocusable);

	UMG_API FReply SlateHandleClicked();
	UMG_API void SlateHandlePressed();
	UMG_API void SlateHandleReleased();
	UMG_API void SlateHandleHovered();
	UMG_API void SlateHandleUnhovered();

	TSharedPtr<SButton> MyButton;

private:
	/** How the button looks in its states. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance", meta = (DisplayName = "Style", AllowPrivateAccess = "true"))
	FButtonStyle WidgetStyle;

	/** Colour that the content is multiplied with. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance", meta = (AllowPrivateAccess = "true"))
	FLinearColor ColorAndOpacity = FLinearColor::White;

	/** Colour that the brushes of the style are multiplied with. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance", meta = (AllowPrivateAccess = "true"))
	FLinearColor BackgroundColor = FLinearColor::White;

	/** Which presses and releases of the mouse are a click. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Interaction", meta = (AllowPrivateAccess = "true"))
	TEnumAsByte<EButtonClickMethod::Type> ClickMethod = EButtonClickMethod::DownAndUp;

	/** Which touches are a click. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Interaction", meta = (AllowPrivateAccess = "true"))
	TEnumAsByte<EButtonTouchMethod::Type> TouchMethod = EButtonTouchMethod::DownAndUp;

	/** Which keys are a click. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Interaction", meta = (AllowPrivateAccess = "true"))
	TEnumAsByte<EButtonPressMethod::Type> PressMethod = EButtonPressMethod::DownAndUp;

	/** Whether the button can have the keyboard. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Interaction", meta = (AllowPrivateAccess = "true"))
	bool IsFocusable = true;
};
