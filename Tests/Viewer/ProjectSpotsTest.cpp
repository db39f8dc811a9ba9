#include "ProjectSceneTest.h"

#include "Blueprint/UserWidget.h"
#include "Framework/Application/SlateApplication.h"
#include "Host/SSceneSpots.h"
#include "Host/SpotSceneBinding.h"
#include "Images/HalvexImageSubsystem.h"
#include "InteractiveSpot/HxInteractiveSpot.h"
#include "WaitUntil.h"
#include "Widgets/HxImage.h"
#include "Widgets/SWindow.h"

using namespace Host;

namespace
{
	/** The spots of the sample project, in a window that is large enough for their cards. */
	class FProjectSpotsTest : public FProjectSceneTest
	{
	protected:
		virtual void SetUp() override
		{
			Loop.GetWindow()->Resize(FVector2D(1280.0, 800.0));
			FProjectSceneTest::SetUp();
		}

		virtual void TearDown() override
		{
			UHalvexImageSubsystem::Get()->ClearMemoryCache();
			FProjectSceneTest::TearDown();
			Loop.GetWindow()->Resize(FVector2D(800.0, 600.0));
		}

		AHxInteractiveSpot& GetSpot(const TCHAR* Id) const
		{
			for (AHxInteractiveSpot* Spot : Scene->GetSpots().GetSpots())
			{
				if (Spot->SpotData.SpotId == Id)
				{
					return *Spot;
				}
			}
			checkf(false, TEXT("there is no spot %s"), Id);
			return *Scene->GetSpots().GetSpots()[0];
		}

		/** Where the marker of a spot is, in pixels of the window. */
		FVector2D LocateSpot(const TCHAR* Id)
		{
			FVector2D Position = FVector2D::ZeroVector;
			Scene->GetViewport().Locate(GetSpot(Id).GetActorLocation(), Position);
			return Position;
		}

		bool IsOpen(const TCHAR* Id) const { return GetSpot(Id).IsISPSelected(); }
		void Open(const TCHAR* Id)
		{
			Driver.SingleClickAt(LocateSpot(Id));
			ASSERT_TRUE(IsOpen(Id));
			Loop.RunUntilIdle();
		}
	};
}

TEST_F(FProjectSpotsTest, EachSpotOfTheProjectHasAMarkerWhereItIsSeen)
{
	ASSERT_EQ(Scene->GetSpots().GetSpots().Num(), 6);
	int32 NumShown = 0;
	for (int32 Index = 0; Index < 6; ++Index)
	{
		NumShown += Scene->GetSpots().GetPanel()->IsShown(Index);
	}
	EXPECT_EQ(NumShown, 5) << "the tower stands before the bicycle house";
	EXPECT_EQ(Driver.Count(TEXT("Marker")), 5);
	EXPECT_EQ(Driver.Count(TEXT("Card")), 0);
}

TEST_F(FProjectSpotsTest, AClickOnAMarkerOpensTheCardOfItsSpotOnly)
{
	Open(TEXT("pier"));
	EXPECT_TRUE(Driver.Find(TEXT("text:Ferry pier")));
	EXPECT_TRUE(Driver.Find(TEXT("text:Every twelve minutes to the old town.")));
	EXPECT_EQ(Driver.Count(TEXT("Card")), 1);
	EXPECT_EQ(Driver.Count(TEXT("PictureBox")), 0) << "it has no picture";

	Open(TEXT("bath"));
	EXPECT_FALSE(IsOpen(TEXT("pier")));
	EXPECT_EQ(Driver.Count(TEXT("Card")), 1);
	EXPECT_TRUE(Driver.Find(TEXT("text:Harbour bath")));
	EXPECT_EQ(Manager().GetSelectedUnitVolumes().Num(), 0) << "no unit was clicked";
}

TEST_F(FProjectSpotsTest, ThePictureOfACardComesFromTheProjectsFolder)
{
	Open(TEXT("garden"));
	UHxImage* const Picture = Cast<UHxImage>(GetSpot(TEXT("garden")).GetISPWidget()->GetWidgetFromName(TEXT("Picture")));
	ASSERT_TRUE(Picture);
	EXPECT_TRUE(WaitUntil(Loop, [&] { return Picture->GetVisibility() == ESlateVisibility::HitTestInvisible; }));
	EXPECT_EQ(Driver.Count(TEXT("PictureBox")), 1);
}

TEST_F(FProjectSpotsTest, EscapeClosesTheCardAndTheKeyboardGoesOnFromTheMarker)
{
	Open(TEXT("pier"));
	Driver.PressKey(EKeys::Escape);
	EXPECT_FALSE(IsOpen(TEXT("pier")));
	EXPECT_EQ(Driver.Count(TEXT("Card")), 0);
	Driver.PressKey(EKeys::Enter);
	EXPECT_TRUE(IsOpen(TEXT("pier")));
}

TEST_F(FProjectSpotsTest, AClickOnTheCrossClosesTheCard)
{
	Open(TEXT("pier"));
	EXPECT_TRUE(Driver.Click(TEXT("Close"))) << ToStd(Driver.GetError());
	EXPECT_FALSE(IsOpen(TEXT("pier")));
}

TEST_F(FProjectSpotsTest, AClickIntoTheSceneClosesTheCardAndADragDoesNot)
{
	Open(TEXT("pier"));
	Driver.DragTo(Sky, Sky + FVector2D(30.0, 0.0));
	EXPECT_TRUE(IsOpen(TEXT("pier")));
	Driver.SingleClickAt(Sky);
	EXPECT_FALSE(IsOpen(TEXT("pier")));
}

TEST_F(FProjectSpotsTest, InputOverACardNeverReachesTheScene)
{
	Open(TEXT("pier"));
	AUnitVolumeActor* const Unit = Manager().GetUnitVolumes()[0];
	Manager().SelectUnitVolume(Unit, false);
	Loop.RunUntilIdle();
	const FSceneCamera::FPose Pose = Scene->GetViewport().GetCamera().GetGoal();
	FVector2D Text;
	ASSERT_TRUE(Driver.FindPoint(TEXT("text:Ferry pier"), Text));
	Driver.SingleClickAt(Text);
	Driver.MoveTo(Text);
	Driver.Wheel(3.0f);
	Driver.DragTo(Text, Text + FVector2D(200.0, 100.0));
	EXPECT_TRUE(IsOpen(TEXT("pier")));
	EXPECT_TRUE(Unit->IsSelected());
	EXPECT_TRUE(Scene->GetViewport().GetCamera().GetGoal() == Pose);
	EXPECT_EQ(Manager().GetHighlightedUnitVolume(), nullptr);
}

TEST_F(FProjectSpotsTest, TabReachesTheMarkers)
{
	int32 NumOpened = 0;
	for (int32 Press = 0; Press < 5; ++Press)
	{
		Driver.PressKey(EKeys::Tab);
		Driver.PressKey(EKeys::Enter);
		Loop.RunUntilIdle();
		if (Driver.Count(TEXT("Card")) == 1)
		{
			++NumOpened;
			Driver.PressKey(EKeys::Escape);
		}
	}
	EXPECT_EQ(NumOpened, 5);
}

TEST_F(FProjectSpotsTest, SpotsSelectedElsewhereOpenTheirCards)
{
	GetSpot(TEXT("bath")).SelectISP();
	Loop.RunUntilIdle();
	EXPECT_TRUE(Driver.Find(TEXT("text:Harbour bath")));
	GetSpot(TEXT("bath")).UnSelectISP();
	Loop.RunUntilIdle();
	EXPECT_EQ(Driver.Count(TEXT("Card")), 0);
}

TEST_F(FProjectSpotsTest, TheOpenCardIsOpenInAnotherStyleToo)
{
	Open(TEXT("bath"));
	Scene->RefreshStyle();
	Loop.RunUntilIdle();
	EXPECT_TRUE(IsOpen(TEXT("bath")));
	EXPECT_TRUE(Driver.Find(TEXT("text:Harbour bath")));
	EXPECT_EQ(Driver.Count(TEXT("Marker")), 4);
	Driver.SingleClickAt(Sky);
	EXPECT_EQ(Driver.Count(TEXT("Card")), 0);
}
