#include "Components/VerticalBoxSlot.h"

#include "Components/Widget.h"
#include "Widgets/SNullWidget.h"

UVerticalBoxSlot::UVerticalBoxSlot(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

void UVerticalBoxSlot::SetPadding(FMargin InPadding)
{
	Padding = InPadding;
	if (Slot)
	{
		Slot->SetPadding(InPadding);
	}
}

void UVerticalBoxSlot::SetHorizontalAlignment(EHorizontalAlignment InHorizontalAlignment)
{
	HorizontalAlignment = InHorizontalAlignment;
	if (Slot)
	{
		Slot->SetHorizontalAlignment(InHorizontalAlignment);
	}
}

void UVerticalBoxSlot::SetVerticalAlignment(EVerticalAlignment InVerticalAlignment)
{
	VerticalAlignment = InVerticalAlignment;
	if (Slot)
	{
		Slot->SetVerticalAlignment(InVerticalAlignment);
	}
}

void UVerticalBoxSlot::SetSize(FSlateChildSize InSize)
{
	Size = InSize;
	if (!Slot)
	{
		return;
	}
	if (InSize.SizeRule == ESlateSizeRule::Fill)
	{
		Slot->SetFillHeight(InSize.Value);
	}
	else
	{
		Slot->SetAutoHeight();
	}
}

void UVerticalBoxSlot::SynchronizeProperties()
{
	SetPadding(Padding);
	SetHorizontalAlignment(HorizontalAlignment);
	SetVerticalAlignment(VerticalAlignment);
	SetSize(Size);
}

void UVerticalBoxSlot::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	Slot = nullptr;
}

void UVerticalBoxSlot::BuildSlot(TSharedRef<SVerticalBox> Panel)
{
	Panel->AddSlot()
		.Expose(Slot)
		.Padding(Padding)
		.HAlign(HorizontalAlignment.GetValue())
		.VAlign(VerticalAlignment.GetValue())
		[
			Content ? Content->TakeWidget() : SNullWidget::NullWidget
		];
	SynchronizeProperties();
}
