#include "Widgets/Input/SSlider.h"

#include "ControlTestTools.h"
#include "Widgets/Layout/SBox.h"

class SliderTest : public FControlTest
{
protected:
	/** A slider of 114 x 20 at the top left, so that its handle of 14 units has 100 units of way. */
	void ShowSlider(const SSlider::FArguments& InArguments, float Width = 114.0f, float Height = 20.0f)
	{
		Slider = SArgumentNew(InArguments, SSlider);
		Slider->SetValue(0.0f);
		Show(SNew(SBox).HAlign(HAlign_Left).VAlign(VAlign_Top)
		[
			SNew(SBox).WidthOverride(Width).HeightOverride(Height)[Slider.ToSharedRef()]
		]);
	}

	SSlider::FArguments Arguments()
	{
		return SSlider::FArguments()
			.OnValueChanged(FOnFloatValueChanged::CreateLambda([this](float Value) { Log.Add(FString::Printf(TEXT("%g"), FMath::RoundToFloat(Value * 1000.0f) / 1000.0f)); }))
			.OnMouseCaptureBegin(FSimpleDelegate::CreateLambda([this]() { Log.Add(TEXT("Begin")); }))
			.OnMouseCaptureEnd(FSimpleDelegate::CreateLambda([this]() { Log.Add(TEXT("End")); }));
	}

	TSharedPtr<SSlider> Slider;
};

TEST_F(SliderTest, DragMovesTheValueAndTells)
{
	ShowSlider(Arguments());
	Move(57.0f, 10.0f);
	Press();
	EXPECT_LOG("Begin 0.5");
	Move(82.0f, 10.0f);
	EXPECT_LOG("0.75");
	Move(500.0f, 10.0f);
	EXPECT_LOG("1");
	Release();
	EXPECT_LOG("End");
	EXPECT_EQ(Slider->GetValue(), 1.0f);
}

TEST_F(SliderTest, RangeIsThatOfMinimumAndMaximum)
{
	ShowSlider(Arguments().MinValue(10.0f).MaxValue(20.0f));
	Move(57.0f, 10.0f);
	Press();
	EXPECT_LOG("Begin 15");
	EXPECT_NEAR(Slider->GetNormalizedValue(), 0.5f, 0.001f);
	Release();
}

TEST_F(SliderTest, VerticalSliderRisesUpwards)
{
	ShowSlider(Arguments().Orientation(Orient_Vertical), 20.0f, 114.0f);
	Move(10.0f, 32.0f);
	Press();
	EXPECT_LOG("Begin 0.75");
	Release();
}

TEST_F(SliderTest, ArrowKeysMoveBySteps)
{
	ShowSlider(Arguments().StepSize(0.25f));
	App().SetKeyboardFocus(Slider);
	EXPECT_TRUE(KeyDown(EKeys::Right));
	EXPECT_TRUE(KeyDown(EKeys::Right));
	EXPECT_TRUE(KeyDown(EKeys::Left));
	EXPECT_LOG("0.25 0.5 0.25");
}

TEST_F(SliderTest, MouseMovesBySteps)
{
	ShowSlider(Arguments().StepSize(0.25f).MouseUsesStep(true));
	Move(60.0f, 10.0f);
	Press();
	EXPECT_LOG("Begin 0.5");
	Release();
}

TEST_F(SliderTest, LockedSliderStays)
{
	ShowSlider(Arguments().Locked(true));
	Move(57.0f, 10.0f);
	EXPECT_FALSE(Press());
	Release();
	EXPECT_LOG("");
}

TEST_F(SliderTest, ChangeFromCodeTellsNobodyAndPaintsOnly)
{
	ShowSlider(Arguments());
	Slider->SetValue(0.5f);
	Frame();
	EXPECT_LOG("");
	EXPECT_EQ(Work.Measured, 0);
	EXPECT_EQ(Work.Painted, 1);
	Slider->SetValue(0.5f);
	Frame();
	EXPECT_EQ(Work.Painted, 0);
}

TEST_F(SliderTest, RingIsAroundTheHandleAndGoesWithIt)
{
	ShowSlider(Arguments().StepSize(0.5f));
	Stroke(EKeys::Tab);
	Frame();
	EXPECT_EQ(FindFocusRing(), Host::FPixelRect::Make(0, 0, 17, 20));
	Stroke(EKeys::Right);
	Frame();
	EXPECT_EQ(FindFocusRing(), Host::FPixelRect::Make(47, 0, 67, 20));
}

TEST_F(SliderTest, KeysStopAtTheEnds)
{
	ShowSlider(Arguments().StepSize(0.75f));
	App().SetKeyboardFocus(Slider);
	EXPECT_TRUE(KeyDown(EKeys::Left));
	EXPECT_LOG("");
	EXPECT_TRUE(KeyDown(EKeys::Right));
	EXPECT_TRUE(KeyDown(EKeys::Right));
	EXPECT_TRUE(KeyDown(EKeys::Right));
	EXPECT_LOG("0.75 1");
}

TEST_F(SliderTest, KeysAcrossMoveTheFocus)
{
	ShowSlider(Arguments());
	App().SetKeyboardFocus(Slider);
	KeyDown(EKeys::Down);
	KeyDown(EKeys::Up);
	EXPECT_LOG("");
}

TEST_F(SliderTest, WheelIsLeftToWhatItStandsIn)
{
	ShowSlider(Arguments());
	Move(57.0f, 10.0f);
	EXPECT_FALSE(Turn(1.0f));
	EXPECT_LOG("");
}

TEST_F(SliderTest, DisabledSliderStays)
{
	ShowSlider(Arguments());
	App().SetKeyboardFocus(Slider);
	Slider->SetEnabled(false);
	Frame();
	Move(57.0f, 10.0f);
	Press();
	Release();
	KeyDown(EKeys::Right);
	EXPECT_LOG("");
	EXPECT_EQ(Slider->GetValue(), 0.0f);
}
