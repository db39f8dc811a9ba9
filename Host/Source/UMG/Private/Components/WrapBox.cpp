#include "Components/WrapBox.h"

#include "Components/WrapBoxSlot.h"
#include "Widgets/Layout/SWrapBox.h"

#define LOCTEXT_NAMESPACE "UMG"

UWrapBox::UWrapBox(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	SetVisibility(ESlateVisibility::SelfHitTestInvisible);
}

UWrapBoxSlot* UWrapBox::AddChildToWrapBox(UWidget* Content)
{
	return Cast<UWrapBoxSlot>(AddChild(Content));
}

void UWrapBox::SetInnerSlotPadding(FVector2D InPadding)
{
	InnerSlotPadding = InPadding;
	if (MyWrapBox)
	{
		MyWrapBox->SetInnerSlotPadding(InPadding);
	}
}

void UWrapBox::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	MyWrapBox.Reset();
}

void UWrapBox::SynchronizeProperties()
{
	Super::SynchronizeProperties();
	if (MyWrapBox)
	{
		MyWrapBox->SetInnerSlotPadding(InnerSlotPadding);
		MyWrapBox->SetUseAllottedSize(!bExplicitWrapSize);
		MyWrapBox->SetWrapSize(WrapSize);
		MyWrapBox->SetHorizontalAlignment(HorizontalAlignment.GetValue());
		MyWrapBox->SetOrientation(Orientation.GetValue());
	}
}

#if WITH_EDITOR
const FText UWrapBox::GetPaletteCategory()
{
	return LOCTEXT("Panel", "Panel");
}
#endif

UClass* UWrapBox::GetSlotClass() const
{
	return UWrapBoxSlot::StaticClass();
}

void UWrapBox::OnSlotAdded(UPanelSlot* InSlot)
{
	if (MyWrapBox)
	{
		CastChecked<UWrapBoxSlot>(InSlot)->BuildSlot(MyWrapBox.ToSharedRef());
	}
}

void UWrapBox::OnSlotRemoved(UPanelSlot* InSlot)
{
	if (const TSharedPtr<SWidget> Child = MyWrapBox && InSlot->Content ? InSlot->Content->GetCachedWidget() : nullptr)
	{
		MyWrapBox->RemoveSlot(Child.ToSharedRef());
	}
}

TSharedRef<SWidget> UWrapBox::RebuildWidget()
{
	MyWrapBox = SNew(SWrapBox)
		.UseAllottedSize(!bExplicitWrapSize)
		.PreferredSize(WrapSize)
		.InnerSlotPadding(FVector2D(InnerSlotPadding))
		.HAlign(HorizontalAlignment.GetValue())
		.Orientation(Orientation.GetValue());
	for (UPanelSlot* PanelSlot : Slots)
	{
		CastChecked<UWrapBoxSlot>(PanelSlot)->BuildSlot(MyWrapBox.ToSharedRef());
	}
	return MyWrapBox.ToSharedRef();
}

#undef LOCTEXT_NAMESPACE
