#include "Components/ScaleBoxSlot.h"

#include "Components/Widget.h"
#include "Widgets/Layout/SScaleBox.h"
#include "Widgets/SNullWidget.h"

UScaleBoxSlot::UScaleBoxSlot(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

void UScaleBoxSlot::SetHorizontalAlignment(EHorizontalAlignment InHorizontalAlignment)
{
	HorizontalAlignment = InHorizontalAlignment;
	if (const TSharedPtr<SScaleBox> Pinned = ScaleBox.Pin())
	{
		Pinned->SetHAlign(InHorizontalAlignment);
	}
}

void UScaleBoxSlot::SetVerticalAlignment(EVerticalAlignment InVerticalAlignment)
{
	VerticalAlignment = InVerticalAlignment;
	if (const TSharedPtr<SScaleBox> Pinned = ScaleBox.Pin())
	{
		Pinned->SetVAlign(InVerticalAlignment);
	}
}

void UScaleBoxSlot::SynchronizeProperties()
{
	SetHorizontalAlignment(HorizontalAlignment);
	SetVerticalAlignment(VerticalAlignment);
}

void UScaleBoxSlot::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	ScaleBox.Reset();
}

void UScaleBoxSlot::BuildSlot(TSharedRef<SScaleBox> InScaleBox)
{
	ScaleBox = InScaleBox;
	InScaleBox->SetContent(Content ? Content->TakeWidget() : SNullWidget::NullWidget);
	SynchronizeProperties();
}
