#include "Components/NamedSlot.h"

#include "Widgets/Layout/SBox.h"
#include "Widgets/SNullWidget.h"

#define LOCTEXT_NAMESPACE "UMG"

UNamedSlot::UNamedSlot(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	SetVisibility(ESlateVisibility::SelfHitTestInvisible);
}

void UNamedSlot::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	MyBox.Reset();
}

TSharedRef<SWidget> UNamedSlot::RebuildWidget()
{
	MyBox = SNew(SBox);
	if (UPanelSlot* ContentSlot = GetContentSlot())
	{
		OnSlotAdded(ContentSlot);
	}
	return MyBox.ToSharedRef();
}

void UNamedSlot::OnSlotAdded(UPanelSlot* InSlot)
{
	if (MyBox)
	{
		MyBox->SetContent(InSlot->Content ? InSlot->Content->TakeWidget() : SNullWidget::NullWidget);
	}
}

void UNamedSlot::OnSlotRemoved(UPanelSlot*)
{
	if (MyBox)
	{
		MyBox->SetContent(SNullWidget::NullWidget);
	}
}

#if WITH_EDITOR
const FText UNamedSlot::GetPaletteCategory()
{
	return LOCTEXT("Common", "Common");
}
#endif

#undef LOCTEXT_NAMESPACE
