#include "ConfiguratorSceneTest.h"

#include "Configurator/HalvexVariantHandler.h"
#include "KitReflection.h"
#include "UserWidget/Configurator/HxConfiguratorResume.h"

using namespace KitReflection;
using Host::ToStd;

namespace
{
	class FHxConfiguratorResumeTest : public FConfiguratorSceneTest
	{
	protected:
		/** A summary whose graph writes down the changes that it is given. */
		UHxConfiguratorResume& ShowResume()
		{
			Content.Write(TEXT("Summary.widget.json"), R"({ "Parent": "/Script/HalvexProUI.HxConfiguratorResume", "Variables": { "Story": { "Type": "string" } }, "Root": { "Class": "TextBlock" } })");
			Content.Write(TEXT("Summary.lua"), R"(
				function OnConfiguratorChangesListUpdate(self, ChangeList)
					local Parts = {}
					for Key, Product in pairs(ChangeList) do Parts[#Parts + 1] = Key .. "=" .. Product.Name end
					table.sort(Parts)
					self.Story = self.Story .. "[" .. table.concat(Parts, ", ") .. "]"
				end)");
			Resume = CastChecked<UHxConfiguratorResume>(ShowPanel(TEXT("Summary")));
			return *Resume;
		}

		/** "Category/SubCategory". */
		static std::string Split(const TCHAR* Key)
		{
			FName Category;
			FName SubCategory;
			NewObject<UHxConfiguratorResume>()->GetKeySplit(FName(Key), Category, SubCategory);
			return ToStd(Category) + "/" + ToStd(SubCategory);
		}

		static FHalvexConfigProduct MakeProduct(const TCHAR* Key)
		{
			FHalvexConfigProduct Product;
			Product.ProductKey = FName(Key);
			return Product;
		}

		/** "Kitchen: Fronts=Navy, ...", in the order of the result. */
		static std::string Filter(const TArray<TPair<const TCHAR*, const TCHAR*>>& Changes)
		{
			TMap<FName, FHalvexConfigProduct> ChangeList;
			for (const TPair<const TCHAR*, const TCHAR*>& Change : Changes)
			{
				ChangeList.Add(FName(Change.Key), MakeProduct(Change.Value));
			}
			TArray<FString> Parts;
			for (const TPair<FName, FConfiguratorFilterValues>& Value : NewObject<UHxConfiguratorResume>()->FilterCatValues(ChangeList))
			{
				Parts.Add(Value.Key.ToString() + TEXT(": ") + Value.Value.SubCat.ToString() + TEXT("=") + Value.Value.Product.ProductKey.ToString());
			}
			return ToStd(FString::Join(Parts, TEXT(", ")));
		}

		UHxConfiguratorResume* Resume = nullptr;
	};

	TEST_F(FHxConfiguratorResumeTest, ValuesAreSubCategoryAndProduct)
	{
		EXPECT_EQ(ListNames(FConfiguratorFilterValues::StaticStruct()), "SubCat Product");
		EXPECT_EQ(GetType(FConfiguratorFilterValues::StaticStruct(), TEXT("SubCat")), "FName");
		EXPECT_EQ(GetType(FConfiguratorFilterValues::StaticStruct(), TEXT("Product")), "FHalvexConfigProduct");
	}

	TEST_F(FHxConfiguratorResumeTest, KeyIsCutAtItsFirstFullStop)
	{
		EXPECT_EQ(Split(TEXT("Kitchen.Countertop")), "Kitchen/Countertop");
		EXPECT_EQ(Split(TEXT("A.B.C")), "A/B.C");
		EXPECT_EQ(Split(TEXT("A")), "None/None");
		EXPECT_EQ(Split(TEXT(".B")), "None/B");
		EXPECT_EQ(Split(TEXT("A.")), "A/None");
		EXPECT_EQ(Split(TEXT("")), "None/None");
		EXPECT_EQ(Split(TEXT("Hall_2.Floor_3")), "Hall_2/Floor_3");
	}

	TEST_F(FHxConfiguratorResumeTest, ChangesAreFiledUnderTheirCategory)
	{
		EXPECT_EQ(Filter({ { TEXT("Kitchen.Fronts"), TEXT("Navy") }, { TEXT("Bath.Tiles"), TEXT("Green") } }), "Kitchen: Fronts=Navy, Bath: Tiles=Green");
	}

	TEST_F(FHxConfiguratorResumeTest, CategoryKeepsItsLastChangeOnly)
	{
		EXPECT_EQ(Filter({ { TEXT("Kitchen.Fronts"), TEXT("Navy") }, { TEXT("Bath.Tiles"), TEXT("Green") }, { TEXT("Kitchen.Tap"), TEXT("Brass") } }), "Kitchen: Tap=Brass, Bath: Tiles=Green");
	}

	TEST_F(FHxConfiguratorResumeTest, NoChangesAreAnEmptyMapAndKeysWithoutAFullStopAreFiledUnderNone)
	{
		EXPECT_EQ(Filter({}), "");
		EXPECT_EQ(Filter({ { TEXT("Kitchen"), TEXT("Navy") }, { TEXT("A.B.C"), TEXT("Oak") } }), "None: None=Navy, A: B.C=Oak");
	}

	TEST_F(FHxConfiguratorResumeTest, EachChangeBringsTheWholeList)
	{
		MakeScene();
		ShowResume();
		EXPECT_EQ(TakeStory(*Resume), "") << "there are no changes yet";
		Choose(TEXT("Marble"));
		EXPECT_EQ(TakeStory(*Resume), "[Kitchen.Worktop=The Marble]");
		Choose(TEXT("Large"));
		EXPECT_EQ(TakeStory(*Resume), "[Bath.Basin.Round=The Large, Kitchen.Worktop=The Marble]");
		Handler->ResetChanges();
		EXPECT_EQ(TakeStory(*Resume), "[]");
	}

	TEST_F(FHxConfiguratorResumeTest, SummaryThatComesLaterStartsFilled)
	{
		MakeScene();
		Choose(TEXT("Marble"));
		ShowResume();
		EXPECT_EQ(TakeStory(*Resume), "[Kitchen.Worktop=The Marble]");
	}

	TEST_F(FHxConfiguratorResumeTest, SummaryOfALevelWithoutAnActorStaysEmptyForGood)
	{
		ShowResume();
		MakeScene();
		Choose(TEXT("Marble"));
		Driver.Wait(1.0);
		Resume->Received_ConfigurationListChanged();
		EXPECT_EQ(TakeStory(*Resume), "");
	}

	TEST_F(FHxConfiguratorResumeTest, SummaryOfALevelWithoutAHandlerStaysEmptyForGood)
	{
		MakeLevel();
		ShowResume();
		MakeHandler();
		Choose(TEXT("Marble"));
		EXPECT_EQ(TakeStory(*Resume), "");
	}

	TEST_F(FHxConfiguratorResumeTest, SummaryThatWasConstructedAgainIsToldOnce)
	{
		MakeScene();
		ShowResume();
		Screen->RemoveFromParent();
		Screen->AddToViewport();
		Settle();
		Choose(TEXT("Marble"));
		EXPECT_EQ(TakeStory(*Resume), "[Kitchen.Worktop=The Marble]");
	}
}
