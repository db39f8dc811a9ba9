#include "Components/CanvasPanelSlot.h"

#include "Components/Widget.h"
#include "Widgets/SNullWidget.h"

UCanvasPanelSlot::UCanvasPanelSlot(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

void UCanvasPanelSlot::SetLayout(const FAnchorData& InLayoutData)
{
	LayoutData = InLayoutData;
	if (Slot)
	{
		Slot->SetOffset(LayoutData.Offsets);
		Slot->SetAnchors(LayoutData.Anchors);
		Slot->SetAlignment(LayoutData.Alignment);
	}
}

void UCanvasPanelSlot::SetPosition(FVector2D InPosition)
{
	FMargin Offsets = LayoutData.Offsets;
	Offsets.Left = static_cast<float>(InPosition.X);
	Offsets.Top = static_cast<float>(InPosition.Y);
	SetOffsets(Offsets);
}

FVector2D UCanvasPanelSlot::GetPosition() const
{
	return FVector2D(LayoutData.Offsets.Left, LayoutData.Offsets.Top);
}

void UCanvasPanelSlot::SetSize(FVector2D InSize)
{
	FMargin Offsets = LayoutData.Offsets;
	Offsets.Right = static_cast<float>(InSize.X);
	Offsets.Bottom = static_cast<float>(InSize.Y);
	SetOffsets(Offsets);
}

FVector2D UCanvasPanelSlot::GetSize() const
{
	return FVector2D(LayoutData.Offsets.Right, LayoutData.Offsets.Bottom);
}

void UCanvasPanelSlot::SetOffsets(FMargin InOffset)
{
	LayoutData.Offsets = InOffset;
	if (Slot)
	{
		Slot->SetOffset(InOffset);
	}
}

void UCanvasPanelSlot::SetAnchors(FAnchors InAnchors)
{
	LayoutData.Anchors = InAnchors;
	if (Slot)
	{
		Slot->SetAnchors(InAnchors);
	}
}

void UCanvasPanelSlot::SetAlignment(FVector2D InAlignment)
{
	LayoutData.Alignment = InAlignment;
	if (Slot)
	{
		Slot->SetAlignment(InAlignment);
	}
}

void UCanvasPanelSlot::SetAutoSize(bool InbAutoSize)
{
	bAutoSize = InbAutoSize;
	if (Slot)
	{
		Slot->SetAutoSize(InbAutoSize);
	}
}

void UCanvasPanelSlot::SetZOrder(int32 InZOrder)
{
	ZOrder = InZOrder;
	if (Slot)
	{
		Slot->SetZOrder(static_cast<float>(InZOrder));
	}
}

void UCanvasPanelSlot::SynchronizeProperties()
{
	SetLayout(LayoutData);
	SetAutoSize(bAutoSize);
	SetZOrder(ZOrder);
}

void UCanvasPanelSlot::ReleaseSlateResources(bool bReleaseChildren)
{
	Super::ReleaseSlateResources(bReleaseChildren);
	Slot = nullptr;
}

void UCanvasPanelSlot::BuildSlot(TSharedRef<SConstraintCanvas> Canvas)
{
	Canvas->AddSlot()
		.Expose(Slot)
		.ZOrder(static_cast<float>(ZOrder))
		[
			Content ? Content->TakeWidget() : SNullWidget::NullWidget
		];
	SynchronizeProperties();
}
