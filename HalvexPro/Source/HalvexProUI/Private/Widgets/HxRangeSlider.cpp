#include "Widgets/HxRangeSlider.h"

#include "Widgets/HxRangeModel.h"
#include "Widgets/HxWidgetSupport.h"
#include "Widgets/SHxRangeSlider.h"

namespace
{
	/** Sizes that are none count as nothing. */
	float ToLength(float Value)
	{
		return FMath::IsFinite(Value) ? FMath::Max(Value, 0.0f) : 0.0f;
	}
}

UHxRangeSlider::UHxRangeSlider(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, BarColor(TEXT("Third"), false)
{
	BarColor.bOverrideOpacity = true;
	BarColor.OpacityOverride = 0.2f;
}

void UHxRangeSlider::SetLimits(float InMin, float InMax)
{
	FHxRangeModel Model = MakeModel();
	Model.SetLimits(InMin, InMax);
	Apply(Model);
}

void UHxRangeSlider::SetRange(float InLower, float InUpper)
{
	FHxRangeModel Model = MakeModel();
	Model.SetRange(InLower, InUpper);
	Apply(Model);
}

void UHxRangeSlider::SetStepSize(float InStepSize)
{
	StepSize = InStepSize;
	Apply(MakeModel());
}

void UHxRangeSlider::SetMinimumSpan(float InMinimumSpan)
{
	MinimumSpan = InMinimumSpan;
	Apply(MakeModel());
}

void UHxRangeSlider::SetLocked(bool bInLocked)
{
	bLocked = bInLocked;
	if (MySlider.IsValid())
	{
		MySlider->SetLocked(bLocked);
	}
}

float UHxRangeSlider::GetLowerValue() const
{
	return MakeModel().LowerValue;
}

float UHxRangeSlider::GetUpperValue() const
{
	return MakeModel().UpperValue;
}

bool UHxRangeSlider::IsWholeRange() const
{
	return MakeModel().IsWhole();
}

void UHxRangeSlider::UpdateStyle()
{
	if (MySlider.IsValid())
	{
		FHxRangeSliderStyle Style;
		Style.BarColor = BarColor.GetColor();
		Style.RangeColor = RangeColor.GetColor();
		Style.HandleColor = HandleColor.GetColor();
		Style.FocusColor = FocusColor.GetColor();
		Style.BarThickness = ToLength(BarThickness);
		Style.HandleSize = ToLength(HandleSize);
		MySlider->SetStyle(Style);
	}
}

void UHxRangeSlider::SynchronizeProperties()
{
	UpdateStyle();
	Super::SynchronizeProperties();
	Apply(MakeModel());
	SetLocked(bLocked);
}

void UHxRangeSlider::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	MySlider.Reset();
}

#if WITH_EDITOR
const FText UHxRangeSlider::GetPaletteCategory()
{
	return HxWidgetSupport::GetPaletteCategory();
}
#endif

TSharedRef<SWidget> UHxRangeSlider::RebuildWidget()
{
	MySlider = SNew(SHxRangeSlider)
		.OnRangeChanged(BIND_UOBJECT_DELEGATE(FOnHxRange, HandleRangeChanged))
		.OnRangeCommitted(BIND_UOBJECT_DELEGATE(FOnHxRange, HandleRangeCommitted));
	return MySlider.ToSharedRef();
}

void UHxRangeSlider::HandleRangeChanged(float Lower, float Upper)
{
	LowerValue = Lower;
	UpperValue = Upper;
	OnRangeChanged.Broadcast(Lower, Upper);
}

void UHxRangeSlider::HandleRangeCommitted(float Lower, float Upper)
{
	OnRangeCommitted.Broadcast(Lower, Upper);
}

FHxRangeModel UHxRangeSlider::MakeModel() const
{
	FHxRangeModel Model;
	Model.MinValue = MinValue;
	Model.MaxValue = MaxValue;
	Model.StepSize = StepSize;
	Model.MinimumSpan = MinimumSpan;
	Model.LowerValue = LowerValue;
	Model.UpperValue = UpperValue;
	Model.Settle();
	return Model;
}

void UHxRangeSlider::Apply(const FHxRangeModel& Model)
{
	MinValue = Model.MinValue;
	MaxValue = Model.MaxValue;
	LowerValue = Model.LowerValue;
	UpperValue = Model.UpperValue;
	if (MySlider.IsValid())
	{
		MySlider->SetModel(Model);
	}
}
