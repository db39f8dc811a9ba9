#include "ConfiguratorSceneTest.h"

#include "Configurator/HalvexLevelVariantSetsActor.h"
#include "Configurator/HalvexVariantHandler.h"
#include "Engine/Texture2D.h"
#include "Host/BackgroundThreads.h"
#include "Images/HalvexImageSubsystem.h"
#include "KitReflection.h"
#include "LoopbackServer.h"
#include "TestCatalogue.h"
#include "TestPictures.h"
#include "UserWidget/Configurator/HxConfiguratorListElement.h"
#include "WaitUntil.h"

using namespace KitReflection;
using Host::FExpectedLog;
using Host::ToStd;

namespace
{
	class FHxConfiguratorListElementTest : public FConfiguratorSceneTest
	{
	protected:
		virtual void TearDown() override
		{
			Elements.Empty();
			FConfiguratorSceneTest::TearDown();
		}

		UHxConfiguratorListElement& Make(EConfiguratorListElementType Level, const TCHAR* Key)
		{
			UHxConfiguratorListElement* const Element = NewObject<UHxConfiguratorListElement>();
			Element->ItemData.KeyName = FName(Key);
			Element->ConfiguratorElementType = Level;
			Element->VariantHandler = Handler;
			Elements.Emplace(Element);
			return *Element;
		}

		/** Product elements of a subcategory, which stay until the end of the test. */
		TArray<UHxConfiguratorListElement*> Generate(const TCHAR* Category, const TCHAR* SubCategory, UHxConfiguratorListElement*& Selected)
		{
			Handler->SetCategory(FName(Category));
			const TArray<UHxConfiguratorListElement*> Generated = Make(ECLET_SubCategory, SubCategory).GenerateProductListElementsFromSubCategory(Selected);
			for (UHxConfiguratorListElement* Element : Generated)
			{
				Elements.Emplace(Element);
			}
			return Generated;
		}

		void SelectByProductList()
		{
			FConfiguratorCatalogue Catalogue = Host::TestCatalogue::Make();
			Catalogue.bSelectByProductList = true;
			Asset->SetCatalogue(Catalogue);
		}

		static std::string Keys(const TArray<UHxConfiguratorListElement*>& Generated)
		{
			return ToStd(FString::JoinBy(Generated, TEXT(" "), [](const UHxConfiguratorListElement* Element) { return Element->ItemData.KeyName.ToString(); }));
		}

		TArray<TStrongObjectPtr<UHxConfiguratorListElement>> Elements;
	};

	TEST_F(FHxConfiguratorListElementTest, LevelsAreAByteAndReadAsDesignersKnowThem)
	{
		const UEnum* const Enum = StaticEnum<EConfiguratorListElementType>();
		EXPECT_EQ(static_cast<int>(ECLET_Category), 0);
		EXPECT_EQ(static_cast<int>(ECLET_SubCategory), 1);
		EXPECT_EQ(static_cast<int>(ECLET_Product), 2);
		EXPECT_EQ(ToStd(Enum->GetDisplayNameTextByValue(ECLET_Category)), "Category");
		EXPECT_EQ(ToStd(Enum->GetDisplayNameTextByValue(ECLET_SubCategory)), "SubCategory");
		EXPECT_EQ(ToStd(Enum->GetDisplayNameTextByValue(ECLET_Product)), "Product");
		EXPECT_TRUE(CastField<FByteProperty>(&GetMember(UHxConfiguratorListElement::StaticClass(), TEXT("ConfiguratorElementType"))));
	}

	TEST_F(FHxConfiguratorListElementTest, KeyIsTheFirstMemberOfItsRecord)
	{
		EXPECT_EQ(ListNames(FHalvexItemOverrideData::StaticStruct()), "KeyName DisplayText Thumbnail Image");
		EXPECT_EQ(GetType(FHalvexItemOverrideData::StaticStruct(), TEXT("Thumbnail")), "FSoftObjectPath");
	}

	TEST_F(FHxConfiguratorListElementTest, SelectsByItsLevel)
	{
		MakeScene();
		Make(ECLET_Category, TEXT("Kitchen")).SetItemHasSelected();
		EXPECT_EQ(ToStd(Handler->GetSelectedCategory()), "Kitchen");
		Make(ECLET_SubCategory, TEXT("Fronts")).SetItemHasSelected();
		EXPECT_EQ(ToStd(Handler->GetSelectedSubCategory()), "Fronts");
		EXPECT_EQ(ToStd(Handler->GetVariantActivatedFromSelection()), "White");
		Make(ECLET_Product, TEXT("Navy")).SetItemHasSelected();
		EXPECT_EQ(ToStd(Handler->GetVariantActivatedFromSelection()), "Navy");
	}

	TEST_F(FHxConfiguratorListElementTest, WithoutAHandlerItDoesNothing)
	{
		for (const EConfiguratorListElementType Level : { ECLET_Category, ECLET_SubCategory, ECLET_Product })
		{
			UHxConfiguratorListElement& Element = Make(Level, TEXT("Oak"));
			Element.VariantActivated = FName(TEXT("Oak"));
			Element.OnVariantProductChange.AddDynamic(ConfiguratorRecorder.Get(), &UConfiguratorRecorder::ReceivedIndex);
			FHalvexConfigProduct Product;
			UHxConfiguratorListElement* Selected = &Element;
			Element.SetItemHasSelected();
			Element.Received_VariantProductChange();
			EXPECT_FALSE(Element.GetProductDataFromVariant(Product));
			EXPECT_EQ(Element.GetThumbnailFromVariant(), nullptr);
			EXPECT_FALSE(Element.IsVariantSelected());
			EXPECT_FALSE(Element.IsProductSelected());
			EXPECT_TRUE(Element.GenerateProductListElementsFromSubCategory(Selected).IsEmpty());
			EXPECT_EQ(Selected, &Element) << "left as it is";
		}
		EXPECT_EQ(ToStd(ConfiguratorRecorder->Take()), "");
	}

	TEST_F(FHxConfiguratorListElementTest, ProductDataIsThatOfProductsOnly)
	{
		MakeScene();
		FHalvexConfigProduct Product;
		EXPECT_TRUE(Make(ECLET_Product, TEXT("Marble")).GetProductDataFromVariant(Product));
		EXPECT_EQ(Product.Price, 900.0);
		EXPECT_FALSE(Make(ECLET_Product, TEXT("Gold")).GetProductDataFromVariant(Product));
		EXPECT_FALSE(Make(ECLET_SubCategory, TEXT("Marble")).GetProductDataFromVariant(Product));
	}

	TEST_F(FHxConfiguratorListElementTest, VariantIsSelectedWhenItWasTheActiveOne)
	{
		MakeScene();
		UHxConfiguratorListElement& Element = Make(ECLET_Product, TEXT("Oak"));
		EXPECT_FALSE(Element.IsVariantSelected()) << "no variant was active";
		Element.VariantActivated = FName(TEXT("Marble"));
		EXPECT_FALSE(Element.IsVariantSelected());
		Element.VariantActivated = FName(TEXT("Oak"));
		EXPECT_TRUE(Element.IsVariantSelected());
		EXPECT_TRUE(Element.IsProductSelected());
		Element.ConfiguratorElementType = ECLET_SubCategory;
		EXPECT_FALSE(Element.IsVariantSelected());
		UHxConfiguratorListElement& Unnamed = Make(ECLET_Product, TEXT(""));
		EXPECT_FALSE(Unnamed.IsVariantSelected()) << "none is not a name";
	}

	TEST_F(FHxConfiguratorListElementTest, ProductIsNotSelectedWithoutACatalogue)
	{
		MakeScene();
		UHxConfiguratorListElement& Element = Make(ECLET_Product, TEXT("Oak"));
		Element.VariantActivated = FName(TEXT("Oak"));
		Actor->SetCatalogue(nullptr);
		EXPECT_TRUE(Element.IsVariantSelected());
		EXPECT_FALSE(Element.IsProductSelected());
	}

	TEST_F(FHxConfiguratorListElementTest, ProductIsSelectedByTheListWhereTheCatalogueSaysSo)
	{
		MakeScene();
		UHxConfiguratorListElement& Active = Make(ECLET_Product, TEXT("Oak"));
		Active.VariantActivated = FName(TEXT("Oak"));
		UHxConfiguratorListElement& Listed = Make(ECLET_Product, TEXT("Marble"));
		Asset->AddProductToList(FName(TEXT("Marble")));
		EXPECT_TRUE(Active.IsProductSelected());
		EXPECT_FALSE(Listed.IsProductSelected()) << "the list does not count";
		SelectByProductList();
		EXPECT_FALSE(Active.IsProductSelected()) << "the active variant does not count";
		EXPECT_TRUE(Listed.IsProductSelected());
	}

	TEST_F(FHxConfiguratorListElementTest, ProductThatTheListCannotKnowIsSelectedByItsVariant)
	{
		MakeScene();
		SelectByProductList();
		UHxConfiguratorListElement& Element = Make(ECLET_Product, TEXT("Gold"));
		EXPECT_FALSE(Element.IsProductSelected());
		Element.VariantActivated = FName(TEXT("Gold"));
		EXPECT_TRUE(Element.IsProductSelected());
	}

	TEST_F(FHxConfiguratorListElementTest, FirstSelectedOfAnArrayIsFound)
	{
		MakeScene();
		SelectByProductList();
		Asset->SetProductList({ FName(TEXT("Slate")), FName(TEXT("Marble")) });
		UHxConfiguratorListElement& Oak = Make(ECLET_Product, TEXT("Oak"));
		UHxConfiguratorListElement& Marble = Make(ECLET_Product, TEXT("Marble"));
		UHxConfiguratorListElement& Slate = Make(ECLET_Product, TEXT("Slate"));
		EXPECT_EQ(Oak.CheckForSelectedItem({ &Oak, nullptr, &Slate, &Marble }), &Slate);
		EXPECT_EQ(Oak.CheckForSelectedItem({ &Oak }), nullptr);
		EXPECT_EQ(Oak.CheckForSelectedItem({}), nullptr);
	}

	TEST_F(FHxConfiguratorListElementTest, ProductsAreGeneratedFromASubCategory)
	{
		MakeScene();
		Choose(TEXT("Marble"));
		UHxConfiguratorListElement* Selected = nullptr;
		const TArray<UHxConfiguratorListElement*> Generated = Generate(TEXT("Kitchen"), TEXT("Worktop"), Selected);
		EXPECT_EQ(ToStd(Handler->GetSelectedSubCategory()), "Worktop");
		ASSERT_EQ(Keys(Generated), "Oak Marble Slate");
		EXPECT_EQ(Selected, Generated[1]);
		for (const UHxConfiguratorListElement* Element : Generated)
		{
			EXPECT_EQ(Element->ConfiguratorElementType, ECLET_Product);
			EXPECT_EQ(Element->VariantHandler, Handler);
			EXPECT_EQ(ToStd(Element->VariantActivated), "Marble");
		}
	}

	TEST_F(FHxConfiguratorListElementTest, LastSelectedOfTheGeneratedProductsWins)
	{
		MakeScene();
		SelectByProductList();
		Asset->SetProductList({ FName(TEXT("Slate")), FName(TEXT("Oak")) });
		UHxConfiguratorListElement* Selected = nullptr;
		const TArray<UHxConfiguratorListElement*> Generated = Generate(TEXT("Kitchen"), TEXT("Worktop"), Selected);
		ASSERT_TRUE(Selected);
		EXPECT_EQ(Selected, Generated[2]);
	}

	TEST_F(FHxConfiguratorListElementTest, GeneratedProductsWithoutAnActiveOneLeaveTheSelectedElement)
	{
		MakeScene();
		UHxConfiguratorListElement* const Before = &Make(ECLET_Category, TEXT("Bath"));
		UHxConfiguratorListElement* Selected = Before;
		EXPECT_EQ(Keys(Generate(TEXT("Kitchen"), TEXT("Tap"), Selected)), "Steel Brass");
		EXPECT_EQ(Selected, Before);
		EXPECT_TRUE(Before->GenerateProductListElementsFromSubCategory(Selected).IsEmpty()) << "of a category";
		EXPECT_TRUE(Make(ECLET_Product, TEXT("Oak")).GenerateProductListElementsFromSubCategory(Selected).IsEmpty()) << "of a product";
		EXPECT_EQ(Selected, Before);
	}

	TEST_F(FHxConfiguratorListElementTest, GeneratedProductsTellOfTheActiveIndex)
	{
		MakeScene();
		UHxConfiguratorListElement* Selected = nullptr;
		const TArray<UHxConfiguratorListElement*> Generated = Generate(TEXT("Kitchen"), TEXT("Tap"), Selected);
		Generated[0]->OnVariantProductChange.AddDynamic(ConfiguratorRecorder.Get(), &UConfiguratorRecorder::ReceivedIndex);
		Generated[1]->SetItemHasSelected();
		EXPECT_EQ(ToStd(ConfiguratorRecorder->Take()), "index 1; ");
		Handler->ResetChanges();
		EXPECT_EQ(ToStd(ConfiguratorRecorder->Take()), "index -1; ");
	}

	TEST_F(FHxConfiguratorListElementTest, OtherElementsDoNotTellOfVariants)
	{
		MakeScene();
		for (const EConfiguratorListElementType Level : { ECLET_Category, ECLET_SubCategory })
		{
			UHxConfiguratorListElement& Element = Make(Level, TEXT("Kitchen"));
			Element.OnVariantProductChange.AddDynamic(ConfiguratorRecorder.Get(), &UConfiguratorRecorder::ReceivedIndex);
			Element.Received_VariantProductChange();
		}
		EXPECT_EQ(ToStd(ConfiguratorRecorder->Take()), "");
	}

	TEST_F(FHxConfiguratorListElementTest, ThumbnailThatIsAnAssetIsLoadedAtOnceAtEveryLevel)
	{
		const std::string Picture = Host::TestPictures::Make(4, 2, FColor::Green);
		FString Reason;
		ASSERT_TRUE(Host::FFiles::Write(Content.GetFolder() + TEXT("/Tile.png"), Picture.data(), static_cast<int64>(Picture.size()), Reason));
		for (const EConfiguratorListElementType Level : { ECLET_Category, ECLET_SubCategory, ECLET_Product })
		{
			UHxConfiguratorListElement& Element = Make(Level, TEXT("Oak"));
			EXPECT_EQ(Element.GetThumbnailFromOverride(), nullptr) << "it names none";
			Element.ItemData.Thumbnail = FSoftObjectPath(TEXT("/KitScreens/Tile.Tile"));
			const UTexture2D* const Thumbnail = Cast<UTexture2D>(Element.GetThumbnailFromOverride());
			ASSERT_TRUE(Thumbnail);
			EXPECT_EQ(Thumbnail->GetSizeX(), 4);
		}
	}

	TEST_F(FHxConfiguratorListElementTest, ThumbnailThatCannotBeLoadedIsNoneWithOneLine)
	{
		UHxConfiguratorListElement& Element = Make(ECLET_Product, TEXT("Oak"));
		Element.ItemData.Thumbnail = FSoftObjectPath(TEXT("/KitScreens/Nowhere.Nowhere"));
		const FExpectedLog Warning(TEXT("/KitScreens/Nowhere"));
		EXPECT_EQ(Element.GetThumbnailFromOverride(), nullptr);
	}

	TEST_F(FHxConfiguratorListElementTest, ThumbnailOfAVariantIsThereOnceItHasArrived)
	{
		UHalvexImageSubsystem::Get()->ClearDiskCache();
		Host::FLoopbackServer Server;
		Host::FServerReply Reply;
		Reply.Body = Host::TestPictures::Make(8, 4, FColor::Red);
		Server.Serve("/oak.png", Reply);
		MakeLevel();
		FProjectImage Image;
		Image.ImageId = FName(TEXT("Oak"));
		Image.Address = Server.GetUrl("/oak.png");
		Asset.Reset(UHalvexConfiguratorDataAsset::CreateFromCatalogue(Host::TestCatalogue::Make(), { Image }));
		Actor->SetCatalogue(Asset.Get());
		Handler = Actor->GetVariantHandler();
		UHxConfiguratorListElement& Element = Make(ECLET_Product, TEXT("Oak"));
		EXPECT_EQ(Element.GetThumbnailFromVariant(), nullptr);
		EXPECT_TRUE(Host::WaitUntil(Loop, [&] { return Element.GetThumbnailFromVariant() != nullptr; }));
		EXPECT_EQ(Make(ECLET_SubCategory, TEXT("Oak")).GetThumbnailFromVariant(), nullptr);
		EXPECT_EQ(Server.GetVisits("/oak.png"), 1);
		EXPECT_TRUE(Host::WaitUntil(Loop, [] { return Host::FBackgroundThreads::GetNumPending() == 0; }));
		UHalvexImageSubsystem::Get()->ClearMemoryCache();
		UHalvexImageSubsystem::Get()->ClearDiskCache();
	}
}
