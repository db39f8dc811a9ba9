#include "Widgets/Views/SListView.h"

#include "ListViewTestTools.h"
#include "Widgets/Layout/SScaleBox.h"
#include "Widgets/Text/STextBlock.h"

class ListViewTest : public FListViewTest
{
};

TEST_F(ListViewTest, OnlyRowsInViewExist)
{
	AddItems(100000);
	ShowList();
	EXPECT_EQ(Rows(), "0@0 1@40 2@80");
	EXPECT_EQ(NumMade, 3);
	EXPECT_EQ(List->GetNumGeneratedChildren(), 3);
}

TEST_F(ListViewTest, ScrollOffsetCountsItemsAndIsCarriedOutAtTheNextFrame)
{
	AddItems(100);
	ShowList();
	List->SetScrollOffset(10.5f);
	EXPECT_EQ(List->GetScrollOffset(), 0.0f);
	Frame();
	EXPECT_EQ(List->GetScrollOffset(), 10.5f);
	EXPECT_EQ(Rows(), "10@-20 11@20 12@60");
}

TEST_F(ListViewTest, OffsetsOutOfRangeBecomeTheNearestInIt)
{
	AddItems(10);
	ShowList();
	List->SetScrollOffset(1000.0f);
	Frame();
	EXPECT_EQ(Rows(), "7@-20 8@20 9@60");
	EXPECT_EQ(List->GetScrollOffset(), 7.5f);
	List->SetScrollOffset(-3.0f);
	Frame();
	EXPECT_EQ(List->GetScrollOffset(), 0.0f);
	List->ScrollToBottom();
	Frame();
	EXPECT_EQ(List->GetScrollOffset(), 7.5f);
}

TEST_F(ListViewTest, RowsOfDifferentHeightsFollowEachOther)
{
	for (const float Height : {10.0f, 70.0f, 30.0f, 5.0f, 95.0f, 20.0f})
	{
		AddItems(1, Height);
	}
	ShowList();
	EXPECT_EQ(Rows(), "0@0 1@10 2@80");
	List->SetScrollOffset(1.5f);
	Frame();
	EXPECT_EQ(Rows(), "1@-35 2@35 3@65 4@70");
	List->ScrollToBottom();
	Frame();
	EXPECT_EQ(Rows(), "4@-15 5@80");
	List->ScrollToTop();
	Frame();
	EXPECT_EQ(Rows(), "0@0 1@10 2@80");
}

TEST_F(ListViewTest, WheelScrollsByAStepAndStopsAtTheEnds)
{
	AddItems(5);
	ShowList();
	EXPECT_FALSE(Turn(1.0f)) << "nothing above";
	EXPECT_TRUE(Turn(-1.0f));
	Frame();
	EXPECT_EQ(Rows(), "0@-32 1@8 2@48 3@88");
	Turn(-1.0f);
	Turn(-1.0f);
	Turn(-1.0f);
	Frame();
	EXPECT_EQ(Rows(), "2@-20 3@20 4@60");
	EXPECT_FALSE(Turn(-1.0f)) << "nothing below";
	List->SetConsumeMouseWheel(EConsumeMouseWheel::Always);
	EXPECT_TRUE(Turn(-1.0f));
}

TEST_F(ListViewTest, ScrollingKeepsTheRowsThatStayInView)
{
	AddItems(1000);
	ShowList();
	const TSharedPtr<ITableRow> Kept = List->WidgetFromItem(Items[2]);
	Turn(-2.0f);
	Frame();
	EXPECT_EQ(List->WidgetFromItem(Items[2]), Kept);
	EXPECT_EQ(Rows(), "1@-24 2@16 3@56 4@96");
	EXPECT_EQ(NumMade, 5);
	EXPECT_EQ(NumReleased, 1);
}

TEST_F(ListViewTest, RowsGoBeforeThoseThatTakeTheirPlaceAreMade)
{
	AddItems(1000);
	ShowList();
	int32 MostAtOnce = 0;
	auto Watched = Arguments();
	Watched.OnGenerateRow_Lambda([&](FTestItemPtr Item, const TSharedRef<STableViewBase>& Table)
	{
		const TSharedRef<ITableRow> Row = MakeRow(Item, Table);
		MostAtOnce = FMath::Max(MostAtOnce, NumMade - NumReleased);
		return Row;
	});
	NumMade = 0;
	NumReleased = 0;
	ShowList(Watched);
	NumReleased = 0;
	for (const float Offset : {500.0f, 20.0f, 900.5f, 3.0f})
	{
		List->SetScrollOffset(Offset);
		Frame();
	}
	for (int32 Step = 0; Step < 50; ++Step)
	{
		Turn(Step < 25 ? -3.0f : 3.0f);
		Frame();
	}
	EXPECT_LE(MostAtOnce, 5) << "four fit the view";
}

TEST_F(ListViewTest, ScrollingCostsTheSameHoweverManyItemsThereAre)
{
	TArray<Host::FSlateCounters> Works;
	for (const int32 Count : {100, 100000})
	{
		Items.Reset();
		AddItems(Count);
		ShowList();
		NumMade = 0;
		List->SetScrollOffset(50.5f);
		Frame();
		EXPECT_EQ(NumMade, 3);
		Works.Add(Work);
	}
	EXPECT_EQ(Works[0].Measured, Works[1].Measured);
	EXPECT_EQ(Works[0].Arranged, Works[1].Arranged);
	EXPECT_EQ(Works[0].Painted, Works[1].Painted);
}

TEST_F(ListViewTest, UnchangedFrameDoesNothing)
{
	AddItems(1000);
	ShowList();
	Frame();
	Frame();
	EXPECT_EQ(Work.Measured, 0);
	EXPECT_EQ(Work.Painted, 0);
	EXPECT_FALSE(List->HasActiveTimers());
	EXPECT_GT(Host::FSlateLoop::GetNextWakeTime(), Host::FClock::Now() + 1000.0);
}

TEST_F(ListViewTest, RefreshShowsChangedItemsAndKeepsRowsOfThoseThatStayed)
{
	AddItems(5);
	ShowList();
	const TSharedPtr<ITableRow> Kept = List->WidgetFromItem(Items[1]);
	Items.RemoveAt(0);
	List->RequestListRefresh();
	EXPECT_TRUE(List->IsPendingRefresh());
	Frame();
	EXPECT_FALSE(List->IsPendingRefresh());
	EXPECT_EQ(Rows(), "1@0 2@40 3@80");
	EXPECT_EQ(List->WidgetFromItem(Items[0]), Kept);
	EXPECT_EQ(Kept->GetIndexInList(), 0);
	EXPECT_EQ(NumMade, 4);
	Items.Reset();
	List->RequestListRefresh();
	Frame();
	EXPECT_EQ(List->GetNumGeneratedChildren(), 0);
	EXPECT_EQ(NumReleased, 4);
}

TEST_F(ListViewTest, RebuildingMakesAllRowsAnew)
{
	AddItems(5);
	ShowList();
	List->RebuildList();
	Frame();
	EXPECT_EQ(NumMade, 6);
	EXPECT_EQ(NumReleased, 3);
	EXPECT_EQ(Rows(), "0@0 1@40 2@80");
}

TEST_F(ListViewTest, LargerViewShowsMoreRowsInTheSameFrame)
{
	AddItems(50);
	const TSharedRef<SBox> Frames = SNew(SBox).WidthOverride(100.0f).HeightOverride(100.0f);
	List = SArgumentNew(Arguments(), FList);
	Frames->SetContent(List.ToSharedRef());
	Show(SNew(SBox).HAlign(HAlign_Left).VAlign(VAlign_Top)[Frames]);
	Frames->SetHeightOverride(FOptionalSize(170.0f));
	Frame();
	EXPECT_EQ(Rows(), "0@0 1@40 2@80 3@120 4@160");
}

TEST_F(ListViewTest, ScaledListComesToRest)
{
	AddItems(100);
	auto Made = Arguments();
	Made.OnGenerateRow_Lambda([](FTestItemPtr Item, const TSharedRef<STableViewBase>& Table)
	{
		const TSharedRef<ITableRow> Row = SNew(STableRow<FTestItemPtr>, Table)[SNew(STextBlock).Text(FText::AsNumber(Item->Number))];
		return Row;
	});
	List = SArgumentNew(Made, FList);
	Show(SNew(SScaleBox).Stretch(EStretch::ScaleToFit)
	[
		SNew(SBox).WidthOverride(117.0f).HeightOverride(83.0f)[List.ToSharedRef()]
	]);
	Frame();
	Frame();
	Frame();
	EXPECT_FALSE(List->IsPendingRefresh());
	EXPECT_EQ(Work.Measured, 0);
	EXPECT_GT(List->GetNumGeneratedChildren(), 2);
}

TEST_F(ListViewTest, ListThatWasHiddenShowsWhatChangedMeanwhile)
{
	AddItems(10);
	ShowList();
	List->SetVisibility(EVisibility::Collapsed);
	Frame();
	Items.RemoveAt(0, 4);
	List->RequestListRefresh();
	List->SetScrollOffset(1.0f);
	Frame();
	Frame();
	EXPECT_FALSE(List->HasActiveTimers()) << "nothing is left to be done";
	List->SetVisibility(EVisibility::Visible);
	Frame();
	EXPECT_EQ(Rows(), "5@0 6@40 7@80");
}

TEST_F(ListViewTest, ListMadeLongBeforeItIsShownMakesItsRowsThen)
{
	AddItems(10);
	Show(SNew(SBox));
	List = SArgumentNew(Arguments(), FList);
	Frame();
	List->RequestScrollIntoView(Items[9]);
	Frame();
	EXPECT_EQ(NumMade, 0);
	EXPECT_FALSE(List->HasActiveTimers());
	Window->SetContent(SNew(SBox).HAlign(HAlign_Left).VAlign(VAlign_Top)[SNew(SBox).WidthOverride(100.0f).HeightOverride(100.0f)[List.ToSharedRef()]]);
	Frame();
	EXPECT_EQ(Rows(), "7@-20 8@20 9@60");
}

TEST_F(ListViewTest, RowThatGrowsMovesTheOnesBehindIt)
{
	AddItems(50);
	TSharedPtr<SBox> First;
	auto Made = Arguments();
	Made.OnGenerateRow_Lambda([&](FTestItemPtr Item, const TSharedRef<STableViewBase>& Table)
	{
		const TSharedRef<SBox> Content = SNew(SBox).HeightOverride(Item->Height);
		First = Item->Number == 0 ? TSharedPtr<SBox>(Content) : First;
		const TSharedRef<ITableRow> Row = SNew(STableRow<FTestItemPtr>, Table)[Content];
		return Row;
	});
	ShowList(Made);
	First->SetHeightOverride(FOptionalSize(10.0f));
	Frame();
	Frame();
	EXPECT_EQ(Rows(), "0@0 1@10 2@50 3@90");
}

TEST_F(ListViewTest, WantsTheRoomOfAllItsItems)
{
	AddItems(1000, 30.0f);
	List = SArgumentNew(Arguments(), FList);
	Show(SNew(SBox).HAlign(HAlign_Left).VAlign(VAlign_Top)[List.ToSharedRef()]);
	Frame();
	EXPECT_EQ(FVector2f(List->GetDesiredSize()).Y, 30000.0f);
	EXPECT_EQ(List->GetNumGeneratedChildren(), 10) << "the window has room for ten";
	Items.SetNum(4);
	List->RequestListRefresh();
	Frame();
	EXPECT_EQ(FVector2f(List->GetDesiredSize()).Y, 120.0f);
}

TEST_F(ListViewTest, HorizontalListGoesToTheRight)
{
	AddItems(50);
	ShowList(Arguments().Orientation(Orient_Horizontal));
	EXPECT_EQ(Rows(), "0@0 1@40 2@80");
	Turn(-1.0f);
	Frame();
	EXPECT_EQ(Rows(), "0@-32 1@8 2@48 3@88");
	Press();
	Release();
	Stroke(EKeys::Right);
	EXPECT_EQ(Selected(), "3");
	Stroke(EKeys::Left);
	EXPECT_EQ(Selected(), "2");
}

TEST_F(ListViewTest, NullItemsTakeNoRoom)
{
	AddItems(4);
	Items.Insert(nullptr, 1);
	Items.Insert(nullptr, 0);
	ShowList();
	EXPECT_EQ(Rows(), "0@0 1@40 2@80");
	Items.Init(nullptr, 10);
	List->RequestListRefresh();
	Frame();
	EXPECT_EQ(Rows(), "");
}

TEST_F(ListViewTest, ItemThatStandsTwiceHasTwoRows)
{
	AddItems(3, 20.0f);
	const FTestItemPtr Twice = Items[0];
	Items.Insert(Twice, 2);
	ShowList();
	EXPECT_EQ(NumMade, 4);
	EXPECT_EQ(Rows(), "0@0 1@20 0@0 2@60") << "an item is found by its first row";
	List->RequestListRefresh();
	Frame();
	EXPECT_EQ(NumMade, 4);
}

TEST_F(ListViewTest, ItemsMayBeReferencesThatAreNeverNull)
{
	using FReferenceList = SListView<TSharedRef<FTestItem>>;
	TArray<TSharedRef<FTestItem>> References = {MakeShared<FTestItem>(0, 40.0f), MakeShared<FTestItem>(1, 40.0f)};
	TSharedPtr<FReferenceList> ReferenceList;
	Show(SAssignNew(ReferenceList, FReferenceList)
		.ListItemsSource(&References)
		.OnSelectionChanged_Lambda([this](TSharedPtr<FTestItem> Item, ESelectInfo::Type Cause) { Note(TEXT("Select"), Item, Cause); })
		.OnGenerateRow_Lambda([](TSharedRef<FTestItem> Item, const TSharedRef<STableViewBase>& Table)
		{
			const TSharedRef<ITableRow> Row = SNew(STableRow<TSharedRef<FTestItem>>, Table)[SNew(SBox).HeightOverride(Item->Height)];
			return Row;
		}));
	PressAt(50.0f);
	ReferenceList->ClearSelection();
	EXPECT_LOG("Select:1:Mouse Select:none:Direct");
}

// Scrolling into view.

TEST_F(ListViewTest, ScrollsNoFartherThanNeededToSeeAnItem)
{
	AddItems(100);
	ShowList();
	List->RequestScrollIntoView(Items[1]);
	Frame();
	EXPECT_EQ(Rows(), "0@0 1@40 2@80") << "it is in view";
	List->RequestScrollIntoView(Items[2]);
	EXPECT_EQ(Rows(), "0@0 1@40 2@80") << "not before the next frame";
	Frame();
	EXPECT_EQ(Rows(), "0@-20 1@20 2@60");
	List->RequestScrollIntoView(Items[60]);
	Frame();
	EXPECT_EQ(Rows(), "58@-20 59@20 60@60");
	List->RequestScrollIntoView(Items[58]);
	Frame();
	EXPECT_EQ(Rows(), "58@0 59@40 60@80");
	List->RequestScrollIntoView(Items[3]);
	Frame();
	EXPECT_EQ(Rows(), "3@0 4@40 5@80");
}

TEST_F(ListViewTest, ScrollingToAnItemThatIsNotInTheListIsIgnored)
{
	AddItems(100);
	FString Told;
	ShowList(Arguments().OnItemScrolledIntoView_Lambda([&](FTestItemPtr Item, const TSharedPtr<ITableRow>& Row) { Told += FString::Printf(TEXT("%d:%d "), Item->Number, Row->GetIndexInList()); }));
	List->RequestScrollIntoView(MakeShared<FTestItem>(7, 10.0f));
	Frame();
	EXPECT_EQ(List->GetScrollOffset(), 0.0f);
	EXPECT_EQ(Told, TEXT(""));
	List->RequestScrollIntoView(Items[50]);
	Frame();
	EXPECT_EQ(Told, TEXT("50:50 "));
}

TEST_F(ListViewTest, ScrollRequestWaitsForTheItemsOfTheSameFrame)
{
	AddItems(3);
	ShowList();
	AddItems(50);
	List->RequestListRefresh();
	List->RequestScrollIntoView(Items[30]);
	Frame();
	EXPECT_EQ(Rows(), "28@-20 29@20 30@60");
}

TEST_F(ListViewTest, NavigatingToAnItemMakesKeysGoFromIt)
{
	AddItems(100);
	ShowList();
	List->RequestNavigateToItem(Items[40]);
	Frame();
	EXPECT_EQ(Rows(), "38@-20 39@20 40@60");
	EXPECT_TRUE(List->HasKeyboardFocus());
	EXPECT_EQ(Selected(), "");
	Stroke(EKeys::Down);
	EXPECT_EQ(Selected(), "41");
	EXPECT_LOG("Select:41:Navigation");
}
