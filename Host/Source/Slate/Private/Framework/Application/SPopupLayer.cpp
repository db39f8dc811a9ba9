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
	const FVector2f Size = FVector2f::Min(Child->GetDesiredSize(), Room);
	const FVector2f Anchor = AllottedGeometry.AbsoluteToLocal(Position);
	const float AnchorHeight = AnchorSize.Y / AllottedGeometry.Scale;
	FVector2f Place(Anchor.X, Anchor.Y + AnchorHeight);
	const float Above = Anchor.Y - Clearance / AllottedGeometry.Scale - Size.Y;
	if (Place.Y + Size.Y > Room.Y && (AnchorHeight > 0.0f || Clearance > 0.0f) && Above >= 0.0f)
	{
		Place.Y = Above;
	}
	Place = FVector2f::Max(FVector2f::Min(Place, Room - Size), FVector2f(0.0f, 0.0f));
	ArrangedChildren.AddWidget(AllottedGeometry.MakeChild(Child, Place, Size));
}
