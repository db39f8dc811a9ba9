#include "Widgets/Layout/SConstraintCanvas.h"

#include "Layout/ArrangedChildren.h"

namespace
{
	/** One direction of a slot: what places the child in it. */
	struct FConstraint
	{
		float MinAnchor;
		float MaxAnchor;
		float OffsetBefore;
		/** Size, or distance from the second anchor. */
		float OffsetAfter;
		float Alignment;
		bool bAutoSize;

		bool IsStretched() const { return MinAnchor != MaxAnchor; }
	};

	struct FSpan
	{
		float Begin;
		float Size;
	};

	FConstraint HorizontalConstraint(const SConstraintCanvas::FSlot& Slot)
	{
		const FAnchors Anchors = Slot.GetAnchors();
		const FMargin Offset = Slot.GetOffset();
		return FConstraint{static_cast<float>(Anchors.Minimum.X), static_cast<float>(Anchors.Maximum.X), Offset.Left, Offset.Right,
			static_cast<float>(Slot.GetAlignment().X), Slot.GetAutoSize()};
	}

	FConstraint VerticalConstraint(const SConstraintCanvas::FSlot& Slot)
	{
		const FAnchors Anchors = Slot.GetAnchors();
		const FMargin Offset = Slot.GetOffset();
		return FConstraint{static_cast<float>(Anchors.Minimum.Y), static_cast<float>(Anchors.Maximum.Y), Offset.Top, Offset.Bottom,
			static_cast<float>(Slot.GetAlignment().Y), Slot.GetAutoSize()};
	}

	FSpan ResolveSpan(const FConstraint& Constraint, float Room, float DesiredSize)
	{
		const float Begin = Constraint.MinAnchor * Room + Constraint.OffsetBefore;
		if (Constraint.IsStretched())
		{
			return FSpan{Begin, FMath::Max(Constraint.MaxAnchor * Room - Constraint.OffsetAfter - Begin, 0.0f)};
		}
		const float Size = FMath::Max(Constraint.bAutoSize ? DesiredSize : Constraint.OffsetAfter, 0.0f);
		return FSpan{Begin - Size * Constraint.Alignment, Size};
	}

	/** Room that a canvas needs for a child that is held at one of its edges, or else for the child alone. */
	float WantedRoom(const FConstraint& Constraint, float DesiredSize)
	{
		if (Constraint.IsStretched())
		{
			return DesiredSize + Constraint.OffsetBefore + Constraint.OffsetAfter;
		}
		const float Size = Constraint.bAutoSize ? DesiredSize : Constraint.OffsetAfter;
		const bool bAtEdge = Constraint.MinAnchor == 0.0f || Constraint.MinAnchor == 1.0f;
		return bAtEdge ? Size + FMath::Abs(Constraint.OffsetBefore) : Size;
	}
}

SConstraintCanvas::FSlot::~FSlot()
{
	if (SWidget* OwnerWidget = GetOwnerWidget())
	{
		Host::FAttributeBindings::UnbindRange(*OwnerWidget, this, this + 1);
	}
}

void SConstraintCanvas::FSlot::Construct(const FChildren& SlotOwner, FSlotArguments&& InArgs)
{
	TSlotBase<FSlot>::Construct(SlotOwner, MoveTemp(InArgs));
	SetOffset(InArgs.OffsetArgument);
	SetAnchors(InArgs.AnchorsArgument);
	SetAlignment(InArgs.AlignmentArgument);
	SetAutoSize(InArgs.AutoSizeArgument);
	ZOrder = InArgs.ZOrderArgument.Get(ZOrder);
	static_cast<SConstraintCanvas*>(GetOwnerWidget())->PlaceNewSlot(*this);
}

template <typename ValueType>
void SConstraintCanvas::FSlot::Assign(ValueType& Value, const TAttribute<ValueType>& Attribute)
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

void SConstraintCanvas::FSlot::SetOffset(const TAttribute<FMargin>& InOffset)
{
	Assign(Offset, InOffset);
}

void SConstraintCanvas::FSlot::SetAnchors(const TAttribute<FAnchors>& InAnchors)
{
	Assign(Anchors, InAnchors);
}

void SConstraintCanvas::FSlot::SetAlignment(const TAttribute<FVector2D>& InAlignment)
{
	Assign(Alignment, InAlignment);
}

void SConstraintCanvas::FSlot::SetAutoSize(const TAttribute<bool>& InAutoSize)
{
	Assign(bAutoSize, InAutoSize);
}

void SConstraintCanvas::FSlot::SetZOrder(float InZOrder)
{
	if (ZOrder != InZOrder)
	{
		ZOrder = InZOrder;
		if (SWidget* Canvas = GetOwnerWidget())
		{
			static_cast<SConstraintCanvas*>(Canvas)->SortByZOrder();
		}
	}
}

SConstraintCanvas::FSlot::FSlotArguments SConstraintCanvas::Slot()
{
	return FSlot::FSlotArguments(MakeUnique<FSlot>());
}

SConstraintCanvas::SConstraintCanvas()
	: Slots(this)
{
}

void SConstraintCanvas::Construct(const FArguments& InArgs)
{
	Slots.AddSlots(MoveTemp(const_cast<TArray<FSlot::FSlotArguments>&>(InArgs._Slots)));
}

SConstraintCanvas::FScopedWidgetSlotArguments SConstraintCanvas::AddSlot()
{
	return FScopedWidgetSlotArguments(MakeUnique<FSlot>(), Slots, INDEX_NONE);
}

int32 SConstraintCanvas::RemoveSlot(const TSharedRef<SWidget>& SlotWidget)
{
	return Slots.Remove(SlotWidget);
}

void SConstraintCanvas::ClearChildren()
{
	Slots.Empty();
}

FVector2D SConstraintCanvas::ComputeDesiredSize(float) const
{
	FVector2f Wanted = FVector2f::ZeroVector;
	for (int32 Index = 0; Index < Slots.Num(); ++Index)
	{
		const FSlot& Slot = Slots[Index];
		const TSharedRef<SWidget>& Child = Slot.GetWidget();
		if (Child->GetVisibility() != EVisibility::Collapsed)
		{
			const FVector2f Desired(Child->GetDesiredSize());
			Wanted.X = FMath::Max(Wanted.X, WantedRoom(HorizontalConstraint(Slot), Desired.X));
			Wanted.Y = FMath::Max(Wanted.Y, WantedRoom(VerticalConstraint(Slot), Desired.Y));
		}
	}
	return FVector2D(Wanted);
}

void SConstraintCanvas::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	const FVector2f Room(AllottedGeometry.GetLocalSize());
	for (int32 Index = 0; Index < Slots.Num(); ++Index)
	{
		const FSlot& Slot = Slots[Index];
		const TSharedRef<SWidget>& Child = Slot.GetWidget();
		if (!ArrangedChildren.Accepts(Child->GetVisibility()))
		{
			continue;
		}
		const FVector2f Desired(Child->GetDesiredSize());
		const FSpan X = ResolveSpan(HorizontalConstraint(Slot), Room.X, Desired.X);
		const FSpan Y = ResolveSpan(VerticalConstraint(Slot), Room.Y, Desired.Y);
		ArrangedChildren.AddWidget(AllottedGeometry.MakeChild(Child, FVector2f(X.Begin, Y.Begin), FVector2f(X.Size, Y.Size)));
	}
}

void SConstraintCanvas::PlaceNewSlot(FSlot& Slot)
{
	Slot.AddedOrder = NextAddedOrder++;
	const int32 Last = Slots.Num() - 1;
	int32 Place = Last;
	while (Place > 0 && Slot.IsDrawnBefore(Slots[Place - 1]))
	{
		--Place;
	}
	if (Place != Last)
	{
		Slots.Move(Last, Place);
	}
}

void SConstraintCanvas::SortByZOrder()
{
	Slots.StableSort([](const FSlot& A, const FSlot& B) { return A.IsDrawnBefore(B); });
}
