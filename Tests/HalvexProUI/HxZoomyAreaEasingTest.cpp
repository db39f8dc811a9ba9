#include "HxZoomyAreaTest.h"

#include "UObject/GarbageCollection.h"

namespace
{
	class FHxZoomyAreaEasingTest : public FHxZoomyAreaTest
	{
	};

	TEST_F(FHxZoomyAreaEasingTest, EasedZoomFollowsTheFormulaStepByStep)
	{
		ShowArea(true);
		Area->SetZoomValue(2.0f);
		EXPECT_EQ(GetScale(), 1.0);
		double Expected = 1.0;
		int32 Steps = 0;
		for (; GetTimers().GetNumTimers() > 0 && Steps < 1000; ++Steps)
		{
			Frame(0.01);
			// The distance is that of both sides together.
			Expected = 2.0 * FMath::Square(2.0 - Expected) < 1.0e-4 ? 2.0 : Ease(Expected, 2.0);
			ASSERT_NEAR(GetScale(), Expected, 1.0e-9) << "step " << Steps;
			EXPECT_EQ(Content->GetRenderTransform().Scale.Y, GetScale());
		}
		EXPECT_EQ(GetScale(), 2.0) << "the last step goes all the way";
		EXPECT_EQ(Steps, 98) << "after 97 steps of 5 % the distance, from the square root of two, is below 0.01";
	}

	TEST_F(FHxZoomyAreaEasingTest, EasedDragFollowsTheFormulaStepByStep)
	{
		ShowArea(true);
		PressAndMove(Middle, Middle + FVector2D(100.0, -40.0));
		EXPECT_EQ(GetTranslation(), FVector2D(0.0, 0.0));
		FVector2D Expected(0.0, 0.0);
		const FVector2D Target(100.0, -40.0);
		for (int32 Step = 0; Step < 400 && GetTimers().GetNumTimers() > 0; ++Step)
		{
			Frame(0.01);
			const bool bSnaps = FVector2D::DistSquared(Expected, Target) < 1.0e-4;
			Expected = bSnaps ? Target : FVector2D(Ease(Expected.X, Target.X), Ease(Expected.Y, Target.Y));
			ASSERT_TRUE(GetTranslation().Equals(Expected, 1.0e-9)) << "step " << Step;
		}
		EXPECT_EQ(GetTranslation(), Target);
		EXPECT_EQ(GetTimers().GetNumTimers(), 0);
		Release();
	}

	TEST_F(FHxZoomyAreaEasingTest, StepsAreOfAHundredthOfASecondHoweverLongTheFrame)
	{
		ShowArea(true);
		Area->SetZoomValue(2.0f);
		Frame(0.105);
		double Expected = 1.0;
		for (int32 Step = 0; Step < 10; ++Step)
		{
			Expected = Ease(Expected, 2.0);
		}
		EXPECT_NEAR(GetScale(), Expected, 1.0e-9);
		Frame(0.003);
		EXPECT_NEAR(GetScale(), Expected, 1.0e-9);
		Frame(0.003);
		EXPECT_NEAR(GetScale(), Ease(Expected, 2.0), 1.0e-9);
		Frame(10.0);
		EXPECT_EQ(GetScale(), 2.0);
		EXPECT_EQ(GetTimers().GetNumTimers(), 0) << "a frame longer than the easing ends it";
	}

	TEST_F(FHxZoomyAreaEasingTest, SpeedRulesTheStep)
	{
		ShowArea(true);
		Area->SmoothTransitionSpeed = 20.0f;
		Area->SetZoomValue(2.0f);
		Frame(0.01);
		EXPECT_NEAR(GetScale(), 1.2, 1.0e-6);
		Area->SmoothTransitionSpeed = 1000.0f;
		Frame(0.01);
		EXPECT_EQ(GetScale(), 2.0) << "not beyond the target";
		for (const float Speed : { 0.0f, -3.0f })
		{
			Area->SetZoomValue(1.0f);
			Frame(0.01);
			Area->SmoothTransitionSpeed = Speed;
			Area->SetZoomValue(4.0f);
			Frame(0.01);
			EXPECT_EQ(GetScale(), 4.0) << "no speed goes all the way at once";
			EXPECT_EQ(GetTimers().GetNumTimers(), 0);
		}
	}

	TEST_F(FHxZoomyAreaEasingTest, ZoomAsksGiveTheTargetAndStepsGoFromTheMoment)
	{
		ShowArea(true);
		Area->SetZoomValue(2.0f);
		EXPECT_EQ(Area->GetZoomValue(), 2.0f);
		EXPECT_EQ(TakeEvents(), "zoom(2)") << "told at once";
		Frame(0.01);
		EXPECT_EQ(Area->GetZoomValue(), 2.0f);
		Area->ZoomIn();
		EXPECT_EQ(TakeEvents(), "zoom(1.15)") << "1.05 of the moment and the step";
		Area->SetZoomValue(2.0f);
		Frame(0.01);
		TakeEvents();
		EXPECT_TRUE(TurnWheel(-1.0f));
		EXPECT_EQ(TakeEvents(), "zoom(0.9975)") << "the wheel too";
	}

	TEST_F(FHxZoomyAreaEasingTest, QuickNotchesAddUpToLessThanSlowOnes)
	{
		ShowArea(true);
		for (int32 Notch = 0; Notch < 5; ++Notch)
		{
			TurnWheel(1.0f);
		}
		EXPECT_EQ(TakeEvents(), "zoom(1.1) zoom(1.1) zoom(1.1) zoom(1.1) zoom(1.1)");
		Settle();
		TurnWheel(1.0f);
		Settle();
		EXPECT_NEAR(GetScale(), 1.2, 1.0e-6);
	}

	TEST_F(FHxZoomyAreaEasingTest, OneTimerServesZoomAndDrag)
	{
		ShowArea(true);
		EXPECT_EQ(GetTimers().GetNumTimers(), 0);
		TurnWheel(1.0f);
		TurnWheel(1.0f);
		PressAndMove(Middle, Middle + FVector2D(10.0, 0.0));
		MoveMouse(Middle + FVector2D(20.0, 0.0));
		EXPECT_EQ(GetTimers().GetNumTimers(), 1);
		Frame(0.01);
		EXPECT_NEAR(GetTranslation().X, 1.0, 1.0e-6);
		EXPECT_NEAR(GetScale(), 1.005, 1.0e-6);
		Release();
		Settle();
		EXPECT_EQ(GetTranslation(), FVector2D(20.0, 0.0)) << "the release does not end the easing";
		EXPECT_EQ(GetTimers().GetNumTimers(), 0);
	}

	TEST_F(FHxZoomyAreaEasingTest, EasingLeavesShearAndAngleAlone)
	{
		ShowArea(true);
		Content->SetRenderTransformAngle(30.0f);
		Content->SetRenderShear(FVector2D(0.1, 0.2));
		Area->SetZoomValue(2.0f);
		Settle();
		EXPECT_EQ(Content->GetRenderTransformAngle(), 30.0f);
		EXPECT_EQ(Content->GetRenderTransform().Shear, FVector2D(0.1, 0.2));
		EXPECT_EQ(GetScale(), 2.0);
	}

	TEST_F(FHxZoomyAreaEasingTest, ResetPositionIsAtOnceAndTheNextEasedZoomGoesBackToTheDrag)
	{
		ShowArea(true);
		PressAndMove(Middle, Middle + FVector2D(50.0, 0.0));
		Release();
		Settle();
		Area->ResetPosition();
		EXPECT_EQ(GetTranslation(), FVector2D(0.0, 0.0));
		Settle();
		EXPECT_EQ(GetTranslation(), FVector2D(0.0, 0.0));
		Area->ZoomIn();
		Settle();
		EXPECT_EQ(GetTranslation(), FVector2D(50.0, 0.0));
		Area->ResetTransformation();
		EXPECT_EQ(GetTranslation(), FVector2D(0.0, 0.0));
		Settle();
		EXPECT_EQ(GetTranslation(), FVector2D(50.0, 0.0)) << "its own zoom goes back too";
		EXPECT_EQ(GetScale(), 1.0);
	}

	TEST_F(FHxZoomyAreaEasingTest, TargetsOutliveARebuild)
	{
		ShowArea(true);
		PressAndMove(Middle, Middle + FVector2D(50.0, 0.0));
		Release();
		Area->SetZoomValue(3.0f);
		Settle();
		Screen->RemoveFromParent();
		Show();
		EXPECT_EQ(Area->GetZoomValue(), 3.0f);
		EXPECT_EQ(GetScale(), 3.0);
		Area->ResetPosition();
		Area->SetZoomValue(3.0f);
		Settle();
		EXPECT_EQ(GetTranslation(), FVector2D(50.0, 0.0));
	}

	TEST_F(FHxZoomyAreaEasingTest, EasingGoesOnWhileTheScreenIsAway)
	{
		ShowArea(true);
		Area->SetZoomValue(2.0f);
		Screen->RemoveFromParent();
		Settle();
		EXPECT_EQ(GetScale(), 2.0);
		EXPECT_EQ(GetTimers().GetNumTimers(), 0);
	}

	TEST_F(FHxZoomyAreaEasingTest, EasingOfAnAreaThatIsGoneEndsSilently)
	{
		ShowArea(true);
		Area->SetZoomValue(2.0f);
		const TWeakObjectPtr<UHxZoomyArea> Weak = Area;
		StartScreen();
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		EXPECT_FALSE(Weak.IsValid());
		Frame(0.1);
		EXPECT_EQ(GetTimers().GetNumTimers(), 0);
	}

	TEST_F(FHxZoomyAreaEasingTest, EasingEndsWithItsContent)
	{
		ShowArea(true);
		Area->SetZoomValue(2.0f);
		Frame(0.01);
		Area->SetContent(nullptr);
		Frame(0.05);
		EXPECT_EQ(GetTimers().GetNumTimers(), 0);
	}

	TEST_F(FHxZoomyAreaEasingTest, NothingRunsOnceTheTargetsAreReached)
	{
		ShowArea(true);
		Area->SetZoomValue(2.0f);
		Settle();
		Area->SetZoomValue(2.0f);
		EXPECT_EQ(GetTimers().GetNumTimers(), 1);
		Frame(0.01);
		EXPECT_EQ(GetTimers().GetNumTimers(), 0) << "the first step finds the content there";
	}

	TEST_F(FHxZoomyAreaEasingTest, SmoothingTurnedOffActsAtOnce)
	{
		ShowArea(true);
		Area->SetZoomValue(2.0f);
		Frame(0.01);
		Area->bEnableSmoothTransition = false;
		Area->SetZoomValue(4.0f);
		EXPECT_EQ(GetScale(), 4.0);
		Settle();
		EXPECT_EQ(GetScale(), 4.0);
		EXPECT_EQ(GetTimers().GetNumTimers(), 0);
	}

	TEST_F(FHxZoomyAreaEasingTest, AreaOutsideAScreenDoesNotEase)
	{
		UHxZoomyArea* Alone = NewObject<UHxZoomyArea>();
		Alone->SetContent(NewObject<UHxBorder>());
		Alone->SetZoomValue(2.0f);
		EXPECT_EQ(Alone->GetZoomValue(), 2.0f);
		EXPECT_EQ(GetTimers().GetNumTimers(), 0);
	}
}
