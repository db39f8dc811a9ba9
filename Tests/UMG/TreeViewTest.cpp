#include "Components/TreeView.h"

#include "ListViewTestTools.h"

namespace
{
	/** Items 1 and 2 are in item 0, and item 3 is in item 2. */
	class FTreeViewTest : public Host::TListTest<UTreeView>
	{
	protected:
		void ShowTree()
		{
			for (int32 Number = 1; Number <= 3; ++Number)
			{
				Listener->Children.Add(MakeItem(Number));
			}
			Listener->AddToRoot();
			List->SetOnGetItemChildren(Listener, &UListTestListener::GetChildren);
			List->SetListItems(TArray<UListTestItem*>{MakeItem(0), MakeItem(9)});
			Show();
			TakeEvents();
		}

		virtual void TearDown() override
		{
			TListTest::TearDown();
			Listener->RemoveFromRoot();
		}

		std::string Shown()
		{
			TArray<int32> Numbers;
			for (const UUserWidget* Entry : List->GetDisplayedEntryWidgets())
			{
				Numbers.Add(CastChecked<UListTestEntry>(Entry)->Shown);
			}
			Numbers.Sort();
			std::string Text;
			for (const int32 Number : Numbers)
			{
				Text += (Text.empty() ? "" : " ") + std::to_string(Number);
			}
			return Text;
		}

		UListTestListener* Listener = NewObject<UListTestListener>();
	};

	TEST_F(FTreeViewTest, OpenItemShowsWhatIsInItAndTellsItsEntry)
	{
		ShowTree();
		EXPECT_EQ(Shown(), "0 9");
		std::string Told;
		List->OnItemExpansionChanged().AddLambda([&](UObject* Item, bool bOpen) { Told += (bOpen ? "+" : "-") + std::to_string(NumberOf(Item)); });
		List->SetItemExpansion(List->GetItemAt(0), true);
		Frame();
		EXPECT_EQ(Shown(), "0 1 2");
		EXPECT_EQ(TakeEvents(), "Release9 Set1 Set2 Open0");
		List->SetItemExpansion(List->GetItemAt(0), false);
		Frame();
		EXPECT_EQ(Shown(), "0 9");
		EXPECT_EQ(Told, "+0-0");
	}

	TEST_F(FTreeViewTest, KeysOpenAndCloseTheItemThatTheyGoFrom)
	{
		ShowTree();
		Driver.SingleClickAt(MiddleOf(0));
		Driver.PressKey(EKeys::Right);
		Frame();
		EXPECT_TRUE(List->IsItemExpanded(List->GetItemAt(0)));
		Driver.PressKey(EKeys::Right);
		EXPECT_EQ(NumberOf(List->GetSelectedItem()), 1);
		Driver.PressKey(EKeys::Left);
		Driver.PressKey(EKeys::Left);
		Frame();
		EXPECT_EQ(Shown(), "0 9");
	}

	TEST_F(FTreeViewTest, AllItemsOpenAndCloseAtOnce)
	{
		ShowTree();
		List->ExpandAll();
		Frame();
		EXPECT_TRUE(List->IsItemExpanded(Listener->Children[1]));
		List->ScrollToBottom();
		Frame();
		EXPECT_EQ(Shown(), "2 3 9");
		List->CollapseAll();
		Frame();
		EXPECT_EQ(Shown(), "0 9");
	}
}
