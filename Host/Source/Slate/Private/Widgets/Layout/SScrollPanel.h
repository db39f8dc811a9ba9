#pragma once

#include "CoreMinimal.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/SPanel.h"

/** The content of a scroll box: children in a row or column, of which those in view are arranged. */
class SScrollPanel : public SPanel
{
public:
	using FSlot = SScrollBox::FSlot;

	SLATE_BEGIN_ARGS(SScrollPanel)
	{
	}
	SLATE_END_ARGS()

	SScrollPanel();
	void Construct(const FArguments& InArgs, TArray<FSlot::FSlotArguments> InSlots);

	void SetOrientation(EOrientation InOrientation);
	/** Slate units by which the content is moved against the view. */
	void SetOffset(float InOffset);
	/** Around all children; scrolls with them. */
	void SetContentPadding(const FMargin& InContentPadding);

	/** Place of a child along the orientation, from the begin of the content, by the last measuring. */
	void GetSpan(int32 SlotIndex, float& OutBegin, float& OutLength) const;
	/** Where a child of the panel is arranged when the content is not scrolled. */
	FArrangedWidget ArrangeSlot(int32 SlotIndex, const FGeometry& PanelGeometry, float InOffset) const;

	TPanelChildren<FSlot>& GetSlots() { return Slots; }
	virtual FChildren* GetChildren() override { return &Slots; }

protected:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;

private:
	TPanelChildren<FSlot> Slots;
	/** End of each slot along the orientation, by the last measuring. */
	mutable TArray<float> SlotEnds;
	FMargin ContentPadding;
	float Offset = 0.0f;
	EOrientation Orientation = Orient_Vertical;
};
