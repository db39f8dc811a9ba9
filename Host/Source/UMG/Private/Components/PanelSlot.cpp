#include "Components/PanelSlot.h"

#include "Components/PanelWidget.h"

UPanelSlot::UPanelSlot(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

bool UPanelSlot::IsDesignTime() const
{
	return Parent && Parent->IsDesignTime();
}

void UPanelSlot::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	if (Content && bReleaseChildren)
	{
		Content->ReleaseSlateResources(bReleaseChildren);
	}
}

#if WITH_EDITOR
void UPanelSlot::PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent)
{
	Super::PostEditChangeProperty(PropertyChangedEvent);
	SynchronizeProperties();
}
#endif
