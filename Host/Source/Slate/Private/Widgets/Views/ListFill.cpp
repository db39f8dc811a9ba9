#include "Widgets/Views/ListFill.h"

#include "Widgets/Views/SListPanel.h"

namespace Host
{
	namespace
	{
		/** Slate units of a row that do not show: sums of lengths are not exact. */
		constexpr float Tolerance = 0.01f;
	}

	FListFill::FListFill(STableViewBase& InTable, float InView)
		: Table(InTable), Old(InTable.Shown), View(InView)
	{
	}

	bool FListFill::Scroll(float Units)
	{
		for (int32 Place = 0; Place < Old.Num(); ++Place)
		{
			if (Old[Place].Key != Table.GetItemKey(Table.FirstShown + Place))
			{
				return false;
			}
		}
		if (Old.IsEmpty())
		{
			return false;
		}
		Rows = MoveTemp(Old);
		Old.Reset();
		First = Table.FirstShown;
		Begin = Table.Begin;
		const float FirstLength = Rows[0].Length;
		for (FShownRow& Row : Rows)
		{
			Measure(Row);
			Length += Row.Length;
		}
		if (Rows[0].Length != FirstLength && FirstLength > 0.0f)
		{
			// The same share of it stays out of view.
			Begin *= Rows[0].Length / FirstLength;
		}
		Begin -= Units;
		Settle();
		return true;
	}

	void FListFill::Jump(double Offset)
	{
		const int32 Index = static_cast<int32>(FMath::Clamp(Offset, 0.0, Table.GetNumItemsBeingObserved() - 1.0));
		StartAt(Index, Index);
		Begin = -Length * static_cast<float>(FMath::Clamp(Offset - Index, 0.0, 1.0));
		Settle();
	}

	void FListFill::JumpToEndOf(int32 Index)
	{
		StartAt(Index, Index - Old.Num());
		Begin = FMath::Max(View - Length, 0.0f);
		Settle();
	}

	void FListFill::StartAt(int32 Index, int32 FirstKept)
	{
		// Before rows are made, so that those that go can be used for them.
		TArray<const void*, TInlineAllocator<64>> Kept;
		for (int32 Place = 0; Place <= Old.Num(); ++Place)
		{
			Kept.Add(Table.GetItemKey(FirstKept + Place));
		}
		for (FShownRow& Row : Old)
		{
			if (!Kept.Contains(Row.Key))
			{
				Table.ReleaseShownRow(Row);
			}
		}
		First = Index;
		Rows.Add(Obtain(Index));
		Length = Rows[0].Length;
	}

	void FListFill::Settle()
	{
		while (Begin + Rows[0].Length <= 0.0f && (Rows.Num() > 1 || Append()))
		{
			DropFirst();
		}
		while (Begin > 0.0f && Prepend())
		{
			while (Rows.Num() > 1 && GetEnd() - Rows.Last().Length >= View)
			{
				DropLast();
			}
		}
		Begin = FMath::Min(Begin, 0.0f);
		while (GetEnd() < View && Append())
		{
		}
		if (GetEnd() < View)
		{
			// The end of the items comes with the end of the view, if there are enough of them.
			Begin += View - GetEnd();
			while (Begin > 0.0f && Prepend())
			{
			}
			Begin = FMath::Min(Begin, 0.0f);
		}
		while (Rows.Num() > 1 && Begin + Rows[0].Length <= Tolerance)
		{
			DropFirst();
		}
		Begin = FMath::Min(Begin, 0.0f);
		while (Rows.Num() > 1 && GetEnd() - Rows.Last().Length >= View - Tolerance)
		{
			DropLast();
		}
	}

	bool FListFill::Append()
	{
		if (First + Rows.Num() >= Table.GetNumItemsBeingObserved())
		{
			return false;
		}
		Rows.Add(Obtain(First + Rows.Num()));
		Length += Rows.Last().Length;
		return true;
	}

	bool FListFill::Prepend()
	{
		if (First <= 0)
		{
			return false;
		}
		Rows.Insert(Obtain(--First), 0);
		Length += Rows[0].Length;
		Begin -= Rows[0].Length;
		return true;
	}

	void FListFill::DropFirst()
	{
		FShownRow Dropped = MoveTemp(Rows[0]);
		Rows.RemoveAt(0);
		Begin += Dropped.Length;
		Length -= Dropped.Length;
		++First;
		Table.ReleaseShownRow(Dropped);
	}

	void FListFill::DropLast()
	{
		FShownRow Dropped = Rows.Pop();
		Length -= Dropped.Length;
		Table.ReleaseShownRow(Dropped);
	}

	FShownRow FListFill::Obtain(int32 Index)
	{
		FShownRow Obtained;
		Obtained.Key = Table.GetItemKey(Index);
		if (!Obtained.Key)
		{
			return Obtained;
		}
		if (FShownRow* Found = Old.FindByPredicate([&Obtained](const FShownRow& Row) { return Row.Key == Obtained.Key && Row.Row.IsValid(); }))
		{
			Obtained = *Found;
			*Found = FShownRow();
		}
		else
		{
			Obtained.Row = Table.GenerateRow(Index);
			Obtained.Widget = Obtained.Row->AsWidget();
			Table.Panel->AddRow(Obtained.Widget.ToSharedRef());
			if (Obtained.Key == Table.GetItemKey(Index))
			{
				// Before it is measured, which may depend on it.
				Table.UpdateRowState(*Obtained.Row, Index);
			}
		}
		Obtained.Row->SetIndexInList(Index);
		Measure(Obtained);
		return Obtained;
	}

	void FListFill::Measure(FShownRow& Row) const
	{
		if (Row.Widget.IsValid())
		{
			// As the tree does it: another scale would give another size each time.
			Row.Widget->SlatePrepass(Table.Panel->GetMeasureScale());
			Row.Length = Table.Panel->GetRowLength(*Row.Widget);
		}
	}
}
