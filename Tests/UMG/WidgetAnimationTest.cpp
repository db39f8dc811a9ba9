#include "EngineTest.h"

#include "AnimatedUserWidget.h"
#include "Animation/UMGSequencePlayer.h"
#include "Animation/WidgetAnimation.h"
#include "Components/Image.h"
#include "Components/TextBlock.h"
#include "Components/VerticalBox.h"
#include "Components/VerticalBoxSlot.h"
#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "Host/SlateCounters.h"
#include "Host/SlateLoop.h"
#include "UObject/StrongObjectPtr.h"

namespace
{
	using Host::EKeyInterpolation;

	struct FTestKey
	{
		double Time;
		TArray<double> Values;
		EKeyInterpolation Interpolation = EKeyInterpolation::Linear;
	};

	Host::FWidgetAnimationTrack MakeTrack(FName Widget, const TCHAR* Property, const TArray<FTestKey>& Keys)
	{
		Host::FAnimationCurve Curve(Keys[0].Values.Num());
		for (const FTestKey& Key : Keys)
		{
			EXPECT_TRUE(Curve.AddKey(Key.Time, Key.Values, Key.Interpolation));
		}
		return { Widget, Property, MoveTemp(Curve) };
	}

	class FWidgetAnimationTest : public Host::FEngineTest
	{
	protected:
		virtual void SetUp() override
		{
			Widget = CreateWidget<UAnimatedUserWidget>(GEngine->GetGameInstance());
			Widget->AddToViewport();
			Fade = MakeFade(*Widget);
			Loop.RunUntilIdle();
		}

		/** Opacity of the picture from 0 to 1, in one second. */
		static UWidgetAnimation* MakeFade(UAnimatedUserWidget& Owner)
		{
			return Owner.MakeAnimation(TEXT("Fade"), { MakeTrack(TEXT("Picture"), TEXT("RenderOpacity"), { { 0.0, { 0.0 } }, { 1.0, { 1.0 } } }) }, 1.0);
		}

		UWidgetAnimation* MakeAnimation(FName Name, const TCHAR* Target, const TCHAR* Property, const TArray<FTestKey>& Keys)
		{
			return Widget->MakeAnimation(Name, { MakeTrack(Target, Property, Keys) }, Keys.Last().Time);
		}

		float Opacity() const { return Widget->Picture->GetRenderOpacity(); }

		std::string TakeEvents()
		{
			const FString Joined = FString::Join(Widget->Events, TEXT(", "));
			Widget->Events.Empty();
			return Host::ToStd(Joined);
		}

		static bool IsIdle() { return Host::FSlateLoop::GetNextWakeTime() >= MAX_dbl; }

		/** The first frame of what was played shows its start. */
		void RunFirstFrame() { Loop.RunFrame(0.25); }

		FWidgetAnimationDynamicEvent MakeHandler() const
		{
			FWidgetAnimationDynamicEvent Handler;
			Handler.BindDynamic(Widget, &UAnimatedUserWidget::HandleAnimationEvent);
			return Handler;
		}

		UAnimatedUserWidget* Widget = nullptr;
		UWidgetAnimation* Fade = nullptr;
	};

	TEST_F(FWidgetAnimationTest, PlaysFromItsStartToItsEnd)
	{
		EXPECT_EQ(Fade->GetStartTime(), 0.0f);
		EXPECT_EQ(Fade->GetEndTime(), 1.0f);
		Widget->PlayAnimation(Fade);
		EXPECT_TRUE(Widget->IsAnimationPlaying(Fade));
		EXPECT_TRUE(Widget->IsAnyAnimationPlaying());
		RunFirstFrame();
		EXPECT_EQ(Opacity(), 0.0f);
		Loop.RunFrame(0.25);
		EXPECT_EQ(Opacity(), 0.25f);
		EXPECT_EQ(Widget->GetAnimationCurrentTime(Fade), 0.25f);
		Loop.RunFrame(0.5);
		EXPECT_EQ(Opacity(), 0.75f);
		EXPECT_EQ(TakeEvents(), "Started Fade");
		Loop.RunFrame(0.5);
		EXPECT_EQ(Opacity(), 1.0f);
		EXPECT_EQ(TakeEvents(), "Finished Fade");
		EXPECT_FALSE(Widget->IsAnimationPlaying(Fade));
		EXPECT_FALSE(Widget->IsAnyAnimationPlaying());
		EXPECT_EQ(Widget->GetAnimationCurrentTime(Fade), 0.0f);
	}

	TEST_F(FWidgetAnimationTest, StartsInTheFirstFrameHoweverLongTheLoopSlept)
	{
		Widget->PlayAnimation(Fade);
		Loop.RunFrame(30.0);
		EXPECT_EQ(Opacity(), 0.0f);
		EXPECT_TRUE(Widget->IsAnimationPlaying(Fade));
	}

	TEST_F(FWidgetAnimationTest, MakesFramesWhileItPlaysAndNoneAfterwards)
	{
		EXPECT_TRUE(IsIdle());
		Widget->PlayAnimation(Fade);
		EXPECT_FALSE(IsIdle());
		RunFirstFrame();
		EXPECT_FALSE(IsIdle());
		Loop.RunFrame(1.0);
		EXPECT_TRUE(IsIdle());
		const Host::FSlateCounters Before = Host::FSlateCounters::Get();
		Loop.RunFrame(0.25);
		const Host::FSlateCounters Work = Host::FSlateCounters::Get() - Before;
		EXPECT_EQ(Work.Visited, 0);
		EXPECT_EQ(Work.Painted, 0);
	}

	TEST_F(FWidgetAnimationTest, InvalidatesOnlyWhatItChanges)
	{
		UWidgetAnimation* Steps = MakeAnimation(TEXT("Steps"), TEXT("Picture"), TEXT("ColorAndOpacity"),
			{ { 0.0, { 1.0, 1.0, 1.0, 1.0 }, EKeyInterpolation::Constant }, { 1.0, { 1.0, 0.0, 0.0, 1.0 }, EKeyInterpolation::Constant }, { 2.0, { 1.0, 0.0, 0.0, 1.0 } } });
		Widget->PlayAnimation(Steps);
		RunFirstFrame();

		Host::FSlateCounters Before = Host::FSlateCounters::Get();
		Loop.RunFrame(0.5);
		EXPECT_EQ((Host::FSlateCounters::Get() - Before).Painted, 0) << "nothing changed between the keys";
		Before = Host::FSlateCounters::Get();
		Loop.RunFrame(0.5);
		const Host::FSlateCounters Work = Host::FSlateCounters::Get() - Before;
		EXPECT_EQ(Work.Painted, 1);
		EXPECT_EQ(Work.Measured, 0);
		EXPECT_EQ(Work.Arranged, 0);
	}

	TEST_F(FWidgetAnimationTest, LoopsAsOftenAsAsked)
	{
		Widget->PlayAnimation(Fade, 0.0f, 3);
		RunFirstFrame();
		Loop.RunFrame(1.25);
		EXPECT_EQ(Opacity(), 0.25f);
		Loop.RunFrame(1.5);
		EXPECT_EQ(Opacity(), 0.75f);
		EXPECT_EQ(TakeEvents(), "Started Fade");
		Loop.RunFrame(0.25);
		EXPECT_EQ(Opacity(), 1.0f);
		EXPECT_EQ(TakeEvents(), "Finished Fade");
	}

	TEST_F(FWidgetAnimationTest, LoopsWithoutEndWhenAskedForNone)
	{
		Widget->PlayAnimation(Fade, 0.0f, 0);
		RunFirstFrame();
		Loop.RunFrame(1000000.5);
		EXPECT_EQ(Opacity(), 0.5f);
		EXPECT_TRUE(Widget->IsAnimationPlaying(Fade));
		Widget->SetNumLoopsToPlay(Fade, 1);
		Loop.RunFrame(0.5);
		EXPECT_EQ(TakeEvents(), "Started Fade, Finished Fade");
	}

	TEST_F(FWidgetAnimationTest, ALongFrameMakesSeveralLoops)
	{
		Widget->PlayAnimation(Fade, 0.0f, 5, EUMGSequencePlayMode::PingPong);
		RunFirstFrame();
		Loop.RunFrame(3.25);
		EXPECT_EQ(Opacity(), 0.75f) << "on the way back for the second time";
		Loop.RunFrame(100.0);
		EXPECT_EQ(Opacity(), 1.0f);
		EXPECT_EQ(TakeEvents(), "Started Fade, Finished Fade");
	}

	TEST_F(FWidgetAnimationTest, PlaysInReverseFromTheEnd)
	{
		Widget->PlayAnimation(Fade, 0.25f, 2, EUMGSequencePlayMode::Reverse);
		RunFirstFrame();
		EXPECT_EQ(Opacity(), 0.75f) << "the start time counts back from the end";
		EXPECT_FALSE(Widget->IsAnimationPlayingForward(Fade));
		Loop.RunFrame(1.0);
		EXPECT_EQ(Opacity(), 0.75f) << "the second loop starts at the end again";
		Loop.RunFrame(1.0);
		EXPECT_EQ(Opacity(), 0.0f);
		EXPECT_FALSE(Widget->IsAnimationPlaying(Fade));
	}

	TEST_F(FWidgetAnimationTest, PingPongGoesThereAndBack)
	{
		Widget->PlayAnimation(Fade, 0.0f, 2, EUMGSequencePlayMode::PingPong);
		RunFirstFrame();
		Loop.RunFrame(0.75);
		EXPECT_EQ(Opacity(), 0.75f);
		EXPECT_TRUE(Widget->IsAnimationPlayingForward(Fade));
		Loop.RunFrame(0.5);
		EXPECT_EQ(Opacity(), 0.75f);
		EXPECT_FALSE(Widget->IsAnimationPlayingForward(Fade));
		Loop.RunFrame(0.75);
		EXPECT_EQ(Opacity(), 0.0f);
		EXPECT_FALSE(Widget->IsAnimationPlaying(Fade));
	}

	TEST_F(FWidgetAnimationTest, StartTimeAffectsTheFirstLoopOnly)
	{
		Widget->PlayAnimation(Fade, 0.5f, 2);
		RunFirstFrame();
		EXPECT_EQ(Opacity(), 0.5f);
		Loop.RunFrame(0.5);
		EXPECT_EQ(Opacity(), 0.0f);
		Loop.RunFrame(0.75);
		EXPECT_EQ(Opacity(), 0.75f);
	}

	TEST_F(FWidgetAnimationTest, EndTimeIsConsideredInTheLastLoopOnly)
	{
		Widget->PlayAnimationTimeRange(Fade, 0.25f, 0.5f, 2);
		RunFirstFrame();
		Loop.RunFrame(0.5);
		EXPECT_EQ(Opacity(), 0.75f);
		Loop.RunFrame(1.0);
		EXPECT_EQ(Opacity(), 0.5f);
		EXPECT_EQ(TakeEvents(), "Started Fade, Finished Fade");
	}

	TEST_F(FWidgetAnimationTest, PlaysAtTheSpeedAskedFor)
	{
		Widget->PlayAnimation(Fade, 0.0f, 1, EUMGSequencePlayMode::Forward, 0.5f);
		RunFirstFrame();
		Loop.RunFrame(0.5);
		EXPECT_EQ(Opacity(), 0.25f);
		Widget->SetPlaybackSpeed(Fade, 2.0f);
		Loop.RunFrame(0.25);
		EXPECT_EQ(Opacity(), 0.75f);
	}

	TEST_F(FWidgetAnimationTest, MakesNoFramesAtNoSpeedOrWhilePaused)
	{
		Widget->PlayAnimation(Fade, 0.5f, 1, EUMGSequencePlayMode::Forward, 0.0f);
		RunFirstFrame();
		EXPECT_EQ(Opacity(), 0.5f);
		EXPECT_TRUE(Widget->IsAnimationPlaying(Fade));
		EXPECT_TRUE(IsIdle());
		Widget->SetPlaybackSpeed(Fade);
		EXPECT_FALSE(IsIdle());
		EXPECT_EQ(Widget->PauseAnimation(Fade), 0.5f);
		Loop.RunFrame(0.25);
		EXPECT_TRUE(IsIdle());
		EXPECT_EQ(Opacity(), 0.5f);
	}

	TEST_F(FWidgetAnimationTest, GoesOnFromWhereItWasPaused)
	{
		Widget->PlayAnimation(Fade);
		RunFirstFrame();
		Loop.RunFrame(0.25);
		const float Where = Widget->PauseAnimation(Fade);
		EXPECT_EQ(Where, 0.25f);
		EXPECT_FALSE(Widget->IsAnimationPlaying(Fade));
		Loop.RunFrame(5.0);
		EXPECT_EQ(Opacity(), 0.25f);
		EXPECT_EQ(Widget->GetAnimationCurrentTime(Fade), 0.25f);
		Widget->PlayAnimation(Fade, Where);
		RunFirstFrame();
		Loop.RunFrame(0.25);
		EXPECT_EQ(Opacity(), 0.5f);
		EXPECT_EQ(TakeEvents(), "Started Fade, Started Fade");
	}

	TEST_F(FWidgetAnimationTest, ATimeSetWhilePausedIsShownAndItStaysPaused)
	{
		Widget->PlayAnimation(Fade);
		RunFirstFrame();
		Widget->PauseAnimation(Fade);
		Widget->SetAnimationCurrentTime(Fade, 0.75f);
		Loop.RunFrame(0.25);
		EXPECT_EQ(Opacity(), 0.75f);
		EXPECT_FALSE(Widget->IsAnimationPlaying(Fade));
		Loop.RunFrame(0.25);
		EXPECT_EQ(Opacity(), 0.75f);
		EXPECT_TRUE(IsIdle());
	}

	TEST_F(FWidgetAnimationTest, StoppingKeepsTheValues)
	{
		Widget->PlayAnimation(Fade);
		RunFirstFrame();
		Loop.RunFrame(0.25);
		Widget->StopAnimation(Fade);
		EXPECT_EQ(TakeEvents(), "Started Fade, Finished Fade");
		EXPECT_FALSE(Widget->IsAnimationPlaying(Fade));
		Loop.RunFrame(0.25);
		EXPECT_EQ(Opacity(), 0.25f);
		EXPECT_TRUE(IsIdle());
		Widget->StopAnimation(Fade);
		EXPECT_EQ(TakeEvents(), "");
	}

	TEST_F(FWidgetAnimationTest, StoppingRestoresTheStateWhenAskedTo)
	{
		Widget->Picture->SetRenderOpacity(0.875f);
		Widget->PlayAnimation(Fade, 0.0f, 1, EUMGSequencePlayMode::Forward, 1.0f, true);
		RunFirstFrame();
		EXPECT_EQ(Opacity(), 0.0f);
		Widget->StopAnimation(Fade);
		EXPECT_EQ(Opacity(), 0.875f);

		Widget->PlayAnimation(Fade, 0.0f, 1, EUMGSequencePlayMode::Forward, 1.0f, true);
		RunFirstFrame();
		Loop.RunFrame(1.0);
		EXPECT_EQ(Opacity(), 0.875f) << "its end stops it too";
	}

	TEST_F(FWidgetAnimationTest, RestoringBringsBackTheColourOfTheStyle)
	{
		Widget->Label->SetColorAndOpacity(FSlateColor::UseForeground());
		UWidgetAnimation* Tint = MakeAnimation(TEXT("Tint"), TEXT("Label"), TEXT("ColorAndOpacity"), { { 0.0, { 1.0, 0.0, 0.0, 1.0 } }, { 1.0, { 0.0, 0.0, 1.0, 1.0 } } });
		Widget->PlayAnimation(Tint, 0.5f, 1, EUMGSequencePlayMode::Forward, 1.0f, true);
		RunFirstFrame();
		EXPECT_EQ(Widget->Label->GetColorAndOpacity(), FSlateColor(FLinearColor(0.5f, 0.0f, 0.5f, 1.0f)));
		Widget->StopAnimation(Tint);
		EXPECT_EQ(Widget->Label->GetColorAndOpacity(), FSlateColor::UseForeground());
	}

	TEST_F(FWidgetAnimationTest, PlayingForwardTurnsRoundWhatPlaysInReverse)
	{
		Widget->PlayAnimationForward(Fade);
		RunFirstFrame();
		Loop.RunFrame(0.75);
		Widget->PlayAnimationReverse(Fade);
		Loop.RunFrame(0.25);
		EXPECT_EQ(Opacity(), 0.5f);
		Widget->PlayAnimationReverse(Fade);
		Loop.RunFrame(0.25);
		EXPECT_EQ(Opacity(), 0.25f);
		Widget->PlayAnimationForward(Fade);
		Loop.RunFrame(0.5);
		EXPECT_EQ(Opacity(), 0.75f);
		Widget->ReverseAnimation(Fade);
		Loop.RunFrame(0.75);
		EXPECT_EQ(Opacity(), 0.0f);
		EXPECT_EQ(TakeEvents(), "Started Fade, Finished Fade");

		Widget->PlayAnimationReverse(Fade);
		RunFirstFrame();
		EXPECT_EQ(Opacity(), 1.0f) << "one that does not play starts at its end";
	}

	TEST_F(FWidgetAnimationTest, PlayingAgainStartsAnewInTheSamePlayer)
	{
		const UUMGSequencePlayer* First = Widget->PlayAnimation(Fade);
		RunFirstFrame();
		Loop.RunFrame(0.5);
		EXPECT_EQ(Widget->PlayAnimation(Fade), First);
		RunFirstFrame();
		EXPECT_EQ(Opacity(), 0.0f);
		EXPECT_EQ(First->GetAnimation(), Fade);
	}

	TEST_F(FWidgetAnimationTest, NoAnimationIsPlayedByNothing)
	{
		EXPECT_EQ(Widget->PlayAnimation(nullptr), nullptr);
		EXPECT_EQ(Widget->PauseAnimation(nullptr), 0.0f);
		EXPECT_FALSE(Widget->IsAnimationPlaying(nullptr));
		EXPECT_FALSE(Widget->IsAnimationPlayingForward(Fade));
		EXPECT_TRUE(IsIdle());
	}

	TEST_F(FWidgetAnimationTest, FlushSetsTheValuesAtOnce)
	{
		Widget->PlayAnimation(Fade, 0.5f);
		EXPECT_EQ(Opacity(), 1.0f);
		Widget->FlushAnimations();
		EXPECT_EQ(Opacity(), 0.5f);
	}

	TEST_F(FWidgetAnimationTest, ListenersHearOfTheirEventOfTheirAnimation)
	{
		UWidgetAnimation* Other = MakeAnimation(TEXT("Other"), TEXT("Label"), TEXT("RenderOpacity"), { { 0.0, { 0.0 } }, { 1.0, { 1.0 } } });
		Widget->BindToAnimationStarted(Fade, MakeHandler());
		Widget->BindToAnimationFinished(Fade, MakeHandler());
		Widget->PlayAnimation(Other);
		Widget->PlayAnimation(Fade);
		EXPECT_EQ(TakeEvents(), "Started Other, Started Fade, Handled");
		Widget->UnbindFromAnimationStarted(Fade, MakeHandler());
		Widget->PlayAnimation(Fade);
		EXPECT_EQ(TakeEvents(), "Started Fade");
		Widget->StopAllAnimations();
		EXPECT_EQ(TakeEvents(), "Finished Other, Finished Fade, Handled");
		Widget->UnbindAllFromAnimationFinished(Fade);
		Widget->PlayAnimation(Fade);
		Widget->StopAnimation(Fade);
		EXPECT_EQ(TakeEvents(), "Started Fade, Finished Fade");
	}

	TEST_F(FWidgetAnimationTest, ListenersForATagHearOnlyOfWhatPlaysUnderIt)
	{
		Widget->BindToAnimationEvent(Fade, MakeHandler(), EWidgetAnimationEvent::Finished, TEXT("Intro"));
		Widget->PlayAnimation(Fade);
		Widget->StopAnimation(Fade);
		EXPECT_EQ(TakeEvents(), "Started Fade, Finished Fade");
		Widget->PlayAnimation(Fade)->SetUserTag(TEXT("Intro"));
		Widget->StopAnimation(Fade);
		EXPECT_EQ(TakeEvents(), "Started Fade, Finished Fade, Handled");
	}

	TEST_F(FWidgetAnimationTest, MayBePlayedAgainWhenItHasFinished)
	{
		Widget->bPlayAgain = true;
		Widget->PlayAnimation(Fade);
		RunFirstFrame();
		Loop.RunFrame(1.5);
		EXPECT_EQ(Opacity(), 1.0f);
		EXPECT_TRUE(Widget->IsAnimationPlaying(Fade));
		Loop.RunFrame(0.25);
		EXPECT_EQ(Opacity(), 0.0f);
		EXPECT_EQ(TakeEvents(), "Started Fade, Finished Fade, Started Fade");
		Widget->StopAllAnimations();
		EXPECT_EQ(TakeEvents(), "Finished Fade") << "stopping all is not to be undone by who hears of it";
		EXPECT_FALSE(Widget->IsAnyAnimationPlaying());
	}

	TEST_F(FWidgetAnimationTest, SeveralPlayAtOnceAndTheLaterStartedWins)
	{
		UWidgetAnimation* Half = MakeAnimation(TEXT("Half"), TEXT("Picture"), TEXT("RenderOpacity"), { { 0.0, { 0.5 } }, { 0.5, { 0.5 } } });
		Widget->PlayAnimation(Fade);
		Widget->PlayAnimation(Half);
		RunFirstFrame();
		Loop.RunFrame(0.25);
		EXPECT_EQ(Opacity(), 0.5f);
		Loop.RunFrame(0.5);
		EXPECT_EQ(TakeEvents(), "Started Fade, Started Half, Finished Half");
		Loop.RunFrame(0.125);
		EXPECT_EQ(Opacity(), 0.875f);
	}

	TEST_F(FWidgetAnimationTest, AnimatesPartsOfTheRenderTransform)
	{
		UWidgetAnimation* Move = Widget->MakeAnimation(TEXT("Move"),
			{
				MakeTrack(TEXT("Picture"), TEXT("RenderTransform.Translation"), { { 0.0, { 0.0, 0.0 } }, { 1.0, { 100.0, 40.0 } } }),
				MakeTrack(TEXT("Picture"), TEXT("RenderTransform.Scale"), { { 0.0, { 1.0, 1.0 } }, { 1.0, { 2.0, 3.0 } } }),
				MakeTrack(TEXT("Picture"), TEXT("RenderTransform.Shear"), { { 0.0, { 0.0, 0.0 } }, { 1.0, { 10.0, 20.0 } } }),
				MakeTrack(TEXT("Picture"), TEXT("RenderTransform.Angle"), { { 0.0, { 0.0 } }, { 1.0, { 90.0 } } }),
			},
			1.0);
		Widget->PlayAnimation(Move, 0.5f);
		RunFirstFrame();
		EXPECT_EQ(Widget->Picture->GetRenderTransform(), FWidgetTransform(FVector2D(50.0, 20.0), FVector2D(1.5, 2.0), FVector2D(5.0, 10.0), 45.0f));
	}

	TEST_F(FWidgetAnimationTest, AnimatesColoursBrushesVisibilityAndSlots)
	{
		const double Hidden = static_cast<double>(ESlateVisibility::Hidden);
		const double Visible = static_cast<double>(ESlateVisibility::Visible);
		UWidgetAnimation* Change = Widget->MakeAnimation(TEXT("Change"),
			{
				MakeTrack(TEXT("Picture"), TEXT("ColorAndOpacity"), { { 0.0, { 0.0, 0.0, 0.0, 1.0 } }, { 1.0, { 1.0, 0.5, 0.0, 1.0 } } }),
				MakeTrack(TEXT("Picture"), TEXT("Brush.TintColor"), { { 0.0, { 0.0, 0.0, 0.0, 1.0 } }, { 1.0, { 0.0, 0.0, 1.0, 1.0 } } }),
				MakeTrack(TEXT("Label"), TEXT("Visibility"), { { 0.0, { Visible }, EKeyInterpolation::Constant }, { 0.5, { Hidden }, EKeyInterpolation::Constant } }),
				MakeTrack(TEXT("Label"), TEXT("Slot.Padding"), { { 0.0, { 0.0, 0.0, 0.0, 0.0 } }, { 1.0, { 2.0, 4.0, 6.0, 8.0 } } }),
			},
			1.0);
		Widget->PlayAnimation(Change, 0.25f);
		RunFirstFrame();
		EXPECT_EQ(Widget->Label->GetVisibility(), ESlateVisibility::Visible);
		Loop.RunFrame(0.25);
		EXPECT_EQ(Widget->Picture->GetColorAndOpacity(), FLinearColor(0.5f, 0.25f, 0.0f, 1.0f));
		EXPECT_EQ(Widget->Picture->GetBrush().TintColor, FSlateColor(FLinearColor(0.0f, 0.0f, 0.5f, 1.0f)));
		EXPECT_EQ(Widget->Label->GetVisibility(), ESlateVisibility::Hidden);
		EXPECT_EQ(CastChecked<UVerticalBoxSlot>(Widget->Label->Slot)->GetPadding(), FMargin(1.0f, 2.0f, 3.0f, 4.0f));
	}

	TEST_F(FWidgetAnimationTest, AnimatesTheUserWidgetItself)
	{
		Widget->PlayAnimation(MakeAnimation(TEXT("Whole"), nullptr, TEXT("RenderOpacity"), { { 0.0, { 0.25 } }, { 1.0, { 1.0 } } }));
		RunFirstFrame();
		EXPECT_EQ(Widget->GetRenderOpacity(), 0.25f);
		EXPECT_EQ(Opacity(), 1.0f);
	}

	TEST_F(FWidgetAnimationTest, TracksThatCannotBePlayedAreOneLineEachAndTheRestPlays)
	{
		UWidgetAnimation* Mixed = Widget->MakeAnimation(TEXT("Mixed"),
			{
				MakeTrack(TEXT("NoSuchWidget"), TEXT("RenderOpacity"), { { 0.0, { 0.0 } } }),
				MakeTrack(TEXT("Picture"), TEXT("NoSuchProperty"), { { 0.0, { 0.0 } } }),
				MakeTrack(TEXT("Picture"), TEXT("ColorAndOpacity"), { { 0.0, { 0.0 } } }),
				MakeTrack(TEXT("Picture"), TEXT("bIsVariable"), { { 0.0, { 0.0 } } }),
				MakeTrack(TEXT("Label"), TEXT("Text"), { { 0.0, { 0.0 } } }),
				MakeTrack(TEXT("Picture"), TEXT("RenderOpacity"), { { 0.0, { 0.5 } }, { 1.0, { 1.0 } } }),
			},
			1.0);
		{
			const Host::FExpectedLog NoWidget(TEXT("a track of the animation 'Mixed' cannot be played: there is no widget 'NoSuchWidget'."));
			const Host::FExpectedLog NoProperty(TEXT("Image has no property 'NoSuchProperty'."));
			const Host::FExpectedLog WrongNumber(TEXT("'ColorAndOpacity' has 4 numbers, the track 1."));
			const Host::FExpectedLog NoSetter(TEXT("'bIsVariable' of Image has no setter"));
			const Host::FExpectedLog WrongKind(TEXT("'Text' is a FText, which cannot be animated."));
			Widget->PlayAnimation(Mixed);
		}
		RunFirstFrame();
		EXPECT_EQ(Opacity(), 0.5f);
	}

	TEST_F(FWidgetAnimationTest, AWidgetThatGoesWhileItIsAnimatedIsLeftOut)
	{
		Widget->PlayAnimation(Fade);
		RunFirstFrame();
		Widget->Picture->RemoveFromParent();
		Widget->Picture = nullptr;
		Loop.RunFrame(0.25);
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		Loop.RunFrame(0.25);
		Loop.RunFrame(1.0);
		EXPECT_EQ(TakeEvents(), "Started Fade, Finished Fade");
	}

	TEST_F(FWidgetAnimationTest, EndsWithoutAnEventWhenItsWidgetIsShownNoLonger)
	{
		const TStrongObjectPtr<UAnimatedUserWidget> Kept(Widget);
		Widget->PlayAnimation(Fade);
		RunFirstFrame();
		Loop.RunFrame(0.25);
		Widget->RemoveFromParent();
		Loop.RunFrame(0.25);
		EXPECT_FALSE(Widget->IsAnimationPlaying(Fade));
		EXPECT_EQ(Opacity(), 0.25f);
		EXPECT_EQ(TakeEvents(), "Started Fade");
		EXPECT_TRUE(IsIdle());
		Widget->AddToViewport();
		Loop.RunFrame(0.25);
		EXPECT_EQ(Opacity(), 0.25f);
	}

	TEST_F(FWidgetAnimationTest, GoesOnWhenItsWidgetIsBuiltAnew)
	{
		Widget->PlayAnimation(Fade);
		RunFirstFrame();
		Loop.RunFrame(0.25);
		Widget->RemoveFromParent();
		Widget->AddToViewport();
		EXPECT_TRUE(Widget->IsAnimationPlaying(Fade));
		Loop.RunFrame(0.25);
		EXPECT_EQ(Opacity(), 0.5f);
		Loop.RunFrame(0.5);
		EXPECT_EQ(TakeEvents(), "Started Fade, Finished Fade");
	}

	TEST_F(FWidgetAnimationTest, WaitsUntilItsWidgetIsShown)
	{
		const TStrongObjectPtr<UAnimatedUserWidget> Later(CreateWidget<UAnimatedUserWidget>(GEngine->GetGameInstance()));
		Later->PlayAnimation(MakeFade(*Later));
		EXPECT_TRUE(IsIdle());
		Loop.RunFrame(5.0);
		Later->AddToViewport();
		Loop.RunFrame(5.0);
		EXPECT_EQ(Later->Picture->GetRenderOpacity(), 0.0f);
		Loop.RunFrame(0.5);
		EXPECT_EQ(Later->Picture->GetRenderOpacity(), 0.5f);
	}

	TEST_F(FWidgetAnimationTest, PlaysNothingInTheDesigner)
	{
		Widget->SetDesignerFlags(EWidgetDesignFlags::Designing);
		Widget->PlayAnimation(Fade);
		Loop.RunFrame(0.25);
		EXPECT_EQ(Opacity(), 1.0f);
		EXPECT_TRUE(IsIdle());
	}

	TEST_F(FWidgetAnimationTest, GoesWithItsWidget)
	{
		TWeakObjectPtr<UAnimatedUserWidget> Weak = Widget;
		Widget->PlayAnimation(Fade, 0.0f, 0);
		RunFirstFrame();
		Widget->RemoveFromParent();
		Widget = nullptr;
		Fade = nullptr;
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		EXPECT_FALSE(Weak.IsValid());
		Loop.RunFrame(0.25);
		EXPECT_TRUE(IsIdle());
	}

	TEST_F(FWidgetAnimationTest, OneWithoutLengthEndsAfterItsFirstFrame)
	{
		UWidgetAnimation* Instant = MakeAnimation(TEXT("Instant"), TEXT("Picture"), TEXT("RenderOpacity"), { { 0.0, { 0.5 } } });
		Widget->PlayAnimation(Instant, 0.0f, 0);
		RunFirstFrame();
		EXPECT_EQ(Opacity(), 0.5f);
		Loop.RunFrame(0.25);
		EXPECT_EQ(TakeEvents(), "Started Instant, Finished Instant");
		EXPECT_TRUE(IsIdle());
	}
}
