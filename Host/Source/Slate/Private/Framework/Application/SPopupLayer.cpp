#include "Framework/Application/SPopupLayer.h"

#include "Layout/ArrangedChildren.h"

SPopupLayer::SPopupLayer() : ChildSlot(this)
{
}

void SPopupLayer::Construct(const FArguments& InArgs)
{
	Position = InArgs._Position;
	AnchorSize = InArgs._AnchorSize;
	Clearance = InArgs._Clearance;
	ChildSlot[InArgs._Content.Widget];
}

void SPopupLayer::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	const TSharedRef<SWidget>& Child = ChildSlot.GetWidget();
	if (!ArrangedChildren.Accepts(Child->GetVisibility()))
	{
		return;
	}
	const FVector2f Room = AllottedGeometry.GetLocalSize();
	FVector2f Size = FVector2f::Min(Child->GetDesiredSize(), Room);
	const FVector2f Anchor = AllottedGeometry.AbsoluteToLocal(Position);
	const float AnchorHeight = AnchorSize.Y / AllottedGeometry.Scale;
	const float RoomBelow = Room.Y - Anchor.Y - AnchorHeight;
	const float RoomAbove = Anchor.Y - Clearance / AllottedGeometry.Scale;
	if (AnchorHeight > 0.0f)
	{
		Size.Y = FMath::Min(Size.Y, FMath::Max3(RoomBelow, RoomAbove, 0.0f));
	}
	const bool bAbove = Size.Y > RoomBelow && (AnchorHeight > 0.0f || Clearance > 0.0f) && Size.Y <= RoomAbove;
	FVector2f Place(Anchor.X, bAbove ? RoomAbove - Size.Y : Anchor.Y + AnchorHeight);
	Place = FVector2f::Max(FVector2f::Min(Place, Room - Size), FVector2f(0.0f, 0.0f));
	ArrangedChildren.AddWidget(AllottedGeometry.MakeChild(Child, Place, Size));
}
