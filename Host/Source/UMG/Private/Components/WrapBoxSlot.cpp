#include "Components/WrapBoxSlot.h"

#include "Components/Widget.h"
#include "Widgets/SNullWidget.h"

UWrapBoxSlot::UWrapBoxSlot(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

void UWrapBoxSlot::SetPadding(FMargin InPadding)
{
	Padding = InPadding;
	if (Slot)
	{
		Slot->SetPadding(InPadding);
	}
}

void UWrapBoxSlot::SetHorizontalAlignment(EHorizontalAlignment InHorizontalAlignment)
{
	HorizontalAlignment = InHorizontalAlignment;
	if (Slot)
	{
		Slot->SetHorizontalAlignment(InHorizontalAlignment);
	}
}

void UWrapBoxSlot::SetVerticalAlignment(EVerticalAlignment InVerticalAlignment)
{
	VerticalAlignment = InVerticalAlignment;
	if (Slot)
	{
		Slot->SetVerticalAlignment(InVerticalAlignment);
	}
}

void UWrapBoxSlot::SetFillSpanWhenLessThan(float InFillSpanWhenLessThan)
{
	FillSpanWhenLessThan = InFillSpanWhenLessThan;
	if (Slot)
	{
		Slot->SetFillLineWhenSizeLessThan(InFillSpanWhenLessThan == 0.0f ? TOptional<float>() : TOptional<float>(InFillSpanWhenLessThan));
	}
}

void UWrapBoxSlot::SetFillEmptySpace(bool InbFillEmptySpace)
{
	bFillEmptySpace = InbFillEmptySpace;
	if (Slot)
	{
		Slot->SetFillEmptySpace(InbFillEmptySpace);
	}
}

void UWrapBoxSlot::SetNewLine(bool InForceNewLine)
{
	bForceNewLine = InForceNewLine;
	if (Slot)
	{
		Slot->SetForceNewLine(InForceNewLine);
	}
}

void UWrapBoxSlot::SynchronizeProperties()
{
	SetPadding(Padding);
	SetHorizontalAlignment(HorizontalAlignment);
	SetVerticalAlignment(VerticalAlignment);
	SetFillSpanWhenLessThan(FillSpanWhenLessThan);
	SetFillEmptySpace(bFillEmptySpace);
	SetNewLine(bForceNewLine);
}

void UWrapBoxSlot::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	Slot = nullptr;
}

void UWrapBoxSlot::BuildSlot(TSharedRef<SWrapBox> Panel)
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
