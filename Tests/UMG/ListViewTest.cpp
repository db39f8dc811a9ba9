#include "ListViewTestTools.h"

#include "Engine/GameViewportClient.h"

namespace
{
	class FListViewTest : public Host::TListTest<UListView>
	{
	};

	TEST_F(FListViewTest, EntriesAppearInTheNextFrameForItemsInViewOnly)
	{
		List->SetListItems(MakeItems(1000));
		EXPECT_EQ(List->GetNumItems(), 1000);
		Show();
		EXPECT_EQ(TakeEvents(), "Set0 Set1 Set2");
		EXPECT_EQ(List->GetDisplayedEntryWidgets().Num(), 3);
		List->AddItem(MakeItem(1000));
		EXPECT_TRUE(List->IsRefreshPending());
		Frame();
		EXPECT_EQ(TakeEvents(), "") << "it is out of view";
	}

	TEST_F(FListViewTest, ListKeepsItsOwnArray)
	{
		TArray<UListTestItem*> Items = MakeItems(2);
		List->SetListItems(Items);
		Items.Reset();
		CollectGarbage(RF_NoFlags);
		EXPECT_EQ(List->GetNumItems(), 2);
		EXPECT_EQ(NumberOf(List->GetItemAt(1)), 1);
		EXPECT_EQ(List->GetItemAt(2), nullptr);
		EXPECT_EQ(List->GetItemAt(-1), nullptr);
		EXPECT_EQ(List->GetIndexForItem(List->GetItemAt(1)), 1);
		EXPECT_EQ(List->GetIndexForItem(List), -1);
		EXPECT_EQ(List->GetListItems().Num(), 2);
		List->RemoveItem(List->GetItemAt(0));
		EXPECT_EQ(NumberOf(List->GetItemAt(0)), 1);
		List->ClearListItems();
		EXPECT_EQ(List->GetNumItems(), 0);
	}

	TEST_F(FListViewTest, EntriesAreUsedAgainWithoutBeingConstructedAnew)
	{
		ShowItems(100);
		List->SetScrollOffset(50.0f);
		Frame();
		EXPECT_EQ(ShownNumbers(), "50 51 52");
		EXPECT_EQ(TakeEvents(), "Release0 Release1 Release2 Set50 Set51 Set52");
		EXPECT_EQ(UListTestEntry::NumConstructed, 3);
		EXPECT_EQ(UListTestEntry::NumDestructed, 0);
		for (int32 Step = 0; Step < 200; ++Step)
		{
			Driver.MoveTo(FVector2D(50.0, 50.0));
			Driver.Wheel(Step % 50 < 25 ? -1.0f : 1.0f);
			Frame();
		}
		EXPECT_LE(UListTestEntry::NumConstructed, 5) << "four fit the view";
		List->SetListItems(MakeItems(500));
		Frame();
		EXPECT_LE(UListTestEntry::NumConstructed, 5);
	}

	TEST_F(FListViewTest, EntriesAreDestructedWithTheList)
	{
		ShowItems(100);
		const int32 NumConstructed = UListTestEntry::NumConstructed;
		Screen->RemoveFromParent();
		EXPECT_EQ(UListTestEntry::NumDestructed, NumConstructed);
		EXPECT_EQ(List->GetDisplayedEntryWidgets().Num(), 0);
		Show();
		EXPECT_EQ(ShownNumbers(), "0 1 2") << "the items stay";
	}

	TEST_F(FListViewTest, RegeneratingTellsEntriesAnewWithoutConstructing)
	{
		ShowItems(2);
		List->RegenerateAllEntries();
		EXPECT_EQ(TakeEvents(), "");
		Frame();
		EXPECT_EQ(TakeEvents(), "Release0 Release1 Set0 Set1");
		EXPECT_EQ(UListTestEntry::NumConstructed, 2);
	}

	TEST_F(FListViewTest, RefreshMatchesItemsAnewButTellsNothingOfThoseThatStay)
	{
		ShowItems(3);
		List->RequestRefresh();
		Frame();
		EXPECT_EQ(TakeEvents(), "");
		List->RemoveItem(List->GetItemAt(1));
		Frame();
		EXPECT_EQ(TakeEvents(), "Release1");
		EXPECT_EQ(ShownNumbers(), "0 2");
	}

	TEST_F(FListViewTest, WithoutAnEntryClassNothingIsBuiltAndItemsAreKept)
	{
		SetEntryClass(nullptr);
		List->SetListItems(MakeItems(3));
		Show();
		EXPECT_EQ(List->GetNumItems(), 3);
		EXPECT_EQ(List->GetDisplayedEntryWidgets().Num(), 0);
		List->SetSelectedIndex(1);
		EXPECT_EQ(List->GetSelectedItem(), nullptr);
	}

	TEST_F(FListViewTest, EntryClassThatCannotShowItemsIsOneLine)
	{
		const Host::FExpectedLog Refused(TEXT("does not implement UserListEntry"));
		SetEntryClass(UListTestNoEntry::StaticClass());
		ShowItems(3);
		EXPECT_EQ(List->GetDisplayedEntryWidgets().Num(), 0);
	}

	TEST_F(FListViewTest, SelectionBeforeTheSlateListExistsIsLost)
	{
		List->SetListItems(MakeItems(3));
		List->SetSelectedIndex(1);
		EXPECT_EQ(List->GetNumItemsSelected(), 0);
		Show();
		EXPECT_EQ(List->GetSelectedItem(), nullptr);
		List->SetSelectedIndex(1);
		EXPECT_EQ(NumberOf(List->GetSelectedItem()), 1);
		EXPECT_EQ(TakeEvents(), "Set0 Set1 Set2 +1");
	}

	TEST_F(FListViewTest, NativeSelectionEventCarriesNullWhenCleared)
	{
		ShowItems(5);
		TArray<FString> Told;
		List->OnItemSelectionChanged().AddLambda([&](UObject* Item) { Told.Add(FString::FromInt(NumberOf(Item))); });
		List->SetSelectedItem(List->GetItemAt(2));
		List->SetSelectedItem(List->GetItemAt(2));
		List->SetItemSelection(List->GetItemAt(2), false);
		List->SetSelectedIndex(1);
		List->SetSelectedItem(nullptr);
		List->ClearSelection();
		EXPECT_EQ(Host::ToStd(FString::Join(Told, TEXT(" "))), "2 2 -1 1 -1");
		TArray<UObject*> Selected;
		List->SetSelectionMode(ESelectionMode::Multi);
		List->SetItemSelection(List->GetItemAt(3), true);
		List->SetItemSelection(List->GetItemAt(0), true);
		EXPECT_EQ(List->GetSelectedItems(Selected), 2);
		EXPECT_EQ(NumberOf(Selected[0]), 3);
		EXPECT_TRUE(List->IsItemSelected(List->GetItemAt(0)));
	}

	TEST_F(FListViewTest, ClickSelectsThenTellsGraphsAndThenCode)
	{
		UListTestListener* Listener = NewObject<UListTestListener>();
		Listener->AddToRoot();
		FScriptDelegate Clicked;
		Clicked.BindUFunction(Listener, TEXT("OnClicked"));
		FindFProperty<FMulticastDelegateProperty>(UListView::StaticClass(), TEXT("BP_OnItemClicked"))->AddDelegate(Clicked, List);
		FScriptDelegate Selected;
		Selected.BindUFunction(Listener, TEXT("OnSelection"));
		FindFProperty<FMulticastDelegateProperty>(UListView::StaticClass(), TEXT("BP_OnItemSelectionChanged"))->AddDelegate(Selected, List);
		ShowItems(5);
		List->OnItemSelectionChanged().AddLambda([&](UObject* Item) { Listener->Events.Add(FString::Printf(TEXT("native select %d"), NumberOf(Item))); });
		List->OnItemClicked().AddLambda([&](UObject* Item) { Listener->Events.Add(FString::Printf(TEXT("native click %d"), NumberOf(Item))); });
		Driver.SingleClickAt(MiddleOf(1));
		EXPECT_EQ(Host::ToStd(FString::Join(Listener->Events, TEXT(", "))), "Select:1, native select 1, Click:1, native click 1");
		EXPECT_EQ(TakeEvents(), "+1");
		Driver.SingleClickAt(MiddleOf(0));
		EXPECT_EQ(TakeEvents(), "+0 -1");
		Listener->Events.Reset();
		List->ClearSelection();
		EXPECT_EQ(Host::ToStd(FString::Join(Listener->Events, TEXT(", "))), "Deselect:none, native select -1");
		Listener->RemoveFromRoot();
	}

	TEST_F(FListViewTest, DoubleClickAndHoverAreTold)
	{
		ShowItems(5);
		Driver.MoveTo(FVector2D(50.0, 300.0));
		TArray<FString> Told;
		List->OnItemDoubleClicked().AddLambda([&](UObject* Item) { Told.Add(FString::Printf(TEXT("double%d"), NumberOf(Item))); });
		List->OnItemIsHoveredChanged().AddLambda([&](UObject* Item, bool bHovered) { Told.Add(FString::Printf(TEXT("%s%d"), bHovered ? TEXT("in") : TEXT("out"), NumberOf(Item))); });
		Driver.DoubleClickAt(MiddleOf(1));
		Driver.MoveTo(MiddleOf(0));
		EXPECT_EQ(Host::ToStd(FString::Join(Told, TEXT(" "))), "in1 double1 out1 in0");
	}

	TEST_F(FListViewTest, RecycledEntryIsToldOfTheSelectionOfItsNewItem)
	{
		ShowItems(100);
		List->SetSelectedIndex(1);
		EXPECT_EQ(TakeEvents(), "+1");
		List->SetScrollOffset(20.0f);
		Frame();
		EXPECT_EQ(TakeEvents(), "Release0 Release1 Release2 Set20 Set21 -21 Set22") << "the entry of the selected item shows another one";
		List->ScrollToTop();
		Frame();
		const std::string Back = TakeEvents();
		EXPECT_NE(Back.find("Set1 +1"), std::string::npos) << Back;
	}

	TEST_F(FListViewTest, EntryIsToldAnewThatItsNewItemIsSelected)
	{
		List->SetSelectionMode(ESelectionMode::Multi);
		ShowItems(2);
		List->SetSelectedIndex(0);
		List->SetItemSelection(List->GetItemAt(1), true);
		TakeEvents();
		List->RegenerateAllEntries();
		Frame();
		EXPECT_EQ(TakeEvents(), "Release0 Release1 Set0 +0 Set1 +1");
	}

	TEST_F(FListViewTest, ScrollingAndNavigatingAreCarriedOutInTheNextFrame)
	{
		ShowItems(100);
		TArray<FString> Told;
		List->OnItemScrolledIntoView().AddLambda([&](UObject* Item, UUserWidget& Entry) { Told.Add(FString::Printf(TEXT("%d:%d"), NumberOf(Item), CastChecked<UListTestEntry>(&Entry)->Shown)); });
		List->ScrollIndexIntoView(30);
		EXPECT_EQ(List->GetScrollOffset(), 0.0f);
		Frame();
		EXPECT_EQ(ShownNumbers(), "28 29 30");
		List->RequestNavigateToItem(List->GetItemAt(60));
		Frame();
		EXPECT_EQ(ShownNumbers(), "58 59 60");
		EXPECT_TRUE(List->HasKeyboardFocus());
		List->ScrollIndexIntoView(200);
		List->RequestScrollItemIntoView(List);
		Frame();
		EXPECT_EQ(Host::ToStd(FString::Join(Told, TEXT(" "))), "30:30 60:60");
		Driver.PressKey(EKeys::Down);
		EXPECT_EQ(NumberOf(List->GetSelectedItem()), 61);
		List->ScrollToBottom();
		Frame();
		EXPECT_EQ(List->GetScrollOffset(), 97.5f);
		EXPECT_TRUE(List->IsItemVisible(List->GetItemAt(99)));
		EXPECT_FALSE(List->IsItemVisible(List->GetItemAt(61)));
	}

	TEST_F(FListViewTest, ItemDeclaredDeadLeavesTheListAndTheSelection)
	{
		ShowItems(3);
		TArray<int32> Told;
		List->SetSelectedIndex(1);
		List->OnItemSelectionChanged().AddLambda([&](UObject* Item) { Told.Add(NumberOf(Item)); });
		const TWeakObjectPtr<UObject> Dead = List->GetItemAt(1);
		List->GetItemAt(1)->MarkAsGarbage();
		CollectGarbage(RF_NoFlags);
		Frame();
		EXPECT_FALSE(Dead.IsValid());
		EXPECT_EQ(ShownNumbers(), "0 2");
		EXPECT_EQ(List->GetNumItemsSelected(), 0);
		ASSERT_EQ(Told.Num(), 1);
		EXPECT_EQ(Told[0], -1);
		Driver.SingleClickAt(MiddleOf(2));
		EXPECT_EQ(NumberOf(List->GetSelectedItem()), 2);
	}

	TEST_F(FListViewTest, SelectedItemThatLeftTheListLivesUntilTheRefresh)
	{
		ShowItems(3);
		List->SetSelectedIndex(1);
		const TWeakObjectPtr<UObject> Removed = List->GetItemAt(1);
		List->RemoveItem(List->GetItemAt(1));
		CollectGarbage(RF_NoFlags);
		EXPECT_TRUE(Removed.IsValid());
		Frame();
		CollectGarbage(RF_NoFlags);
		EXPECT_FALSE(Removed.IsValid());
	}

	TEST_F(FListViewTest, ItemsMayBeAddedByAnEntryEvent)
	{
		int32 NumAdded = 0;
		List->OnEntryGenerated().AddLambda([&](UUserWidget&)
		{
			if (NumAdded < 2)
			{
				List->AddItem(MakeItem(100 + NumAdded++));
			}
		});
		List->SetListItems(MakeItems(1));
		Show();
		EXPECT_EQ(ShownNumbers(), "0 100 101");
	}

	TEST_F(FListViewTest, ScreenMayGoInTheHandlerOfAClick)
	{
		ShowItems(5);
		int32 NumClicks = 0;
		List->OnItemClicked().AddLambda([&](UObject*)
		{
			++NumClicks;
			Screen->RemoveFromParent();
			CollectGarbage(RF_NoFlags);
		});
		Driver.SingleClickAt(MiddleOf(1));
		Frame();
		EXPECT_EQ(NumClicks, 1);
		EXPECT_EQ(UListTestEntry::NumDestructed, UListTestEntry::NumConstructed);
	}

	TEST_F(FListViewTest, SpacingStandsBetweenEntries)
	{
		FindFProperty<FFloatProperty>(UListView::StaticClass(), TEXT("VerticalEntrySpacing"))->SetPropertyValue_InContainer(List, 20.0f);
		ShowItems(5);
		EXPECT_EQ(ShownNumbers(), "0 1");
		EXPECT_EQ(MiddleOf(1).Y - MiddleOf(0).Y, 60.0);
	}

	TEST_F(FListViewTest, DesignerShowsPreviewEntriesAndTellsThemNothing)
	{
		Screen->SetDesignerFlags(EWidgetDesignFlags::Designing);
		const TSharedRef<SWidget> Slate = Screen->TakeWidget();
		GEngine->GameViewport->AddViewportWidgetContent(Slate);
		Frame();
		EXPECT_EQ(List->GetNumItems(), 5);
		EXPECT_EQ(List->GetDisplayedEntryWidgets().Num(), 3) << "as many as there is room for";
		EXPECT_TRUE(List->GetDisplayedEntryWidgets()[0]->IsDesignTime());
		EXPECT_EQ(TakeEvents(), "");
		GEngine->GameViewport->RemoveAllViewportWidgets();
	}
}
