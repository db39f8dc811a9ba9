#include "Components/BorderSlot.h"

#include "Components/Widget.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/SNullWidget.h"

UBorderSlot::UBorderSlot(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

void UBorderSlot::SetPadding(FMargin InPadding)
{
	Padding = InPadding;
	if (const TSharedPtr<SBorder> Pinned = Border.Pin())
	{
		Pinned->SetPadding(InPadding);
	}
}

void UBorderSlot::SetHorizontalAlignment(EHorizontalAlignment InHorizontalAlignment)
{
	HorizontalAlignment = InHorizontalAlignment;
	if (const TSharedPtr<SBorder> Pinned = Border.Pin())
	{
		Pinned->SetHAlign(InHorizontalAlignment);
	}
}

void UBorderSlot::SetVerticalAlignment(EVerticalAlignment InVerticalAlignment)
{
	VerticalAlignment = InVerticalAlignment;
	if (const TSharedPtr<SBorder> Pinned = Border.Pin())
	{
		Pinned->SetVAlign(InVerticalAlignment);
	}
}

void UBorderSlot::SynchronizeProperties()
{
	SetPadding(Padding);
	SetHorizontalAlignment(HorizontalAlignment);
	SetVerticalAlignment(VerticalAlignment);
}

void UBorderSlot::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	Border.Reset();
}

void UBorderSlot::BuildSlot(TSharedRef<SBorder> InBorder)
{
	Border = InBorder;
	InBorder->SetContent(Content ? Content->TakeWidget() : SNullWidget::NullWidget);
	SynchronizeProperties();
}
