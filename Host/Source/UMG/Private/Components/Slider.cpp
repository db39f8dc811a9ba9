#include "Components/Slider.h"

#include "Framework/SlateDelegates.h"
#include "Styling/CoreStyle.h"
#include "Widgets/Input/SSlider.h"

#define LOCTEXT_NAMESPACE "UMG"

USlider::USlider(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, WidgetStyle(FCoreStyle::Get().GetWidgetStyle<FSliderStyle>("Slider"))
{
}

float USlider::GetValue() const
{
	return MySlider ? MySlider->GetValue() : Value;
}

float USlider::GetNormalizedValue() const
{
	if (MySlider)
	{
		return MySlider->GetNormalizedValue();
	}
	return MaxValue > MinValue ? FMath::Clamp((Value - MinValue) / (MaxValue - MinValue), 0.0f, 1.0f) : 1.0f;
}

void USlider::SetValue(float InValue)
{
	Value = InValue;
	if (MySlider)
	{
		MySlider->SetValue(InValue);
	}
}

void USlider::SetMinValue(float InValue)
{
	MinValue = InValue;
	if (MySlider)
	{
		MySlider->SetMinAndMaxValues(MinValue, MaxValue);
	}
}

void USlider::SetMaxValue(float InValue)
{
	MaxValue = InValue;
	if (MySlider)
	{
		MySlider->SetMinAndMaxValues(MinValue, MaxValue);
	}
}

void USlider::SetStepSize(float InValue)
{
	StepSize = InValue;
	if (MySlider)
	{
		MySlider->SetStepSize(InValue);
	}
}

void USlider::SetOrientation(EOrientation InOrientation)
{
	Orientation = InOrientation;
	if (MySlider)
	{
		MySlider->SetOrientation(InOrientation);
	}
}

void USlider::SetIndentHandle(bool InValue)
{
	IndentHandle = InValue;
	if (MySlider)
	{
		MySlider->SetIndentHandle(InValue);
	}
}

void USlider::SetLocked(bool InValue)
{
	Locked = InValue;
	if (MySlider)
	{
		MySlider->SetLocked(InValue);
	}
}

void USlider::SetSliderBarColor(FLinearColor InValue)
{
	SliderBarColor = InValue;
	if (MySlider)
	{
		MySlider->SetSliderBarColor(FSlateColor(InValue));
	}
}

void USlider::SetSliderHandleColor(FLinearColor InValue)
{
	SliderHandleColor = InValue;
	if (MySlider)
	{
		MySlider->SetSliderHandleColor(FSlateColor(InValue));
	}
}

void USlider::SetWidgetStyle(const FSliderStyle& InStyle)
{
	WidgetStyle = InStyle;
	if (MySlider)
	{
		MySlider->SetStyle(&WidgetStyle);
	}
}

void USlider::HandleOnValueChanged(float InValue)
{
	Value = InValue;
	OnValueChanged.Broadcast(InValue);
}

void USlider::HandleOnMouseCaptureBegin()
{
	OnMouseCaptureBegin.Broadcast();
}

void USlider::HandleOnMouseCaptureEnd()
{
	OnMouseCaptureEnd.Broadcast();
}

void USlider::SynchronizeProperties()
{
	Super::SynchronizeProperties();
	if (!MySlider)
	{
		return;
	}
	MySlider->SetStyle(&WidgetStyle);
	MySlider->SetOrientation(Orientation);
	MySlider->SetSliderBarColor(FSlateColor(SliderBarColor));
	MySlider->SetSliderHandleColor(FSlateColor(SliderHandleColor));
	MySlider->SetMinAndMaxValues(MinValue, MaxValue);
	MySlider->SetValue(Value);
	MySlider->SetLocked(Locked);
	MySlider->SetIndentHandle(IndentHandle);
	MySlider->SetStepSize(StepSize);
	MySlider->SetMouseUsesStep(MouseUsesStep);
}

void USlider::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	MySlider.Reset();
}

#if WITH_EDITOR
const FText USlider::GetPaletteCategory()
{
	return LOCTEXT("Common", "Common");
}
#endif

TSharedRef<SWidget> USlider::RebuildWidget()
{
	MySlider = SNew(SSlider)
		.Style(&WidgetStyle)
		.IsFocusable(IsFocusable)
		.OnMouseCaptureBegin(BIND_UOBJECT_DELEGATE(FSimpleDelegate, HandleOnMouseCaptureBegin))
		.OnMouseCaptureEnd(BIND_UOBJECT_DELEGATE(FSimpleDelegate, HandleOnMouseCaptureEnd))
		.OnValueChanged(BIND_UOBJECT_DELEGATE(FOnFloatValueChanged, HandleOnValueChanged));
	return MySlider.ToSharedRef();
}

#undef LOCTEXT_NAMESPACE
