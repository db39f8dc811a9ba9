#include "Components/Spacer.h"

#include "Widgets/Layout/SSpacer.h"

#define LOCTEXT_NAMESPACE "UMG"

USpacer::USpacer(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	SetVisibility(ESlateVisibility::SelfHitTestInvisible);
}

void USpacer::SetSize(FVector2D InSize)
{
	Size = InSize;
	if (MySpacer)
	{
		MySpacer->SetSize(InSize);
	}
}

void USpacer::SynchronizeProperties()
{
	Super::SynchronizeProperties();
	SetSize(Size);
}

void USpacer::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	MySpacer.Reset();
}

#if WITH_EDITOR
const FText USpacer::GetPaletteCategory()
{
	return LOCTEXT("Primitive", "Primitive");
}
#endif

TSharedRef<SWidget> USpacer::RebuildWidget()
{
	MySpacer = SNew(SSpacer).Size(Size);
	return MySpacer.ToSharedRef();
}

#undef LOCTEXT_NAMESPACE
