#include "HxRangeSliderTest.h"

#include "Components/CanvasPanelSlot.h"
#include "Framework/Application/SlateApplication.h"
#include "InputCoreTypes.h"

namespace
{
	using FHxRangeSliderDragTest = FHxRangeSliderTest;

	TEST_F(FHxRangeSliderDragTest, HandleFollowsThePointerAndIsCommittedWhenLetGo)
	{
		ShowSlider();
		PressAndMove(0.0, 30.0);
		EXPECT_EQ(TakeEvents(), "30-100");
		Driver.MoveTo(At(45.0));
		EXPECT_EQ(TakeEvents(), "45-100");
		Driver.Release();
		EXPECT_EQ(TakeEvents(), "commit(45-100)");
		Driver.MoveTo(At(70.0));
		EXPECT_EQ(TakeEvents(), "") << "let go";
		EXPECT_EQ(GetRange(), "45-100");
	}

	TEST_F(FHxRangeSliderDragTest, HandleKeepsItsDistanceFromThePointer)
	{
		ShowSlider(20.0f, 80.0f, 0.0f);
		PressAndMove(23.0, 33.0);
		EXPECT_EQ(TakeEvents(), "30-80");
		Driver.Release();
	}

	TEST_F(FHxRangeSliderDragTest, PressOnAHandleMovesNothing)
	{
		ShowSlider(20.0f, 80.0f);
		ClickAt(83.0);
		ClickAt(18.0);
		EXPECT_EQ(TakeEvents(), "");
	}

	TEST_F(FHxRangeSliderDragTest, HandlesStopAtTheLimitsAndAtEachOther)
	{
		ShowSlider(20.0f, 80.0f);
		PressAndMove(20.0, -400.0);
		EXPECT_EQ(TakeEvents(), "0-80");
		Driver.MoveTo(At(400.0));
		Driver.Release();
		EXPECT_EQ(TakeEvents(), "80-80 commit(80-80)");
		Slider->SetRange(20.0f, 80.0f);
		PressAndMove(80.0, 400.0);
		Driver.MoveTo(At(-400.0));
		Driver.Release();
		EXPECT_EQ(TakeEvents(), "20-100 20-20 commit(20-20)");
	}

	TEST_F(FHxRangeSliderDragTest, MinimumSpanHoldsTheHandlesApart)
	{
		Slider->MinimumSpan = 15.0f;
		ShowSlider(20.0f, 80.0f, 10.0f);
		PressAndMove(20.0, 100.0);
		EXPECT_EQ(TakeEvents(), "60-80") << "the last step that is far enough away";
		Driver.Release();
		PressAndMove(80.0, 0.0);
		Driver.Release();
		EXPECT_EQ(GetRange(), "60-80");
	}

	TEST_F(FHxRangeSliderDragTest, DragGoesByStepsAndReachesTheMaximum)
	{
		ShowSlider(0.0f, 60.0f, 30.0f);
		PressAndMove(60.0, 70.0);
		EXPECT_EQ(TakeEvents(), "") << "not half-way yet";
		Driver.MoveTo(At(78.0));
		EXPECT_EQ(TakeEvents(), "0-90");
		Driver.MoveTo(At(97.0));
		EXPECT_EQ(TakeEvents(), "0-100");
		Driver.Release();
	}

	TEST_F(FHxRangeSliderDragTest, DragOfTheStretchMovesBoth)
	{
		ShowSlider(20.0f, 60.0f);
		PressAndMove(40.0, 50.0);
		EXPECT_EQ(TakeEvents(), "30-70");
		Driver.MoveTo(At(400.0));
		EXPECT_EQ(TakeEvents(), "60-100");
		Driver.MoveTo(At(-400.0));
		EXPECT_EQ(TakeEvents(), "0-40");
		Driver.MoveTo(At(40.0));
		Driver.Release();
		EXPECT_EQ(TakeEvents(), "20-60 commit(20-60)");
	}

	TEST_F(FHxRangeSliderDragTest, StretchKeepsItsLengthByStepsUpToAMaximumBesideThem)
	{
		ShowSlider(30.0f, 60.0f, 30.0f);
		PressAndMove(45.0, 74.0);
		EXPECT_EQ(TakeEvents(), "60-90");
		Driver.MoveTo(At(100.0));
		EXPECT_EQ(TakeEvents(), "60-100");
		Driver.MoveTo(At(45.0));
		Driver.Release();
		EXPECT_EQ(TakeEvents(), "30-60 commit(30-60)");
	}

	TEST_F(FHxRangeSliderDragTest, ClickOnTheBarMovesTheNearerHandleThere)
	{
		ShowSlider(40.0f, 60.0f);
		ClickAt(10.0);
		EXPECT_EQ(TakeEvents(), "10-60 commit(10-60)");
		ClickAt(90.0);
		EXPECT_EQ(TakeEvents(), "10-90 commit(10-90)");
		ClickAt(30.0);
		EXPECT_EQ(TakeEvents(), "30-90 commit(30-90)") << "also between them";
		ClickAt(80.0);
		EXPECT_EQ(TakeEvents(), "30-80 commit(30-80)");
	}

	TEST_F(FHxRangeSliderDragTest, PressOutsideTheHandlesGoesOnAsADrag)
	{
		ShowSlider(40.0f, 60.0f);
		PressAndMove(10.0, 20.0);
		Driver.Release();
		EXPECT_EQ(TakeEvents(), "10-60 20-60 commit(20-60)");
	}

	TEST_F(FHxRangeSliderDragTest, WholeRangeHasNoRoomToBeMovedSoTheNearerHandleComes)
	{
		ShowSlider();
		PressAndMove(30.0, 35.0);
		Driver.Release();
		EXPECT_EQ(TakeEvents(), "30-100 35-100 commit(35-100)");
	}

	TEST_F(FHxRangeSliderDragTest, OnOnePlaceTheDirectionDecides)
	{
		ShowSlider(50.0f, 50.0f);
		PressAndMove(50.0, 40.0);
		Driver.MoveTo(At(60.0));
		Driver.Release();
		EXPECT_EQ(TakeEvents(), "40-50 50-50 commit(50-50)") << "once decided it stays so";
		PressAndMove(50.0, 60.0);
		Driver.Release();
		EXPECT_EQ(TakeEvents(), "50-60 commit(50-60)");
	}

	TEST_F(FHxRangeSliderDragTest, OnOnePlaceAtALimitTheOneThatCanMoveDoes)
	{
		ShowSlider(100.0f, 100.0f);
		PressAndMove(100.0, 110.0);
		Driver.MoveTo(At(90.0));
		EXPECT_EQ(TakeEvents(), "90-100");
		Driver.Release();
		Slider->SetRange(0.0f, 0.0f);
		TakeEvents();
		PressAndMove(0.0, -10.0);
		Driver.MoveTo(At(10.0));
		EXPECT_EQ(TakeEvents(), "0-10");
		Driver.Release();
	}

	TEST_F(FHxRangeSliderDragTest, HandlesThatOverlapAreTakenByTheNearerMiddle)
	{
		ShowSlider(50.0f, 52.0f);
		PressAndMove(50.5, 45.5);
		Driver.Release();
		EXPECT_EQ(GetRange(), "45-52");
		Slider->SetRange(50.0f, 52.0f);
		PressAndMove(51.5, 61.5);
		Driver.Release();
		EXPECT_EQ(GetRange(), "50-62");
	}

	TEST_F(FHxRangeSliderDragTest, EscapeTakesTheDragBack)
	{
		ShowSlider(20.0f, 80.0f);
		PressAndMove(20.0, 40.0);
		TakeEvents();
		Driver.PressKey(EKeys::Escape);
		EXPECT_EQ(TakeEvents(), "20-80") << "changed, but nothing is committed";
		EXPECT_FALSE(FSlateApplication::Get().HasAnyMouseCaptor());
		Driver.MoveTo(At(60.0));
		Driver.Release();
		EXPECT_EQ(TakeEvents(), "");
		EXPECT_EQ(GetRange(), "20-80");
	}

	TEST_F(FHxRangeSliderDragTest, EscapeOfADragThatMovedNothingTellsNothing)
	{
		ShowSlider(20.0f, 80.0f);
		PressAndMove(20.0, 20.0);
		Driver.PressKey(EKeys::Escape);
		Driver.Release();
		EXPECT_EQ(TakeEvents(), "");
	}

	TEST_F(FHxRangeSliderDragTest, LostCaptureEndsTheDragWithACommit)
	{
		ShowSlider(20.0f, 80.0f);
		PressAndMove(20.0, 40.0);
		FSlateApplication::Get().ReleaseAllPointerCapture();
		EXPECT_EQ(TakeEvents(), "40-80 commit(40-80)");
		Driver.MoveTo(At(60.0));
		Driver.Release();
		EXPECT_EQ(TakeEvents(), "");
	}

	TEST_F(FHxRangeSliderDragTest, LostCaptureOfAPressOnTheStretchIsNoClick)
	{
		ShowSlider(20.0f, 80.0f);
		PressAndMove(40.0, 40.0);
		FSlateApplication::Get().ReleaseAllPointerCapture();
		Driver.Release();
		EXPECT_EQ(TakeEvents(), "");
	}

	TEST_F(FHxRangeSliderDragTest, DragBackToWhereItBeganIsCommittedToo)
	{
		ShowSlider(20.0f, 80.0f);
		PressAndMove(20.0, 40.0);
		Driver.MoveTo(At(20.0));
		Driver.Release();
		EXPECT_EQ(TakeEvents(), "40-80 20-80 commit(20-80)") << "a listener may have shown what was in between";
	}

	TEST_F(FHxRangeSliderDragTest, OtherButtonsDoNothing)
	{
		ShowSlider(20.0f, 80.0f);
		Driver.MoveTo(At(50.0));
		Driver.Press(EKeys::RightMouseButton);
		Driver.MoveTo(At(90.0));
		Driver.Release(EKeys::RightMouseButton);
		EXPECT_EQ(TakeEvents(), "");
		PressAndMove(20.0, 30.0);
		Driver.Press(EKeys::RightMouseButton);
		Driver.Release(EKeys::RightMouseButton);
		Driver.MoveTo(At(35.0));
		Driver.Release();
		EXPECT_EQ(TakeEvents(), "30-80 35-80 commit(35-80)") << "nor in a drag";
	}

	TEST_F(FHxRangeSliderDragTest, DoubleClickIsTwoClicks)
	{
		ShowSlider(40.0f, 60.0f);
		Driver.DoubleClickAt(At(10.0));
		EXPECT_EQ(TakeEvents(), "10-60 commit(10-60)");
		EXPECT_FALSE(FSlateApplication::Get().HasAnyMouseCaptor());
	}

	TEST_F(FHxRangeSliderDragTest, LockedAndDisabledOnesStay)
	{
		ShowSlider(20.0f, 80.0f);
		Slider->SetLocked(true);
		PressAndMove(20.0, 40.0);
		Driver.Release();
		ClickAt(50.0);
		EXPECT_EQ(TakeEvents(), "");
		Slider->SetLocked(false);
		Slider->SetIsEnabled(false);
		PressAndMove(20.0, 40.0);
		Driver.Release();
		EXPECT_EQ(TakeEvents(), "");
		Slider->SetIsEnabled(true);
		PressAndMove(20.0, 40.0);
		Driver.Release();
		EXPECT_EQ(TakeEvents(), "40-80 commit(40-80)");
	}

	TEST_F(FHxRangeSliderDragTest, LockedInADragItStaysWhereItIs)
	{
		ShowSlider(20.0f, 80.0f);
		PressAndMove(20.0, 40.0);
		Slider->SetLocked(true);
		Driver.MoveTo(At(60.0));
		Driver.Release();
		EXPECT_EQ(TakeEvents(), "40-80 commit(40-80)");
	}

	TEST_F(FHxRangeSliderDragTest, LimitsThatChangeInADragHoldForTheRestOfIt)
	{
		ShowSlider(20.0f, 80.0f);
		PressAndMove(20.0, 40.0);
		Slider->SetLimits(0.0f, 200.0f);
		TakeEvents();
		Driver.MoveTo(At(10.0));
		EXPECT_EQ(TakeEvents(), "20-80");
		Slider->SetLimits(50.0f, 50.0f);
		Driver.MoveTo(At(30.0));
		Driver.Release();
		EXPECT_EQ(TakeEvents(), "commit(50-50)");
	}

	TEST_F(FHxRangeSliderDragTest, ListenerMayTakeTheSliderAway)
	{
		ShowSlider(20.0f, 80.0f);
		Recorder->Probe = [this]
		{
			Screen->RemoveFromParent();
			return FString(TEXT("gone"));
		};
		PressAndMove(20.0, 40.0);
		Driver.MoveTo(At(60.0));
		Driver.Release();
		EXPECT_EQ(TakeEvents(), "40-80|gone commit(40-80)|gone") << "its capture is lost";
		Recorder->Probe = nullptr;
	}

	TEST_F(FHxRangeSliderDragTest, NoWayBetweenTheEndsIsInert)
	{
		CastChecked<UCanvasPanelSlot>(Slider->Slot)->SetSize(FVector2D(10.0, 24.0));
		ShowSlider(20.0f, 80.0f);
		PressAndMove(0.0, 40.0);
		Driver.Release();
		EXPECT_EQ(TakeEvents(), "");
	}

	TEST_F(FHxRangeSliderDragTest, PointerIsMeasuredInTheUnitsOfAScaledSlider)
	{
		Slider->SetRenderScale(FVector2D(0.5, 0.5));
		Slider->SetRenderTransformPivot(FVector2D(0.0, 0.0));
		ShowSlider(20.0f, 80.0f);
		const auto AtHalf = [](double Value) { return FVector2D(50.0, 50.0) + (At(Value) - FVector2D(50.0, 50.0)) * 0.5; };
		Driver.DragTo(AtHalf(20.0), AtHalf(40.0));
		EXPECT_EQ(GetRange(), "40-80");
	}
}
