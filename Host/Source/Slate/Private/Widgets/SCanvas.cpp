#include "Widgets/SCanvas.h"

#include "Layout/ArrangedChildren.h"

namespace
{
	/** Share of the child's size that lies before its position. */
	FVector2f AlignedShare(const SCanvas::FSlot& Slot)
	{
		const EHorizontalAlignment X = Slot.GetHorizontalAlignment();
		const EVerticalAlignment Y = Slot.GetVerticalAlignment();
		return FVector2f(X == HAlign_Center ? 0.5f : X == HAlign_Right ? 1.0f : 0.0f, Y == VAlign_Center ? 0.5f : Y == VAlign_Bottom ? 1.0f : 0.0f);
	}
}

SCanvas::FSlot::~FSlot()
{
	if (SWidget* OwnerWidget = GetOwnerWidget())
	{
		Host::FAttributeBindings::UnbindRange(*OwnerWidget, this, this + 1);
	}
}

void SCanvas::FSlot::Construct(const FChildren& SlotOwner, FSlotArguments&& InArgs)
{
	TSlotBase<FSlot>::Construct(SlotOwner, MoveTemp(InArgs));
	SetPosition(InArgs.PositionArgument);
	SetSize(InArgs.SizeArgument);
	SetHorizontalAlignment(InArgs.HorizontalAlignment.Get(HorizontalAlignment));
	SetVerticalAlignment(InArgs.VerticalAlignment.Get(VerticalAlignment));
}

void SCanvas::FSlot::SetPosition(TAttribute<FVector2D> InPosition)
{
	Assign(Position, InPosition);
}

void SCanvas::FSlot::SetSize(TAttribute<FVector2D> InSize)
{
	Assign(Size, InSize);
}

void SCanvas::FSlot::SetHorizontalAlignment(EHorizontalAlignment InAlignment)
{
	if (HorizontalAlignment != InAlignment)
	{
		HorizontalAlignment = InAlignment;
		Invalidate(EInvalidateWidgetReason::Layout);
	}
}

void SCanvas::FSlot::SetVerticalAlignment(EVerticalAlignment InAlignment)
{
	if (VerticalAlignment != InAlignment)
	{
		VerticalAlignment = InAlignment;
		Invalidate(EInvalidateWidgetReason::Layout);
	}
}

void SCanvas::FSlot::Assign(FVector2D& Value, const TAttribute<FVector2D>& Attribute)
{
	if (SWidget* OwnerWidget = GetOwnerWidget())
	{
		Host::AssignAttribute(*OwnerWidget, Value, Attribute, EInvalidateWidgetReason::Layout);
	}
	else
	{
		Value = Attribute.Get(Value);
	}
}

SCanvas::FSlot::FSlotArguments SCanvas::Slot()
{
	return FSlot::FSlotArguments(MakeUnique<FSlot>());
}

SCanvas::SCanvas()
	: Slots(this)
{
}

void SCanvas::Construct(const FArguments& InArgs)
{
	Slots.AddSlots(MoveTemp(const_cast<TArray<FSlot::FSlotArguments>&>(InArgs._Slots)));
}

SCanvas::FScopedWidgetSlotArguments SCanvas::AddSlot()
{
	return FScopedWidgetSlotArguments(MakeUnique<FSlot>(), Slots, INDEX_NONE);
}

int32 SCanvas::RemoveSlot(const TSharedRef<SWidget>& SlotWidget)
{
	return Slots.Remove(SlotWidget);
}

void SCanvas::ClearChildren()
{
	Slots.Empty();
}

FVector2D SCanvas::ComputeDesiredSize(float) const
{
	return FVector2D::ZeroVector;
}

void SCanvas::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	for (int32 Index = 0; Index < Slots.Num(); ++Index)
	{
		const FSlot& Slot = Slots[Index];
		const TSharedRef<SWidget>& Child = Slot.GetWidget();
		if (ArrangedChildren.Accepts(Child->GetVisibility()))
		{
			const FVector2f Size(Slot.GetSize());
			ArrangedChildren.AddWidget(AllottedGeometry.MakeChild(Child, FVector2f(Slot.GetPosition()) - Size * AlignedShare(Slot), Size));
		}
	}
}
