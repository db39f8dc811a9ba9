#include "Components/VerticalBox.h"

#include "Components/VerticalBoxSlot.h"
#include "Widgets/SBoxPanel.h"

#define LOCTEXT_NAMESPACE "UMG"

UVerticalBox::UVerticalBox(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	SetVisibility(ESlateVisibility::SelfHitTestInvisible);
}

UVerticalBoxSlot* UVerticalBox::AddChildToVerticalBox(UWidget* Content)
{
	return Cast<UVerticalBoxSlot>(AddChild(Content));
}

void UVerticalBox::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	MyVerticalBox.Reset();
}

#if WITH_EDITOR
const FText UVerticalBox::GetPaletteCategory()
{
	return LOCTEXT("Panel", "Panel");
}
#endif

UClass* UVerticalBox::GetSlotClass() const
{
	return UVerticalBoxSlot::StaticClass();
}

void UVerticalBox::OnSlotAdded(UPanelSlot* InSlot)
{
	if (MyVerticalBox)
	{
		CastChecked<UVerticalBoxSlot>(InSlot)->BuildSlot(MyVerticalBox.ToSharedRef());
	}
}

void UVerticalBox::OnSlotRemoved(UPanelSlot* InSlot)
{
	if (const TSharedPtr<SWidget> Child = MyVerticalBox && InSlot->Content ? InSlot->Content->GetCachedWidget() : nullptr)
	{
		MyVerticalBox->RemoveSlot(Child.ToSharedRef());
	}
}

TSharedRef<SWidget> UVerticalBox::RebuildWidget()
{
	MyVerticalBox = SNew(SVerticalBox);
	for (UPanelSlot* PanelSlot : Slots)
	{
		CastChecked<UVerticalBoxSlot>(PanelSlot)->BuildSlot(MyVerticalBox.ToSharedRef());
	}
	return MyVerticalBox.ToSharedRef();
}

#undef LOCTEXT_NAMESPACE
