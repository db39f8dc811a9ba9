#include "ConfiguratorTest.h"

#include "ExpectedLog.h"
#include "TemporaryContent.h"

using Host::FExpectedLog;
using Host::ToStd;
using Host::TestCatalogue::MakeCategory;
using Host::TestCatalogue::MakeSubCategory;
using Host::TestCatalogue::MakeVariant;

namespace
{
	using FConfiguratorDataAssetTest = FConfiguratorTest;

	TEST_F(FConfiguratorDataAssetTest, ProductIsFoundByItsKey)
	{
		FHalvexConfigProduct Product;
		EXPECT_TRUE(Asset->GetConfiguratorProductByKey(FName(TEXT("Marble")), Product));
		EXPECT_EQ(ToStd(Product.Name), "The Marble");
		EXPECT_EQ(Product.Price, 900.0);
		EXPECT_FALSE(Asset->GetConfiguratorProductByKey(FName(TEXT("Gold")), Product));
		EXPECT_EQ(ToStd(Product.Name), "The Marble") << "nothing is put in its place";
	}

	TEST_F(FConfiguratorDataAssetTest, ProductsComeIntoTheListOnceAndLeaveIt)
	{
		const FName Marble(TEXT("Marble"));
		EXPECT_FALSE(Asset->IsProductInList(Marble));
		Asset->AddProductToList(Marble);
		Asset->AddProductToList(Marble);
		Asset->AddProductToList(FName(TEXT("Green")));
		EXPECT_TRUE(Asset->IsProductInList(Marble));
		EXPECT_EQ(Join(Asset->GetProductList()), "Marble Green");
		EXPECT_EQ(Heard(), "variants; variants; ") << "told when it changes";
		Asset->RemoveProductFromList(Marble);
		Asset->RemoveProductFromList(Marble);
		EXPECT_EQ(Join(Asset->GetProductList()), "Green");
		EXPECT_EQ(Heard(), "variants; ");
	}

	TEST_F(FConfiguratorDataAssetTest, ListTakesNoUnknownProducts)
	{
		const FExpectedLog Warning(TEXT("not in the list of products: Gold, Silver"));
		Asset->SetProductList({ FName(TEXT("Gold")), FName(TEXT("Marble")), FName(TEXT("Silver")), FName(TEXT("Marble")) });
		EXPECT_EQ(Join(Asset->GetProductList()), "Marble");
	}

	TEST_F(FConfiguratorDataAssetTest, WhatCannotBeToldApartIsLeftOutWithALineEach)
	{
		FConfiguratorCatalogue Catalogue;
		Catalogue.Categories = {
			MakeCategory(TEXT("Kitchen"), {
				MakeSubCategory(TEXT("Worktop"), TEXT("Gold"), { MakeVariant(TEXT("Oak"), 0.0), MakeVariant(TEXT("Oak"), 5.0), MakeVariant(TEXT(""), 0.0) }),
				MakeSubCategory(TEXT("worktop"), TEXT(""), {}),
				MakeSubCategory(TEXT(""), TEXT(""), {}),
				MakeSubCategory(TEXT("Floor"), TEXT("Oak"), { MakeVariant(TEXT("Oak"), 9.0), MakeVariant(TEXT("Pine"), 1.0) }) }),
			MakeCategory(TEXT("Kitchen"), {}),
			MakeCategory(TEXT("Bath.Small"), {}),
			MakeCategory(TEXT(""), {}),
			MakeCategory(TEXT("Hall"), {}) };
		{
			const FExpectedLog Product(TEXT("the product 'Oak' is there already and is left out of 'Kitchen.Worktop'"));
			const FExpectedLog Unnamed(TEXT("the product 'The ' of 'Kitchen.Worktop' has no key and is left out"));
			const FExpectedLog Elsewhere(TEXT("the product 'Oak' is there already and is left out of 'Kitchen.Floor'"));
			const FExpectedLog NoGold(TEXT("'Kitchen.Worktop' has no product 'Gold' to come with"));
			const FExpectedLog NoOak(TEXT("'Kitchen.Floor' has no product 'Oak' to come with"));
			const FExpectedLog SubCategory(TEXT("the subcategory 'Kitchen.worktop' is there already and is left out"));
			const FExpectedLog UnnamedSubCategory(TEXT("the subcategory 'All ' of 'Kitchen' has no key and is left out"));
			const FExpectedLog Category(TEXT("the category 'Kitchen' is there already and is left out"));
			const FExpectedLog FullStop(TEXT("the category 'Bath.Small' has a full stop in its key and is left out"));
			const FExpectedLog UnnamedCategory(TEXT("the category 'The ' has no key and is left out"));
			Asset->SetCatalogue(Catalogue);
		}
		EXPECT_EQ(Join(Handler->GetAllCategoryValues()), "Kitchen Hall");
		Handler->SetCategory(FName(TEXT("Kitchen")));
		EXPECT_EQ(Join(Handler->GetSubCatsFromSelectedCat(true)), "Worktop Floor");
		Handler->SetSubCategory(FName(TEXT("Worktop")));
		EXPECT_EQ(Join(Handler->GetVariantsFromSelectedSubCat(true)), "Oak");
		EXPECT_EQ(Active(TEXT("Kitchen"), TEXT("Worktop")), "None");
		FHalvexConfigProduct Oak;
		EXPECT_TRUE(Asset->GetConfiguratorProductByKey(FName(TEXT("Oak")), Oak));
		EXPECT_EQ(Oak.Price, 0.0) << "the first counts";
	}

	TEST_F(FConfiguratorDataAssetTest, CatalogueThatIsWrongThroughoutDoesNotFillTheLog)
	{
		FConfiguratorCatalogue Catalogue;
		for (int32 Number = 0; Number < 50; ++Number)
		{
			Catalogue.Categories.Add(MakeCategory(TEXT("Kitchen"), {}));
		}
		const FExpectedLog Lines(TEXT("the category 'Kitchen' is there already"), 20);
		const FExpectedLog Rest(TEXT("29 more of the kind"));
		Asset->SetCatalogue(Catalogue);
	}

	TEST_F(FConfiguratorDataAssetTest, OverridesAreShownInPlaceOfTheCatalogue)
	{
		FHalvexItemOverrideData Kitchen;
		Kitchen.DisplayText = FText::FromString(TEXT("Cooking"));
		Asset->CategoryOverrides.Add(FName(TEXT("Kitchen")), Kitchen);
		FHalvexItemOverrideData Fronts;
		Fronts.Thumbnail = FSoftObjectPath(TEXT("/Game/Fronts.Fronts"));
		Asset->SubCategoryOverrides.Add(FName(TEXT("Kitchen.Fronts")), Fronts);
		FHalvexItemOverrideData Navy;
		Navy.Image = FName(TEXT("blue"));
		Asset->ProductOverrides.Add(FName(TEXT("Navy")), Navy);
		EXPECT_EQ(Join(Handler->GetAllCategoryOverrideData()), "Kitchen=Cooking, Bath=The Bath");
		Select(TEXT("Kitchen"), TEXT("Fronts"));
		const TArray<FHalvexItemOverrideData> SubCategories = Handler->GetSubCategoryOverrideData();
		EXPECT_EQ(Join(SubCategories), "Worktop=All Worktop, Fronts=All Fronts, Tap=All Tap");
		EXPECT_EQ(ToStd(SubCategories[1].Thumbnail.ToString()), "/Game/Fronts.Fronts");
		EXPECT_TRUE(SubCategories[0].Thumbnail.IsNull());
		const TArray<FHalvexItemOverrideData> Products = Handler->GetProductOverrideData();
		EXPECT_EQ(ToStd(Products[0].Image), "White");
		EXPECT_EQ(ToStd(Products[1].Image), "blue");
	}

	TEST_F(FConfiguratorDataAssetTest, WhatHasNoNameShowsItsKey)
	{
		FConfiguratorCatalogue Catalogue;
		Catalogue.Categories = { MakeCategory(TEXT("Kitchen"), {}) };
		Catalogue.Categories[0].Name.Reset();
		Asset->SetCatalogue(Catalogue);
		EXPECT_EQ(Join(Handler->GetAllCategoryOverrideData()), "Kitchen=Kitchen");
	}

	TEST_F(FConfiguratorDataAssetTest, ImagesOfAProjectAreAddressesOrPaths)
	{
		FProjectImage File;
		File.ImageId = FName(TEXT("oak"));
		File.Address = TEXT("Pictures/100%oak.png");
		File.Title = TEXT("Oak");
		FProjectImage Remote;
		Remote.ImageId = FName(TEXT("marble"));
		Remote.Address = TEXT("https://example.org/marble.png");
		const TStrongObjectPtr<UHalvexConfiguratorDataAsset> Made(UHalvexConfiguratorDataAsset::CreateFromCatalogue(Host::TestCatalogue::Make(), { File, Remote }));
		EXPECT_EQ(ToStd(Made->Images[FName(TEXT("oak"))].Address), "file:Pictures/100%25oak.png");
		EXPECT_EQ(ToStd(Made->Images[FName(TEXT("oak"))].ImageName), "Oak");
		EXPECT_EQ(ToStd(Made->Images[FName(TEXT("marble"))].Address), "https://example.org/marble.png");
	}

	TEST_F(FConfiguratorDataAssetTest, AssetIsLoadedFromItsFile)
	{
		const Host::FTemporaryContent Content(TEXT("/Catalogues/"));
		Content.Write(TEXT("Small.asset.json"), R"({ "Class": "/Script/HalvexPro.HalvexConfiguratorDataAsset", "Properties": {
			"Catalogue": { "bSelectByProductList": true, "Categories": [ { "CategoryId": "Hall", "Name": "Hall", "SubCategories": [
				{ "SubCategoryId": "Floor", "DefaultProduct": "Pine", "Variants": [
					{ "Product": { "ProductKey": "Pine" } }, { "Product": { "ProductKey": "Ash", "Price": 70 }, "Looks": [ { "Surface": "HallFloor", "Color": "#FFFFFF" } ] } ] } ] } ] },
			"ProductList": ["Ash"],
			"CategoryOverrides": { "Hall": { "DisplayText": "Entrance" } } } })");
		UHalvexConfiguratorDataAsset* const Loaded = LoadObject<UHalvexConfiguratorDataAsset>(nullptr, TEXT("/Catalogues/Small.Small"));
		ASSERT_TRUE(Loaded);
		EXPECT_TRUE(Loaded->IsSelectingByProductList());
		EXPECT_TRUE(Loaded->IsProductInList(FName(TEXT("Ash"))));
		Handler->SetVariantConfigurator(Loaded);
		EXPECT_EQ(Join(Handler->GetAllCategoryOverrideData()), "Hall=Entrance");
		EXPECT_EQ(Active(TEXT("Hall"), TEXT("Floor")), "Pine");
		Heard();
		Choose(TEXT("Ash"));
		EXPECT_EQ(Heard(), "variants; looks HallFloor 1.0; changes; ");
	}
}
