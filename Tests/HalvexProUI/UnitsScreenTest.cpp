#include "UnitSceneTest.h"

#include "Components/ComboBoxString.h"
#include "Components/ListView.h"
#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "GoldenPicture.h"
#include "Project/ProjectReader.h"
#include "ProjectStyle.h"
#include "UnitVolumes/UnitVolumeActor.h"
#include "UserWidget/Exteriors/HxExteriorUnitListObject.h"
#include "Widgets/SWindow.h"

namespace
{
	/** The screen of the units over the sample project. */
	class FUnitsScreenTest : public FUnitSceneTest
	{
	protected:
		virtual void SetUp() override
		{
			FUnitSceneTest::SetUp();
			Loop.GetWindow()->Resize(FVector2D(1280.0, 800.0));
			MakeScene();
		}

		virtual void TearDown() override
		{
			Units->RemoveFromParent();
			FUnitSceneTest::TearDown();
			UseShippedStyle(TEXT("UIStyle_Hx_Light"));
			Loop.GetWindow()->Resize(FVector2D(800.0, 600.0));
		}

		void ShowScreen()
		{
			UClass* Class = LoadObject<UClass>(nullptr, TEXT("/HalvexPro/Screens/Units.Units_C"));
			Units = CreateWidget<UUserWidget>(GEngine->GetGameInstance(), Class);
			Units->AddToViewport();
			FProjectData Project;
			ASSERT_TRUE(FProjectReader::LoadFolder(FString(HALVEX_SOURCE_DIR) + TEXT("/Viewer/Projects/Quayside"), Project));
			Manager->SpawnUnits(Project.Units);
			Settle();
			Driver.Wait(1.0);
		}

		UListView& GetList() const { return *CastChecked<UListView>(Driver.Find(TEXT("ListViewContainer"))); }

		const FUnitData& GetUnitAt(int32 Index) const
		{
			return CastChecked<UHxExteriorUnitListObject>(GetList().GetItemAt(Index))->UnitVolumeActorRef->GetUnitData();
		}

		void Choose(const TCHAR* Key)
		{
			ASSERT_TRUE(Driver.Click(TEXT("SortBox"))) << Host::ToStd(Driver.GetError());
			const FString Locator = FString(TEXT("text:")) + Key;
			ASSERT_TRUE(Driver.Click(FString::Printf(TEXT("%s#%d"), *Locator, Driver.Count(Locator)))) << Host::ToStd(Driver.GetError());
		}

		UUserWidget* Units = nullptr;
	};

	TEST_F(FUnitsScreenTest, CountTellsHowManyUnitsAreShown)
	{
		ShowScreen();
		const int32 Total = GetList().GetNumItems();
		EXPECT_GT(Total, 200);
		EXPECT_TRUE(Driver.Find(FString::Printf(TEXT("text:%d units"), Total)));
		Driver.Click(TEXT("SearchBox"));
		Driver.Type(TEXT("no such unit"));
		EXPECT_TRUE(Driver.Find(TEXT("text:0 units")));
		EXPECT_TRUE(Driver.Find(TEXT("NothingText")));
	}

	TEST_F(FUnitsScreenTest, UnitsAreSortedByWhatIsChosenAndReversed)
	{
		ShowScreen();
		Choose(TEXT("Price"));
		const int32 Last = GetList().GetNumItems() - 1;
		for (int32 Index = 0; Index < Last; ++Index)
		{
			ASSERT_LE(GetUnitAt(Index).Price, GetUnitAt(Index + 1).Price) << Index;
		}
		ASSERT_TRUE(Driver.Click(TEXT("Order"))) << Host::ToStd(Driver.GetError());
		EXPECT_GT(GetUnitAt(0).Price, GetUnitAt(Last).Price);
		ASSERT_TRUE(Driver.Click(TEXT("Order")));
		EXPECT_LT(GetUnitAt(0).Price, GetUnitAt(Last).Price) << "and back";
	}

	TEST_F(FUnitsScreenTest, SelectedUnitIsTheScenes)
	{
		ShowScreen();
		Driver.ClickAt(FVector2D(200.0, 300.0));
		Settle();
		ASSERT_EQ(Manager->GetSelectedUnitVolumes().Num(), 1);
		EXPECT_EQ(Manager->GetSelectedUnitVolumes()[0], GetList().GetSelectedItem<UHxExteriorUnitListObject>()->UnitVolumeActorRef);
	}

	class FUnitsScreenPictureTest : public FUnitsScreenTest, public testing::WithParamInterface<const TCHAR*>
	{
	};

	TEST_P(FUnitsScreenPictureTest, LooksAsItWasApproved)
	{
		UseShippedStyle(GetParam());
		ShowScreen();
		Choose(TEXT("Area"));
		Driver.ClickAt(FVector2D(200.0, 380.0));
		Driver.MoveTo(FVector2D(900.0, 60.0));
		Driver.Wait(0.5);
		Host::FPicture Picture;
		ASSERT_TRUE(Driver.TakePictureOf(TEXT("UnitList"), Picture)) << Host::ToStd(Driver.GetError());
		Host::ExpectGolden(FString::Printf(TEXT("UnitList-%s"), GetParam()), Picture);
	}

	INSTANTIATE_TEST_SUITE_P(Styles, FUnitsScreenPictureTest, testing::Values(TEXT("UIStyle_Hx_Light"), TEXT("UIStyle_Hx_Dark")),
		[](const testing::TestParamInfo<const TCHAR*>& Info) { return Host::ToStd(FString(Info.param)); });
}
