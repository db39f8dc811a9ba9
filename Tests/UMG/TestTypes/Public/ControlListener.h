#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "ControlListener.generated.h"

class UCheckBox;
class USlider;

/** Writes down the events of a check box or a slider, in order, with what the widget itself says in the meantime. */
UCLASS()
class UMGTESTTYPES_API UControlListener : public UObject
{
	GENERATED_BODY()

public:
	FString Events;

	void Listen(UCheckBox& InCheckBox);
	void Listen(USlider& InSlider);

	UFUNCTION()
	void ReceivedCheckState(bool bIsChecked);
	UFUNCTION()
	void ReceivedValue(float Value);
	UFUNCTION()
	void ReceivedCaptureBegin() { Events += TEXT("Begin "); }
	UFUNCTION()
	void ReceivedCaptureEnd() { Events += TEXT("End "); }

private:
	UPROPERTY()
	TObjectPtr<UCheckBox> CheckBox;

	UPROPERTY()
	TObjectPtr<USlider> Slider;
};
