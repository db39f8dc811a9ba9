#pragma once

#include "CoreMinimal.h"
#include "Layout/ArrangedChildren.h"
#include "Layout/FlowDirection.h"
#include "Layout/Margin.h"
#include "Types/SlateEnums.h"
#include "Widgets/SWidget.h"

/** Where an aligned child begins in the room it was given, and how long it is, in one direction. */
struct AlignmentArrangeResult
{
	AlignmentArrangeResult(float InOffset, float InSize) : Offset(InOffset), Size(InSize) {}

	float Offset;
	float Size;
};

namespace Host
{
	/** An alignment of either direction. */
	enum class EAxisAlignment : uint8
	{
		Fill,
		Start,
		Centre,
		End,
	};

	template <EOrientation Orientation, typename SlotType>
	EAxisAlignment GetAxisAlignment(EFlowDirection Flow, const SlotType& Slot)
	{
		if constexpr (Orientation == Orient_Horizontal)
		{
			switch (Slot.GetHorizontalAlignment())
			{
			case HAlign_Left:
				return Flow == EFlowDirection::LeftToRight ? EAxisAlignment::Start : EAxisAlignment::End;
			case HAlign_Center:
				return EAxisAlignment::Centre;
			case HAlign_Right:
				return Flow == EFlowDirection::LeftToRight ? EAxisAlignment::End : EAxisAlignment::Start;
			default:
				return EAxisAlignment::Fill;
			}
		}
		else
		{
			switch (Slot.GetVerticalAlignment())
			{
			case VAlign_Top:
				return EAxisAlignment::Start;
			case VAlign_Center:
				return EAxisAlignment::Centre;
			case VAlign_Bottom:
				return EAxisAlignment::End;
			default:
				return EAxisAlignment::Fill;
			}
		}
	}

	/**
	 * One direction of an alignment.
	 * @param Before, After	margins, in the units of the room
	 * @param bClamp	whether the child must not be longer than the room
	 */
	inline AlignmentArrangeResult AlignSpan(EAxisAlignment Alignment, float Room, float Wanted, float Before, float After, bool bClamp)
	{
		const float Inner = FMath::Max(Room - Before - After, 0.0f);
		if (Alignment == EAxisAlignment::Fill)
		{
			return AlignmentArrangeResult(Before, Inner);
		}
		const float Length = bClamp ? FMath::Min(Wanted, Inner) : Wanted;
		switch (Alignment)
		{
		case EAxisAlignment::Centre:
			return AlignmentArrangeResult((Room - Length) * 0.5f + (Before - After) * 0.5f, Length);
		case EAxisAlignment::End:
			return AlignmentArrangeResult(Room - Length - After, Length);
		default:
			return AlignmentArrangeResult(Before, Length);
		}
	}
}

/**
 * Aligns the child of a slot within AllottedSize units.
 * @param ContentScale	scale of the child; its desired size counts so many times
 */
template <EOrientation Orientation, typename SlotType>
AlignmentArrangeResult AlignChild(EFlowDirection InLayoutFlow, float AllottedSize, float ChildDesiredSize, const SlotType& ChildToAlign, const FMargin& SlotPadding,
	const float ContentScale = 1.0f, bool bClampToParent = true)
{
	const bool bHorizontal = Orientation == Orient_Horizontal;
	return Host::AlignSpan(Host::GetAxisAlignment<Orientation>(InLayoutFlow, ChildToAlign), AllottedSize, ChildDesiredSize * ContentScale,
		bHorizontal ? SlotPadding.Left : SlotPadding.Top, bHorizontal ? SlotPadding.Right : SlotPadding.Bottom, bClampToParent);
}

template <EOrientation Orientation, typename SlotType>
AlignmentArrangeResult AlignChild(EFlowDirection InLayoutFlow, float AllottedSize, const SlotType& ChildToAlign, const FMargin& SlotPadding,
	const float ContentScale = 1.0f, bool bClampToParent = true)
{
	const FVector2f Desired(ChildToAlign.GetWidget()->GetDesiredSize());
	return AlignChild<Orientation>(InLayoutFlow, AllottedSize, Orientation == Orient_Horizontal ? Desired.X : Desired.Y, ChildToAlign, SlotPadding, ContentScale, bClampToParent);
}

template <EOrientation Orientation, typename SlotType>
AlignmentArrangeResult AlignChild(float AllottedSize, const SlotType& ChildToAlign, const FMargin& SlotPadding, const float ContentScale = 1.0f, bool bClampToParent = true)
{
	return AlignChild<Orientation>(EFlowDirection::LeftToRight, AllottedSize, ChildToAlign, SlotPadding, ContentScale, bClampToParent);
}

/** The margin as it applies in a flow direction: right to left exchanges its sides. */
inline FMargin LayoutPaddingWithFlow(EFlowDirection InLayoutFlow, const FMargin& InPadding)
{
	return InLayoutFlow == EFlowDirection::RightToLeft ? FMargin(InPadding.Right, InPadding.Top, InPadding.Left, InPadding.Bottom) : InPadding;
}

/** Arranges the one child of a slot by its alignment and padding. */
template <typename SlotType>
void ArrangeSingleChild(EFlowDirection InFlowDirection, const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren, const SlotType& ChildSlot,
	const FVector2D& ContentScale = FVector2D(1.0, 1.0))
{
	const TSharedRef<SWidget>& Child = ChildSlot.GetWidget();
	const EVisibility ChildVisibility = Child->GetVisibility();
	if (!ArrangedChildren.Accepts(ChildVisibility))
	{
		return;
	}
	const FMargin Padding = LayoutPaddingWithFlow(InFlowDirection, ChildSlot.GetPadding());
	const FVector2f Room(AllottedGeometry.GetLocalSize());
	const AlignmentArrangeResult X = AlignChild<Orient_Horizontal>(InFlowDirection, Room.X, ChildSlot, Padding, static_cast<float>(ContentScale.X));
	const AlignmentArrangeResult Y = AlignChild<Orient_Vertical>(InFlowDirection, Room.Y, ChildSlot, Padding, static_cast<float>(ContentScale.Y));
	ArrangedChildren.AddWidget(AllottedGeometry.MakeChild(Child, FVector2f(X.Offset, Y.Offset), FVector2f(X.Size, Y.Size)));
}

template <typename SlotType>
void ArrangeSingleChild(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren, const SlotType& ChildSlot, const FVector2D& ContentScale = FVector2D(1.0, 1.0))
{
	ArrangeSingleChild(EFlowDirection::LeftToRight, AllottedGeometry, ArrangedChildren, ChildSlot, ContentScale);
}
