#include "ConfiguratorTest.h"

#include "ExpectedLog.h"

using Host::FExpectedLog;




namespace
{
	using FVariantHandlerTest = FConfiguratorTest;

	TEST_F(FVariantHandlerTest, CatalogueIsWalkedByItsThreeLevels)
	{
		EXPECT_EQ(Join(Handler->GetAllCategoryValues()), "Kitchen Bath");
		EXPECT_EQ(Join(Handler->GetAllCategoryOverrideData()), "Kitchen=The Kitchen, Bath=The Bath");
		EXPECT_EQ(Join(Handler->GetSubCatsFromSelectedCat(true)), "") << "no category is selected";
		EXPECT_EQ(Join(Handler->GetSubCategoryOverrideData()), "");
		Handler->SetCategory(FName(TEXT("Kitchen")));
		EXPECT_EQ(Join(Handler->GetSubCatsFromSelectedCat(true)), "Worktop Fronts Tap");
		EXPECT_EQ(Join(Handler->GetSubCategoryOverrideData()), "Worktop=All Worktop, Fronts=All Fronts, Tap=All Tap");
		EXPECT_EQ(Join(Handler->GetVariantsFromSelectedSubCat(true)), "") << "no subcategory is selected";
		EXPECT_EQ(Join(Handler->GetProductOverrideData()), "");
		Handler->SetSubCategory(FName(TEXT("Tap")));
		EXPECT_EQ(Join(Handler->GetVariantsFromSelectedSubCat(true)), "Steel Brass");
		EXPECT_EQ(Join(Handler->GetProductOverrideData()), "Steel=The Steel, Brass=The Brass");
		EXPECT_EQ(Heard(), "") << "where the user stands changes nothing";
	}

	TEST_F(FVariantHandlerTest, OtherCategoryHasNoSelectedSubCategory)
	{
		Select(TEXT("Kitchen"), TEXT("Worktop"));
		Handler->SetCategory(FName(TEXT("Bath")));
		EXPECT_TRUE(Handler->GetSelectedSubCategory().IsNone());
		EXPECT_EQ(Join(Handler->GetProductOverrideData()), "");
	}

	TEST_F(FVariantHandlerTest, ClearedSelectionsLeaveWhatIsActive)
	{
		Choose(TEXT("Marble"));
		Handler->ClearSelections();
		EXPECT_TRUE(Handler->GetSelectedCategory().IsNone());
		EXPECT_TRUE(Handler->GetSelectedSubCategory().IsNone());
		EXPECT_TRUE(Handler->GetSelectedVariant().IsNone());
		EXPECT_TRUE(Handler->GetVariantActivatedFromSelection().IsNone());
		EXPECT_EQ(Active(TEXT("Kitchen"), TEXT("Worktop")), "Marble");
	}

	TEST_F(FVariantHandlerTest, UnknownNamesAreALineEachAndSelectNothing)
	{
		Select(TEXT("Kitchen"), TEXT("Worktop"));
		{
			const FExpectedLog Warning(TEXT("the selected category 'Kitchen' has no subcategory 'Tiles'"));
			Handler->SetSubCategory(FName(TEXT("Tiles")));
			EXPECT_TRUE(Handler->GetSelectedSubCategory().IsNone());
		}
		{
			const FExpectedLog Warning(TEXT("there is no category 'Attic'"));
			Handler->SetCategory(FName(TEXT("Attic")));
			EXPECT_TRUE(Handler->GetSelectedCategory().IsNone());
		}
		const FExpectedLog Warning(TEXT("there is no variant 'Gold'"));
		EXPECT_FALSE(Choose(TEXT("Gold")));
		FHalvexConfigProduct Product;
		EXPECT_FALSE(Handler->GetProductDataFromVariant(FName(TEXT("Gold")), Product));
		EXPECT_EQ(Active(TEXT("Kitchen"), TEXT("Attic")), "None");
		EXPECT_EQ(Handler->GetPriceDifference(FName(TEXT("Gold"))), 0.0);
		EXPECT_EQ(Heard(), "");
	}

	TEST_F(FVariantHandlerTest, NamesAreComparedWithoutTheirCase)
	{
		Select(TEXT("kitchen"), TEXT("WORKTOP"));
		EXPECT_TRUE(Choose(TEXT("marble")));
		EXPECT_EQ(Changes(), "Kitchen.Worktop Marble 900");
	}

	TEST_F(FVariantHandlerTest, DefaultsAreActiveFromTheBeginning)
	{
		EXPECT_EQ(Active(TEXT("Kitchen"), TEXT("Worktop")), "Oak");
		EXPECT_EQ(Active(TEXT("Kitchen"), TEXT("Tap")), "None") << "units come with none";
		EXPECT_EQ(Handler->GetActiveVariants().Num(), 4);
		EXPECT_EQ(Changes(), "") << "defaults are no changes";
	}

	TEST_F(FVariantHandlerTest, ChosenVariantIsActiveAndTellsInOrder)
	{
		EXPECT_TRUE(Choose(TEXT("Marble")));
		EXPECT_EQ(Active(TEXT("Kitchen"), TEXT("Worktop")), "Marble");
		EXPECT_EQ(Heard(), "variants; looks Top 0.9 Splashback 0.9 Doors 0.9; changes; ");
		EXPECT_TRUE(Choose(TEXT("Steel")));
		EXPECT_EQ(Heard(), "variants; changes; ") << "what is not seen changes no look";
	}

	TEST_F(FVariantHandlerTest, ChoosingWhatIsActiveTellsNothing)
	{
		EXPECT_TRUE(Choose(TEXT("Oak")));
		Choose(TEXT("Marble"));
		Heard();
		EXPECT_TRUE(Choose(TEXT("Marble")));
		EXPECT_EQ(Heard(), "");
	}

	TEST_F(FVariantHandlerTest, ChosenVariantIsSelectedWithItsPlace)
	{
		Select(TEXT("Bath"), TEXT("Tiles"));
		Choose(TEXT("Brass"));
		EXPECT_EQ(Host::ToStd(Handler->GetSelectedCategory()), "Kitchen");
		EXPECT_EQ(Host::ToStd(Handler->GetSelectedSubCategory()), "Tap");
		EXPECT_EQ(Host::ToStd(Handler->GetSelectedVariant()), "Brass");
		EXPECT_EQ(Host::ToStd(Handler->GetVariantActivatedFromSelection()), "Brass");
	}

	TEST_F(FVariantHandlerTest, ActiveIndexIsThePlaceInTheSelectedSubCategory)
	{
		int32 Index = 7;
		EXPECT_FALSE(Handler->GetVariantActiveIndex(Index));
		EXPECT_EQ(Index, -1);
		Select(TEXT("Kitchen"), TEXT("Tap"));
		EXPECT_FALSE(Handler->GetVariantActiveIndex(Index)) << "none is active";
		Choose(TEXT("Slate"));
		EXPECT_TRUE(Handler->GetVariantActiveIndex(Index));
		EXPECT_EQ(Index, 2);
	}

	TEST_F(FVariantHandlerTest, VariantIsActiveWhateverIsSelected)
	{
		EXPECT_TRUE(Handler->IsVariantActive(FName(TEXT("Oak"))));
		Choose(TEXT("Marble"));
		Select(TEXT("Bath"), TEXT("Tiles"));
		EXPECT_TRUE(Handler->IsVariantActive(FName(TEXT("Marble"))));
		EXPECT_FALSE(Handler->IsVariantActive(FName(TEXT("Oak"))));
		EXPECT_FALSE(Handler->IsVariantActive(FName(TEXT("Gold"))));
	}

	TEST_F(FVariantHandlerTest, VariantThatIsPutBackLeavesTheDefault)
	{
		Choose(TEXT("Marble"));
		Heard();
		EXPECT_TRUE(Handler->SetVariant(FName(TEXT("Marble")), false));
		EXPECT_EQ(Active(TEXT("Kitchen"), TEXT("Worktop")), "Oak");
		EXPECT_EQ(Heard(), "variants; looks Top 0.3 Doors 0.9; changes; ");
		EXPECT_EQ(Changes(), "");
		EXPECT_TRUE(Handler->GetSelectedVariant().IsNone());
	}

	TEST_F(FVariantHandlerTest, VariantIsPutBackToNoneWhereThereIsNoDefault)
	{
		Choose(TEXT("Brass"));
		EXPECT_TRUE(Handler->SetVariant(FName(TEXT("Brass")), false));
		EXPECT_EQ(Active(TEXT("Kitchen"), TEXT("Tap")), "None");
	}

	TEST_F(FVariantHandlerTest, DefaultCannotBePutBack)
	{
		EXPECT_FALSE(Handler->SetVariant(FName(TEXT("Oak")), false));
		EXPECT_EQ(Active(TEXT("Kitchen"), TEXT("Worktop")), "Oak");
		EXPECT_EQ(Heard(), "");
	}

	TEST_F(FVariantHandlerTest, PuttingBackWhatIsNotActiveLeavesTheOther)
	{
		Choose(TEXT("Marble"));
		EXPECT_TRUE(Handler->SetVariant(FName(TEXT("Slate")), false));
		EXPECT_EQ(Active(TEXT("Kitchen"), TEXT("Worktop")), "Marble");
	}

	TEST_F(FVariantHandlerTest, ChangesAreInTheOrderOfTheirChoice)
	{
		Choose(TEXT("Green"));
		Choose(TEXT("Marble"));
		Choose(TEXT("Navy"));
		EXPECT_EQ(Changes(), "Bath.Tiles Green 300, Kitchen.Worktop Marble 900, Kitchen.Fronts Navy 400");
		Choose(TEXT("Slate"));
		EXPECT_EQ(Changes(), "Bath.Tiles Green 300, Kitchen.Fronts Navy 400, Kitchen.Worktop Slate 1200") << "the latest is last";
	}

	TEST_F(FVariantHandlerTest, ChoosingTheDefaultTakesTheChangeBack)
	{
		Choose(TEXT("Green"));
		Choose(TEXT("Marble"));
		Heard();
		Choose(TEXT("Oak"));
		EXPECT_EQ(Changes(), "Bath.Tiles Green 300");
		EXPECT_EQ(Heard(), "variants; looks Top 0.3 Doors 0.9; changes; ");
	}

	TEST_F(FVariantHandlerTest, KeysKeepTheFullStopsOfTheSubCategory)
	{
		Choose(TEXT("Large"));
		EXPECT_EQ(Changes(), "Bath.Basin.Round Large 150");
		EXPECT_TRUE(Handler->TakeBackChange(FName(TEXT("Bath.Basin.Round"))));
		EXPECT_EQ(Changes(), "");
	}

	TEST_F(FVariantHandlerTest, ChangeIsTakenBackByItsKey)
	{
		Choose(TEXT("Marble"));
		Choose(TEXT("Green"));
		Heard();
		EXPECT_TRUE(Handler->TakeBackChange(FName(TEXT("Kitchen.Worktop"))));
		EXPECT_EQ(Changes(), "Bath.Tiles Green 300");
		EXPECT_EQ(Active(TEXT("Kitchen"), TEXT("Worktop")), "Oak");
		EXPECT_EQ(Heard(), "variants; looks Top 0.3 Doors 0.9; changes; ");
		EXPECT_FALSE(Handler->TakeBackChange(FName(TEXT("Kitchen.Worktop"))));
		EXPECT_FALSE(Handler->TakeBackChange(FName(TEXT("Attic"))));
		EXPECT_EQ(Heard(), "");
	}

	TEST_F(FVariantHandlerTest, AllChangesAreResetAtOnce)
	{
		Choose(TEXT("Marble"));
		Choose(TEXT("Green"));
		Choose(TEXT("Brass"));
		Heard();
		Handler->ResetChanges();
		EXPECT_EQ(Changes(), "");
		EXPECT_EQ(Active(TEXT("Kitchen"), TEXT("Tap")), "None");
		EXPECT_EQ(Heard(), "variants; looks Top 0.3 Doors 0.9; changes; ");
		Handler->ResetChanges();
		EXPECT_EQ(Heard(), "");
	}

	TEST_F(FVariantHandlerTest, LastSubCategoryDecidesOverASurfaceOfSeveral)
	{
		Choose(TEXT("Marble"));
		Heard();
		Choose(TEXT("Navy"));
		EXPECT_EQ(Heard(), "variants; looks Top 0.1 Splashback 0.9 Doors 0.1; changes; ");
		EXPECT_EQ(Handler->GetSurfaceLooks().Num(), 3);
	}

	TEST_F(FVariantHandlerTest, PricesAreToldAgainstTheDefault)
	{
		FConfiguratorCatalogue Catalogue = Host::TestCatalogue::Make();
		Catalogue.Categories[0].SubCategories[0].Variants[0].Product.Price = 1000.0;
		Asset->SetCatalogue(Catalogue);
		EXPECT_EQ(Handler->GetPriceDifference(FName(TEXT("Oak"))), 0.0);
		EXPECT_EQ(Handler->GetPriceDifference(FName(TEXT("Marble"))), -100.0);
		EXPECT_EQ(Handler->GetPriceDifference(FName(TEXT("Brass"))), 250.0) << "nothing to come with";
		Choose(TEXT("Marble"));
		Choose(TEXT("Brass"));
		EXPECT_EQ(Handler->GetPriceOfChanges(), 150.0);
	}

	TEST_F(FVariantHandlerTest, StateIsKeptAndGivenBack)
	{
		Choose(TEXT("Green"));
		Choose(TEXT("Marble"));
		const FHalvexConfiguratorState State = Handler->GetConfiguratorState();
		Handler->SetConfiguratorState(FHalvexConfiguratorState());
		EXPECT_EQ(Changes(), "");
		Choose(TEXT("Navy"));
		Heard();
		Handler->SetConfiguratorState(State);
		EXPECT_EQ(Changes(), "Bath.Tiles Green 300, Kitchen.Worktop Marble 900");
		EXPECT_EQ(Heard(), "variants; looks Top 0.9 Splashback 0.9 Doors 0.9; changes; ");
		Handler->SetConfiguratorState(State);
		EXPECT_EQ(Heard(), "") << "it is so already";
	}

	TEST_F(FVariantHandlerTest, StateOfAnotherCatalogueKeepsWhatThisOneHas)
	{
		FHalvexConfiguratorState State;
		State.Choices = {
			{ FName(TEXT("Kitchen.Worktop")), FName(TEXT("Gold")) },
			{ FName(TEXT("Kitchen.Fronts")), FName(TEXT("Marble")) },
			{ FName(TEXT("Bath.Tiles")), FName(TEXT("Green")) },
			{ FName(TEXT("Kitchen.Tap")), FName(TEXT("Steel")) },
			{ FName(TEXT("Kitchen.Tap")), FName(TEXT("Brass")) },
			{ FName(TEXT("Kitchen.Fronts")), FName(TEXT("White")) } };
		const FExpectedLog Warning(TEXT("not in the catalogue, and so not chosen: 'Gold' in 'Kitchen.Worktop', 'Marble' in 'Kitchen.Fronts'"));
		Handler->SetConfiguratorState(State);
		EXPECT_EQ(Changes(), "Bath.Tiles Green 300, Kitchen.Tap Brass 250") << "the last of several, and no defaults";
	}

	TEST_F(FVariantHandlerTest, EachUnitHasItsOwnConfiguration)
	{
		Choose(TEXT("Marble"));
		Heard();
		Handler->SetConfiguredUnit(FName(TEXT("A1")));
		EXPECT_EQ(Changes(), "Kitchen.Worktop Marble 900") << "the first unit takes over what was there";
		EXPECT_EQ(Heard(), "");
		Handler->SetConfiguredUnit(FName(TEXT("B1")));
		EXPECT_EQ(Changes(), "");
		EXPECT_EQ(Heard(), "variants; looks Top 0.3 Doors 0.9; changes; ");
		Choose(TEXT("Green"));
		Handler->SetConfiguredUnit(FName(TEXT("A1")));
		EXPECT_EQ(Changes(), "Kitchen.Worktop Marble 900");
		EXPECT_EQ(Host::ToStd(Handler->GetConfiguredUnit()), "A1");
		Handler->SetConfiguredUnit(FName());
		EXPECT_EQ(Changes(), "");
		Handler->SetConfiguredUnit(FName(TEXT("B1")));
		EXPECT_EQ(Changes(), "Bath.Tiles Green 300");
	}

	TEST_F(FVariantHandlerTest, KeyOfAChangeIsReadAsPeopleKnowIt)
	{
		FText Category;
		FText SubCategory;
		EXPECT_TRUE(Handler->GetDisplayTexts(FName(TEXT("Bath.Basin.Round")), Category, SubCategory));
		EXPECT_EQ(Host::ToStd(Category) + ", " + Host::ToStd(SubCategory), "The Bath, All Basin.Round");
		EXPECT_FALSE(Handler->GetDisplayTexts(FName(TEXT("Bath")), Category, SubCategory));
	}

	TEST_F(FVariantHandlerTest, ExchangedCatalogueKeepsTheChoicesThatItHas)
	{
		Choose(TEXT("Marble"));
		Choose(TEXT("Green"));
		Heard();
		FConfiguratorCatalogue Catalogue = Host::TestCatalogue::Make();
		Catalogue.Categories[0].SubCategories[0].Variants.RemoveAt(1);
		const FExpectedLog Warning(TEXT("not in the catalogue, and so not chosen: 'Marble' in 'Kitchen.Worktop'"));
		Asset->SetCatalogue(Catalogue);
		EXPECT_EQ(Changes(), "Bath.Tiles Green 300");
		EXPECT_EQ(Heard(), "variants; looks Top 0.3 Doors 0.9; changes; ");
	}

	TEST_F(FVariantHandlerTest, ChoiceThatBecameTheDefaultIsNoChangeAnyLonger)
	{
		Choose(TEXT("Marble"));
		Heard();
		FConfiguratorCatalogue Catalogue = Host::TestCatalogue::Make();
		Catalogue.Categories[0].SubCategories[0].DefaultProduct = FName(TEXT("Marble"));
		Asset->SetCatalogue(Catalogue);
		EXPECT_EQ(Changes(), "");
		EXPECT_EQ(Active(TEXT("Kitchen"), TEXT("Worktop")), "Marble");
		EXPECT_EQ(Heard(), "variants; changes; ");
	}

	TEST_F(FVariantHandlerTest, SelectionThatIsGoneIsDroppedWhenItsLevelIsFetched)
	{
		Select(TEXT("Kitchen"), TEXT("Worktop"));
		FConfiguratorCatalogue Catalogue = Host::TestCatalogue::Make();
		Catalogue.Categories[0].SubCategories.RemoveAt(0);
		Asset->SetCatalogue(Catalogue);
		EXPECT_EQ(Join(Handler->GetVariantsFromSelectedSubCat(false)), "");
		EXPECT_EQ(Join(Handler->GetProductOverrideData()), "");
		EXPECT_EQ(Host::ToStd(Handler->GetSelectedSubCategory()), "Worktop") << "only asked";
		{
			const FExpectedLog Warning(TEXT("the selected subcategory 'Kitchen.Worktop' is not in the catalogue any longer"));
			EXPECT_EQ(Join(Handler->GetVariantsFromSelectedSubCat(true)), "");
			EXPECT_TRUE(Handler->GetSelectedSubCategory().IsNone());
		}
		Catalogue.Categories.RemoveAt(0);
		Asset->SetCatalogue(Catalogue);
		const FExpectedLog Warning(TEXT("the selected category 'Kitchen' is not in the catalogue any longer"));
		EXPECT_EQ(Join(Handler->GetSubCatsFromSelectedCat(true)), "");
		EXPECT_EQ(Join(Handler->GetSubCatsFromSelectedCat(true)), "");
		EXPECT_TRUE(Handler->GetSelectedCategory().IsNone());
	}

	TEST_F(FVariantHandlerTest, EmptyCatalogueHasNothingAndNothingIsWrongWithIt)
	{
		Choose(TEXT("Marble"));
		Handler->ResetChanges();
		Handler->ClearSelections();
		Heard();
		Asset->SetCatalogue(FConfiguratorCatalogue());
		EXPECT_EQ(Join(Handler->GetAllCategoryValues()), "");
		EXPECT_TRUE(Handler->GetActiveVariants().IsEmpty());
		EXPECT_EQ(Heard(), "variants; looks; ");
	}

	TEST_F(FVariantHandlerTest, WithoutAnAssetThereIsNothing)
	{
		Choose(TEXT("Marble"));
		Heard();
		Handler->SetVariantConfigurator(nullptr);
		EXPECT_EQ(Heard(), "variants; looks; changes; ");
		EXPECT_EQ(Join(Handler->GetAllCategoryOverrideData()), "");
		EXPECT_EQ(Changes(), "");
		EXPECT_EQ(Handler->GetVariantConfigurator(), nullptr);
		UTexture2D* Thumbnail = nullptr;
		EXPECT_FALSE(Handler->GetVariantThumbnail(Thumbnail, FName(TEXT("Oak"))));
		Asset->SetCatalogue(FConfiguratorCatalogue());
		EXPECT_EQ(Heard(), "") << "an asset that it has no longer tells it nothing";
	}

	TEST_F(FVariantHandlerTest, ListenerMayChangeOnWhileItIsTold)
	{
		Listener->InVariantChange = [this]
		{
			Listener->InVariantChange = nullptr;
			Asset->SetCatalogue(FConfiguratorCatalogue());
		};
		const FExpectedLog Warning(TEXT("and so not chosen: 'Marble'"));
		EXPECT_FALSE(Choose(TEXT("Marble")));
		EXPECT_EQ(Changes(), "");
	}

	TEST_F(FVariantHandlerTest, WhoHearsOfAnotherCatalogueAheadOfTheHandlerMayAskIt)
	{
		Choose(TEXT("Marble"));
		int32 NumAsked = 0;
		const auto Ask = [&]
		{
			++NumAsked;
			Handler->GetSurfaceLooks();
			Handler->GetPriceOfChanges();
			EXPECT_EQ(Changes(), NumAsked == 1 ? "Kitchen.Worktop None 0" : "") << "there is no such product any longer";
		};
		// Whichever end of its listeners the asset begins with.
		Handler->SetVariantConfigurator(nullptr);
		Asset->OnCatalogueChanged.AddLambda(Ask);
		Handler->SetVariantConfigurator(Asset.Get());
		Asset->OnCatalogueChanged.AddLambda(Ask);
		Choose(TEXT("Marble"));
		FConfiguratorCatalogue Catalogue = Host::TestCatalogue::Make();
		Catalogue.Categories[0].SubCategories[0].Variants.RemoveAt(1);
		const FExpectedLog Warning(TEXT("and so not chosen: 'Marble'"));
		Asset->SetCatalogue(Catalogue);
		EXPECT_EQ(NumAsked, 2);
	}

	TEST_F(FVariantHandlerTest, ListOfProductsIsLeftAloneWhereVariantsAreSelected)
	{
		Asset->AddProductToList(FName(TEXT("Slate")));
		EXPECT_EQ(Heard(), "variants; ");
		Choose(TEXT("Marble"));
		Handler->ResetChanges();
		EXPECT_EQ(Join(Asset->GetProductList()), "Slate");
	}

	/** The handler of a catalogue that selects by the list of products. */
	class FProductListTest : public FConfiguratorTest
	{
	protected:
		FProductListTest()
		{
			FConfiguratorCatalogue Catalogue = Host::TestCatalogue::Make();
			Catalogue.bSelectByProductList = true;
			Asset->SetCatalogue(Catalogue);
			Heard();
		}
	};

	TEST_F(FProductListTest, FollowsTheChoices)
	{
		Choose(TEXT("Marble"));
		Choose(TEXT("Brass"));
		EXPECT_EQ(Join(Asset->GetProductList()), "Marble Brass");
		Heard();
		Choose(TEXT("Slate"));
		EXPECT_EQ(Join(Asset->GetProductList()), "Brass Slate") << "in place of the other of its subcategory";
		EXPECT_EQ(Heard(), "variants; looks Top 0.1 Doors 0.9; changes; ");
		Handler->TakeBackChange(FName(TEXT("Kitchen.Worktop")));
		EXPECT_EQ(Join(Asset->GetProductList()), "Brass");
		Handler->ResetChanges();
		EXPECT_EQ(Join(Asset->GetProductList()), "");
	}

	TEST_F(FProductListTest, DefaultIsInItOnceItWasChosen)
	{
		EXPECT_TRUE(Choose(TEXT("Oak")));
		EXPECT_EQ(Join(Asset->GetProductList()), "Oak");
		EXPECT_EQ(Heard(), "variants; ") << "the same is active, but another product is chosen";
		Handler->SetVariant(FName(TEXT("Oak")), false);
		EXPECT_EQ(Join(Asset->GetProductList()), "");
	}

	TEST_F(FProductListTest, ChoiceTakesThePlaceOfWhatOthersPutIntoIt)
	{
		Asset->SetProductList({ FName(TEXT("Slate")), FName(TEXT("Green")) });
		EXPECT_EQ(Heard(), "variants; ");
		Choose(TEXT("Marble"));
		EXPECT_EQ(Join(Asset->GetProductList()), "Green Marble");
	}

	TEST_F(FProductListTest, IsPartOfTheState)
	{
		Asset->SetProductList({ FName(TEXT("Green")) });
		Choose(TEXT("Marble"));
		const FHalvexConfiguratorState State = Handler->GetConfiguratorState();
		Handler->SetConfiguratorState(FHalvexConfiguratorState());
		EXPECT_EQ(Join(Asset->GetProductList()), "");
		Handler->SetConfiguratorState(State);
		EXPECT_EQ(Join(Asset->GetProductList()), "Green Marble");
		EXPECT_EQ(Changes(), "Kitchen.Worktop Marble 900");
	}
}
