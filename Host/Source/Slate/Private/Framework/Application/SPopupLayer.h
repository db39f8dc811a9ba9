#pragma once

#include "CoreMinimal.h"
#include "Layout/BasicLayoutWidgetSlot.h"
#include "Widgets/SPanel.h"

/**
 * Covers a window, and puts one child at a place in it, as large as it wants to be and within the window. Where neither
 * side of what it belongs to has room for all of it, it is made as high as the larger side.
 */
class SPopupLayer : public SPanel
{
public:
	SLATE_BEGIN_ARGS(SPopupLayer) : _Position(0.0f, 0.0f), _AnchorSize(0.0f, 0.0f), _Clearance(0.0f) {}
		/** Pixels of the window. */
		SLATE_ARGUMENT(FVector2f, Position)
		/** Of what is at the place and is not to be covered: the child goes below it, or above. In pixels. */
		SLATE_ARGUMENT(FVector2f, AnchorSize)
		/** Pixels kept clear around the place when the child goes above. */
		SLATE_ARGUMENT(float, Clearance)
		SLATE_DEFAULT_SLOT(FArguments, Content)
	SLATE_END_ARGS()

	SPopupLayer();
	void Construct(const FArguments& InArgs);

	virtual FChildren* GetChildren() override { return &ChildSlot; }

protected:
	virtual FVector2D ComputeDesiredSize(float) const override { return FVector2D(0.0, 0.0); }
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;

private:
	FSingleWidgetChildrenWithBasicLayoutSlot ChildSlot;
	FVector2f Position = FVector2f(0.0f, 0.0f);
	FVector2f AnchorSize = FVector2f(0.0f, 0.0f);
	float Clearance = 0.0f;
};
