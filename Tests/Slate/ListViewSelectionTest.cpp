#include "Widgets/Views/SListView.h"

#include "ListViewTestTools.h"

class ListViewSelectionTest : public FListViewTest
{
};

TEST_F(ListViewSelectionTest, SelectionFromCodeIsToldAsDirect)
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

TEST_F(ListViewSelectionTest, ListOfSingleSelectionHoldsOneItem)
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

TEST_F(ListViewSelectionTest, ItemsThatVanishAreDroppedFromTheSelection)
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

TEST_F(ListViewSelectionTest, RowsKnowThatTheirItemIsSelected)
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

// Handlers that change what they are told of.

TEST_F(ListViewSelectionTest, ItemsMayChangeWhileRowsAreMade)
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

TEST_F(ListViewSelectionTest, ListMayGoInTheHandlerOfAClick)
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

TEST_F(ListViewSelectionTest, ItemsMayChangeBetweenSelectionAndClick)
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

TEST_F(ListViewSelectionTest, RowOfAnItemThatWentIsNotClicked)
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
