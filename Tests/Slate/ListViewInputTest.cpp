#include "Widgets/Views/SListView.h"

#include "ListViewTestTools.h"
#include "Widgets/Input/SButton.h"

class ListViewInputTest : public FListViewTest
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

// The mouse.

TEST_F(ListViewInputTest, ClickSelectsFirstAndThenIsToldOf)
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

TEST_F(ListViewInputTest, ReleaseElsewhereIsNoClickButSelects)
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

TEST_F(ListViewInputTest, SingleToggleDeselectsBySecondClick)
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

TEST_F(ListViewInputTest, ListWithoutSelectionStillTellsOfClicks)
{
	AddItems(10);
	ShowList(Arguments().SelectionMode(ESelectionMode::None));
	PressAt(50.0f);
	EXPECT_EQ(Selected(), "");
	EXPECT_LOG("Click:1");
}

TEST_F(ListViewInputTest, ControlAndShiftClicksSelectSeveral)
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

TEST_F(ListViewInputTest, DoubleClickIsToldOfInPlaceOfASecondClick)
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

TEST_F(ListViewInputTest, HoverIsToldOfForEachItem)
{
	AddItems(10);
	ShowList(Arguments().OnItemHovered_Lambda([this](FTestItemPtr Item, bool bHovered) { Log.Add(FString::Printf(TEXT("%s%d"), bHovered ? TEXT("+") : TEXT("-"), Item->Number)); }));
	EXPECT_LOG("+0");
	Move(50.0f, 50.0f);
	EXPECT_LOG("-0 +1");
	Move(300.0f, 250.0f);
	EXPECT_LOG("-1");
}

TEST_F(ListViewInputTest, ClickBesideTheRowsClearsTheSelectionIfToldTo)
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

TEST_F(ListViewInputTest, WhatIsInARowGetsTheMouseFirst)
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

TEST_F(ListViewInputTest, RightButtonDragsTheRowsAndTheyGoOnAfterIt)
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

TEST_F(ListViewInputTest, AnimatedWheelArrivesAfterSomeFrames)
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

TEST_F(ListViewInputTest, ScrollBarShowsAndMovesTheView)
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

TEST_F(ListViewInputTest, ScrollingIsToldWithWhatIsLeft)
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

TEST_F(ListViewInputTest, ArrowsPagesAndEndsMoveTheSelection)
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

TEST_F(ListViewInputTest, SpaceAndEnterClickTheItemThatKeysGoFrom)
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

TEST_F(ListViewInputTest, ShiftAndControlExtendTheSelectionByKeys)
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

TEST_F(ListViewInputTest, KeysOfAnItemThatWentGoOnFromTheView)
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

TEST_F(ListViewInputTest, FocusByKeysShowsOnTheRowThatKeysGoFrom)
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

TEST_F(ListViewInputTest, KeysOfWhatIsInTheRowsAreLeftToIt)
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
