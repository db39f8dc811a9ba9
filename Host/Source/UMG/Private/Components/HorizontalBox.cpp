#include "Components/HorizontalBox.h"

#include "Components/HorizontalBoxSlot.h"
#include "Widgets/SBoxPanel.h"

#define LOCTEXT_NAMESPACE "UMG"

UHorizontalBox::UHorizontalBox(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	SetVisibility(ESlateVisibility::SelfHitTestInvisible);
}

UHorizontalBoxSlot* UHorizontalBox::AddChildToHorizontalBox(UWidget* Content)
{
	return Cast<UHorizontalBoxSlot>(AddChild(Content));
}

void UHorizontalBox::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	MyHorizontalBox.Reset();
}

#if WITH_EDITOR
const FText UHorizontalBox::GetPaletteCategory()
{
	return LOCTEXT("Panel", "Panel");
}
#endif

UClass* UHorizontalBox::GetSlotClass() const
{
	return UHorizontalBoxSlot::StaticClass();
}

void UHorizontalBox::OnSlotAdded(UPanelSlot* InSlot)
{
	if (MyHorizontalBox)
	{
		CastChecked<UHorizontalBoxSlot>(InSlot)->BuildSlot(MyHorizontalBox.ToSharedRef());
	}
}

void UHorizontalBox::OnSlotRemoved(UPanelSlot* InSlot)
{
	if (const TSharedPtr<SWidget> Child = MyHorizontalBox && InSlot->Content ? InSlot->Content->GetCachedWidget() : nullptr)
	{
		MyHorizontalBox->RemoveSlot(Child.ToSharedRef());
	}
}

TSharedRef<SWidget> UHorizontalBox::RebuildWidget()
{
	MyHorizontalBox = SNew(SHorizontalBox);
	for (UPanelSlot* PanelSlot : Slots)
	{
		CastChecked<UHorizontalBoxSlot>(PanelSlot)->BuildSlot(MyHorizontalBox.ToSharedRef());
	}
	return MyHorizontalBox.ToSharedRef();
}

#undef LOCTEXT_NAMESPACE
