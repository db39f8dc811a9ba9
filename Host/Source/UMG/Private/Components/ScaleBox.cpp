#include "Components/ScaleBox.h"

#include "Components/ScaleBoxSlot.h"
#include "Widgets/Layout/SScaleBox.h"
#include "Widgets/SNullWidget.h"

#define LOCTEXT_NAMESPACE "UMG"

UScaleBox::UScaleBox(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	SetVisibility(ESlateVisibility::SelfHitTestInvisible);
}

void UScaleBox::SetStretch(EStretch::Type InStretch)
{
	Stretch = InStretch;
	if (MyScaleBox)
	{
		MyScaleBox->SetStretch(InStretch);
	}
}

void UScaleBox::SetStretchDirection(EStretchDirection::Type InStretchDirection)
{
	StretchDirection = InStretchDirection;
	if (MyScaleBox)
	{
		MyScaleBox->SetStretchDirection(InStretchDirection);
	}
}

void UScaleBox::SetUserSpecifiedScale(float InUserSpecifiedScale)
{
	UserSpecifiedScale = InUserSpecifiedScale;
	if (MyScaleBox)
	{
		MyScaleBox->SetUserSpecifiedScale(InUserSpecifiedScale);
	}
}

void UScaleBox::SetIgnoreInheritedScale(bool InIgnoreInheritedScale)
{
	IgnoreInheritedScale = InIgnoreInheritedScale;
	if (MyScaleBox)
	{
		MyScaleBox->SetIgnoreInheritedScale(InIgnoreInheritedScale);
	}
}

void UScaleBox::SynchronizeProperties()
{
	Super::SynchronizeProperties();
	if (!MyScaleBox)
	{
		return;
	}
	MyScaleBox->SetStretch(Stretch.GetValue());
	MyScaleBox->SetStretchDirection(StretchDirection.GetValue());
	MyScaleBox->SetUserSpecifiedScale(UserSpecifiedScale);
	MyScaleBox->SetIgnoreInheritedScale(IgnoreInheritedScale);
}

void UScaleBox::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	MyScaleBox.Reset();
}

#if WITH_EDITOR
const FText UScaleBox::GetPaletteCategory()
{
	return LOCTEXT("Panel", "Panel");
}
#endif

TSharedRef<SWidget> UScaleBox::RebuildWidget()
{
	MyScaleBox = SNew(SScaleBox);
	if (UPanelSlot* ContentSlot = GetContentSlot())
	{
		OnSlotAdded(ContentSlot);
	}
	return MyScaleBox.ToSharedRef();
}

UClass* UScaleBox::GetSlotClass() const
{
	return UScaleBoxSlot::StaticClass();
}

void UScaleBox::OnSlotAdded(UPanelSlot* InSlot)
{
	if (MyScaleBox)
	{
		CastChecked<UScaleBoxSlot>(InSlot)->BuildSlot(MyScaleBox.ToSharedRef());
	}
}

void UScaleBox::OnSlotRemoved(UPanelSlot*)
{
	if (MyScaleBox)
	{
		MyScaleBox->SetContent(SNullWidget::NullWidget);
	}
}

#undef LOCTEXT_NAMESPACE
