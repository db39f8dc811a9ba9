#include "Components/ButtonSlot.h"

#include "Components/Widget.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/SNullWidget.h"

UButtonSlot::UButtonSlot(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

void UButtonSlot::SetPadding(FMargin InPadding)
{
	Padding = InPadding;
	if (const TSharedPtr<SButton> Pinned = Button.Pin())
	{
		Pinned->SetContentPadding(InPadding);
	}
}

void UButtonSlot::SetHorizontalAlignment(EHorizontalAlignment InHorizontalAlignment)
{
	HorizontalAlignment = InHorizontalAlignment;
	if (const TSharedPtr<SButton> Pinned = Button.Pin())
	{
		Pinned->SetHAlign(InHorizontalAlignment);
	}
}

void UButtonSlot::SetVerticalAlignment(EVerticalAlignment InVerticalAlignment)
{
	VerticalAlignment = InVerticalAlignment;
	if (const TSharedPtr<SButton> Pinned = Button.Pin())
	{
		Pinned->SetVAlign(InVerticalAlignment);
	}
}

void UButtonSlot::SynchronizeProperties()
{
	SetPadding(Padding);
	SetHorizontalAlignment(HorizontalAlignment);
	SetVerticalAlignment(VerticalAlignment);
}

void UButtonSlot::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	Button.Reset();
}

void UButtonSlot::BuildSlot(TSharedRef<SButton> InButton)
{
	Button = InButton;
	InButton->SetContent(Content ? Content->TakeWidget() : SNullWidget::NullWidget);
	SynchronizeProperties();
}
