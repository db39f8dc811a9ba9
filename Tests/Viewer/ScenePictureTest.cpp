#include "ProjectSceneTest.h"

#include "GoldenPicture.h"
#include "Host/SpotSceneBinding.h"

using namespace Host;

namespace
{
	/** The sample project with two selected units. */
	class FScenePictureTest : public FProjectSceneTest
	{
	protected:
		virtual void SetUp() override
		{
			FProjectSceneTest::SetUp();
			Variables.Set(TEXT("r.ScreenPercentage"), TEXT("100"));
			Variables.Set(TEXT("sg.AntiAliasingQuality"), TEXT("2"));
			Variables.Set(TEXT("sg.ShadowQuality"), TEXT("2"));
			Selected = { FindUnitInSight(EUnitStatus::Sold)->GetUnitData().UnitId, FindUnitInSight(EUnitStatus::Reserved)->GetUnitData().UnitId };
			Select();
		}

		void Select()
		{
			for (const FName& Id : Selected)
			{
				Manager().SelectUnitVolume(Manager().FindUnitVolume(Id), true);
			}
			Driver.MoveTo(Sky);
			Loop.RunUntilIdle();
		}

		FPicture Take()
		{
			Loop.RunUntilIdle();
			FPicture Picture;
			EXPECT_TRUE(Loop.TakePicture(Picture));
			return Picture;
		}

		FPictureDifference Compare() { return CompareWithGolden(Name, Take(), Factor, Tolerance); }

		/** An available unit that is seen, and not selected. */
		AUnitVolumeActor* FindOther() { return FindUnitInSight(EUnitStatus::Available); }

		TArray<FName> Selected;
		const FString Name = TEXT("SceneWithSelection");
		static constexpr int32 Factor = 4;
		static constexpr int32 Tolerance = 12;
	};
}

TEST_F(FScenePictureTest, LooksAsItWasApproved)
{
	ExpectSimilarGolden(Name, Take(), Factor, Tolerance);
}

TEST_F(FScenePictureTest, AnUnselectedUnitWouldBeNoticed)
{
	Manager().UnselectUnitVolume(Manager().FindUnitVolume(Selected[1]));
	EXPECT_FALSE(Compare().IsSame());
}

TEST_F(FScenePictureTest, AWrongColourWouldBeNoticed)
{
	FUnitData Data = FindOther()->GetUnitData();
	Data.Status = EUnitStatus::Sold;
	Manager().UpdateUnitData({ Data });
	EXPECT_FALSE(Compare().IsSame());
}

TEST_F(FScenePictureTest, AMissingVolumeWouldBeNoticed)
{
	const FName Missing = FindOther()->GetUnitData().UnitId;
	FProjectData Project;
	ASSERT_TRUE(FProjectScene::Load(TEXT(HALVEX_SOURCE_DIR "/Viewer/Projects/Quayside"), Project));
	Project.Units.RemoveAll([&](const FProjectUnit& Unit) { return Unit.Data.UnitId == Missing; });
	Show(Project);
	Select();
	EXPECT_FALSE(Compare().IsSame());
}

TEST_F(FScenePictureTest, AMissingMarkerWouldBeNoticed)
{
	Scene->GetSpots().Unbind();
	EXPECT_FALSE(Compare().IsSame());
}

TEST_F(FScenePictureTest, SmoothingOfEdgesIsNotNoticed)
{
	// As another driver would do it.
	Variables.Set(TEXT("sg.AntiAliasingQuality"), TEXT("3"));
	EXPECT_TRUE(Compare().IsSame());
}
