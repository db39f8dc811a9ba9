#include "Components/SizeBoxSlot.h"

#include "Components/Widget.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SNullWidget.h"

USizeBoxSlot::USizeBoxSlot(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

void USizeBoxSlot::SetPadding(FMargin InPadding)
{
	Padding = InPadding;
	if (const TSharedPtr<SBox> Pinned = SizeBox.Pin())
	{
		Pinned->SetPadding(InPadding);
	}
}

void USizeBoxSlot::SetHorizontalAlignment(EHorizontalAlignment InHorizontalAlignment)
{
	HorizontalAlignment = InHorizontalAlignment;
	if (const TSharedPtr<SBox> Pinned = SizeBox.Pin())
	{
		Pinned->SetHAlign(InHorizontalAlignment);
	}
}

void USizeBoxSlot::SetVerticalAlignment(EVerticalAlignment InVerticalAlignment)
{
	VerticalAlignment = InVerticalAlignment;
	if (const TSharedPtr<SBox> Pinned = SizeBox.Pin())
	{
		Pinned->SetVAlign(InVerticalAlignment);
	}
}

void USizeBoxSlot::SynchronizeProperties()
{
	SetPadding(Padding);
	SetHorizontalAlignment(HorizontalAlignment);
	SetVerticalAlignment(VerticalAlignment);
}

void USizeBoxSlot::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	SizeBox.Reset();
}

void USizeBoxSlot::BuildSlot(TSharedRef<SBox> InSizeBox)
{
	SizeBox = InSizeBox;
	InSizeBox->SetContent(Content ? Content->TakeWidget() : SNullWidget::NullWidget);
	SynchronizeProperties();
}
