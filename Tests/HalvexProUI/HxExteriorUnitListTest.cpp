#include "UnitSceneTest.h"

#include "Components/EditableTextBox.h"
#include "Components/ListView.h"
#include "Components/ScrollBox.h"
#include "Components/SizeBox.h"
#include "Filters/UnitsFilterManager.h"
#include "KitReflection.h"
#include "UnitVolumes/UnitVolumeActor.h"
#include "UserWidget/Exteriors/HxExteriorUnitList.h"
#include "UserWidget/Exteriors/HxExteriorUnitListObject.h"

using namespace KitReflection;

namespace
{
	/** A list of units with a search box, whose entries show the names and whose graph counts its refreshes. */
	class FHxExteriorUnitListTest : public FUnitSceneTest
	{
	protected:
		UHxExteriorUnitList& ShowList(const char* FurtherGraph = "")
		{
			Content.Write(TEXT("Row.widget.json"), R"({ "Interfaces": ["/Script/UMG.UserObjectListEntry"], "Root": { "Class": "TextBlock", "Name": "Label" } })");
			Content.Write(TEXT("Row.lua"), "function OnListItemObjectSet(self, Item) self.Label:SetText(Item.UnitVolumeActorRef:GetUnitVolumeSceneData().Name) end");
			Content.Write(TEXT("Units.widget.json"), R"({ "Parent": "/Script/HalvexProUI.HxExteriorUnitList",
				"Variables": { "Refreshes": { "Type": "int", "Default": 0 }, "Shown": { "Type": "int", "Default": 0 } },
				"Root": { "Class": "VerticalBox", "Children": [
					{ "Class": "EditableTextBox", "Name": "SearchBox" },
					{ "Class": "ListView", "Name": "ListViewContainer", "Properties": { "EntryWidgetClass": "/KitScreens/Row.Row_C" }, "Slot": { "Size": { "SizeRule": "Fill" } } } ] } })");
			const std::string Graph = std::string("function OnRefreshListViewNum(self) self.Refreshes = self.Refreshes + 1 self.Shown = self.ListViewContainer:GetNumItems() end\n") + FurtherGraph;
			Content.Write(TEXT("Units.lua"), Graph.c_str());
			List = CastChecked<UHxExteriorUnitList>(ShowPanel(TEXT("Units")));
			return *List;
		}

		/** Five units that are not in the order of their names, and the list of them. */
		void ShowFive(const char* FurtherGraph = "")
		{
			MakeScene();
			ShowList(FurtherGraph);
			SpawnUnits({ TEXT("Delta"), TEXT("alpha"), TEXT("Echo"), TEXT("Bravo"), TEXT("charlie") });
		}

		/** Names of the items in their order. */
		std::string Items() const
		{
			FString Names;
			for (const UObject* Item : List->ListViewContainer->GetListItems())
			{
				Names += CastChecked<UHxExteriorUnitListObject>(Item)->UnitVolumeActorRef->GetUnitData().Name + TEXT(" ");
			}
			return Host::ToStd(Names);
		}

		/** Name of the selected item; "none" without one. */
		std::string Selected() const
		{
			const UHxExteriorUnitListObject* Item = List->ListViewContainer->GetSelectedItem<UHxExteriorUnitListObject>();
			return Item ? Host::ToStd(Item->UnitVolumeActorRef->GetUnitData().Name) : "none";
		}

		void TypeSearch(const TCHAR* Text)
		{
			Click(*List->SearchBox);
			Driver.PressKey(EKeys::A, TEXT("Ctrl"));
			Driver.PressKey(EKeys::Delete);
			Driver.Type(Text);
		}

		void ClickEntry(const TCHAR* Name)
		{
			ASSERT_TRUE(Driver.Click(FString(TEXT("text:")) + Name)) << Host::ToStd(Driver.GetError());
			Settle();
		}

		UHxExteriorUnitList* List = nullptr;
	};

	TEST_F(FHxExteriorUnitListTest, ShowsTheUnitsOfTheSceneInTheOrderOfTheFilterResult)
	{
		ShowFive();
		EXPECT_EQ(Items(), "Delta alpha Echo Bravo charlie ");
		EXPECT_TRUE(Driver.Find(TEXT("text:charlie")));
		EXPECT_EQ(Read(*List, TEXT("Shown")), "5");
	}

	TEST_F(FHxExteriorUnitListTest, NothingIsShownBeforeTheSceneTells)
	{
		MakeScene();
		SpawnUnits({ TEXT("A") });
		ShowList();
		EXPECT_EQ(Items(), "");
		Manager->AnnounceUnitData();
		EXPECT_EQ(Items(), "A ");
	}

	TEST_F(FHxExteriorUnitListTest, SearchFindsWhatTheNameContainsWhateverTheCase)
	{
		ShowFive();
		TypeSearch(TEXT("LIE"));
		EXPECT_EQ(Items(), "charlie ");
		TypeSearch(TEXT("a"));
		EXPECT_EQ(Items(), "Delta alpha Bravo charlie ");
		TypeSearch(TEXT("x"));
		EXPECT_EQ(Items(), "");
		EXPECT_EQ(Read(*List, TEXT("Shown")), "0");
	}

	TEST_F(FHxExteriorUnitListTest, EmptySearchShowsAllAndKeepsTheSort)
	{
		ShowFive();
		List->SortUnitList();
		TypeSearch(TEXT("e"));
		EXPECT_EQ(Items(), "charlie Delta Echo ");
		Driver.PressKey(EKeys::BackSpace);
		EXPECT_EQ(Items(), "alpha Bravo charlie Delta Echo ");
	}

	TEST_F(FHxExteriorUnitListTest, ClearingTheSearchLeavesItsText)
	{
		ShowFive();
		TypeSearch(TEXT("echo"));
		List->ClearSearchFilter();
		EXPECT_EQ(Items(), "Delta alpha Echo Bravo charlie ");
		EXPECT_EQ(Host::ToStd(List->SearchBox->GetText()), "echo");
	}

	TEST_F(FHxExteriorUnitListTest, SortIgnoresTheCaseAndDropsTheSearch)
	{
		ShowFive();
		TypeSearch(TEXT("e"));
		List->SortUnitList();
		EXPECT_EQ(Items(), "alpha Bravo charlie Delta Echo ");
	}

	TEST_F(FHxExteriorUnitListTest, ReversedTwiceIsStillReversed)
	{
		ShowFive();
		List->SortUnitList();
		List->ReverseUnitList();
		EXPECT_EQ(Items(), "Echo Delta charlie Bravo alpha ");
		List->ReverseUnitList();
		EXPECT_EQ(Items(), "Echo Delta charlie Bravo alpha ");
	}

	TEST_F(FHxExteriorUnitListTest, ReverseDropsTheSearch)
	{
		ShowFive();
		TypeSearch(TEXT("echo"));
		List->ReverseUnitList();
		EXPECT_EQ(Items(), "charlie Bravo Echo alpha Delta ");
	}

	TEST_F(FHxExteriorUnitListTest, EachChangeOfTheItemsTellsOnce)
	{
		ShowFive();
		const int32 Before = FCString::Atoi(UTF8_TO_TCHAR(Read(*List, TEXT("Refreshes")).c_str()));
		List->SortUnitList();
		List->ReverseUnitList();
		List->FilterUnitList(FText::FromString(TEXT("a")));
		List->ClearSearchFilter();
		EXPECT_EQ(Read(*List, TEXT("Refreshes")), std::to_string(Before + 4));
	}

	TEST_F(FHxExteriorUnitListTest, NewDataShowsAllUnitsThoughASearchIsTyped)
	{
		ShowFive();
		TypeSearch(TEXT("echo"));
		Manager->AnnounceUnitData();
		EXPECT_EQ(Items(), "Delta alpha Echo Bravo charlie ");
		Driver.PressKey(EKeys::BackSpace);
		EXPECT_EQ(Items(), "Echo ");
	}

	TEST_F(FHxExteriorUnitListTest, ClickSelectsInTheSceneOnce)
	{
		ShowFive();
		ClickEntry(TEXT("Echo"));
		EXPECT_EQ(Heard(), "Echo; ");
		EXPECT_TRUE(GetUnit(TEXT("Echo")).IsSelected());
		EXPECT_EQ(Selected(), "Echo");
		ClickEntry(TEXT("alpha"));
		EXPECT_EQ(Heard(), "alpha; ");
		EXPECT_FALSE(GetUnit(TEXT("Echo")).IsSelected());
	}

	TEST_F(FHxExteriorUnitListTest, ListThatWasConstructedAgainSelectsOnceForEachTime)
	{
		ShowFive();
		// The scene forgets each selection at once, so that it tells of the same one again; the list is not to answer that.
		SceneRecorder->bClearsSelections = true;
		Manager->OnUnitVolumeSelectionChanged.RemoveAll(List);
		ClickEntry(TEXT("Echo"));
		EXPECT_EQ(Heard(), "Echo; ");
		Screen->RemoveFromParent();
		Screen->AddToViewport();
		Settle();
		ClickEntry(TEXT("Bravo"));
		EXPECT_EQ(Heard(), "Bravo; Bravo; ");
	}

	TEST_F(FHxExteriorUnitListTest, SelectionInTheSceneSelectsInTheList)
	{
		ShowFive();
		GetUnit(TEXT("Bravo")).SelectUnitVolume(false);
		Settle();
		EXPECT_EQ(Selected(), "Bravo");
		EXPECT_EQ(Heard(), "Bravo; ") << "and not once more by the list";
	}

	TEST_F(FHxExteriorUnitListTest, OnlyTheFirstOfSeveralSelectedUnitsCounts)
	{
		ShowFive();
		GetUnit(TEXT("Bravo")).SelectUnitVolume(false);
		GetUnit(TEXT("Echo")).SelectUnitVolume(true);
		Settle();
		EXPECT_EQ(Selected(), "Bravo");
		EXPECT_EQ(List->ListViewContainer->GetNumItemsSelected(), 1);
	}

	TEST_F(FHxExteriorUnitListTest, SelectionOfAUnitThatTheSearchHidesChangesNothing)
	{
		ShowFive();
		ClickEntry(TEXT("Echo"));
		TypeSearch(TEXT("echo"));
		Settle();
		GetUnit(TEXT("Bravo")).SelectUnitVolume(false);
		Settle();
		EXPECT_EQ(Selected(), "Echo");
	}

	TEST_F(FHxExteriorUnitListTest, SelectedUnitIsScrolledIntoView)
	{
		MakeScene();
		ShowList();
		TArray<FString> Names;
		for (int32 Index = 0; Index < 300; ++Index)
		{
			Names.Add(FString::Printf(TEXT("Unit %d"), Index));
		}
		TArray<const TCHAR*> Pointers;
		for (const FString& Name : Names)
		{
			Pointers.Add(*Name);
		}
		SpawnUnits(Pointers);
		EXPECT_FALSE(Driver.Find(TEXT("text:Unit 250")));
		GetUnit(TEXT("Unit 250")).SelectUnitVolume(false);
		Settle();
		EXPECT_TRUE(Driver.Find(TEXT("text:Unit 250")));
	}

	TEST_F(FHxExteriorUnitListTest, ClearingInTheSceneClearsInTheList)
	{
		ShowFive();
		ClickEntry(TEXT("Echo"));
		Heard();
		Manager->ClearSelection();
		Settle();
		EXPECT_EQ(Selected(), "none");
		EXPECT_EQ(Heard(), "") << "nothing comes back";
	}

	TEST_F(FHxExteriorUnitListTest, WheelNeverReachesWhatLiesBehind)
	{
		MakeScene();
		UScrollBox* Behind = Make<UScrollBox>();
		USizeBox* Tall = Make<USizeBox>();
		Tall->SetHeightOverride(2000.0f);
		Behind->AddChild(Tall);
		Place(*Behind, 0.0, 0.0, FVector2D(300.0, 400.0));
		ShowList();
		SpawnUnits({ TEXT("A") });
		Driver.MoveTo(FVector2D(150.0, 300.0));
		Driver.Wheel(-3.0f);
		EXPECT_EQ(Behind->GetScrollOffset(), 0.0f);
	}

	TEST_F(FHxExteriorUnitListTest, GraphDecidesWhatFitsAndWhatGoesFirst)
	{
		ShowFive("function OnElementFilter(self, Text, Unit) return tostring(Unit.Level) == Text end\n"
			"function OnElementSorted(self, A, B) return A.Level > B.Level end");
		List->SortUnitList();
		EXPECT_EQ(Items(), "charlie Bravo Echo alpha Delta ");
		TypeSearch(TEXT("2"));
		EXPECT_EQ(Items(), "Echo ");
	}

	TEST_F(FHxExteriorUnitListTest, GraphGetsAllMembersOfAUnitAndItsChangesStayItsOwn)
	{
		ShowFive("function OnElementFilter(self, Text, Unit)\n"
			"	local Count = 0\n"
			"	for Name in pairs(Unit) do Count = Count + 1 end\n"
			"	local Fits = tostring(Count) == Text and Unit.Level < 5 and Unit.Status == 'Available'\n"
			"	Unit.Level, Unit.Status, Unit.More = 99, nil, true\n"
			"	return Fits end");
		int32 NumMembers = 0;
		for (TFieldIterator<FProperty> It(FUnitData::StaticStruct()); It; ++It)
		{
			++NumMembers;
		}
		for (int32 Turn = 0; Turn < 2; ++Turn)
		{
			List->FilterUnitList(FText::AsNumber(NumMembers));
			EXPECT_EQ(List->ListViewContainer->GetNumItems(), 5) << Turn;
		}
		EXPECT_EQ(GetUnit(TEXT("Echo")).GetUnitData().Level, 2);
	}

	TEST_F(FHxExteriorUnitListTest, UnitsThatAreGoneDisturbNeitherSearchNorSort)
	{
		ShowFive();
		List->FilterUnitList(FText::FromString(TEXT("a")));
		Manager->OnUnitDataUpdated.Clear();
		Manager->GetUnitFilterManager()->OnFilterResult.Clear();
		Manager->SpawnUnits(TArray<FProjectUnit>());
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		List->SortUnitList();
		List->FilterUnitList(FText::FromString(TEXT("a")));
		EXPECT_EQ(List->ListViewContainer->GetNumItems(), 0);
		List->ClearSearchFilter();
		EXPECT_EQ(List->ListViewContainer->GetNumItems(), 5);
		List->ListViewContainer->ClearListItems();
	}

	TEST_F(FHxExteriorUnitListTest, WithoutAManagerItIsInert)
	{
		ShowList();
		List->SortUnitList();
		List->ReverseUnitList();
		List->ReceivedUnitVolumeUpdateData(TArray<FUnitData>());
		EXPECT_EQ(Items(), "");
		EXPECT_EQ(Read(*List, TEXT("Refreshes")), "2") << "sorting and reversing tell all the same";
	}

	TEST_F(FHxExteriorUnitListTest, MembersAreReflectedAsBlueprintsKnowThem)
	{
		EXPECT_EQ(ListNames(UHxExteriorUnitList::StaticClass()), "SearchBox ListViewContainer StoredList");
		EXPECT_EQ(GetType(UHxExteriorUnitList::StaticClass(), TEXT("ListViewContainer")), "UListView*");
		EXPECT_TRUE(HasMeta(UHxExteriorUnitList::StaticClass(), TEXT("ListViewContainer"), TEXT("BindWidget")));
		EXPECT_TRUE(HasMeta(UHxExteriorUnitList::StaticClass(), TEXT("SearchBox"), TEXT("BindWidgetOptional")));
		EXPECT_EQ(GetMeta(UHxExteriorUnitList::StaticClass(), TEXT("SearchBox"), TEXT("Category")), "HxExteriorUnitList");
		EXPECT_EQ(GetMeta(UHxExteriorUnitListObject::StaticClass(), TEXT("UnitVolumeActorRef"), TEXT("Category")), "HxExteriorUnitListObject");
	}
}
