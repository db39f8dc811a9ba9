#include "Widgets/Views/SListView.h"

#include "ListViewTestTools.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SScaleBox.h"
#include "Widgets/Layout/SScrollBarTrack.h"
#include "Widgets/Text/STextBlock.h"

class ListViewTest : public FListViewTest
{
protected:
	/** Whether a row is drawn with something of its own size above what it shows. */
	bool ShowsFocus(int32 Index) const
	{
		int32 NumBoxes = 0;
		const FSlateRect Rect = List->WidgetFromItem(Items[Index])->AsWidget()->GetCachedGeometry().GetRenderBoundingRect();
		const Host::FPixelRect Area = Host::FPixelRect::Make(Rect.Left + 5, Rect.Top + 5, Rect.Left + 6, Rect.Top + 6);
		Window->GetRoot().ForEachElement(Area, [&NumBoxes](TConstArrayView<Host::FDrawElement> Elements) { NumBoxes += Elements.Num(); });
		// The selected row has its background besides.
		return NumBoxes > (List->IsItemSelected(Items[Index]) ? 1 : 0);
	}
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

// Selection from code.

TEST_F(ListViewTest, SelectionFromCodeIsToldAsDirect)
{
	AddItems(10);
	ShowList();
	List->SetSelection(Items[3]);
	EXPECT_EQ(Selected(), "3");
	EXPECT_LOG("Select:3:Direct");
	List->SetSelection(Items[3]);
	EXPECT_LOG("Select:3:Direct");
	List->SetItemSelection(Items[5], true, ESelectInfo::OnKeyPress);
	EXPECT_EQ(Selected(), "3 5");
	EXPECT_LOG("Select:3:Key");
	List->SetItemSelection(Items[3], false);
	EXPECT_EQ(Selected(), "5");
	EXPECT_LOG("Select:5:Direct");
	List->ClearSelection();
	List->ClearSelection();
	EXPECT_LOG("Select:none:Direct");
	EXPECT_EQ(List->GetNumItemsSelected(), 0);
}

TEST_F(ListViewTest, ListOfSingleSelectionHoldsOneItem)
{
	AddItems(10);
	ShowList(Arguments().SelectionMode(ESelectionMode::Single));
	List->SetItemSelection(Items[3], true);
	List->SetItemSelection(Items[5], true);
	EXPECT_EQ(Selected(), "5");
	List->SetSelectionMode(ESelectionMode::None);
	List->SetSelection(Items[1]);
	List->SetItemSelection(Items[1], true);
	EXPECT_EQ(Selected(), "5") << "nothing can be selected now";
}

TEST_F(ListViewTest, ItemsThatVanishAreDroppedFromTheSelection)
{
	AddItems(20);
	ShowList();
	List->SetSelection(Items[3]);
	TakeLog();
	const FTestItemPtr Gone = Items[3];
	Items.RemoveAt(3);
	List->RequestListRefresh();
	EXPECT_TRUE(List->IsItemSelected(Gone)) << "until the refresh";
	Frame();
	EXPECT_LOG("Select:none:Direct");
	List->SetItemSelection(Items, true);
	TakeLog();
	Items.RemoveAt(0, 12);
	List->RequestListRefresh();
	Frame();
	EXPECT_EQ(List->GetNumItemsSelected(), 7);
	EXPECT_LOG("Select:13:Direct");
	List->RequestListRefresh();
	Frame();
	EXPECT_LOG("");
}

TEST_F(ListViewTest, RowsKnowThatTheirItemIsSelected)
{
	AddItems(10);
	ShowList();
	List->SetSelection(Items[1]);
	EXPECT_TRUE(List->WidgetFromItem(Items[1])->IsItemSelected());
	EXPECT_FALSE(List->WidgetFromItem(Items[0])->IsItemSelected());
	List->SetSelection(Items[4]);
	EXPECT_FALSE(List->WidgetFromItem(Items[1])->IsItemSelected());
	List->SetScrollOffset(4.0f);
	Frame();
	EXPECT_TRUE(List->WidgetFromItem(Items[4])->IsItemSelected()) << "a row made later";
	EXPECT_EQ(List->ItemFromWidget(List->WidgetFromItem(Items[4]).Get()), Items[4]);
}

// The mouse.

TEST_F(ListViewTest, ClickSelectsFirstAndThenIsToldOf)
{
	AddItems(10);
	ShowList(Arguments().SelectionMode(ESelectionMode::Single));
	Move(50.0f, 50.0f);
	Press();
	EXPECT_EQ(Selected(), "1") << "it shows at the press";
	EXPECT_LOG("");
	Release();
	EXPECT_LOG("Select:1:Mouse Click:1");
	Wait(1.0);
	PressAt(50.0f);
	EXPECT_LOG("Click:1");
}

TEST_F(ListViewTest, ReleaseElsewhereIsNoClickButSelects)
{
	AddItems(10);
	ShowList();
	Move(50.0f, 50.0f);
	Press();
	Move(50.0f, 90.0f);
	Release();
	EXPECT_LOG("Select:1:Mouse");
	EXPECT_EQ(Selected(), "1");
}

TEST_F(ListViewTest, SingleToggleDeselectsBySecondClick)
{
	AddItems(10);
	ShowList(Arguments().SelectionMode(ESelectionMode::SingleToggle));
	PressAt(10.0f);
	PressAt(50.0f);
	EXPECT_EQ(Selected(), "1");
	PressAt(50.0f);
	EXPECT_EQ(Selected(), "");
	EXPECT_LOG("Select:0:Mouse Click:0 Select:1:Mouse Click:1 Select:none:Mouse Click:1");
}

TEST_F(ListViewTest, ListWithoutSelectionStillTellsOfClicks)
{
	AddItems(10);
	ShowList(Arguments().SelectionMode(ESelectionMode::None));
	PressAt(50.0f);
	EXPECT_EQ(Selected(), "");
	EXPECT_LOG("Click:1");
}

TEST_F(ListViewTest, ControlAndShiftClicksSelectSeveral)
{
	AddItems(20, 10.0f);
	ShowList();
	PressAt(25.0f);
	PressAt(55.0f, true);
	EXPECT_EQ(Selected(), "2 5");
	PressAt(25.0f, true);
	EXPECT_EQ(Selected(), "5");
	PressAt(85.0f, false, true);
	EXPECT_EQ(Selected(), "2 3 4 5 6 7 8") << "from the last item that was clicked without shift";
	PressAt(5.0f, false, true);
	EXPECT_EQ(Selected(), "0 1 2");
	PressAt(45.0f);
	EXPECT_EQ(Selected(), "4");
}

TEST_F(ListViewTest, DoubleClickIsToldOfInPlaceOfASecondClick)
{
	AddItems(10);
	ShowList(Arguments().OnMouseButtonDoubleClick_Lambda([this](FTestItemPtr Item) { Log.Add(FString::Printf(TEXT("Double:%d"), Item->Number)); }));
	Move(50.0f, 50.0f);
	Press();
	Release();
	Press();
	Release();
	EXPECT_LOG("Select:1:Mouse Click:1 Double:1");
}

TEST_F(ListViewTest, HoverIsToldOfForEachItem)
{
	AddItems(10);
	ShowList(Arguments().OnItemHovered_Lambda([this](FTestItemPtr Item, bool bHovered) { Log.Add(FString::Printf(TEXT("%s%d"), bHovered ? TEXT("+") : TEXT("-"), Item->Number)); }));
	EXPECT_LOG("+0");
	Move(50.0f, 50.0f);
	EXPECT_LOG("-0 +1");
	Move(300.0f, 250.0f);
	EXPECT_LOG("-1");
}

TEST_F(ListViewTest, ClickBesideTheRowsClearsTheSelectionIfToldTo)
{
	AddItems(1);
	ShowList();
	List->SetSelection(Items[0]);
	TakeLog();
	PressAt(90.0f);
	EXPECT_LOG("Select:none:Mouse");
	ShowList(Arguments().ClearSelectionOnClick(false));
	List->SetSelection(Items[0]);
	TakeLog();
	PressAt(90.0f);
	EXPECT_LOG("");
}

TEST_F(ListViewTest, WhatIsInARowGetsTheMouseFirst)
{
	AddItems(10);
	auto Made = Arguments();
	Made.OnGenerateRow_Lambda([&](FTestItemPtr Item, const TSharedRef<STableViewBase>& Table)
	{
		const TSharedRef<ITableRow> Row = SNew(STableRow<FTestItemPtr>, Table)
		[
			SNew(SBox).HeightOverride(40.0f).Padding(FMargin(20.0f, 5.0f))
			[
				SNew(SButton).OnClicked_Lambda([this, Item]()
				{
					Log.Add(FString::Printf(TEXT("Button:%d"), Item->Number));
					return FReply::Handled();
				})
			]
		];
		return Row;
	});
	ShowList(Made);
	PressAt(50.0f);
	EXPECT_LOG("Button:1");
	Move(5.0f, 50.0f);
	Press();
	Release();
	EXPECT_LOG("Select:1:Mouse Click:1");
}

TEST_F(ListViewTest, RightButtonDragsTheRowsAndTheyGoOnAfterIt)
{
	AddItems(1000);
	ShowList();
	Move(50.0f, 90.0f);
	Press(EKeys::RightMouseButton);
	for (int32 Step = 1; Step <= 8; ++Step)
	{
		Move(50.0f, 90.0f - 10.0f * Step);
		Wait(0.02);
	}
	EXPECT_TRUE(List->IsRightClickScrolling());
	EXPECT_EQ(Rows(), "2@0 3@40 4@80");
	Release(EKeys::RightMouseButton);
	Wait(0.02);
	EXPECT_GT(List->GetScrollOffset(), 2.1f);
	for (int32 Step = 0; Step < 300; ++Step)
	{
		Wait(0.02);
	}
	EXPECT_FALSE(List->HasActiveTimers()) << "it comes to rest";
	EXPECT_EQ(Selected(), "");
}

TEST_F(ListViewTest, AnimatedWheelArrivesAfterSomeFrames)
{
	AddItems(1000);
	ShowList(Arguments().EnableAnimatedScrolling(true));
	Turn(-5.0f);
	Wait(0.03);
	EXPECT_GT(List->GetScrollOffset(), 0.1f);
	EXPECT_LT(List->GetScrollOffset(), 3.9f);
	for (int32 Step = 0; Step < 100; ++Step)
	{
		Wait(0.03);
	}
	EXPECT_NEAR(List->GetScrollOffset(), 4.0f, 0.001f);
	EXPECT_FALSE(List->HasActiveTimers());
}

TEST_F(ListViewTest, ScrollBarShowsAndMovesTheView)
{
	AddItems(100);
	const TSharedRef<SScrollBar> Bar = SNew(SScrollBar);
	List = SArgumentNew(Arguments().ExternalScrollbar(Bar), FList);
	Show(SNew(SHorizontalBox)
		+ SHorizontalBox::Slot().AutoWidth()[SNew(SBox).WidthOverride(100.0f)[List.ToSharedRef()]]
		+ SHorizontalBox::Slot().AutoWidth()[Bar]);
	EXPECT_NEAR(Bar->ThumbSizeFraction(), 0.075f, 1.0e-4f);
	List->ScrollToBottom();
	Frame();
	EXPECT_NEAR(Bar->DistanceFromBottom(), 0.0f, 1.0e-4f);
	List->ScrollToTop();
	Frame();
	const float BarMiddle = FVector2f(Bar->GetCachedGeometry().GetAbsolutePositionAtCoordinates(FVector2f(0.5f, 0.5f))).X;
	Move(BarMiddle, 8.0f);
	Press();
	Move(BarMiddle, 158.0f);
	Frame();
	EXPECT_GT(List->GetScrollOffset(), 35.0f);
	EXPECT_LT(List->GetScrollOffset(), 65.0f);
	Move(BarMiddle, 1000.0f);
	Frame();
	EXPECT_EQ(List->GetScrollOffset(), 92.5f);
	Release();
}

TEST_F(ListViewTest, ScrollingIsToldWithWhatIsLeft)
{
	AddItems(10);
	ShowList(Arguments().OnListViewScrolled_Lambda([this](double Offset, double Left) { Log.Add(FString::Printf(TEXT("%g:%g"), Offset, Left)); }));
	List->SetScrollOffset(2.0f);
	Frame();
	List->SetScrollOffset(2.0f);
	Frame();
	EXPECT_LOG("2:5.5");
}

// Keys.

TEST_F(ListViewTest, ArrowsPagesAndEndsMoveTheSelection)
{
	AddItems(100, 10.0f);
	ShowList(Arguments().SelectionMode(ESelectionMode::Single));
	PressAt(25.0f);
	TakeLog();
	Stroke(EKeys::Down);
	EXPECT_LOG("Select:3:Navigation");
	Stroke(EKeys::Up);
	Stroke(EKeys::Up);
	EXPECT_EQ(Selected(), "1");
	Stroke(EKeys::PageDown);
	EXPECT_EQ(Selected(), "10");
	Stroke(EKeys::End);
	EXPECT_EQ(Selected(), "99");
	Frame();
	EXPECT_EQ(List->GetScrollOffset(), 90.0f);
	Stroke(EKeys::PageUp);
	EXPECT_EQ(Selected(), "90");
	Stroke(EKeys::Home);
	EXPECT_EQ(Selected(), "0");
	Frame();
	EXPECT_EQ(List->GetScrollOffset(), 0.0f);
	TakeLog();
	Stroke(EKeys::Up);
	EXPECT_EQ(Selected(), "0");
	EXPECT_LOG("");
}

TEST_F(ListViewTest, SpaceAndEnterClickTheItemThatKeysGoFrom)
{
	AddItems(100, 10.0f);
	ShowList(Arguments().SelectionMode(ESelectionMode::SingleToggle));
	PressAt(25.0f);
	TakeLog();
	Stroke(EKeys::Down);
	EXPECT_EQ(Selected(), "2") << "moving does not toggle";
	Stroke(EKeys::SpaceBar);
	EXPECT_LOG("Select:3:Key Click:3");
	Stroke(EKeys::Enter);
	EXPECT_LOG("Select:none:Key Click:3");
	KeyDown(EKeys::Enter, false, false, true);
	EXPECT_LOG("");
}

TEST_F(ListViewTest, ShiftAndControlExtendTheSelectionByKeys)
{
	AddItems(100, 10.0f);
	ShowList();
	PressAt(25.0f);
	Stroke(EKeys::Down, false, true);
	Stroke(EKeys::Down, false, true);
	EXPECT_EQ(Selected(), "2 3 4");
	Stroke(EKeys::Up, false, true);
	EXPECT_EQ(Selected(), "2 3");
	Stroke(EKeys::Down, true);
	Stroke(EKeys::Down, true);
	EXPECT_EQ(Selected(), "2 3") << "control only moves";
	Stroke(EKeys::SpaceBar, true);
	EXPECT_EQ(Selected(), "2 3 5");
	TakeLog();
	Stroke(EKeys::A, true);
	EXPECT_EQ(List->GetNumItemsSelected(), 100);
	EXPECT_LOG("Select:2:Key");
}

TEST_F(ListViewTest, KeysOfAnItemThatWentGoOnFromTheView)
{
	AddItems(100, 10.0f);
	ShowList();
	PressAt(25.0f);
	Items.RemoveAt(2);
	List->RequestListRefresh();
	Frame();
	Stroke(EKeys::Down);
	EXPECT_EQ(Selected(), "0");
}

TEST_F(ListViewTest, FocusByKeysShowsOnTheRowThatKeysGoFrom)
{
	AddItems(5);
	ShowList();
	PressAt(10.0f);
	Move(300.0f, 250.0f);
	ASSERT_TRUE(List->HasKeyboardFocus());
	EXPECT_FALSE(ShowsFocus(0)) << "the mouse gave it";
	Stroke(EKeys::Down);
	Frame();
	EXPECT_FALSE(ShowsFocus(0));
	EXPECT_TRUE(ShowsFocus(1));
	App().ClearKeyboardFocus();
	Frame();
	EXPECT_FALSE(ShowsFocus(1));
}

TEST_F(ListViewTest, KeysOfWhatIsInTheRowsAreLeftToIt)
{
	AddItems(5);
	TSharedPtr<SButton> Button;
	auto Made = Arguments();
	Made.OnGenerateRow_Lambda([&](FTestItemPtr, const TSharedRef<STableViewBase>& Table)
	{
		const TSharedRef<ITableRow> Row = SNew(STableRow<FTestItemPtr>, Table)[SNew(SBox).HeightOverride(40.0f)[SAssignNew(Button, SButton)]];
		return Row;
	});
	ShowList(Made);
	App().SetKeyboardFocus(Button);
	EXPECT_FALSE(KeyDown(EKeys::Home));
	EXPECT_EQ(Selected(), "");
}

// Handlers that change what they are told of.

TEST_F(ListViewTest, ItemsMayChangeWhileRowsAreMade)
{
	AddItems(3);
	auto Made = Arguments();
	Made.OnGenerateRow_Lambda([&](FTestItemPtr Item, const TSharedRef<STableViewBase>& Table)
	{
		if (Items.Num() < 6)
		{
			Items.Insert(MakeShared<FTestItem>(100 + Items.Num(), 40.0f), 0);
			List->RequestListRefresh();
		}
		return MakeRow(Item, Table);
	});
	List = SArgumentNew(Made, FList);
	Show(SNew(SBox).HAlign(HAlign_Left).VAlign(VAlign_Top)[SNew(SBox).WidthOverride(100.0f).HeightOverride(100.0f)[List.ToSharedRef()]]);
	Frame();
	Frame();
	EXPECT_EQ(Rows(), "105@0 104@40 103@80");
}

TEST_F(ListViewTest, ListMayGoInTheHandlerOfAClick)
{
	AddItems(10);
	TWeakPtr<FList> Weak;
	auto Made = Arguments();
	Made.OnMouseButtonClick_Lambda([&](FTestItemPtr Item)
	{
		Window->SetContent(SNew(SBox));
		List.Reset();
		Log.Add(FString::Printf(TEXT("Gone:%d"), Item->Number));
	});
	ShowList(Made);
	Weak = List;
	PressAt(50.0f);
	EXPECT_LOG("Select:1:Mouse Gone:1");
	EXPECT_FALSE(Weak.IsValid());
}

TEST_F(ListViewTest, ItemsMayChangeBetweenSelectionAndClick)
{
	AddItems(10);
	auto Made = Arguments();
	Made.OnSelectionChanged_Lambda([&](FTestItemPtr, ESelectInfo::Type Cause)
	{
		Log.Add(FString::Printf(TEXT("Select:%d"), static_cast<int32>(Cause)));
		Items.RemoveAt(1);
		List->RequestListRefresh();
	});
	ShowList(Made);
	PressAt(50.0f);
	EXPECT_LOG("Select:2 Select:3") << "the item is gone: no click, and it is not selected any more";
}

TEST_F(ListViewTest, RowOfAnItemThatWentIsNotClicked)
{
	AddItems(10);
	ShowList();
	Items.RemoveAt(1);
	// Not refreshed: the row still stands there.
	Move(50.0f, 50.0f);
	Press();
	Release();
	EXPECT_LOG("");
	Move(50.0f, 90.0f);
	Press();
	Release();
	EXPECT_LOG("Select:2:Mouse Click:2");
}
