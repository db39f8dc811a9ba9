#include "Widgets/Views/SListPanel.h"

#include "Layout/ArrangedChildren.h"
#include "Layout/Oriented.h"

namespace Host
{
	SListPanel::SListPanel()
		: Slots(this)
	{
	}

	void SListPanel::Construct(const FArguments& InArgs)
	{
		Orientation = InArgs._Orientation;
		OnRowResized = InArgs._OnRowResized;
	}

	void SListPanel::AddRow(const TSharedRef<SWidget>& Row)
	{
		FSlot::FSlotArguments Arguments(MakeUnique<FSlot>());
		Arguments[Row];
		Slots.AddSlot(MoveTemp(Arguments));
	}

	void SListPanel::RemoveRow(const TSharedRef<SWidget>& Row)
	{
		Slots.Remove(Row);
	}

	void SListPanel::PlaceRow(const TSharedRef<SWidget>& Row, int32 Index)
	{
		if (Slots[Index].GetWidget() != Row)
		{
			Slots.Move(Slots.IndexOf(Row), Index);
		}
	}

	void SListPanel::SetBegin(float InBegin)
	{
		if (Begin != InBegin)
		{
			Begin = InBegin;
			Invalidate(EInvalidateWidgetReason::ChildOrder);
		}
	}

	void SListPanel::SetWantedLength(float InLength)
	{
		if (WantedLength != InLength)
		{
			WantedLength = InLength;
			Invalidate(EInvalidateWidgetReason::Layout);
		}
	}

	void SListPanel::NoteRowSizes()
	{
		NotedLength = SumRowLengths();
	}

	float SListPanel::GetRowLength(const SWidget& Row) const
	{
		return Row.GetVisibility() == EVisibility::Collapsed ? 0.0f : Along(FVector2f(Row.GetDesiredSize()), Orientation);
	}

	float SListPanel::SumRowLengths() const
	{
		float Sum = 0.0f;
		for (int32 Index = 0; Index < Slots.Num(); ++Index)
		{
			Sum += GetRowLength(Slots[Index].GetWidget().Get());
		}
		return Sum;
	}

	FVector2D SListPanel::ComputeDesiredSize(float LayoutScaleMultiplier) const
	{
		MeasureScale = LayoutScaleMultiplier;
		if (SumRowLengths() != NotedLength)
		{
			OnRowResized.ExecuteIfBound();
		}
		float Width = 0.0f;
		for (int32 Index = 0; Index < Slots.Num(); ++Index)
		{
			Width = FMath::Max(Width, Along(FVector2f(Slots[Index].GetWidget()->GetDesiredSize()), Across(Orientation)));
		}
		return FVector2D(OrientedVector(Orientation, WantedLength, Width));
	}

	void SListPanel::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
	{
		const float Room = Along(FVector2f(AllottedGeometry.GetLocalSize()), Across(Orientation));
		// Whole pixels, so that text keeps its shape while it moves.
		float Place = FMath::RoundToFloat(Begin * AllottedGeometry.Scale) / AllottedGeometry.Scale;
		for (int32 Index = 0; Index < Slots.Num(); ++Index)
		{
			const TSharedRef<SWidget>& Row = Slots[Index].GetWidget();
			const float Length = GetRowLength(Row.Get());
			if (ArrangedChildren.Accepts(Row->GetVisibility()))
			{
				ArrangedChildren.AddWidget(AllottedGeometry.MakeChild(Row, OrientedVector(Orientation, Place, 0.0f), OrientedVector(Orientation, Length, Room)));
			}
			Place += Length;
		}
	}
}
