#pragma once

#include "CoreMinimal.h"
#include "Components/Widget.h"
#include "Styling/SlateTypes.h"
#include "Types/SlateEnums.h"
#include "Slider.generated.h"

class SSlider;

DECLARE_DYNAMIC_MULTICAST_DELEGATE(FOnMouseCaptureBeginEvent);
DECLARE_DYNAMIC_MULTICAST_DELEGATE(FOnMouseCaptureEndEvent);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnFloatValueChangedEvent, float, Value);

/** Lets the user choose a number from a range by moving a handle along a bar. */
UCLASS(MinimalAPI)
class USlider : public UWidget
{
	GENERATED_BODY()

public:
	/** How the bar and the handle look. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Style", meta = (DisplayName = "Style"))
	FSliderStyle WidgetStyle;

	/** Whether the mouse too moves the handle in steps; handed on with the other properties. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance", AdvancedDisplay)
	bool MouseUsesStep = false;

	/** Whether the slider can have the keyboard; takes effect when the Slate side is made. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Interaction")
	bool IsFocusable = true;

	/** Called when the user takes hold of the handle by the mouse. */
	UPROPERTY(BlueprintAssignable, Category = "Widget Event")
	FOnMouseCaptureBeginEvent OnMouseCaptureBegin;

	/** Called when the user lets the handle go. */
	UPROPERTY(BlueprintAssignable, Category = "Widget Event")
	FOnMouseCaptureEndEvent OnMouseCaptureEnd;

	/** Called when the user changed the value, which is in force already; changes from code raise nothing. */
	UPROPERTY(BlueprintAssignable, Category = "Widget Event")
	FOnFloatValueChangedEvent OnValueChanged;

	UMG_API USlider(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	UFUNCTION(BlueprintCallable, Category = "Behavior")
	UMG_API float GetValue() const;

	/** Place of the value in the range, from 0 to 1; 1 in an empty range. */
	UFUNCTION(BlueprintCallable, Category = "Behavior")
	UMG_API float GetNormalizedValue() const;

	/** Sets the value; raises nothing. The handle stays at an end for a value outside of the range. */
	UFUNCTION(BlueprintCallable, Category = "Behavior")
	UMG_API void SetValue(float InValue);

	float GetMinValue() const { return MinValue; }

	/** Sets the value at the left or lower end. */
	UFUNCTION(BlueprintCallable, Category = "Behavior")
	UMG_API void SetMinValue(float InValue);

	float GetMaxValue() const { return MaxValue; }

	/** Sets the value at the right or upper end; one below the minimum counts as the minimum. */
	UFUNCTION(BlueprintCallable, Category = "Behavior")
	UMG_API void SetMaxValue(float InValue);

	float GetStepSize() const { return StepSize; }

	/** Sets by how much a key changes the value. */
	UFUNCTION(BlueprintCallable, Category = "Behavior")
	UMG_API void SetStepSize(float InValue);

	EOrientation GetOrientation() const { return Orientation; }

	/** Sets whether values rise to the right or upwards. */
	UMG_API void SetOrientation(EOrientation InOrientation);

	bool HasIndentHandle() const { return IndentHandle; }

	/** Sets whether the bar is shorter than the slider, so that the handle stays within it at both ends. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	UMG_API void SetIndentHandle(bool InValue);

	bool IsLocked() const { return Locked; }

	/** Sets whether the handle stays where it is, whatever the user does. */
	UFUNCTION(BlueprintCallable, Category = "Behavior")
	UMG_API void SetLocked(bool InValue);

	FLinearColor GetSliderBarColor() const { return SliderBarColor; }

	/** Sets the colour that the bar is multiplied with. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	UMG_API void SetSliderBarColor(FLinearColor InValue);

	FLinearColor GetSliderHandleColor() const { return SliderHandleColor; }

	/** Sets the colour that the handle is multiplied with. */
	UFUNCTION(BlueprintCallable, Category = "Appearance")
	UMG_API void SetSliderHandleColor(FLinearColor InValue);

	const FSliderStyle& GetWidgetStyle() const { return WidgetStyle; }

	/** Replaces the style. */
	UMG_API void SetWidgetStyle(const FSliderStyle& InStyle);

	UMG_API virtual void SynchronizeProperties() override;
	UMG_API virtual void ReleaseSlateResources(bool bReleaseChildren) override;

#if WITH_EDITOR
	UMG_API virtual const FText GetPaletteCategory() override;
#endif

protected:
	UMG_API virtual TSharedRef<SWidget> RebuildWidget() override;

	UMG_API void HandleOnValueChanged(float InValue);
	UMG_API void HandleOnMouseCaptureBegin();
	UMG_API void HandleOnMouseCaptureEnd();

	TSharedPtr<SSlider> MySlider;

private:
	/** The value. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance", meta = (AllowPrivateAccess = "true", UIMin = "0", UIMax = "1"))
	float Value = 0.0f;

	/** The value at the left or lower end. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance", meta = (AllowPrivateAccess = "true"))
	float MinValue = 0.0f;

	/** The value at the right or upper end. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance", meta = (AllowPrivateAccess = "true"))
	float MaxValue = 1.0f;

	/** Whether values rise to the right or upwards. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance", meta = (AllowPrivateAccess = "true"))
	TEnumAsByte<EOrientation> Orientation = Orient_Horizontal;

	/** Colour that the bar is multiplied with. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance", meta = (AllowPrivateAccess = "true"))
	FLinearColor SliderBarColor = FLinearColor::White;

	/** Colour that the handle is multiplied with. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance", meta = (AllowPrivateAccess = "true"))
	FLinearColor SliderHandleColor = FLinearColor::White;

	/** Whether the bar is shorter than the slider, so that the handle stays within it at both ends. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance", AdvancedDisplay, meta = (AllowPrivateAccess = "true"))
	bool IndentHandle = true;

	/** Whether the handle stays where it is, whatever the user does. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance", AdvancedDisplay, meta = (AllowPrivateAccess = "true"))
	bool Locked = false;

	/** By how much a key changes the value. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance", AdvancedDisplay, meta = (AllowPrivateAccess = "true"))
	float StepSize = 0.01f;
};
