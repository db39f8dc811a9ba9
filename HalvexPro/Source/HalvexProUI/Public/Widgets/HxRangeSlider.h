#pragma once

#include "CoreMinimal.h"
#include "Components/Widget.h"
#include "Style/HalvexStyleModels.h"
#include "HxRangeSlider.generated.h"

class SHxRangeSlider;
struct FHxRangeModel;
struct FHxRangeSliderStyle;

DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnHxRangeEvent, float, Lower, float, Upper);

/**
 * Lets the user choose a range of numbers by two handles on a bar. Events come from what the user does; functions raise none. While
 * there is no room between the limits the slider is inert and looks disabled.
 */
UCLASS()
class HALVEXPROUI_API UHxRangeSlider : public UWidget
{
	GENERATED_BODY()

public:
	UHxRangeSlider(const FObjectInitializer& ObjectInitializer);

	/** The value at the left end. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxRangeSlider")
	float MinValue = 0.0f;

	/** The value at the right end. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxRangeSlider")
	float MaxValue = 1.0f;

	/** Where the range begins. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxRangeSlider")
	float LowerValue = 0.0f;

	/** Where the range ends. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxRangeSlider")
	float UpperValue = 1.0f;

	/** Both ends are the minimum plus a multiple of it, or the maximum; with 0 they can be anywhere, and keys move by a hundredth of the limits. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxRangeSlider", meta = (ClampMin = "0"))
	float StepSize = 0.0f;

	/** The least that the two ends are apart. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxRangeSlider", meta = (ClampMin = "0"))
	float MinimumSpan = 0.0f;

	/** The user cannot move the handles. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxRangeSlider")
	bool bLocked = false;

	/** Colour of the bar. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxRangeSlider")
	FHalvexColorHandler BarColor;

	/** Colour of the bar between the handles. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxRangeSlider")
	FHalvexColorHandler RangeColor;

	/** Colour of the handles, and of the halo that a handle has under the pointer. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxRangeSlider")
	FHalvexColorHandler HandleColor;

	/** Colour of the ring around the handle that has the keyboard. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxRangeSlider")
	FHalvexColorHandler FocusColor = FHalvexColorHandler(TEXT("Third"), false);

	/** Thickness of the bar, in Slate units. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxRangeSlider", meta = (ClampMin = "0"))
	float BarThickness = 4.0f;

	/** Diameter of the handles, in Slate units. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HxRangeSlider", meta = (ClampMin = "0"))
	float HandleSize = 16.0f;

	/** Called whenever the user moved the range, also while a drag goes on, and when Escape took a drag back. */
	UPROPERTY(BlueprintAssignable, Category = "HxRangeSlider")
	FOnHxRangeEvent OnRangeChanged;

	/** Called once the user is done with moving it: at the end of a drag, and after each step by key or wheel. */
	UPROPERTY(BlueprintAssignable, Category = "HxRangeSlider")
	FOnHxRangeEvent OnRangeCommitted;

	/** Sets both limits. Ends that lay on a limit stay on it; others stay where they are, as far as limits and steps allow. */
	UFUNCTION(BlueprintCallable, Category = "HxRangeSlider")
	void SetLimits(float InMin, float InMax);

	/** Sets both ends, in either order; they go where limits, steps and minimum span allow them. Raises no event. */
	UFUNCTION(BlueprintCallable, Category = "HxRangeSlider")
	void SetRange(float InLower, float InUpper);

	/** Sets the distance of the values that the ends can have, 0 for any; the ends go to the nearest ones. */
	UFUNCTION(BlueprintCallable, Category = "HxRangeSlider")
	void SetStepSize(float InStepSize);

	/** Sets the least that the two ends are apart. */
	UFUNCTION(BlueprintCallable, Category = "HxRangeSlider")
	void SetMinimumSpan(float InMinimumSpan);

	/** Sets whether the handles stay where they are, whatever the user does. */
	UFUNCTION(BlueprintCallable, Category = "HxRangeSlider")
	void SetLocked(bool bInLocked);

	/** Where the range begins. */
	UFUNCTION(BlueprintCallable, Category = "HxRangeSlider")
	float GetLowerValue() const;

	/** Where the range ends. */
	UFUNCTION(BlueprintCallable, Category = "HxRangeSlider")
	float GetUpperValue() const;

	/** Whether the range leaves nothing between the limits out; true while there is no room between them. */
	UFUNCTION(BlueprintCallable, Category = "HxRangeSlider")
	bool IsWholeRange() const;

	/** Shows the properties in the project's style of now. */
	UFUNCTION(BlueprintCallable, Category = "HxRangeSlider")
	void UpdateStyle();

	virtual void SynchronizeProperties() override;
	virtual void ReleaseSlateResources(bool bReleaseChildren) override;

#if WITH_EDITOR
	virtual const FText GetPaletteCategory() override;
#endif

protected:
	virtual TSharedRef<SWidget> RebuildWidget() override;

	void HandleRangeChanged(float Lower, float Upper);
	void HandleRangeCommitted(float Lower, float Upper);

private:
	/** The properties as the rules of the range have them. */
	FHxRangeModel MakeModel() const;

	/** Takes the ends and limits of a model over, and shows them. */
	void Apply(const FHxRangeModel& Model);

	TSharedPtr<SHxRangeSlider> MySlider;
};
