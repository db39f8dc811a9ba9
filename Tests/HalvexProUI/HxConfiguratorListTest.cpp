#include "ConfiguratorSceneTest.h"

#include "Components/ListView.h"
#include "Configurator/HalvexLevelVariantSetsActor.h"
#include "Configurator/HalvexVariantHandler.h"
#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "Engine/World.h"
#include "KitReflection.h"
#include "TestCatalogue.h"
#include "UserWidget/Configurator/HxConfiguratorList.h"

using namespace KitReflection;
using Host::FExpectedLog;

namespace
{
	/** A list of the configurator whose entries show the display texts and whose graph writes down the clicks. */
	class FHxConfiguratorListTest : public FConfiguratorSceneTest
	{
	protected:
		UHxConfiguratorList& ShowList()
		{
			Content.Write(TEXT("Row.widget.json"), R"({ "Interfaces": ["/Script/UMG.UserObjectListEntry"], "Root": { "Class": "TextBlock", "Name": "Label" } })");
			Content.Write(TEXT("Row.lua"), "function OnListItemObjectSet(self, Item) self.Label:SetText(Item.ItemData.DisplayText) end");
			Content.Write(TEXT("Configurator.widget.json"), R"({ "Parent": "/Script/HalvexProUI.HxConfiguratorList",
				"Variables": { "Story": { "Type": "string" } },
				"Root": { "Class": "ListView", "Name": "ListDisplay", "Properties": { "EntryWidgetClass": "/KitScreens/Row.Row_C" } } })");
			Content.Write(TEXT("Configurator.lua"), R"(
				function OnInitialized(self)
					self.OnElementSelected:Add(function(Element) self.Story = self.Story .. "told " .. Element.ItemData.KeyName .. "; " end)
				end
				function OnConfiguratorElementSelected(self, Element)
					self.Story = self.Story .. "called " .. Element.ItemData.KeyName .. "; "
				end)");
			List = CastChecked<UHxConfiguratorList>(ShowPanel(TEXT("Configurator")));
			return *List;
		}

		void SetLevel(EConfiguratorListElementType Level)
		{
			List->SetElementType(Level);
			Settle();
		}

		/** A list at the level of the products of a subcategory. */
		void ShowProducts(const TCHAR* Category, const TCHAR* SubCategory)
		{
			MakeScene();
			ShowList();
			Handler->SetCategory(FName(Category));
			Handler->SetSubCategory(FName(SubCategory));
			SetLevel(ECLET_Product);
		}

		/** Keys of the items in their order. */
		std::string Items() const
		{
			return Host::ToStd(FString::JoinBy(List->ListDisplay->GetListItems(), TEXT(" "), [](const UObject* Item)
			{
				return CastChecked<UHxConfiguratorListElement>(Item)->ItemData.KeyName.ToString();
			}));
		}

		/** Key of the selected item; "none" without one. */
		std::string Selected() const
		{
			const UHxConfiguratorListElement* Item = List->ListDisplay->GetSelectedItem<UHxConfiguratorListElement>();
			return Item ? Host::ToStd(Item->ItemData.KeyName) : "none";
		}

		void ClickEntry(const TCHAR* Text)
		{
			// Soon after another one it would be a double click.
			Driver.Wait(1.0);
			ASSERT_TRUE(Driver.Click(FString(TEXT("text:")) + Text)) << Host::ToStd(Driver.GetError());
			Settle();
		}

		UHxConfiguratorList* List = nullptr;
	};

	TEST_F(FHxConfiguratorListTest, ShowsTheCategoriesOfTheLevel)
	{
		MakeScene();
		ShowList();
		EXPECT_EQ(List->HxLevelVariantSetRef, Actor);
		EXPECT_EQ(List->CurrentElementType, ECLET_Category);
		EXPECT_EQ(Items(), "Kitchen Bath");
		EXPECT_TRUE(Driver.Find(TEXT("text:The Kitchen")));
	}

	TEST_F(FHxConfiguratorListTest, ElementsCarryTheirRecordTheirLevelAndTheHandler)
	{
		MakeScene();
		ShowList();
		const UHxConfiguratorListElement* const Element = CastChecked<UHxConfiguratorListElement>(List->ListDisplay->GetItemAt(1));
		EXPECT_EQ(Host::ToStd(Element->ItemData.DisplayText), "The Bath");
		EXPECT_EQ(Element->ConfiguratorElementType, ECLET_Category);
		EXPECT_EQ(Element->VariantHandler, Handler);
		EXPECT_TRUE(Element->VariantActivated.IsNone());
	}

	TEST_F(FHxConfiguratorListTest, WithoutAnActorNothingIsShownUntilOneIsSet)
	{
		ShowList();
		Driver.Wait(1.0);
		EXPECT_EQ(Items(), "");
		MakeScene();
		Driver.Wait(1.0);
		EXPECT_EQ(Items(), "") << "the level is looked at once";
		List->SetHalvexLevelVariantActor(Actor);
		EXPECT_EQ(Items(), "Kitchen Bath");
	}

	TEST_F(FHxConfiguratorListTest, HandlerThatComesLaterIsFoundWithinATenthOfASecond)
	{
		MakeLevel();
		ShowList();
		Driver.Wait(0.55);
		EXPECT_EQ(Items(), "");
		MakeHandler();
		EXPECT_EQ(Items(), "");
		Driver.Wait(0.11);
		EXPECT_EQ(Items(), "Kitchen Bath");
		EXPECT_TRUE(Driver.Find(TEXT("text:The Kitchen")));
	}

	TEST_F(FHxConfiguratorListTest, WaitForTheHandlerEndsWithTheWidget)
	{
		MakeLevel();
		ShowList();
		StartScreen();
		List = nullptr;
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		MakeHandler();
		Driver.Wait(0.5);
	}

	TEST_F(FHxConfiguratorListTest, WaitForTheHandlerEndsWithTheActor)
	{
		MakeLevel();
		ShowList();
		Actor->Destroy();
		Actor = nullptr;
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		Driver.Wait(0.5);
		EXPECT_EQ(Items(), "");
	}

	TEST_F(FHxConfiguratorListTest, LevelThatIsSetBeforeThereIsAHandlerShowsNothing)
	{
		MakeLevel();
		ShowList();
		SetLevel(ECLET_Product);
		EXPECT_EQ(Items(), "");
		MakeHandler();
		Driver.Wait(0.11);
		EXPECT_EQ(List->CurrentElementType, ECLET_Category);
		EXPECT_EQ(Items(), "Kitchen Bath");
	}

	TEST_F(FHxConfiguratorListTest, ClickOnACategoryShowsItsSubCategoriesAndTellsTwice)
	{
		MakeScene();
		ShowList();
		ClickEntry(TEXT("The Kitchen"));
		EXPECT_EQ(Host::ToStd(Handler->GetSelectedCategory()), "Kitchen");
		EXPECT_EQ(List->CurrentElementType, ECLET_SubCategory);
		EXPECT_EQ(Items(), "Worktop Fronts Tap");
		EXPECT_TRUE(Driver.Find(TEXT("text:All Worktop")));
		EXPECT_EQ(TakeStory(*List), "called Kitchen; told Kitchen; ");
	}

	TEST_F(FHxConfiguratorListTest, ClickOnASubCategoryTellsAndLeavesTheRows)
	{
		MakeScene();
		ShowList();
		ClickEntry(TEXT("The Kitchen"));
		TakeStory(*List);
		const TArray<UObject*> Before = List->ListDisplay->GetListItems();
		ClickEntry(TEXT("All Fronts"));
		EXPECT_EQ(TakeStory(*List), "called Fronts; told Fronts; ");
		EXPECT_EQ(List->CurrentElementType, ECLET_SubCategory);
		EXPECT_EQ(List->ListDisplay->GetListItems(), Before);
		EXPECT_TRUE(Handler->GetSelectedSubCategory().IsNone()) << "the graph selects it";
	}

	TEST_F(FHxConfiguratorListTest, ClickOnAProductTellsAndLeavesTheRows)
	{
		ShowProducts(TEXT("Kitchen"), TEXT("Worktop"));
		const TArray<UObject*> Before = List->ListDisplay->GetListItems();
		ClickEntry(TEXT("The Slate"));
		EXPECT_EQ(TakeStory(*List), "called Slate; told Slate; ");
		EXPECT_EQ(List->CurrentElementType, ECLET_Product);
		EXPECT_EQ(List->ListDisplay->GetListItems(), Before);
		EXPECT_EQ(Host::ToStd(Handler->GetVariantActivatedFromSelection()), "Oak") << "the graph makes it active";
	}

	TEST_F(FHxConfiguratorListTest, BlueprintLeadsFromASubCategoryToItsProducts)
	{
		MakeScene();
		ShowList();
		ClickEntry(TEXT("The Bath"));
		CastChecked<UHxConfiguratorListElement>(List->ListDisplay->GetItemAt(1))->SetItemHasSelected();
		SetLevel(ECLET_Product);
		EXPECT_EQ(Items(), "Small Large");
		EXPECT_EQ(CastChecked<UHxConfiguratorListElement>(List->ListDisplay->GetItemAt(0))->ConfiguratorElementType, ECLET_Product);
	}

	TEST_F(FHxConfiguratorListTest, ActiveVariantIsShownSelected)
	{
		ShowProducts(TEXT("Kitchen"), TEXT("Worktop"));
		EXPECT_EQ(Selected(), "Oak");
		Choose(TEXT("Slate"));
		SetLevel(ECLET_Product);
		EXPECT_EQ(Selected(), "Slate");
	}

	TEST_F(FHxConfiguratorListTest, WithoutAnActiveVariantNothingIsShownSelected)
	{
		ShowProducts(TEXT("Kitchen"), TEXT("Tap"));
		EXPECT_EQ(Items(), "Steel Brass");
		EXPECT_EQ(Selected(), "none");
	}

	TEST_F(FHxConfiguratorListTest, SelectionOfProductsIsNotThatOfOtherLevels)
	{
		ShowProducts(TEXT("Kitchen"), TEXT("Worktop"));
		SetLevel(ECLET_SubCategory);
		EXPECT_EQ(Selected(), "none");
	}

	TEST_F(FHxConfiguratorListTest, ResetForgetsTheSelectionsAndSettingTheLevelDoesNot)
	{
		ShowProducts(TEXT("Kitchen"), TEXT("Worktop"));
		SetLevel(ECLET_Category);
		EXPECT_EQ(Items(), "Kitchen Bath");
		EXPECT_EQ(Host::ToStd(Handler->GetSelectedCategory()), "Kitchen");
		EXPECT_EQ(Host::ToStd(Handler->GetSelectedSubCategory()), "Worktop");
		SetLevel(ECLET_Product);
		EXPECT_EQ(Items(), "Oak Marble Slate");
		List->ResetToFirstLevel();
		EXPECT_EQ(List->CurrentElementType, ECLET_Category);
		EXPECT_EQ(Items(), "Kitchen Bath");
		EXPECT_TRUE(Handler->GetSelectedCategory().IsNone());
		EXPECT_TRUE(Handler->GetSelectedSubCategory().IsNone());
	}

	TEST_F(FHxConfiguratorListTest, LevelsWithNothingSelectedAreEmpty)
	{
		MakeScene();
		ShowList();
		SetLevel(ECLET_SubCategory);
		EXPECT_EQ(Items(), "");
		SetLevel(ECLET_Product);
		EXPECT_EQ(Items(), "");
	}

	TEST_F(FHxConfiguratorListTest, EachRefreshMakesNewElements)
	{
		MakeScene();
		ShowList();
		const TWeakObjectPtr<UObject> Before = List->ListDisplay->GetItemAt(0);
		SetLevel(ECLET_Category);
		EXPECT_NE(List->ListDisplay->GetItemAt(0), Before.Get());
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		EXPECT_FALSE(Before.IsValid()) << "the old ones are dropped";
	}

	TEST_F(FHxConfiguratorListTest, ListThatWasConstructedAgainTakesEachClickOnceForEachTime)
	{
		MakeScene();
		ShowList();
		Screen->RemoveFromParent();
		Screen->AddToViewport();
		Settle();
		ClickEntry(TEXT("The Kitchen"));
		EXPECT_EQ(TakeStory(*List), "called Kitchen; told Kitchen; called Kitchen; told Kitchen; ");
		EXPECT_EQ(Items(), "Worktop Fronts Tap");
	}

	TEST_F(FHxConfiguratorListTest, ClickTellsNativeListenersToo)
	{
		MakeScene();
		ShowList();
		List->OnElementSelected.AddDynamic(ConfiguratorRecorder.Get(), &UConfiguratorRecorder::ReceivedElement);
		ClickEntry(TEXT("The Bath"));
		EXPECT_EQ(Host::ToStd(ConfiguratorRecorder->Take()), "clicked Bath; ");
	}

	TEST_F(FHxConfiguratorListTest, CategoryThatIsGoneShowsNothingWithOneLine)
	{
		MakeScene();
		ShowList();
		FConfiguratorCatalogue Catalogue = Host::TestCatalogue::Make();
		Catalogue.Categories.RemoveAt(0);
		Asset->SetCatalogue(Catalogue);
		const FExpectedLog Warning(TEXT("there is no category 'Kitchen'"));
		ClickEntry(TEXT("The Kitchen"));
		EXPECT_EQ(Items(), "");
		List->ResetToFirstLevel();
		EXPECT_EQ(Items(), "Bath");
	}

	TEST_F(FHxConfiguratorListTest, CategoryThatWentWhileItWasSelectedShowsNothingWithOneLine)
	{
		MakeScene();
		ShowList();
		ClickEntry(TEXT("The Kitchen"));
		FConfiguratorCatalogue Catalogue = Host::TestCatalogue::Make();
		Catalogue.Categories.RemoveAt(0);
		Asset->SetCatalogue(Catalogue);
		const FExpectedLog Warning(TEXT("the selected category 'Kitchen' is not in the catalogue any longer"));
		SetLevel(ECLET_SubCategory);
		EXPECT_EQ(Items(), "");
	}

	TEST_F(FHxConfiguratorListTest, EmptyCatalogueShowsNothing)
	{
		MakeLevel();
		MakeHandler(FConfiguratorCatalogue());
		ShowList();
		EXPECT_EQ(Items(), "");
	}

	TEST_F(FHxConfiguratorListTest, ListViewMayBeLeftOut)
	{
		MakeScene();
		Content.Write(TEXT("Bare.widget.json"), R"({ "Parent": "/Script/HalvexProUI.HxConfiguratorList", "Root": { "Class": "TextBlock", "Name": "Label" } })");
		UHxConfiguratorList* const Bare = CastChecked<UHxConfiguratorList>(ShowPanel(TEXT("Bare")));
		Handler->SetCategory(FName(TEXT("Kitchen")));
		Bare->SetElementType(ECLET_SubCategory);
		EXPECT_EQ(Bare->CurrentElementType, ECLET_SubCategory);
		EXPECT_EQ(Bare->HxLevelVariantSetRef, Actor);
	}
}
