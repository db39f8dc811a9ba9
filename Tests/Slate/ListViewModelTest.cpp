#include <random>

#include "ListViewTestTools.h"

namespace
{
	/** A list that makes all rows: where each one begins, by the heights of those before it. */
	class FNaiveList
	{
	public:
		explicit FNaiveList(const TArray<FTestItemPtr>& InItems) : Items(InItems) {}

		double GetEnd() const { return GetPlace(Items.Num()); }

		/** Slate units before an offset in items. */
		double GetPlace(double Offset) const
		{
			double Place = 0.0;
			for (int32 Index = 0; Index < Items.Num() && Offset > Index; ++Index)
			{
				Place += Items[Index]->Height * FMath::Min(Offset - Index, 1.0);
			}
			return Place;
		}

		void ScrollTo(double NewPlace, double View) { Place = FMath::Clamp(NewPlace, 0.0, FMath::Max(GetEnd() - View, 0.0)); }

		void ScrollIntoView(int32 Index, double View)
		{
			const double Begin = GetPlace(Index);
			const double End = Begin + Items[Index]->Height;
			if (Begin < Place)
			{
				ScrollTo(Begin, View);
			}
			else if (End > Place + View)
			{
				ScrollTo(FMath::Min(End - View, Begin), View);
			}
		}

		/** The rows in view and where they begin. */
		TMap<FTestItemPtr, double> GetRows(double View) const
		{
			TMap<FTestItemPtr, double> Rows;
			double Begin = -Place;
			for (const FTestItemPtr& Item : Items)
			{
				// Less than a tenth of a unit may or may not be seen.
				if (Begin + Item->Height > 0.1 && Begin < View - 0.1)
				{
					Rows.Add(Item, Begin);
				}
				Begin += Item->Height;
			}
			return Rows;
		}

		const TArray<FTestItemPtr>& Items;
		double Place = 0.0;
	};
}

class ListViewModelTest : public FListViewTest
{
protected:
	int32 Random(int32 Below) { return static_cast<int32>(Numbers() % static_cast<uint32>(Below)); }

	void ExpectAgreement(const FNaiveList& Naive, int32 Step)
	{
		const TMap<FTestItemPtr, double> Expected = Naive.GetRows(100.0);
		for (const TPair<FTestItemPtr, double>& Row : Expected)
		{
			const TSharedPtr<ITableRow> Shown = List->WidgetFromItem(Row.Key);
			ASSERT_TRUE(Shown.IsValid()) << "step " << Step << ", item " << Row.Key->Number;
			EXPECT_NEAR(FVector2f(Shown->AsWidget()->GetCachedGeometry().GetAbsolutePosition()).Y, Row.Value, 1.0) << "step " << Step << ", item " << Row.Key->Number;
			EXPECT_EQ(Shown->GetIndexInList(), Items.Find(Row.Key));
			EXPECT_EQ(Shown->IsItemSelected(), List->IsItemSelected(Row.Key));
		}
		EXPECT_LE(List->GetNumGeneratedChildren(), Expected.Num() + 2) << "step " << Step;
		EXPECT_EQ(NumMade - NumReleased, List->GetNumGeneratedChildren()) << "step " << Step;
		if (!Items.IsEmpty())
		{
			EXPECT_NEAR(Naive.GetPlace(List->GetScrollOffset()), Naive.Place, 0.5) << "step " << Step;
		}
	}

	std::mt19937 Numbers{20240611};
};

TEST_F(ListViewModelTest, RandomUseAgreesWithAListThatMakesAllRows)
{
	for (int32 Index = 0; Index < 60; ++Index)
	{
		AddItems(1, 4.0f + Random(60));
	}
	ShowList();
	FNaiveList Naive(Items);
	for (int32 Step = 0; Step < 3000 && !HasFailure(); ++Step)
	{
		switch (Random(7))
		{
		case 0:
		{
			const double Offset = Random(Items.Num() * 4 + 4) / 4.0;
			List->SetScrollOffset(static_cast<float>(Offset));
			Naive.ScrollTo(Naive.GetPlace(Offset), 100.0);
			break;
		}
		case 1:
		case 2:
		{
			const float Wheel = static_cast<float>(Random(9) - 4);
			Turn(Wheel);
			Naive.ScrollTo(Naive.Place - Wheel * 32.0, 100.0);
			break;
		}
		case 3:
			if (!Items.IsEmpty())
			{
				const int32 Index = Random(Items.Num());
				List->RequestScrollIntoView(Items[Index]);
				Naive.ScrollIntoView(Index, 100.0);
			}
			break;
		case 4:
		{
			// What is first in view stays there, by its number.
			const float Offset = List->GetScrollOffset();
			Items.Insert(MakeShared<FTestItem>(1000 + Step, 4.0f + Random(60)), Random(Items.Num() + 1));
			List->RequestListRefresh();
			Naive.ScrollTo(Naive.GetPlace(Offset), 100.0);
			break;
		}
		case 5:
			if (Items.Num() > 3)
			{
				const float Offset = List->GetScrollOffset();
				Items.RemoveAt(Random(Items.Num()));
				List->RequestListRefresh();
				Naive.ScrollTo(Naive.GetPlace(Offset), 100.0);
			}
			break;
		default:
			Move(50.0f, static_cast<float>(Random(100)));
			Press();
			Release();
			Host::FClock::Advance(1.0);
			break;
		}
		Frame();
		ExpectAgreement(Naive, Step);
	}
}

TEST_F(ListViewModelTest, SelectionByMouseAndKeysAgreesWithTheWords)
{
	AddItems(30, 10.0f);
	ShowList();
	TSet<int32> Expected;
	int32 Anchor = INDEX_NONE;
	for (int32 Step = 0; Step < 2000 && !HasFailure(); ++Step)
	{
		const int32 Row = Random(10);
		const bool bControl = Random(3) == 0;
		const bool bShift = Random(3) == 0;
		const int32 Item = FMath::TruncToInt(List->GetScrollOffset()) + Row;
		PressAt(Row * 10.0f + 5.0f, bControl, bShift);
		if (bShift)
		{
			Anchor = Anchor == INDEX_NONE ? Item : Anchor;
			Expected.Reset();
			for (int32 Between = FMath::Min(Anchor, Item); Between <= FMath::Max(Anchor, Item); ++Between)
			{
				Expected.Add(Between);
			}
		}
		else
		{
			Anchor = Item;
			const bool bSelect = !bControl || !Expected.Contains(Item);
			if (!bControl)
			{
				Expected.Reset();
			}
			bSelect ? static_cast<void>(Expected.Add(Item)) : static_cast<void>(Expected.Remove(Item));
		}
		for (int32 Index = 0; Index < Items.Num(); ++Index)
		{
			EXPECT_EQ(List->IsItemSelected(Items[Index]), Expected.Contains(Index)) << "step " << Step << ", item " << Index;
		}
		if (Random(5) == 0)
		{
			List->SetScrollOffset(static_cast<float>(Random(21)));
			Frame();
		}
	}
}
