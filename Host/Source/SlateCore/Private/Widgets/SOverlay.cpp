#include "Widgets/SOverlay.h"

#include "Layout/LayoutUtils.h"

void SOverlay::FOverlaySlot::Construct(const FChildren& SlotOwner, FSlotArguments&& InArgs)
{
	if (InArgs.SlotZOrder.IsSet())
	{
		ZOrder = InArgs.SlotZOrder.GetValue();
	}
	TBasicLayoutWidgetSlot<FOverlaySlot>::Construct(SlotOwner, MoveTemp(InArgs));
}

void SOverlay::FOverlaySlot::SetZOrder(int32 InOrder)
{
	if (ZOrder == InOrder)
	{
		return;
	}
	ZOrder = InOrder;
	if (SWidget* OwnerWidget = GetOwnerWidget())
	{
		static_cast<SOverlay*>(OwnerWidget)->Children.StableSort([](const FOverlaySlot& A, const FOverlaySlot& B) { return A.ZOrder < B.ZOrder; });
	}
}

SOverlay::SOverlay() : Children(this)
{
}

void SOverlay::Construct(const FArguments& InArgs)
{
	for (FOverlaySlot::FSlotArguments& Arguments : const_cast<TArray<FOverlaySlot::FSlotArguments>&>(InArgs._Slots))
	{
		const int32 ZOrder = Arguments.SlotZOrder.Get(INDEX_NONE);
		const int32 Place = PlaceFor(ZOrder);
		if (ZOrder == INDEX_NONE)
		{
			Arguments.ZOrder(Children.IsEmpty() ? 0 : Children[Children.Num() - 1].GetZOrder());
		}
		Children.InsertSlot(MoveTemp(Arguments), Place);
	}
}

int32 SOverlay::PlaceFor(int32 ZOrder) const
{
	int32 Place = Children.Num();
	while (ZOrder != INDEX_NONE && Place > 0 && Children[Place - 1].GetZOrder() > ZOrder)
	{
		--Place;
	}
	return Place;
}

SOverlay::FOverlaySlot::FSlotArguments SOverlay::Slot(int32 ZOrder)
{
	FOverlaySlot::FSlotArguments Arguments(MakeUnique<FOverlaySlot>());
	if (ZOrder != INDEX_NONE)
	{
		Arguments.ZOrder(ZOrder);
	}
	return Arguments;
}

SOverlay::FScopedWidgetSlotArguments SOverlay::AddSlot(int32 ZOrder)
{
	TUniquePtr<FOverlaySlot> Slot = MakeUnique<FOverlaySlot>();
	Slot->ZOrder = ZOrder != INDEX_NONE ? ZOrder : (Children.IsEmpty() ? 0 : Children[Children.Num() - 1].GetZOrder());
	return FScopedWidgetSlotArguments(MoveTemp(Slot), Children, PlaceFor(ZOrder));
}

bool SOverlay::RemoveSlot(const TSharedRef<SWidget>& Widget)
{
	return Children.Remove(Widget) != INDEX_NONE;
}

void SOverlay::RemoveSlot(int32 ZOrder)
{
	for (int32 Index = Children.Num() - 1; Index >= 0; --Index)
	{
		if (ZOrder == INDEX_NONE || Children[Index].GetZOrder() == ZOrder)
		{
			Children.RemoveAt(Index);
			return;
		}
	}
}

FVector2D SOverlay::ComputeDesiredSize(float) const
{
	FVector2D Size(0.0, 0.0);
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const FOverlaySlot& Slot = Children[Index];
		if (!(Slot.GetWidget()->GetVisibility() == EVisibility::Collapsed))
		{
			Size = FVector2D::Max(Size, FVector2D(Slot.GetWidget()->GetDesiredSize()) + Slot.GetPadding().GetDesiredSize());
		}
	}
	return Size;
}

void SOverlay::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		ArrangeSingleChild(AllottedGeometry, ArrangedChildren, Children[Index]);
	}
}
