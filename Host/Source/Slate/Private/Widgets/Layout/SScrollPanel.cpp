#include "Widgets/Layout/SScrollPanel.h"

#include "Algo/BinarySearch.h"
#include "Layout/ArrangedChildren.h"
#include "Layout/LayoutUtils.h"
#include "Layout/Oriented.h"

SScrollPanel::SScrollPanel()
	: Slots(this)
{
}

void SScrollPanel::Construct(const FArguments&, TArray<FSlot::FSlotArguments> InSlots)
{
	Slots.AddSlots(MoveTemp(InSlots));
}

void SScrollPanel::SetOrientation(EOrientation InOrientation)
{
	if (Orientation != InOrientation)
	{
		Orientation = InOrientation;
		Invalidate(EInvalidateWidgetReason::Layout);
	}
}

void SScrollPanel::SetOffset(float InOffset)
{
	if (Offset != InOffset)
	{
		Offset = InOffset;
		// The scroll box may correct the offset while it is arranged itself; the panel must follow in the same pass.
		Invalidate(EInvalidateWidgetReason::ChildOrder);
	}
}

void SScrollPanel::SetContentPadding(const FMargin& InContentPadding)
{
	if (!(ContentPadding == InContentPadding))
	{
		ContentPadding = InContentPadding;
		Invalidate(EInvalidateWidgetReason::Layout);
	}
}

void SScrollPanel::GetSpan(int32 SlotIndex, float& OutBegin, float& OutLength) const
{
	OutBegin = SlotIndex > 0 ? SlotEnds[SlotIndex - 1] : Host::MarginBefore(ContentPadding, Orientation);
	OutLength = SlotEnds[SlotIndex] - OutBegin;
}

FArrangedWidget SScrollPanel::ArrangeSlot(int32 SlotIndex, const FGeometry& PanelGeometry, float InOffset) const
{
	const FSlot& Slot = Slots[SlotIndex];
	const EOrientation Across = Host::Across(Orientation);
	float Begin = 0.0f;
	float Length = 0.0f;
	GetSpan(SlotIndex, Begin, Length);
	const float Room = FMath::Max(Host::Along(FVector2f(PanelGeometry.GetLocalSize()), Across) - Host::MarginTotal(ContentPadding, Across), 0.0f);
	const FVector2f Cell = Host::OrientedVector(Orientation, Length, Room);
	const AlignmentArrangeResult X = AlignChild<Orient_Horizontal>(Cell.X, Slot, Slot.GetPadding());
	const AlignmentArrangeResult Y = AlignChild<Orient_Vertical>(Cell.Y, Slot, Slot.GetPadding());
	const FVector2f Place = Host::OrientedVector(Orientation, Begin - InOffset, Host::MarginBefore(ContentPadding, Across));
	return PanelGeometry.MakeChild(Slot.GetWidget(), Place + FVector2f(X.Offset, Y.Offset), FVector2f(X.Size, Y.Size));
}

FVector2D SScrollPanel::ComputeDesiredSize(float) const
{
	const EOrientation Across = Host::Across(Orientation);
	SlotEnds.SetNumUninitialized(Slots.Num());
	float End = Host::MarginBefore(ContentPadding, Orientation);
	float Width = 0.0f;
	for (int32 Index = 0; Index < Slots.Num(); ++Index)
	{
		const FSlot& Slot = Slots[Index];
		const TSharedRef<SWidget>& Child = Slot.GetWidget();
		if (Child->GetVisibility() != EVisibility::Collapsed)
		{
			const FVector2f Size(Child->GetDesiredSize());
			End += Host::Along(Size, Orientation) + Host::MarginTotal(Slot.GetPadding(), Orientation);
			Width = FMath::Max(Width, Host::Along(Size, Across) + Host::MarginTotal(Slot.GetPadding(), Across));
		}
		SlotEnds[Index] = End;
	}
	return FVector2D(Host::OrientedVector(Orientation, End + Host::MarginAfter(ContentPadding, Orientation), Width + Host::MarginTotal(ContentPadding, Across)));
}

void SScrollPanel::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	// Whole pixels, so that text keeps its shape while it moves.
	const float SnappedOffset = FMath::RoundToFloat(Offset * AllottedGeometry.Scale) / AllottedGeometry.Scale;
	const float ViewEnd = SnappedOffset + Host::Along(FVector2f(AllottedGeometry.GetLocalSize()), Orientation);
	// Slots that came or went since are measured before they are shown.
	const int32 NumMeasured = FMath::Min(SlotEnds.Num(), Slots.Num());
	for (int32 Index = Algo::UpperBound(SlotEnds, SnappedOffset); Index < NumMeasured; ++Index)
	{
		float Begin = 0.0f;
		float Length = 0.0f;
		GetSpan(Index, Begin, Length);
		if (Begin >= ViewEnd)
		{
			break;
		}
		if (ArrangedChildren.Accepts(Slots[Index].GetWidget()->GetVisibility()))
		{
			ArrangedChildren.AddWidget(ArrangeSlot(Index, AllottedGeometry, SnappedOffset));
		}
	}
}
