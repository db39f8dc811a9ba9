#include "EngineTest.h"
#include "ScenePictureTools.h"
#include "SceneVariables.h"

#include "Engine/Engine.h"
#include "Engine/GameViewportClient.h"
#include "Host/SSceneViewport.h"
#include "Host/SlateCounters.h"
#include "Host/SlateLoop.h"
#include "Widgets/SWindow.h"

using namespace Host;

namespace
{
	/** The cube in the window of the test program. */
	class FSceneViewportTest : public FEngineTest
	{
	protected:
		virtual void SetUp() override
		{
			Variables.Set(TEXT("sg.AntiAliasingQuality"), TEXT("2"));
			Variables.Set(TEXT("sg.ShadowQuality"), TEXT("1"));
			BuildCube(*Content);
			Viewport = SNew(SSceneViewport)
				.Content(Content);
			Viewport->MoveCamera([](FSceneCamera& Camera)
			{
				FSceneCamera::FPose Pose;
				Pose.Target = FVector(0.0, 0.0, 400.0);
				Pose.Distance = 5000.0;
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

		const FSceneCounters& GetCounters() const { return Viewport->GetPicture().GetRenderer()->GetCounters(); }

		FSceneVariables Variables;
		TSharedRef<FSceneContent> Content = MakeShared<FSceneContent>();
		TSharedPtr<SSceneViewport> Viewport;
	};
}

TEST_F(FSceneViewportTest, TheSceneFillsTheWindow)
{
	FPicture Picture;
	ASSERT_TRUE(Loop.TakePicture(Picture));

	FVector2D Middle;
	ASSERT_TRUE(Viewport->GetCamera().GetView().Project(FVector(0.0, 0.0, 500.0), FVector2D(Picture.Size), Middle));
	EXPECT_LT(Picture.At(FMath::FloorToInt32(Middle.X), FMath::FloorToInt32(Middle.Y)).G, 20);
	EXPECT_GT(Picture.At(2, 2).G, 100);
	EXPECT_GT(Picture.At(Picture.Size.X - 3, Picture.Size.Y - 3).G, 100);
}

TEST_F(FSceneViewportTest, AnIdleSceneDrawsNothingAndWakesNobody)
{
	EXPECT_EQ(GetCounters().Draws, 1);
	const FSlateCounters Before = FSlateCounters::Get();

	for (int32 Frame = 0; Frame < 20; ++Frame)
	{
		Loop.RunFrame(1.0 / 60.0);
	}

	EXPECT_EQ(GetCounters().Draws, 1);
	EXPECT_EQ((FSlateCounters::Get() - Before).Painted, 0);
	EXPECT_EQ(FSlateLoop::GetNextWakeTime(), std::numeric_limits<double>::infinity());
}

TEST_F(FSceneViewportTest, TheCameraEasesAndThenRests)
{
	Viewport->MoveCamera([](FSceneCamera& Camera) { Camera.Orbit(30.0, 0.0); });
	EXPECT_LT(FSlateLoop::GetNextWakeTime(), std::numeric_limits<double>::infinity());

	Loop.RunUntilIdle();

	EXPECT_FALSE(Viewport->GetCamera().IsMoving());
	EXPECT_DOUBLE_EQ(Viewport->GetCamera().GetPose().Yaw, 70.0);
	const int64 Draws = GetCounters().Draws;
	EXPECT_GT(Draws, 10) << "it went there in many pictures";
	EXPECT_EQ(FSlateLoop::GetNextWakeTime(), std::numeric_limits<double>::infinity());
	Loop.RunFrame(0.1);
	EXPECT_EQ(GetCounters().Draws, Draws);
}

TEST_F(FSceneViewportTest, ChangedContentIsDrawnOnce)
{
	Content->SetColour(0, FLinearColor::White);
	Viewport->ContentChanged();
	Loop.RunUntilIdle();
	EXPECT_EQ(GetCounters().Draws, 2);

	Viewport->ContentChanged();
	Loop.RunUntilIdle();
	EXPECT_EQ(GetCounters().Draws, 2) << "nothing did change";
}

TEST_F(FSceneViewportTest, FollowsTheVariablesOfQuality)
{
	Variables.Set(TEXT("r.ScreenPercentage"), TEXT("50"));
	const int64 Pixels = GetCounters().Pixels;
	Loop.RunUntilIdle();
	EXPECT_EQ(GetCounters().Draws, 2);
	EXPECT_EQ(GetCounters().Pixels - Pixels, 400 * 300);

	Variables.Set(TEXT("sg.AntiAliasingQuality"), TEXT("0"));
	Loop.RunUntilIdle();
	EXPECT_EQ(GetCounters().Samples, 1);
	Variables.Set(TEXT("sg.ShadowQuality"), TEXT("0"));
	Loop.RunUntilIdle();
	EXPECT_EQ(GetCounters().ShadowMapSize, 0);
	EXPECT_EQ(GetCounters().Draws, 4);

	Variables.Set(TEXT("sg.ShadowQuality"), TEXT("0"));
	Loop.RunUntilIdle();
	EXPECT_EQ(GetCounters().Draws, 4) << "the same value again";
}

TEST_F(FSceneViewportTest, IsDrawnAsLargeAsTheWindow)
{
	Loop.GetWindow()->Resize(FVector2D(640.0, 400.0));
	Loop.RunUntilIdle();
	EXPECT_EQ(Viewport->GetPicture().GetRenderer()->GetPicture()->GetSize(), FIntPoint(640, 400));
	Loop.GetWindow()->Resize(FVector2D(800.0, 600.0));
	Loop.RunUntilIdle();
	EXPECT_EQ(Viewport->GetPicture().GetRenderer()->GetPicture()->GetSize(), FIntPoint(800, 600));
}
