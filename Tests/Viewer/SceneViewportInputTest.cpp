#include "EngineTest.h"
#include "ScenePictureTools.h"
#include "SceneVariables.h"

#include "Engine/Engine.h"
#include "Engine/GameViewportClient.h"
#include "Host/SSceneViewport.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SBox.h"

using namespace Host;

namespace
{
	/** A cube to the left and one to the right of the middle, with real input. */
	class FSceneViewportInputTest : public FEngineTest
	{
	protected:
		virtual void SetUp() override
		{
			// What the picture looks like does not matter here.
			Variables.Set(TEXT("r.ScreenPercentage"), TEXT("25"));
			Variables.Set(TEXT("sg.AntiAliasingQuality"), TEXT("0"));
			Variables.Set(TEXT("sg.ShadowQuality"), TEXT("0"));
			for (const double Y : { -1000.0, 1000.0 })
			{
				FSceneBox Box;
				Box.Centre = FVector(0.0, Y, 400.0);
				Box.Extent = FVector(400.0, 400.0, 400.0);
				Content->AddBox(Box);
			}
			Viewport = SNew(SSceneViewport)
				.Content(Content)
				.OnVolumeHovered_Lambda([this](int32 Volume) { Hovered.Add(Volume); })
				.OnVolumeClicked_Lambda([this](int32 Volume, const FPointerEvent&) { Clicked.Add(Volume); });
			Viewport->MoveCamera([](FSceneCamera& Camera)
			{
				FSceneCamera::FPose Pose;
				Pose.Target = FVector(0.0, 0.0, 400.0);
				Pose.Yaw = 0.0;
				Pose.Pitch = -20.0;
				Pose.Distance = 7000.0;
				Camera.JumpTo(Pose);
			});
			GEngine->GameViewport->AddViewportWidgetContent(Viewport.ToSharedRef(), -1000);
			Loop.RunUntilIdle();
		}

		virtual void TearDown() override
		{
			Viewport.Reset();
			FEngineTest::TearDown();
		}

		FVector2D Locate(const FVector& Place)
		{
			FVector2D Position = FVector2D::ZeroVector;
			Viewport->Locate(Place, Position);
			return Position;
		}

		FVector2D LocateVolume(int32 Volume) { return Locate(FVector(0.0, Volume == 0 ? -1000.0 : 1000.0, 400.0)); }

		const FSceneCamera::FPose& Settle()
		{
			Loop.RunUntilIdle();
			return Viewport->GetCamera().GetPose();
		}

		FSceneVariables Variables;
		TSharedRef<FSceneContent> Content = MakeShared<FSceneContent>();
		TSharedPtr<SSceneViewport> Viewport;
		TArray<int32> Hovered;
		TArray<int32> Clicked;
		const FVector2D Beside = FVector2D(400.0, 20.0);
	};
}

TEST_F(FSceneViewportInputTest, HoveringTellsOfEachChange)
{
	Driver.MoveTo(LocateVolume(0));
	Driver.MoveTo(LocateVolume(0) + FVector2D(3.0, 2.0));
	Driver.MoveTo(LocateVolume(1));
	Driver.MoveTo(Beside);
	Driver.MoveTo(Beside + FVector2D(5.0, 0.0));

	EXPECT_EQ(Hovered, (TArray<int32>{ 0, 1, INDEX_NONE }));
}

TEST_F(FSceneViewportInputTest, AClickNamesTheVolumeUnderTheCursor)
{
	Driver.SingleClickAt(LocateVolume(1));
	Driver.SingleClickAt(LocateVolume(0));
	Driver.SingleClickAt(Beside);
	EXPECT_EQ(Clicked, (TArray<int32>{ 1, 0, INDEX_NONE }));
}

TEST_F(FSceneViewportInputTest, OtherButtonsDoNotClick)
{
	Driver.SingleClickAt(LocateVolume(1), EKeys::RightMouseButton);
	Driver.SingleClickAt(LocateVolume(1), EKeys::MiddleMouseButton);
	EXPECT_EQ(Clicked.Num(), 0);
}

TEST_F(FSceneViewportInputTest, DraggingWithTheLeftButtonTurnsAndDoesNotClick)
{
	const FVector Target = Viewport->GetCamera().GetPose().Target;
	Driver.DragTo(LocateVolume(0), LocateVolume(0) + FVector2D(120.0, -60.0));

	const FSceneCamera::FPose& Pose = Settle();
	EXPECT_NEAR(Pose.Yaw, 34.0, 1.0);
	EXPECT_NEAR(Pose.Pitch, -3.0, 1.0);
	EXPECT_TRUE(Pose.Target.Equals(Target));
	EXPECT_EQ(Clicked.Num(), 0);
}

TEST_F(FSceneViewportInputTest, DraggingWithTheOtherButtonsMovesWhatIsSeenWithTheCursor)
{
	for (const FKey& Button : { EKeys::RightMouseButton, EKeys::MiddleMouseButton })
	{
		const FVector Target = Viewport->GetCamera().GetPose().Target;
		const FVector2D Before = Locate(Target);
		const FVector2D Way(40.0, 20.0);
		Driver.DragTo(FVector2D(300.0, 300.0), FVector2D(300.0, 300.0) + Way, 10, Button);
		Settle();
		const FVector2D Moved = Locate(Target) - Before;
		EXPECT_NEAR(Moved.X, Way.X, 1.0);
		EXPECT_NEAR(Moved.Y, Way.Y, 1.0);
	}
}

TEST_F(FSceneViewportInputTest, TheWheelComesNearerToWhatIsUnderTheCursor)
{
	const FVector2D Position = LocateVolume(1);
	FSceneHit Hit;
	ASSERT_TRUE(Viewport->Pick(Position, Hit));
	const double Distance = Viewport->GetCamera().GetPose().Distance;

	Driver.MoveTo(Position);
	Driver.Wheel(2.0f);
	Settle();

	EXPECT_NEAR(Viewport->GetCamera().GetPose().Distance, Distance * 0.85 * 0.85, 1.0);
	EXPECT_TRUE(Locate(Hit.Place).Equals(Position, 1.0));
	Driver.Wheel(-2.0f);
	EXPECT_NEAR(Settle().Distance, Distance, 1.0);
}

TEST_F(FSceneViewportInputTest, ADoubleClickLooksAtTheVolume)
{
	Driver.DoubleClickAt(LocateVolume(1));

	EXPECT_TRUE(Settle().Target.Equals(FVector(0.0, 1000.0, 400.0)));
	EXPECT_EQ(Clicked, (TArray<int32>{ 1 })) << "its first click is a click";
}

TEST_F(FSceneViewportInputTest, ADoubleClickBesideShowsTheWholeScene)
{
	Viewport->MoveCamera([](FSceneCamera& Camera) { Camera.Focus(FVector(0.0, 1000.0, 400.0), 1500.0, 1.0); });
	Settle();
	Driver.DoubleClickAt(FVector2D(790.0, 5.0));

	EXPECT_TRUE(Settle().Target.Equals((Content->GetBounds().Min + Content->GetBounds().Max) * 0.5, 1.0));
}

TEST_F(FSceneViewportInputTest, InputOverAPanelNeverReachesTheScene)
{
	const TSharedRef<SWidget> Panel = SNew(SBox)
		.HAlign(HAlign_Left)
		.VAlign(VAlign_Fill)
		.Visibility(EVisibility::SelfHitTestInvisible)
		[
			SNew(SButton)
			[
				SNew(SBox).WidthOverride(350.0f)
			]
		];
	GEngine->GameViewport->AddViewportWidgetContent(Panel);
	Loop.RunUntilIdle();
	const FSceneCamera::FPose Before = Viewport->GetCamera().GetPose();
	const FVector2D Over(150.0, 320.0);
	ASSERT_LT(LocateVolume(0).X, 350.0) << "a volume is below the panel";

	Driver.MoveTo(LocateVolume(0));
	Driver.SingleClickAt(LocateVolume(0));
	Driver.DoubleClickAt(LocateVolume(0));
	Driver.DragTo(Over, Over + FVector2D(120.0, 50.0));
	Driver.DragTo(Over, Over + FVector2D(500.0, 50.0));
	Driver.MoveTo(Over);
	Driver.Wheel(3.0f);

	EXPECT_TRUE(Settle() == Before);
	EXPECT_EQ(Clicked.Num(), 0);
	EXPECT_FALSE(Hovered.Contains(0));

	Driver.SingleClickAt(LocateVolume(1));
	EXPECT_EQ(Clicked, (TArray<int32>{ 1 })) << "beside the panel it does";
}

TEST_F(FSceneViewportInputTest, ADragThatLeavesTheViewGoesOnUntilTheButtonIsReleased)
{
	Driver.MoveTo(FVector2D(780.0, 300.0));
	Driver.Press();
	Driver.MoveTo(FVector2D(900.0, 300.0));
	Driver.Release();
	const double Yaw = Settle().Yaw;
	EXPECT_NEAR(Yaw, 34.0, 1.0);
	Driver.MoveTo(FVector2D(400.0, 300.0));
	EXPECT_DOUBLE_EQ(Settle().Yaw, Yaw);
}

TEST_F(FSceneViewportInputTest, WhatComesUnderARestingCursorIsHovered)
{
	Driver.MoveTo(LocateVolume(0));
	Hovered.Reset();
	Viewport->MoveCamera([](FSceneCamera& Camera) { Camera.Orbit(180.0, 0.0); });
	Settle();
	EXPECT_EQ(Hovered, (TArray<int32>{ 1 }));
}

TEST_F(FSceneViewportInputTest, SpotsHideBehindVolumesAndBesideTheView)
{
	FVector2D Position;
	EXPECT_EQ(Viewport->Locate(FVector(-420.0, 1000.0, 400.0), Position), ESceneSpot::InSight);
	EXPECT_EQ(Viewport->Locate(FVector(500.0, 1000.0, 300.0), Position), ESceneSpot::Hidden);
	EXPECT_EQ(Viewport->Locate(FVector(0.0, 90000.0, 0.0), Position), ESceneSpot::OutOfView);
	EXPECT_EQ(Viewport->Locate(FVector(-90000.0, 0.0, 0.0), Position), ESceneSpot::OutOfView);

	Content->SetColour(1, FLinearColor(1.0f, 1.0f, 1.0f, 0.1f));
	EXPECT_EQ(Viewport->Locate(FVector(500.0, 1000.0, 300.0), Position), ESceneSpot::InSight) << "ghosts hide nothing";
}

TEST_F(FSceneViewportInputTest, WhatFollowsTheSceneIsToldOfEveryStep)
{
	int32 Calls = 0;
	Viewport->OnViewChanged().AddLambda([&Calls] { ++Calls; });
	Settle();
	EXPECT_EQ(Calls, 0);
	Viewport->MoveCamera([](FSceneCamera& Camera) { Camera.Orbit(20.0, 0.0); });
	Settle();
	EXPECT_GT(Calls, 10);
	const int32 Moved = Calls;
	Settle();
	EXPECT_EQ(Calls, Moved);
}
