#include "Widgets/Layout/SUniformGridPanel.h"

#include "Layout/ArrangedChildren.h"
#include "Layout/LayoutUtils.h"

void SUniformGridPanel::FSlot::SetColumn(int32 InColumn)
{
	const int32 NewColumn = FMath::Max(InColumn, 0);
	if (Column != NewColumn)
	{
		Column = NewColumn;
		Invalidate(EInvalidateWidgetReason::Layout);
	}
}

void SUniformGridPanel::FSlot::SetRow(int32 InRow)
{
	const int32 NewRow = FMath::Max(InRow, 0);
	if (Row != NewRow)
	{
		Row = NewRow;
		Invalidate(EInvalidateWidgetReason::Layout);
	}
}

SUniformGridPanel::FSlot::FSlotArguments SUniformGridPanel::Slot(int32 Column, int32 Row)
{
	return FSlot::FSlotArguments(MakeUnique<FSlot>(Column, Row));
}

SUniformGridPanel::SUniformGridPanel()
	: Slots(this)
	, SlotPaddingAttribute(*this)
	, MinDesiredSlotWidthAttribute(*this, 0.0f)
	, MinDesiredSlotHeightAttribute(*this, 0.0f)
{
}

void SUniformGridPanel::Construct(const FArguments& InArgs)
{
	SetSlotPadding(InArgs._SlotPadding);
	SetMinDesiredSlotWidth(InArgs._MinDesiredSlotWidth);
	SetMinDesiredSlotHeight(InArgs._MinDesiredSlotHeight);
	Slots.AddSlots(MoveTemp(const_cast<TArray<FSlot::FSlotArguments>&>(InArgs._Slots)));
}

void SUniformGridPanel::SetSlotPadding(TAttribute<FMargin> InSlotPadding)
{
	SlotPaddingAttribute.Assign(*this, InSlotPadding);
}

void SUniformGridPanel::SetMinDesiredSlotWidth(TAttribute<float> InMinDesiredSlotWidth)
{
	MinDesiredSlotWidthAttribute.Assign(*this, InMinDesiredSlotWidth);
}

void SUniformGridPanel::SetMinDesiredSlotHeight(TAttribute<float> InMinDesiredSlotHeight)
{
	MinDesiredSlotHeightAttribute.Assign(*this, InMinDesiredSlotHeight);
}

SUniformGridPanel::FScopedWidgetSlotArguments SUniformGridPanel::AddSlot(int32 Column, int32 Row)
{
	return FScopedWidgetSlotArguments(MakeUnique<FSlot>(Column, Row), Slots, INDEX_NONE);
}

bool SUniformGridPanel::RemoveSlot(const TSharedRef<SWidget>& SlotWidget)
{
	return Slots.Remove(SlotWidget) != INDEX_NONE;
}

void SUniformGridPanel::ClearChildren()
{
	Slots.Empty();
}

FVector2D SUniformGridPanel::ComputeDesiredSize(float) const
{
	const FVector2f Padding(SlotPaddingAttribute.Get().GetDesiredSize());
	FVector2f Cell(MinDesiredSlotWidthAttribute.Get(), MinDesiredSlotHeightAttribute.Get());
	NumCells = FIntPoint(0, 0);
	for (int32 Index = 0; Index < Slots.Num(); ++Index)
	{
		const FSlot& Slot = Slots[Index];
		const TSharedRef<SWidget>& Child = Slot.GetWidget();
		if (Child->GetVisibility() != EVisibility::Collapsed)
		{
			const FVector2f Wanted = FVector2f(Child->GetDesiredSize()) + Padding;
			Cell = FVector2f(FMath::Max(Cell.X, Wanted.X), FMath::Max(Cell.Y, Wanted.Y));
			NumCells = FIntPoint(FMath::Max(NumCells.X, Slot.GetColumn() + 1), FMath::Max(NumCells.Y, Slot.GetRow() + 1));
		}
	}
	return FVector2D(Cell.X * NumCells.X, Cell.Y * NumCells.Y);
}

void SUniformGridPanel::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	if (NumCells.X == 0 || NumCells.Y == 0)
	{
		return;
	}
	const FVector2f Cell = FVector2f(AllottedGeometry.GetLocalSize()) / FVector2f(NumCells.X, NumCells.Y);
	const FMargin& Padding = SlotPaddingAttribute.Get();
	for (int32 Index = 0; Index < Slots.Num(); ++Index)
	{
		const FSlot& Slot = Slots[Index];
		const TSharedRef<SWidget>& Child = Slot.GetWidget();
		if (!ArrangedChildren.Accepts(Child->GetVisibility()))
		{
			continue;
		}
		const AlignmentArrangeResult X = AlignChild<Orient_Horizontal>(Cell.X, Slot, Padding);
		const AlignmentArrangeResult Y = AlignChild<Orient_Vertical>(Cell.Y, Slot, Padding);
		ArrangedChildren.AddWidget(AllottedGeometry.MakeChild(
			Child, Cell * FVector2f(Slot.GetColumn(), Slot.GetRow()) + FVector2f(X.Offset, Y.Offset), FVector2f(X.Size, Y.Size)));
	}
}
