#include "ControlListener.h"

#include "Components/CheckBox.h"
#include "Components/Slider.h"

void UControlListener::Listen(UCheckBox& InCheckBox)
{
	CheckBox = &InCheckBox;
	CheckBox->OnCheckStateChanged.AddDynamic(this, &UControlListener::ReceivedCheckState);
}

void UControlListener::Listen(USlider& InSlider)
{
	Slider = &InSlider;
	Slider->OnValueChanged.AddDynamic(this, &UControlListener::ReceivedValue);
	Slider->OnMouseCaptureBegin.AddDynamic(this, &UControlListener::ReceivedCaptureBegin);
	Slider->OnMouseCaptureEnd.AddDynamic(this, &UControlListener::ReceivedCaptureEnd);
}

void UControlListener::ReceivedCheckState(bool bIsChecked)
{
	Events += bIsChecked ? TEXT("Checked") : TEXT("Unchecked");
	Events += CheckBox->IsChecked() == bIsChecked ? TEXT(" ") : TEXT("(late) ");
}

void UControlListener::ReceivedValue(float Value)
{
	Events += FString::Printf(TEXT("%g"), FMath::RoundToFloat(Value * 1000.0f) / 1000.0f);
	Events += Slider->GetValue() == Value ? TEXT(" ") : TEXT("(late) ");
}
