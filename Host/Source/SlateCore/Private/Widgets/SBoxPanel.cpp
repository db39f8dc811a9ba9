#include "Widgets/SBoxPanel.h"

#include "Layout/LayoutUtils.h"

using Host::FStackSizing;

namespace
{
	template <EOrientation Orientation>
	float Along(const FVector2f& V)
	{
		return Orientation == Orient_Horizontal ? V.X : V.Y;
	}

	template <EOrientation Orientation>
	float Across(const FVector2f& V)
	{
		return Orientation == Orient_Horizontal ? V.Y : V.X;
	}

	template <EOrientation Orientation>
	FVector2f MakeVector(float InAlong, float InAcross)
	{
		return Orientation == Orient_Horizontal ? FVector2f(InAlong, InAcross) : FVector2f(InAcross, InAlong);
	}

	constexpr EOrientation Other(EOrientation Orientation)
	{
		return Orientation == Orient_Horizontal ? Orient_Vertical : Orient_Horizontal;
	}

	float ClampSize(float Size, const FStackSizing& Sizing)
	{
		const float AtMost = Sizing.MaxSize > 0.0f ? FMath::Min(Size, Sizing.MaxSize) : Size;
		return FMath::Max(AtMost, Sizing.MinSize);
	}

	/** How the room along a stack is shared. */
	template <EOrientation Orientation, typename SlotType>
	struct TStackRoom
	{
		explicit TStackRoom(const TPanelChildren<SlotType>& Children, float Room)
		{
			for (int32 Index = 0; Index < Children.Num(); ++Index)
			{
				const SlotType& Slot = Children[Index];
				if (Slot.GetWidget()->GetVisibility() == EVisibility::Collapsed)
				{
					continue;
				}
				Room -= Slot.GetPadding().template GetTotalSpaceAlong<Orientation>();
				const FStackSizing& Sizing = Slot.GetSizing();
				if (Sizing.bAuto)
				{
					Room -= ClampSize(Along<Orientation>(Slot.GetWidget()->GetDesiredSize()), Sizing);
				}
				else
				{
					TotalStretch += FMath::Max(Sizing.StretchValue, 0.0f);
				}
			}
			Left = FMath::Max(Room, 0.0f);
		}

		float GetSize(const SlotType& Slot) const
		{
			const FStackSizing& Sizing = Slot.GetSizing();
			if (Sizing.bAuto)
			{
				return ClampSize(Along<Orientation>(Slot.GetWidget()->GetDesiredSize()), Sizing);
			}
			return TotalStretch > 0.0f ? ClampSize(Left * FMath::Max(Sizing.StretchValue, 0.0f) / TotalStretch, Sizing) : 0.0f;
		}

		float Left = 0.0f;
		float TotalStretch = 0.0f;
	};
}

template <typename SlotType, EOrientation Orientation>
FVector2D Host::TBoxPanel<SlotType, Orientation>::ComputeDesiredSize(float) const
{
	float Length = 0.0f;
	float Breadth = 0.0f;
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const SlotType& Slot = Children[Index];
		const SWidget& Child = Slot.GetWidget().Get();
		if (Child.GetVisibility() == EVisibility::Collapsed)
		{
			continue;
		}
		const FVector2f Wanted = Child.GetDesiredSize();
		const FMargin& Padding = Slot.GetPadding();
		Length += ClampSize(Along<Orientation>(Wanted), Slot.GetSizing()) + Padding.template GetTotalSpaceAlong<Orientation>();
		Breadth = FMath::Max(Breadth, Across<Orientation>(Wanted) + Padding.template GetTotalSpaceAlong<Other(Orientation)>());
	}
	return FVector2D(MakeVector<Orientation>(Length, Breadth));
}

template <typename SlotType, EOrientation Orientation>
void Host::TBoxPanel<SlotType, Orientation>::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	const FVector2f Allotted = AllottedGeometry.GetLocalSize();
	const TStackRoom<Orientation, SlotType> Room(Children, Along<Orientation>(Allotted));
	float Offset = 0.0f;
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const SlotType& Slot = Children[Index];
		const TSharedRef<SWidget>& Child = Slot.GetWidget();
		const EVisibility ChildVisibility = Child->GetVisibility();
		if (ChildVisibility == EVisibility::Collapsed)
		{
			continue;
		}
		const FMargin& Padding = Slot.GetPadding();
		const float SlotLength = Room.GetSize(Slot) + Padding.template GetTotalSpaceAlong<Orientation>();
		if (ArrangedChildren.Accepts(ChildVisibility))
		{
			const FVector2f SlotSize = MakeVector<Orientation>(SlotLength, Across<Orientation>(Allotted));
			const AlignmentArrangeResult X = AlignChild<Orient_Horizontal>(SlotSize.X, Slot, Padding, 1.0f, Orientation == Orient_Vertical);
			const AlignmentArrangeResult Y = AlignChild<Orient_Vertical>(SlotSize.Y, Slot, Padding, 1.0f, Orientation == Orient_Horizontal);
			const FVector2f Start = MakeVector<Orientation>(Offset, 0.0f);
			ArrangedChildren.AddWidget(AllottedGeometry.MakeChild(Child, Start + FVector2f(X.Offset, Y.Offset), FVector2f(X.Size, Y.Size)));
		}
		Offset += SlotLength;
	}
}

template class Host::TBoxPanel<Host::FHorizontalBoxSlot, Orient_Horizontal>;
template class Host::TBoxPanel<Host::FVerticalBoxSlot, Orient_Vertical>;

void SHorizontalBox::Construct(const FArguments& InArgs)
{
	Children.AddSlots(MoveTemp(const_cast<TArray<FSlot::FSlotArguments>&>(InArgs._Slots)));
}

void SVerticalBox::Construct(const FArguments& InArgs)
{
	Children.AddSlots(MoveTemp(const_cast<TArray<FSlot::FSlotArguments>&>(InArgs._Slots)));
}
