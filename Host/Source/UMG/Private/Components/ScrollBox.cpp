#include "Components/ScrollBox.h"

#include "Components/ScrollBoxSlot.h"
#include "Styling/CoreStyle.h"
#include "Widgets/Layout/SScrollBox.h"

#define LOCTEXT_NAMESPACE "UMG"

UScrollBox::UScrollBox(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, WidgetBarStyle(FCoreStyle::Get().GetWidgetStyle<FScrollBarStyle>("ScrollBar"))
{
}

float UScrollBox::GetScrollOffset() const
{
	return MyScrollBox ? MyScrollBox->GetScrollOffset() : 0.0f;
}

float UScrollBox::GetScrollOffsetOfEnd() const
{
	return MyScrollBox ? MyScrollBox->GetScrollOffsetOfEnd() : 0.0f;
}

void UScrollBox::SetScrollOffset(float NewScrollOffset)
{
	if (MyScrollBox)
	{
		MyScrollBox->SetScrollOffset(NewScrollOffset);
	}
}

void UScrollBox::ScrollToStart()
{
	if (MyScrollBox)
	{
		MyScrollBox->ScrollToStart();
	}
}

void UScrollBox::ScrollToEnd()
{
	if (MyScrollBox)
	{
		MyScrollBox->ScrollToEnd();
	}
}

void UScrollBox::ScrollWidgetIntoView(UWidget* WidgetToFind)
{
	const TSharedPtr<SWidget> Found = WidgetToFind ? WidgetToFind->GetCachedWidget() : nullptr;
	if (MyScrollBox && Found)
	{
		MyScrollBox->ScrollDescendantIntoView(Found);
	}
}

void UScrollBox::SetOrientation(EOrientation NewOrientation)
{
	Orientation = NewOrientation;
	if (MyScrollBox)
	{
		MyScrollBox->SetOrientation(NewOrientation);
	}
}

void UScrollBox::SetScrollbarPadding(const FMargin& NewScrollbarPadding)
{
	ScrollbarPadding = NewScrollbarPadding;
	if (MyScrollBox)
	{
		MyScrollBox->SetScrollBarPadding(NewScrollbarPadding);
	}
}

void UScrollBox::SetWidgetBarStyle(const FScrollBarStyle& NewWidgetBarStyle)
{
	WidgetBarStyle = NewWidgetBarStyle;
	if (MyScrollBox)
	{
		MyScrollBox->InvalidateScrollBarStyle();
	}
}

void UScrollBox::SlateHandleUserScrolled(float CurrentOffset)
{
	OnUserScrolled.Broadcast(CurrentOffset);
}

void UScrollBox::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	MyScrollBox.Reset();
}

void UScrollBox::SynchronizeProperties()
{
	Super::SynchronizeProperties();
	if (MyScrollBox)
	{
		MyScrollBox->SetOrientation(Orientation.GetValue());
		MyScrollBox->SetScrollBarPadding(ScrollbarPadding);
		MyScrollBox->InvalidateScrollBarStyle();
	}
}

#if WITH_EDITOR
const FText UScrollBox::GetPaletteCategory()
{
	return LOCTEXT("Panel", "Panel");
}
#endif

UClass* UScrollBox::GetSlotClass() const
{
	return UScrollBoxSlot::StaticClass();
}

void UScrollBox::OnSlotAdded(UPanelSlot* InSlot)
{
	if (MyScrollBox)
	{
		CastChecked<UScrollBoxSlot>(InSlot)->BuildSlot(MyScrollBox.ToSharedRef());
	}
}

void UScrollBox::OnSlotRemoved(UPanelSlot* InSlot)
{
	if (const TSharedPtr<SWidget> Child = MyScrollBox && InSlot->Content ? InSlot->Content->GetCachedWidget() : nullptr)
	{
		MyScrollBox->RemoveSlot(Child.ToSharedRef());
	}
}

TSharedRef<SWidget> UScrollBox::RebuildWidget()
{
	MyScrollBox = SNew(SScrollBox)
		.Orientation(Orientation.GetValue())
		.ScrollBarPadding(ScrollbarPadding)
		.ScrollBarStyle(&WidgetBarStyle)
		.OnUserScrolled(BIND_UOBJECT_DELEGATE(FOnUserScrolled, SlateHandleUserScrolled));
	for (UPanelSlot* PanelSlot : Slots)
	{
		CastChecked<UScrollBoxSlot>(PanelSlot)->BuildSlot(MyScrollBox.ToSharedRef());
	}
	return MyScrollBox.ToSharedRef();
}

#undef LOCTEXT_NAMESPACE
