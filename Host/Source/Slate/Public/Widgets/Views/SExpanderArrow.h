#pragma once

#include "CoreMinimal.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SLeafWidget.h"

class ITableRow;

/** Stands before what a row of a tree shows: indents it by its level, and opens and closes its item. */
class SLATE_API SExpanderArrow : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SExpanderArrow) : _IndentAmount(10.0f) {}
		/** Slate units for each level. */
		SLATE_ARGUMENT(float, IndentAmount)
	SLATE_END_ARGS()

	/** The row is the one that the arrow stands in. */
	void Construct(const FArguments& InArgs, const TSharedPtr<ITableRow>& TableRow);

	virtual FReply OnMouseButtonDown(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;
	virtual FReply OnMouseButtonDoubleClick(const FGeometry& MyGeometry, const FPointerEvent& MouseEvent) override;

protected:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements,
		int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;

private:
	float GetIndent() const;

	TWeakPtr<ITableRow> OwnerRowPtr;
	float IndentAmount = 10.0f;
};
