#include "EngineTest.h"
#include "ScenePictureTools.h"
#include "SceneVariables.h"

#include "Engine/Engine.h"
#include "Engine/GameViewportClient.h"
#include "Host/SSceneViewport.h"

using namespace Host;

namespace
{
	/** A cube in a viewport over the window of 800 x 600 pixels; the length of the frames is what the test makes it. */
	class FSceneMotionQualityTest : public FEngineTest
	{
	protected:
		virtual void SetUp() override
		{
			Variables.Set(TEXT("r.ScreenPercentage"), TEXT("100"));
			Variables.Set(TEXT("sg.AntiAliasingQuality"), TEXT("2"));
			Variables.Set(TEXT("sg.ShadowQuality"), TEXT("0"));
			BuildCube(*Content);
			Viewport = SNew(SSceneViewport).Content(Content);
			GEngine->GameViewport->AddViewportWidgetContent(Viewport.ToSharedRef(), -1000);
			Loop.RunUntilIdle();
		}

		virtual void TearDown() override
		{
			Viewport.Reset();
			FEngineTest::TearDown();
		}

		const FSceneCounters& Counters() { return Viewport->GetPicture().GetRenderer()->GetCounters(); }

		/** Pixels and samples that the next frame is drawn with, such as "480000 x 4"; "nothing" when it is not. */
		std::string DrawFrame(double Seconds)
		{
			const FSceneCounters Before = Counters();
			Loop.RunFrame(Seconds);
			const FSceneCounters& After = Counters();
			return After.Draws == Before.Draws ? "nothing" : std::to_string(After.Pixels - Before.Pixels) + " x " + std::to_string(After.Samples);
		}

		void Turn()
		{
			Viewport->MoveCamera([](FSceneCamera& Camera) { Camera.Orbit(160.0, 0.0); });
		}

		FSceneVariables Variables;
		TSharedRef<FSceneContent> Content = MakeShared<FSceneContent>();
		TSharedPtr<SSceneViewport> Viewport;
		const std::string Full = "480000 x 4";
		const std::string Reduced = "120000 x 1";
	};
}

TEST_F(FSceneMotionQualityTest, SlowMovementsAreDrawnInHalfTheDetailAndRestIsNot)
{
	Turn();
	EXPECT_EQ(DrawFrame(0.06), Full) << "before the first frame there may have been none for long";
	EXPECT_EQ(DrawFrame(0.06), Full) << "one may have had other reasons";
	EXPECT_EQ(DrawFrame(0.06), Reduced);
	EXPECT_EQ(DrawFrame(0.06), Reduced);
	std::string Last;
	for (std::string Frame = DrawFrame(0.06); Frame != "nothing"; Frame = DrawFrame(0.06))
	{
		Last = Frame;
	}
	EXPECT_EQ(Last, Full) << "at rest";
	EXPECT_FALSE(Viewport->GetCamera().IsMoving());

	Turn();
	DrawFrame(0.016);
	EXPECT_EQ(DrawFrame(0.016), Reduced) << "it is known to be slow now";
	EXPECT_EQ(IConsoleManager::Get().FindConsoleVariable(TEXT("r.ScreenPercentage"))->GetFloat(), 100.0f) << "what was asked for stays";
	EXPECT_EQ(IConsoleManager::Get().FindConsoleVariable(TEXT("sg.AntiAliasingQuality"))->GetInt(), 2);
}

TEST_F(FSceneMotionQualityTest, FastMovementsAreDrawnInFull)
{
	Turn();
	for (std::string Frame = DrawFrame(0.016); Frame != "nothing"; Frame = DrawFrame(0.016))
	{
		EXPECT_EQ(Frame, Full);
	}
}

TEST_F(FSceneMotionQualityTest, AHitchIsNoReason)
{
	Turn();
	for (const double Seconds : { 0.016, 0.016, 0.2, 0.016, 0.016 })
	{
		EXPECT_EQ(DrawFrame(Seconds), Full);
	}
}

TEST_F(FSceneMotionQualityTest, AnotherQualityIsTriedInFull)
{
	Turn();
	DrawFrame(0.06);
	DrawFrame(0.06);
	ASSERT_EQ(DrawFrame(0.06), Reduced);
	Variables.Set(TEXT("sg.AntiAliasingQuality"), TEXT("0"));
	EXPECT_EQ(DrawFrame(0.016), "480000 x 1");
}

TEST(SceneMotionQuality, ASmallerPictureIsTriedInFull)
{
	FSceneMotionQuality Quality;
	Quality.Begin(1000);
	Quality.NoteFrame(0.06);
	Quality.NoteFrame(0.06);
	EXPECT_TRUE(Quality.IsReduced());
	Quality.End();
	EXPECT_FALSE(Quality.IsReduced());
	Quality.Begin(1000);
	EXPECT_TRUE(Quality.IsReduced());
	Quality.End();
	Quality.Begin(900);
	EXPECT_FALSE(Quality.IsReduced());
}

TEST(SceneMotionQuality, NothingGoesBelowTheLowestPercentage)
{
	FSceneMotionQuality Quality;
	Quality.Begin(1000);
	Quality.NoteFrame(1.0);
	Quality.NoteFrame(1.0);
	FSceneQuality Asked;
	Asked.ScreenPercentage = 40.0f;
	EXPECT_EQ(Quality.Apply(Asked).ScreenPercentage, FSceneQuality::LowestPercentage);
	EXPECT_EQ(Quality.Apply(Asked).Shadows, Asked.Shadows);
}
