#include "Components/Overlay.h"

#include "Components/OverlaySlot.h"
#include "Widgets/SOverlay.h"

#define LOCTEXT_NAMESPACE "UMG"

UOverlay::UOverlay(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	SetVisibility(ESlateVisibility::SelfHitTestInvisible);
}

UOverlaySlot* UOverlay::AddChildToOverlay(UWidget* Content)
{
	return Cast<UOverlaySlot>(AddChild(Content));
}

void UOverlay::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	MyOverlay.Reset();
}

#if WITH_EDITOR
const FText UOverlay::GetPaletteCategory()
{
	return LOCTEXT("Panel", "Panel");
}
#endif

UClass* UOverlay::GetSlotClass() const
{
	return UOverlaySlot::StaticClass();
}

void UOverlay::OnSlotAdded(UPanelSlot* InSlot)
{
	if (MyOverlay)
	{
		CastChecked<UOverlaySlot>(InSlot)->BuildSlot(MyOverlay.ToSharedRef());
	}
}

void UOverlay::OnSlotRemoved(UPanelSlot* InSlot)
{
	if (const TSharedPtr<SWidget> Child = MyOverlay && InSlot->Content ? InSlot->Content->GetCachedWidget() : nullptr)
	{
		MyOverlay->RemoveSlot(Child.ToSharedRef());
	}
}

TSharedRef<SWidget> UOverlay::RebuildWidget()
{
	MyOverlay = SNew(SOverlay);
	for (UPanelSlot* PanelSlot : Slots)
	{
		CastChecked<UOverlaySlot>(PanelSlot)->BuildSlot(MyOverlay.ToSharedRef());
	}
	return MyOverlay.ToSharedRef();
}

#undef LOCTEXT_NAMESPACE
