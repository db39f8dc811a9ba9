#include "EngineTest.h"

#include "Blueprint/UserWidget.h"
#include "Components/ListView.h"
#include "Components/TextBlock.h"
#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "TemporaryContent.h"
#include "UObject/UnrealType.h"

namespace
{
	/** Screens as text whose graphs fill a list, and show its items by an entry that is a blueprint too. */
	class FListEntryBlueprintTest : public Host::FEngineTest
	{
	protected:
		void WriteEntry(const char* Graph)
		{
			Content.Write(TEXT("Entry.widget.json"), R"({ "Interfaces": ["/Script/UMG.UserObjectListEntry"], "Variables": { "NumShown": { "Type": "int" } },
				"Root": { "Class": "SizeBox", "Properties": { "bOverride_HeightOverride": true, "HeightOverride": 40 }, "Children": [ { "Class": "TextBlock", "Name": "Label" } ] } })");
			Content.Write(TEXT("Entry.lua"), Graph);
		}

		void WriteItem()
		{
			Content.Write(TEXT("Unit.object.json"), R"({ "Variables": { "Title": { "Type": "string", "Default": "flat" }, "Rooms": { "Type": "int", "Default": 2 } } })");
		}

		UUserWidget* ShowScreen(const char* Graph)
		{
			Content.Write(TEXT("Screen.widget.json"), R"({ "Variables": { "Kept": { "Type": "object" } }, "Root": { "Class": "VerticalBox", "Children": [
				{ "Class": "SizeBox", "Properties": { "bOverride_HeightOverride": true, "HeightOverride": 100 }, "Children": [
					{ "Class": "ListView", "Name": "Units", "Properties": { "EntryWidgetClass": "/Blueprints/Entry.Entry_C" } } ] } ] } })");
			Content.Write(TEXT("Screen.lua"), Graph);
			UClass* Class = LoadObject<UClass>(nullptr, TEXT("/Blueprints/Screen.Screen_C"));
			UUserWidget* Screen = CreateWidget<UUserWidget>(GEngine->GetGameInstance(), Class);
			Screen->AddToViewport();
			Loop.RunUntilIdle();
			List = CastChecked<UListView>(Screen->GetWidgetFromName(TEXT("Units")));
			return Screen;
		}

		std::string Texts() const
		{
			std::string Text;
			for (UObject* Item : List->GetListItems())
			{
				if (const UUserWidget* Entry = List->GetEntryWidgetFromItem(Item))
				{
					Text += (Text.empty() ? "" : ", ") + Host::ToStd(CastChecked<UTextBlock>(Entry->GetWidgetFromName(TEXT("Label")))->GetText());
				}
			}
			return Text;
		}

		Host::FTemporaryContent Content{ TEXT("/Blueprints/") };
		UListView* List = nullptr;
	};

	const char* const FillGraph = R"(
		function Construct(self)
			for Number = 1, 50 do
				local Unit = ConstructObject(self, "/Blueprints/Unit.Unit_C")
				Unit.Title = "Unit " .. Number
				Unit.Rooms = Number % 5
				self.Units:AddItem(Unit)
			end
		end)";

	const char* const EntryGraph = R"(
		function OnListItemObjectSet(self, Item)
			self.Label:SetText(Item.Title .. "/" .. Item.Rooms)
		end
		function BP_OnItemSelectionChanged(self, bIsSelected)
			self.Label:SetText(bIsSelected and "selected" or "deselected")
		end)";

	TEST_F(FListEntryBlueprintTest, GraphsFillAListAndShowItsItems)
	{
		WriteItem();
		WriteEntry(EntryGraph);
		ShowScreen(FillGraph);
		EXPECT_EQ(List->GetNumItems(), 50);
		EXPECT_EQ(Texts(), "Unit 1/1, Unit 2/2, Unit 3/3");
		CollectGarbage(RF_NoFlags);
		List->SetScrollOffset(30.0f);
		Loop.RunUntilIdle();
		EXPECT_EQ(Texts(), "Unit 31/1, Unit 32/2, Unit 33/3");
	}

	TEST_F(FListEntryBlueprintTest, EntryGraphIsToldOfTheSelection)
	{
		WriteItem();
		WriteEntry(EntryGraph);
		ShowScreen(FillGraph);
		Driver.SingleClickAt(Driver.GetMiddle(*List->GetEntryWidgetFromItem(List->GetItemAt(1))));
		EXPECT_EQ(Texts(), "Unit 1/1, selected, Unit 3/3");
		Driver.SingleClickAt(Driver.GetMiddle(*List->GetEntryWidgetFromItem(List->GetItemAt(0))));
		EXPECT_EQ(Texts(), "selected, deselected, Unit 3/3");
	}

	TEST_F(FListEntryBlueprintTest, ScreenGraphIsToldOfClicksAndAsksForTheSelection)
	{
		WriteItem();
		WriteEntry(EntryGraph);
		std::string Graph = FillGraph;
		Graph += R"(
			function OnInitialized(self)
				self.Units.BP_OnItemClicked:Add(function(Item)
					Item.Title = "Clicked " .. self.Units:BP_GetSelectedItem().Title
					self.Units:RegenerateAllEntries()
				end)
			end)";
		ShowScreen(Graph.c_str());
		Driver.SingleClickAt(Driver.GetMiddle(*List->GetEntryWidgetFromItem(List->GetItemAt(1))));
		Loop.RunUntilIdle();
		EXPECT_EQ(Texts(), "Unit 1/1, selected, Unit 3/3");
		EXPECT_EQ(Host::ToStd(FindFProperty<FStrProperty>(List->GetItemAt(1)->GetClass(), TEXT("Title"))->GetPropertyValue_InContainer(List->GetItemAt(1))), "Clicked Unit 2");
	}

	TEST_F(FListEntryBlueprintTest, EntryAsksTheLibraryForItsItem)
	{
		WriteItem();
		WriteEntry(R"(
			function OnListItemObjectSet(self)
				local Item = Class("/Script/UMG.UserObjectListEntryLibrary"):GetListItemObject(self)
				local List = Class("/Script/UMG.UserListEntryLibrary"):GetOwningListView(self)
				self.Label:SetText(Item.Title .. " of " .. List:GetNumItems())
			end)");
		ShowScreen(FillGraph);
		EXPECT_EQ(Texts(), "Unit 1 of 50, Unit 2 of 50, Unit 3 of 50");
	}

	TEST_F(FListEntryBlueprintTest, GraphHoldsAnObjectInAVariable)
	{
		WriteItem();
		WriteEntry(EntryGraph);
		UUserWidget* Screen = ShowScreen(R"(function Construct(self) self.Kept = ConstructObject(self, "/Blueprints/Unit.Unit_C") end)");
		CollectGarbage(RF_NoFlags);
		const FObjectProperty* Kept = FindFProperty<FObjectProperty>(Screen->GetClass(), TEXT("Kept"));
		const UObject* Unit = Kept->GetObjectPropertyValue_InContainer(Screen);
		ASSERT_TRUE(Unit);
		EXPECT_EQ(Host::ToStd(FindFProperty<FStrProperty>(Unit->GetClass(), TEXT("Title"))->GetPropertyValue_InContainer(Unit)), "flat");
	}

	TEST_F(FListEntryBlueprintTest, WidgetsAreNotMadeAsObjects)
	{
		const Host::FExpectedLog Refused(TEXT("no object of the class TextBlock can be made"));
		WriteEntry(EntryGraph);
		ShowScreen(R"(function Construct(self) ConstructObject(self, "/Script/UMG.TextBlock") end)");
	}

	TEST_F(FListEntryBlueprintTest, WrongInterfacesAreOneLineEach)
	{
		const Host::FExpectedLog NoInterface(TEXT("there is no interface '/Script/UMG.TextBlock'"));
		const Host::FExpectedLog NativeOnly(TEXT("'/Script/UMG.NamedSlotInterface' is an interface for native classes only"));
		Content.Write(TEXT("Wrong.widget.json"), R"({ "Interfaces": ["/Script/UMG.TextBlock", "/Script/UMG.NamedSlotInterface", "/Script/UMG.UserListEntry"], "Root": { "Class": "TextBlock" } })");
		const UClass* Class = LoadObject<UClass>(nullptr, TEXT("/Blueprints/Wrong.Wrong_C"));
		ASSERT_TRUE(Class);
		EXPECT_TRUE(Class->ImplementsInterface(FindObject<UClass>(nullptr, TEXT("/Script/UMG.UserListEntry"))));
	}

	TEST_F(FListEntryBlueprintTest, ObjectBlueprintOfAWidgetIsRefused)
	{
		const Host::FExpectedLog Refused(TEXT("'/Script/UMG.TextBlock' is no class of plain objects"));
		Content.Write(TEXT("Bad.object.json"), R"({ "Parent": "/Script/UMG.TextBlock", "Variables": { "Title": { "Type": "string" } } })");
		const UClass* Class = LoadObject<UClass>(nullptr, TEXT("/Blueprints/Bad.Bad_C"));
		ASSERT_TRUE(Class);
		EXPECT_TRUE(Class->FindPropertyByName(TEXT("Title")));
	}
}
