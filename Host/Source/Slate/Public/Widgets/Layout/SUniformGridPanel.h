#pragma once

#include "CoreMinimal.h"
#include "Layout/BasicLayoutWidgetSlot.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SPanel.h"

/** Places children in cells of one size: that of the largest child, or an even share of the room. */
class SLATE_API SUniformGridPanel : public SPanel
{
public:
	class SLATE_API FSlot : public TBasicLayoutWidgetSlot<FSlot>
	{
	public:
		FSlot(int32 InColumn, int32 InRow) : Column(FMath::Max(InColumn, 0)), Row(FMath::Max(InRow, 0)) {}

		SLATE_SLOT_BEGIN_ARGS(FSlot, TBasicLayoutWidgetSlot<FSlot>)
		SLATE_SLOT_END_ARGS()

		int32 GetColumn() const { return Column; }
		void SetColumn(int32 InColumn);
		int32 GetRow() const { return Row; }
		void SetRow(int32 InRow);

	private:
		int32 Column;
		int32 Row;
	};

	using FScopedWidgetSlotArguments = TPanelChildren<FSlot>::FScopedWidgetSlotArguments;

	static FSlot::FSlotArguments Slot(int32 Column, int32 Row);

	SLATE_BEGIN_ARGS(SUniformGridPanel)
		: _SlotPadding(FMargin(0.0f))
		, _MinDesiredSlotWidth(0.0f)
		, _MinDesiredSlotHeight(0.0f)
	{
		_Visibility = EVisibility::SelfHitTestInvisible;
	}
		SLATE_SLOT_ARGUMENT(FSlot, Slots)
		/** Around every child. */
		SLATE_ATTRIBUTE(FMargin, SlotPadding)
		/** Least wanted size of a cell, padding included. */
		SLATE_ATTRIBUTE(float, MinDesiredSlotWidth)
		SLATE_ATTRIBUTE(float, MinDesiredSlotHeight)
	SLATE_END_ARGS()

	SUniformGridPanel();
	void Construct(const FArguments& InArgs);

	void SetSlotPadding(TAttribute<FMargin> InSlotPadding);
	void SetMinDesiredSlotWidth(TAttribute<float> InMinDesiredSlotWidth);
	void SetMinDesiredSlotHeight(TAttribute<float> InMinDesiredSlotHeight);

	FScopedWidgetSlotArguments AddSlot(int32 Column, int32 Row);
	/** False when the widget is not in the panel. */
	bool RemoveSlot(const TSharedRef<SWidget>& SlotWidget);
	void ClearChildren();

	virtual FChildren* GetChildren() override { return &Slots; }

protected:
	virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;

private:
	TPanelChildren<FSlot> Slots;
	TSlateAttribute<FMargin, EInvalidateWidgetReason::Layout> SlotPaddingAttribute;
	TSlateAttribute<float, EInvalidateWidgetReason::Layout> MinDesiredSlotWidthAttribute;
	TSlateAttribute<float, EInvalidateWidgetReason::Layout> MinDesiredSlotHeightAttribute;
	/** Columns and rows of the last measuring. */
	mutable FIntPoint NumCells = FIntPoint(0, 0);
};
