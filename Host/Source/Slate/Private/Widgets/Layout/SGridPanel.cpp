#include "Widgets/Layout/SGridPanel.h"

#include "Layout/ArrangedChildren.h"
#include "Layout/GridTracks.h"
#include "Layout/LayoutUtils.h"

SGridPanel::FSlot::FSlot(int32 InColumn, int32 InRow, int32 InLayer)
	: Column(FMath::Clamp(InColumn, 0, MaxTracks - 1))
	, Row(FMath::Clamp(InRow, 0, MaxTracks - 1))
	, Layer(InLayer)
{
}

void SGridPanel::FSlot::SetColumn(int32 InColumn)
{
	SetCell(Column, InColumn);
}

void SGridPanel::FSlot::SetColumnSpan(int32 InColumnSpan)
{
	SetSpan(ColumnSpan, InColumnSpan);
}

void SGridPanel::FSlot::SetRow(int32 InRow)
{
	SetCell(Row, InRow);
}

void SGridPanel::FSlot::SetRowSpan(int32 InRowSpan)
{
	SetSpan(RowSpan, InRowSpan);
}

void SGridPanel::FSlot::SetLayer(int32 InLayer)
{
	if (Layer != InLayer)
	{
		Layer = InLayer;
		if (SWidget* Panel = GetOwnerWidget())
		{
			static_cast<SGridPanel*>(Panel)->SortByLayer();
		}
	}
}

void SGridPanel::FSlot::SetNudge(const FVector2D& InNudge)
{
	if (Nudge != InNudge)
	{
		Nudge = InNudge;
		Invalidate(EInvalidateWidgetReason::Layout);
	}
}

void SGridPanel::FSlot::SetCell(int32& Value, int32 NewValue)
{
	const int32 Clamped = FMath::Clamp(NewValue, 0, MaxTracks - 1);
	if (Value != Clamped)
	{
		Value = Clamped;
		Invalidate(EInvalidateWidgetReason::Layout);
	}
}

void SGridPanel::FSlot::SetSpan(int32& Value, int32 NewValue)
{
	const int32 Clamped = FMath::Clamp(NewValue, 1, MaxTracks);
	if (Value != Clamped)
	{
		Value = Clamped;
		Invalidate(EInvalidateWidgetReason::Layout);
	}
}

SGridPanel::FSlot::FSlotArguments SGridPanel::Slot(int32 Column, int32 Row, Layer InLayer)
{
	return FSlot::FSlotArguments(MakeUnique<FSlot>(Column, Row, InLayer.TheLayer));
}

SGridPanel::SGridPanel()
	: Slots(this)
	, Columns(MakeUnique<Host::FGridTracks>())
	, Rows(MakeUnique<Host::FGridTracks>())
{
}

SGridPanel::~SGridPanel() = default;

void SGridPanel::Construct(const FArguments& InArgs)
{
	for (int32 Column = 0; Column < InArgs.ColFillCoefficients.Num(); ++Column)
	{
		SetColumnFill(Column, InArgs.ColFillCoefficients[Column]);
	}
	for (int32 Row = 0; Row < InArgs.RowFillCoefficients.Num(); ++Row)
	{
		SetRowFill(Row, InArgs.RowFillCoefficients[Row]);
	}
	Slots.AddSlots(MoveTemp(const_cast<TArray<FSlot::FSlotArguments>&>(InArgs._Slots)));
	SortByLayer();
}

SGridPanel::FScopedWidgetSlotArguments SGridPanel::AddSlot(int32 Column, int32 Row, Layer InLayer)
{
	return FScopedWidgetSlotArguments(MakeUnique<FSlot>(Column, Row, InLayer.TheLayer), Slots, PlaceFor(InLayer.TheLayer));
}

bool SGridPanel::RemoveSlot(const TSharedRef<SWidget>& SlotWidget)
{
	return Slots.Remove(SlotWidget) != INDEX_NONE;
}

void SGridPanel::ClearChildren()
{
	Slots.Empty();
}

void SGridPanel::SetColumnFill(int32 ColumnId, const TAttribute<float>& Coefficient)
{
	SetFill(ColumnFills, ColumnId, Coefficient);
}

void SGridPanel::SetRowFill(int32 RowId, const TAttribute<float>& Coefficient)
{
	SetFill(RowFills, RowId, Coefficient);
}

void SGridPanel::ClearFill()
{
	ClearFills(ColumnFills);
	ClearFills(RowFills);
}

FVector2D SGridPanel::ComputeDesiredSize(float) const
{
	Measure();
	return FVector2D(Columns->GetDesiredTotal(), Rows->GetDesiredTotal());
}

void SGridPanel::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	const FVector2f Size(AllottedGeometry.GetLocalSize());
	Columns->Arrange(Size.X);
	Rows->Arrange(Size.Y);
	for (int32 Index = 0; Index < Slots.Num(); ++Index)
	{
		const FSlot& Slot = Slots[Index];
		const TSharedRef<SWidget>& Child = Slot.GetWidget();
		// Cells of a child that is not measured, because it is collapsed, may not exist.
		if (!ArrangedChildren.Accepts(Child->GetVisibility()) || Child->GetVisibility() == EVisibility::Collapsed)
		{
			continue;
		}
		const AlignmentArrangeResult X = AlignChild<Orient_Horizontal>(Columns->GetExtent(Slot.GetColumn(), Slot.GetColumnSpan()), Slot, Slot.GetPadding());
		const AlignmentArrangeResult Y = AlignChild<Orient_Vertical>(Rows->GetExtent(Slot.GetRow(), Slot.GetRowSpan()), Slot, Slot.GetPadding());
		const FVector2f Cell(Columns->GetOffset(Slot.GetColumn()), Rows->GetOffset(Slot.GetRow()));
		ArrangedChildren.AddWidget(
			AllottedGeometry.MakeChild(Child, Cell + FVector2f(X.Offset, Y.Offset) + FVector2f(Slot.GetNudge()), FVector2f(X.Size, Y.Size)));
	}
}

void SGridPanel::SetFillArgument(TArray<TAttribute<float>>& Coefficients, int32 Track, const TAttribute<float>& Coefficient)
{
	const int32 Clamped = FMath::Clamp(Track, 0, MaxTracks - 1);
	Coefficients.SetNum(FMath::Max(Coefficients.Num(), Clamped + 1));
	Coefficients[Clamped] = Coefficient;
}

int32 SGridPanel::PlaceFor(int32 InLayer) const
{
	int32 Place = Slots.Num();
	while (Place > 0 && Slots[Place - 1].GetLayer() > InLayer)
	{
		--Place;
	}
	return Place;
}

void SGridPanel::SortByLayer()
{
	Slots.StableSort([](const FSlot& A, const FSlot& B) { return A.GetLayer() < B.GetLayer(); });
}

void SGridPanel::SetFill(FFills& Fills, int32 Track, const TAttribute<float>& Coefficient)
{
	const int32 Clamped = FMath::Clamp(Track, 0, MaxTracks - 1);
	while (Fills.Num() <= Clamped)
	{
		Fills.Add(MakeUnique<float>(0.0f));
	}
	Host::AssignAttribute(*this, *Fills[Clamped], Coefficient, EInvalidateWidgetReason::Layout);
}

void SGridPanel::ClearFills(FFills& Fills)
{
	for (const TUniquePtr<float>& Fill : Fills)
	{
		Host::AssignAttribute(*this, *Fill, TAttribute<float>(0.0f), EInvalidateWidgetReason::Layout);
	}
	Fills.Reset();
}

void SGridPanel::Measure() const
{
	int32 NumColumns = ColumnFills.Num();
	int32 NumRows = RowFills.Num();
	const auto ForEachCell = [this](auto&& Visit)
	{
		for (int32 Index = 0; Index < Slots.Num(); ++Index)
		{
			if (Slots[Index].GetWidget()->GetVisibility() != EVisibility::Collapsed)
			{
				Visit(Slots[Index]);
			}
		}
	};
	ForEachCell([&NumColumns, &NumRows](const FSlot& Slot)
	{
		NumColumns = FMath::Max(NumColumns, Slot.GetColumn() + Slot.GetColumnSpan());
		NumRows = FMath::Max(NumRows, Slot.GetRow() + Slot.GetRowSpan());
	});

	const auto Prepare = [](Host::FGridTracks& Tracks, int32 Count, const FFills& Fills)
	{
		Tracks.Reset(Count);
		Tracks.FillCoefficients.Reset();
		for (const TUniquePtr<float>& Fill : Fills)
		{
			Tracks.FillCoefficients.Add(*Fill);
		}
	};
	Prepare(*Columns, NumColumns, ColumnFills);
	Prepare(*Rows, NumRows, RowFills);

	const auto Wanted = [](const FSlot& Slot) { return FVector2f(Slot.GetWidget()->GetDesiredSize()) + FVector2f(Slot.GetPadding().GetDesiredSize()); };
	ForEachCell([this, &Wanted](const FSlot& Slot)
	{
		if (Slot.GetColumnSpan() == 1)
		{
			Columns->Require(Slot.GetColumn(), Wanted(Slot).X);
		}
		if (Slot.GetRowSpan() == 1)
		{
			Rows->Require(Slot.GetRow(), Wanted(Slot).Y);
		}
	});
	ForEachCell([this, &Wanted](const FSlot& Slot)
	{
		if (Slot.GetColumnSpan() > 1)
		{
			Columns->RequireSpan(Slot.GetColumn(), Slot.GetColumnSpan(), Wanted(Slot).X);
		}
		if (Slot.GetRowSpan() > 1)
		{
			Rows->RequireSpan(Slot.GetRow(), Slot.GetRowSpan(), Wanted(Slot).Y);
		}
	});
}
