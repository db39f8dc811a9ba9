#include "ConfiguratorSceneTest.h"

#include "Components/ListView.h"
#include "Configurator/HalvexLevelVariantSetsActor.h"
#include "Configurator/HalvexVariantHandler.h"
#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "GoldenPicture.h"
#include "HalvexSDKEngineSubsystem.h"
#include "Host/BackgroundThreads.h"
#include "Images/HalvexImageSubsystem.h"
#include "ProjectStyle.h"
#include "Service/HalvexProjectRequestManager.h"
#include "Service/ProjectWrapper.h"
#include "TestCatalogue.h"
#include "UserWidget/Configurator/HxConfiguratorList.h"
#include "WaitUntil.h"
#include "Widgets/SWindow.h"

namespace
{
	/** The configurator's screen over a level with the test catalogue, for a unit of a project. */
	class FConfiguratorScreenTest : public FConfiguratorSceneTest
	{
	protected:
		virtual void SetUp() override
		{
			FConfiguratorSceneTest::SetUp();
			Loop.GetWindow()->Resize(FVector2D(1280.0, 800.0));
			FProjectData Project;
			for (const TCHAR* Unit : { TEXT("HH-101"), TEXT("HH-102") })
			{
				FUnitData& Data = Project.Units.AddDefaulted_GetRef().Data;
				Data.UnitId = FName(Unit);
				Data.Name = FString(TEXT("Harbour ")) + Unit;
				Data.Currency = FName(TEXT("EUR"));
				Data.Level = 1;
				Data.Rooms = 3;
				Data.Area = 64.5f;
				Data.Price = 420000.0;
			}
			Manager->ReceiveProject(Project);
		}

		virtual void TearDown() override
		{
			if (Shown)
			{
				Shown->RemoveFromParent();
			}
			FConfiguratorSceneTest::TearDown();
			Manager->ClearProject();
			CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
			EXPECT_TRUE(Host::WaitUntil(Loop, [] { return Host::FBackgroundThreads::GetNumPending() == 0; }));
			UHalvexImageSubsystem::Get()->ClearMemoryCache();
			UseShippedStyle(TEXT("UIStyle_Hx_Light"));
			Loop.GetWindow()->Resize(FVector2D(800.0, 600.0));
		}

		/** The test catalogue with pictures of the gallery. */
		void MakeCatalogue()
		{
			const TCHAR* const Pictures[] = { TEXT("Courtyard"), TEXT("Plan"), TEXT("Quay") };
			FConfiguratorCatalogue Catalogue = Host::TestCatalogue::Make();
			int32 Index = 0;
			for (FCatalogueCategory& Category : Catalogue.Categories)
			{
				Category.Image = FName(Pictures[Index++ % 3]);
				for (FCatalogueSubCategory& SubCategory : Category.SubCategories)
				{
					SubCategory.Image = FName(Pictures[Index++ % 3]);
					for (FCatalogueVariant& Variant : SubCategory.Variants)
					{
						Variant.Product.Image = FName(Pictures[Index++ % 3]);
					}
				}
			}
			TArray<FProjectImage> Images;
			for (const TCHAR* Picture : Pictures)
			{
				FProjectImage& Image = Images.AddDefaulted_GetRef();
				Image.ImageId = FName(Picture);
				Image.Address = FString::Printf(TEXT("Gallery/Pictures/%s.png"), Picture);
			}
			Asset.Reset(UHalvexConfiguratorDataAsset::CreateFromCatalogue(Catalogue, Images));
			Actor->SetCatalogue(Asset.Get());
			Handler = Actor->GetVariantHandler();
		}

		void ShowScreen()
		{
			UClass* Class = LoadObject<UClass>(nullptr, TEXT("/HalvexPro/Screens/Configurator.Configurator_C"));
			Shown = CreateWidget<UUserWidget>(GEngine->GetGameInstance(), Class);
			Shown->AddToViewport();
			WaitForPictures();
		}

		void ShowScreenOverCatalogue()
		{
			MakeLevel();
			MakeCatalogue();
			ShowScreen();
		}

		void WaitForPictures()
		{
			Settle();
			EXPECT_TRUE(Host::WaitUntil(Loop, [] { return UHalvexImageSubsystem::Get()->GetNumTransfers() == 0; }));
			Settle();
		}

		UHxConfiguratorList& GetList() const { return *CastChecked<UHxConfiguratorList>(Driver.Find(TEXT("Configurator"))); }

		/** Clicks what shows the text. */
		void ClickText(const TCHAR* Text) { ClickOn(FString(TEXT("text:")) + Text); }

		void ClickOn(const FString& Locator)
		{
			// Soon after another one it would be a double click.
			Driver.Wait(1.0);
			ASSERT_TRUE(Driver.Click(Locator)) << Host::ToStd(Driver.GetError());
			WaitForPictures();
		}

		bool IsShown(const TCHAR* Text) { return Driver.Count(FString(TEXT("text:")) + Text) > 0; }

		/** The text that a text widget shows. */
		std::string TextOf(const TCHAR* Locator)
		{
			UWidget* const Widget = Driver.Find(Locator);
			return Widget ? GetPaintedText(*Widget) : "not there";
		}

		UHalvexProjectRequestManager* Manager = UHalvexSDKEngineSubsystem::Get()->GetUserRequestManager();
		UUserWidget* Shown = nullptr;
	};

	TEST_F(FConfiguratorScreenTest, KitchenIsConfiguredFromStartToSummary)
	{
		ShowScreenOverCatalogue();
		Manager->GetProjectWrapper()->SetConfiguratorTarget(FName(TEXT("HH-101")));
		EXPECT_TRUE(IsShown(TEXT("Everything is as it comes.")));
		ClickText(TEXT("The Kitchen"));
		EXPECT_TRUE(IsShown(TEXT("The Oak"))) << "what is active in the subcategory";
		EXPECT_TRUE(IsShown(TEXT("Nothing chosen yet")));
		ClickText(TEXT("All Worktop"));
		EXPECT_EQ(GetList().CurrentElementType, ECLET_Product);
		EXPECT_TRUE(IsShown(TEXT("+900 EUR")));
		ClickText(TEXT("The Marble"));
		EXPECT_EQ(Host::ToStd(Handler->GetVariantActivatedFromSelection()), "Marble");
		EXPECT_EQ(TextOf(TEXT("Summary/TotalText")), "+900 EUR");
		EXPECT_EQ(TextOf(TEXT("TargetUnit/TotalText")), "420 900 EUR");
		EXPECT_FALSE(IsShown(TEXT("Everything is as it comes.")));
		ClickOn(TEXT("CategoryButton"));
		ClickText(TEXT("All Tap"));
		ClickText(TEXT("The Brass"));
		EXPECT_EQ(Driver.Count(TEXT("TakeBack")), 2) << "two changes of one category are two lines";
		EXPECT_EQ(TextOf(TEXT("Summary/TotalText")), "+1 150 EUR");
	}

	TEST_F(FConfiguratorScreenTest, TrailLeadsBackStepByStepAndToTheStart)
	{
		ShowScreenOverCatalogue();
		EXPECT_EQ(TextOf(TEXT("Trail")), "All");
		ClickText(TEXT("The Kitchen"));
		EXPECT_EQ(TextOf(TEXT("Trail")), "All/The Kitchen");
		ClickText(TEXT("All Fronts"));
		EXPECT_EQ(TextOf(TEXT("Trail")), "All/The Kitchen/All Fronts");
		ClickOn(TEXT("CategoryButton"));
		EXPECT_EQ(TextOf(TEXT("Trail")), "All/The Kitchen");
		EXPECT_EQ(GetList().CurrentElementType, ECLET_SubCategory);
		ClickText(TEXT("All Fronts"));
		ClickOn(TEXT("AllButton"));
		EXPECT_EQ(TextOf(TEXT("Trail")), "All");
		EXPECT_EQ(GetList().CurrentElementType, ECLET_Category);
		EXPECT_TRUE(Handler->GetSelectedCategory().IsNone());
		ClickText(TEXT("The Bath"));
		ClickText(TEXT("All Tiles"));
		ClickOn(TEXT("Back"));
		EXPECT_EQ(TextOf(TEXT("Trail")), "All/The Bath");
		ClickOn(TEXT("Back"));
		EXPECT_EQ(TextOf(TEXT("Trail")), "All");
		EXPECT_EQ(Driver.Count(TEXT("Back")), 0);
	}

	TEST_F(FConfiguratorScreenTest, CardsFollowWhatIsActive)
	{
		ShowScreenOverCatalogue();
		EXPECT_EQ(Driver.Count(TEXT("text:As it comes")), 2);
		ClickText(TEXT("The Kitchen"));
		ClickText(TEXT("All Worktop"));
		EXPECT_EQ(Driver.Count(TEXT("Check")), 1) << "the default is active";
		Choose(TEXT("Slate"));
		Settle();
		EXPECT_EQ(Driver.Count(TEXT("Check")), 1);
		Choose(TEXT("Green"));
		Settle();
		EXPECT_EQ(Driver.Count(TEXT("Check")), 1) << "what is chosen elsewhere does not matter";
		Handler->TakeBackChange(FName(TEXT("Kitchen.Worktop")));
		Handler->TakeBackChange(FName(TEXT("Bath.Tiles")));
		Choose(TEXT("Navy"));
		Settle();
		ClickOn(TEXT("AllButton"));
		EXPECT_EQ(Driver.Count(TEXT("text:1 change")), 1);
		EXPECT_EQ(Driver.Count(TEXT("text:As it comes")), 1);
	}

	TEST_F(FConfiguratorScreenTest, ChangeIsTakenBackByItsButtonAndAllByReset)
	{
		ShowScreenOverCatalogue();
		Choose(TEXT("Marble"));
		Choose(TEXT("Green"));
		Choose(TEXT("Large"));
		Settle();
		EXPECT_EQ(TextOf(TEXT("Summary/TotalText")), "+1 350 EUR");
		ClickOn(TEXT("TakeBack#2"));
		EXPECT_EQ(Handler->GetConfigtorChangeList().Num(), 2);
		EXPECT_FALSE(Handler->GetConfigtorChangeList().Contains(FName(TEXT("Bath.Tiles"))));
		EXPECT_EQ(TextOf(TEXT("Summary/TotalText")), "+1 050 EUR");
		ClickOn(TEXT("Reset"));
		EXPECT_TRUE(Handler->GetConfigtorChangeList().IsEmpty());
		EXPECT_TRUE(IsShown(TEXT("Everything is as it comes.")));
		EXPECT_EQ(Driver.Count(TEXT("Reset")), 0);
	}

	TEST_F(FConfiguratorScreenTest, KeysLeadThroughAllLevelsAndBack)
	{
		ShowScreenOverCatalogue();
		GetList().ListDisplay->SetKeyboardFocus();
		Driver.PressKey(EKeys::Down);
		Driver.PressKey(EKeys::Up);
		Driver.PressKey(EKeys::Enter);
		Settle();
		EXPECT_EQ(TextOf(TEXT("Trail")), "All/The Kitchen");
		Driver.PressKey(EKeys::Down);
		Driver.PressKey(EKeys::Enter);
		Settle();
		EXPECT_EQ(TextOf(TEXT("Trail")), "All/The Kitchen/All Worktop");
		Driver.PressKey(EKeys::Down);
		EXPECT_TRUE(Handler->GetConfigtorChangeList().IsEmpty()) << "the mark alone chooses nothing";
		Driver.PressKey(EKeys::Enter);
		Settle();
		EXPECT_EQ(Host::ToStd(Handler->GetVariantActivatedFromSelection()), "Marble");
		Driver.PressKey(EKeys::Tab, TEXT("Shift"));
		Driver.PressKey(EKeys::Enter);
		Settle();
		EXPECT_EQ(TextOf(TEXT("Trail")), "All/The Kitchen") << "the step ahead of the list";
		Driver.PressKey(EKeys::Tab);
		Driver.PressKey(EKeys::Enter);
		Settle();
		EXPECT_TRUE(Handler->GetConfigtorChangeList().IsEmpty()) << "behind the list is the summary";
	}

	TEST_F(FConfiguratorScreenTest, KeysGoOnFromTheSummaryWhenAChangeWasTakenBack)
	{
		ShowScreenOverCatalogue();
		Choose(TEXT("Marble"));
		Choose(TEXT("Green"));
		Choose(TEXT("Large"));
		Settle();
		ClickOn(TEXT("TakeBack#1"));
		Driver.PressKey(EKeys::Tab);
		Driver.PressKey(EKeys::Enter);
		Settle();
		EXPECT_EQ(Handler->GetConfigtorChangeList().Num(), 1) << "the next line";
		Driver.PressKey(EKeys::Enter);
		Settle();
		EXPECT_TRUE(Handler->GetConfigtorChangeList().IsEmpty()) << "the reset of all";
	}

	TEST_F(FConfiguratorScreenTest, EachUnitKeepsItsConfiguration)
	{
		ShowScreenOverCatalogue();
		UProjectWrapper* const Project = Manager->GetProjectWrapper();
		Project->SetConfiguratorTarget(FName(TEXT("HH-101")));
		Choose(TEXT("Marble"));
		Settle();
		EXPECT_TRUE(IsShown(TEXT("Harbour HH-101")));
		Project->SetConfiguratorTarget(FName(TEXT("HH-102")));
		Settle();
		EXPECT_TRUE(IsShown(TEXT("Harbour HH-102")));
		EXPECT_TRUE(Handler->GetConfigtorChangeList().IsEmpty());
		EXPECT_EQ(TextOf(TEXT("TargetUnit/TotalText")), "420 000 EUR");
		Project->SetConfiguratorTarget(FName(TEXT("HH-101")));
		Settle();
		EXPECT_EQ(TextOf(TEXT("TargetUnit/TotalText")), "420 900 EUR");
	}

	TEST_F(FConfiguratorScreenTest, PicturesThatFailLeaveTheCardsWithoutThem)
	{
		MakeLevel();
		FConfiguratorCatalogue Catalogue = Host::TestCatalogue::Make();
		Catalogue.Categories[0].Image = FName(TEXT("Gone"));
		FProjectImage Image;
		Image.ImageId = FName(TEXT("Gone"));
		Image.Address = TEXT("Gallery/Pictures/Gone.png");
		Asset.Reset(UHalvexConfiguratorDataAsset::CreateFromCatalogue(Catalogue, { Image }));
		Actor->SetCatalogue(Asset.Get());
		Handler = Actor->GetVariantHandler();
		const Host::FExpectedLog Warning(TEXT("Gone.png is not shown"));
		ShowScreen();
		EXPECT_EQ(Driver.Count(TEXT("NoPicture")), 2);
		EXPECT_EQ(Driver.Count(TEXT("Picture")), 0);
	}

	TEST_F(FConfiguratorScreenTest, ListFillsWhenTheHandlerComesLater)
	{
		MakeLevel();
		ShowScreen();
		EXPECT_TRUE(IsShown(TEXT("There is nothing to choose here.")));
		MakeCatalogue();
		Driver.Wait(0.2);
		WaitForPictures();
		EXPECT_TRUE(IsShown(TEXT("The Kitchen")));
		EXPECT_FALSE(IsShown(TEXT("There is nothing to choose here.")));
		EXPECT_EQ(Driver.Count(TEXT("Picture")), 2);
	}

	TEST_F(FConfiguratorScreenTest, HandlerMayTellOnWhenTheScreenIsGone)
	{
		ShowScreenOverCatalogue();
		ClickText(TEXT("The Kitchen"));
		Shown->RemoveFromParent();
		Shown = nullptr;
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		Choose(TEXT("Marble"));
		Handler->ResetChanges();
		Settle();
	}

	class FConfiguratorPictureTest : public FConfiguratorScreenTest, public testing::WithParamInterface<const TCHAR*>
	{
	protected:
		void ExpectLook(const TCHAR* Name)
		{
			Driver.MoveTo(FVector2D(640.0, 700.0));
			Driver.Wait(0.5);
			Host::FPicture Picture;
			ASSERT_TRUE(Driver.TakePictureOf(TEXT("Root"), Picture)) << Host::ToStd(Driver.GetError());
			Host::ExpectGolden(FString::Printf(TEXT("Configurator-%s-%s"), Name, GetParam()), Picture);
		}
	};

	TEST_P(FConfiguratorPictureTest, LooksAsItWasApproved)
	{
		UseShippedStyle(GetParam());
		ShowScreenOverCatalogue();
		ExpectLook(TEXT("Categories"));
		Manager->GetProjectWrapper()->SetConfiguratorTarget(FName(TEXT("HH-101")));
		ClickText(TEXT("The Kitchen"));
		Choose(TEXT("Navy"));
		ExpectLook(TEXT("SubCategories"));
		ClickText(TEXT("All Worktop"));
		ClickText(TEXT("The Marble"));
		Choose(TEXT("Green"));
		ExpectLook(TEXT("Products"));
	}

	INSTANTIATE_TEST_SUITE_P(Styles, FConfiguratorPictureTest, testing::Values(TEXT("UIStyle_Hx_Light"), TEXT("UIStyle_Hx_Dark")),
		[](const testing::TestParamInfo<const TCHAR*>& Info) { return Host::ToStd(FString(Info.param)); });
}
