#include "Components/CanvasPanel.h"

#include "Components/CanvasPanelSlot.h"
#include "Widgets/Layout/SConstraintCanvas.h"

#define LOCTEXT_NAMESPACE "UMG"

UCanvasPanel::UCanvasPanel(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	SetVisibility(ESlateVisibility::SelfHitTestInvisible);
}

UCanvasPanelSlot* UCanvasPanel::AddChildToCanvas(UWidget* Content)
{
	return Cast<UCanvasPanelSlot>(AddChild(Content));
}

void UCanvasPanel::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	MyCanvas.Reset();
}

#if WITH_EDITOR
const FText UCanvasPanel::GetPaletteCategory()
{
	return LOCTEXT("Panel", "Panel");
}
#endif

UClass* UCanvasPanel::GetSlotClass() const
{
	return UCanvasPanelSlot::StaticClass();
}

void UCanvasPanel::OnSlotAdded(UPanelSlot* InSlot)
{
	if (MyCanvas)
	{
		CastChecked<UCanvasPanelSlot>(InSlot)->BuildSlot(MyCanvas.ToSharedRef());
	}
}

void UCanvasPanel::OnSlotRemoved(UPanelSlot* InSlot)
{
	if (const TSharedPtr<SWidget> Child = MyCanvas && InSlot->Content ? InSlot->Content->GetCachedWidget() : nullptr)
	{
		MyCanvas->RemoveSlot(Child.ToSharedRef());
	}
}

TSharedRef<SWidget> UCanvasPanel::RebuildWidget()
{
	MyCanvas = SNew(SConstraintCanvas);
	for (UPanelSlot* PanelSlot : Slots)
	{
		CastChecked<UCanvasPanelSlot>(PanelSlot)->BuildSlot(MyCanvas.ToSharedRef());
	}
	return MyCanvas.ToSharedRef();
}

#undef LOCTEXT_NAMESPACE
