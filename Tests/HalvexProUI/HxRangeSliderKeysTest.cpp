#include "HxRangeSliderTest.h"

#include "Components/Button.h"
#include "Components/ScrollBox.h"
#include "Components/Spacer.h"
#include "Framework/Application/SlateApplication.h"
#include "InputCoreTypes.h"

namespace
{
	/** The slider with a button before and after it. */
	class FHxRangeSliderKeysTest : public FHxRangeSliderTest
	{
	protected:
		/** Shows it with the keyboard at the lower handle. */
		void ShowFocused(float Lower = 20.0f, float Upper = 80.0f, float StepSize = 1.0f)
		{
			ShowSlider(Lower, Upper, StepSize);
			Slider->SetFocus();
		}

		void Press(const FKey& Key, const TCHAR* Modifiers = TEXT("")) { Driver.PressKey(Key, Modifiers); }
	};

	TEST_F(FHxRangeSliderKeysTest, ArrowsStepTheHandleAndEachStepIsCommitted)
	{
		ShowFocused();
		Press(EKeys::Right);
		Press(EKeys::Up);
		EXPECT_EQ(TakeEvents(), "21-80 commit(21-80) 22-80 commit(22-80)");
		Press(EKeys::Left);
		Press(EKeys::Down);
		EXPECT_EQ(TakeEvents(), "21-80 commit(21-80) 20-80 commit(20-80)");
	}

	TEST_F(FHxRangeSliderKeysTest, TabGoesFromTheLowerHandleToTheUpperAndOn)
	{
		UButton* Before = Make<UButton>();
		UButton* After = Make<UButton>();
		Slider->RemoveFromParent();
		Place(*Before, 10.0, 10.0, FVector2D(20.0, 20.0));
		Place(*Slider, 50.0, 50.0, FVector2D(216.0, 24.0));
		Place(*After, 300.0, 100.0, FVector2D(20.0, 20.0));
		ShowSlider(20.0f, 80.0f);
		Before->SetFocus();
		Press(EKeys::Tab);
		Press(EKeys::Right);
		EXPECT_EQ(GetRange(), "21-80");
		Press(EKeys::Tab);
		Press(EKeys::Left);
		EXPECT_EQ(GetRange(), "21-79");
		Press(EKeys::Tab);
		EXPECT_TRUE(After->HasKeyboardFocus());
		Press(EKeys::Right);
		EXPECT_EQ(GetRange(), "21-79") << "the slider has let go";
		After->SetFocus();
		Press(EKeys::Tab, TEXT("Shift"));
		Press(EKeys::Right);
		EXPECT_EQ(GetRange(), "21-80");
		Press(EKeys::Tab, TEXT("Shift"));
		Press(EKeys::Left);
		EXPECT_EQ(GetRange(), "20-80");
		Press(EKeys::Tab, TEXT("Shift"));
		EXPECT_TRUE(Before->HasKeyboardFocus());
	}

	TEST_F(FHxRangeSliderKeysTest, ShiftAndPageKeysGoTenSteps)
	{
		ShowFocused(20.0f, 80.0f, 2.0f);
		Press(EKeys::Right, TEXT("Shift"));
		Press(EKeys::Up, TEXT("Shift"));
		EXPECT_EQ(GetRange(), "60-80");
		Press(EKeys::PageDown);
		EXPECT_EQ(GetRange(), "40-80");
		Press(EKeys::PageUp);
		EXPECT_EQ(GetRange(), "60-80");
		Press(EKeys::Left, TEXT("Shift"));
		Press(EKeys::Down, TEXT("Shift"));
		EXPECT_EQ(GetRange(), "20-80");
	}

	TEST_F(FHxRangeSliderKeysTest, WithoutStepsKeysGoByHundredthsOfTheLimits)
	{
		Slider->SetLimits(0.0f, 50.0f);
		ShowFocused(10.0f, 40.0f, 0.0f);
		Press(EKeys::Right);
		EXPECT_EQ(GetRange(), "10.5-40");
		Press(EKeys::PageUp);
		EXPECT_EQ(GetRange(), "15.5-40");
	}

	TEST_F(FHxRangeSliderKeysTest, HomeAndEndGoToTheLimitsButNotPastTheOtherHandle)
	{
		ShowFocused();
		Press(EKeys::End);
		EXPECT_EQ(TakeEvents(), "80-80 commit(80-80)");
		Press(EKeys::Home);
		EXPECT_EQ(TakeEvents(), "0-80 commit(0-80)");
		Press(EKeys::Tab);
		Press(EKeys::End);
		EXPECT_EQ(TakeEvents(), "0-100 commit(0-100)");
		Slider->SetMinimumSpan(10.0f);
		Press(EKeys::Home);
		EXPECT_EQ(TakeEvents(), "0-10 commit(0-10)");
	}

	TEST_F(FHxRangeSliderKeysTest, KeysStopAtTheEndsAndKeepTheFocus)
	{
		ShowFocused(0.0f, 100.0f);
		Press(EKeys::Left);
		Press(EKeys::Home);
		EXPECT_EQ(TakeEvents(), "");
		EXPECT_TRUE(Slider->HasKeyboardFocus());
	}

	TEST_F(FHxRangeSliderKeysTest, StepsBackFromAMaximumBesideThemGoToTheLastOne)
	{
		ShowFocused(0.0f, 100.0f, 30.0f);
		Press(EKeys::Tab);
		Press(EKeys::Left);
		EXPECT_EQ(GetRange(), "0-90");
		Press(EKeys::Left);
		EXPECT_EQ(GetRange(), "0-60");
		Press(EKeys::Right);
		Press(EKeys::Right);
		EXPECT_EQ(GetRange(), "0-100");
	}

	TEST_F(FHxRangeSliderKeysTest, PressGivesTheKeyboardToTheHandleThatItTakes)
	{
		ShowSlider(20.0f, 80.0f);
		ClickAt(80.0);
		Press(EKeys::Left);
		EXPECT_EQ(GetRange(), "20-79");
		ClickAt(20.0);
		Press(EKeys::Left);
		EXPECT_EQ(GetRange(), "19-79");
		ClickAt(90.0);
		Press(EKeys::Left);
		EXPECT_EQ(GetRange(), "19-89");
	}

	TEST_F(FHxRangeSliderKeysTest, HandleThatADirectionChoseGetsTheKeyboard)
	{
		ShowSlider(50.0f, 50.0f);
		PressAndMove(50.0, 60.0);
		Driver.Release();
		Press(EKeys::Right);
		EXPECT_EQ(GetRange(), "50-61");
		Slider->SetRange(50.0f, 50.0f);
		PressAndMove(50.0, 40.0);
		Driver.Release();
		Press(EKeys::Right);
		EXPECT_EQ(GetRange(), "41-50");
	}

	TEST_F(FHxRangeSliderKeysTest, PressOnTheStretchLeavesTheKeyboardWhereItIs)
	{
		ShowSlider(20.0f, 60.0f);
		ClickAt(60.0);
		PressAndMove(30.0, 40.0);
		Driver.Release();
		EXPECT_EQ(GetRange(), "30-70");
		Press(EKeys::Right);
		EXPECT_EQ(GetRange(), "30-71");
	}

	TEST_F(FHxRangeSliderKeysTest, KeysWaitForTheEndOfADrag)
	{
		ShowSlider(20.0f, 80.0f);
		PressAndMove(20.0, 40.0);
		TakeEvents();
		Press(EKeys::Right);
		Press(EKeys::Home);
		EXPECT_EQ(TakeEvents(), "");
		EXPECT_TRUE(Slider->HasKeyboardFocus());
		Driver.Release();
		Press(EKeys::Right);
		EXPECT_EQ(GetRange(), "41-80");
	}

	TEST_F(FHxRangeSliderKeysTest, ShortcutsAndOtherKeysAreLeftToOthers)
	{
		ShowFocused();
		const auto IsTaken = [](const FKey& Key, bool bControl)
		{
			const FModifierKeysState Keys(false, false, bControl, false, false, false, false, false, false);
			return FSlateApplication::Get().ProcessKeyDownEvent(FKeyEvent(Key, Keys, 0, false, 0, 0));
		};
		EXPECT_FALSE(IsTaken(EKeys::Escape, false)) << "closes what the slider stands in";
		EXPECT_FALSE(IsTaken(EKeys::Home, true));
		EXPECT_FALSE(IsTaken(EKeys::Enter, false));
		EXPECT_TRUE(IsTaken(EKeys::Home, false));
	}

	TEST_F(FHxRangeSliderKeysTest, LockedOneIgnoresKeysAndWheel)
	{
		ShowFocused();
		Slider->SetLocked(true);
		Driver.MoveTo(At(50.0));
		Press(EKeys::Right);
		Driver.Wheel(1.0f);
		EXPECT_EQ(TakeEvents(), "");
	}

	TEST_F(FHxRangeSliderKeysTest, InertOneIsPassedByTheFocus)
	{
		UButton* Button = Make<UButton>();
		Place(*Button, 300.0, 100.0, FVector2D(20.0, 20.0));
		ShowSlider();
		Slider->SetLimits(5.0f, 5.0f);
		Press(EKeys::Tab);
		EXPECT_TRUE(Button->HasKeyboardFocus());
		Press(EKeys::Tab);
		EXPECT_TRUE(Button->HasKeyboardFocus()) << "all around";
	}

	TEST_F(FHxRangeSliderKeysTest, FocusedHandleFollowsTheWheelAStepATurn)
	{
		ShowFocused();
		Driver.MoveTo(At(50.0));
		Driver.Wheel(1.0f);
		EXPECT_EQ(TakeEvents(), "21-80 commit(21-80)");
		Driver.Wheel(-3.0f);
		EXPECT_EQ(TakeEvents(), "20-80 commit(20-80)") << "however far it went";
		Press(EKeys::Tab);
		Driver.Wheel(1.0f);
		EXPECT_EQ(TakeEvents(), "20-81 commit(20-81)");
	}

	TEST_F(FHxRangeSliderKeysTest, WheelScrollsThePageUnlessTheSliderHasTheKeyboard)
	{
		UScrollBox* Page = Make<UScrollBox>();
		Slider->RemoveFromParent();
		Page->AddChild(Slider);
		USpacer* Rest = Make<USpacer>();
		Rest->SetSize(FVector2D(10.0, 2000.0));
		Page->AddChild(Rest);
		Place(*Page, 50.0, 50.0, FVector2D(216.0, 200.0));
		ShowSlider(20.0f, 80.0f);
		Driver.MoveTo(At(50.0));
		Driver.Wheel(-1.0f);
		Driver.Wait(1.0);
		EXPECT_GT(Page->GetScrollOffset(), 0.0f);
		EXPECT_EQ(TakeEvents(), "");
		Page->SetScrollOffset(0.0f);
		Settle();
		Slider->SetFocus();
		Driver.Wheel(-1.0f);
		Driver.Wait(1.0);
		EXPECT_EQ(Page->GetScrollOffset(), 0.0f);
		EXPECT_EQ(TakeEvents(), "19-80 commit(19-80)");
	}
}
