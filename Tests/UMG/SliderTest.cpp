#include "EngineTest.h"

#include "Components/CanvasPanel.h"
#include "Components/CanvasPanelSlot.h"
#include "Components/Slider.h"
#include "ControlListener.h"
#include "Engine/Engine.h"
#include "Engine/GameViewportClient.h"
#include "Host/SlateCounters.h"
#include "UObject/StrongObjectPtr.h"

namespace
{
	/** A slider at (50, 50) whose handle of 14 units has 100 units of way, and somebody who listens to it. */
	class FSliderTest : public Host::FEngineTest
	{
	protected:
		virtual void SetUp() override
		{
			Canvas.Reset(NewObject<UCanvasPanel>());
			Listener.Reset(NewObject<UControlListener>());
			Slider = NewObject<USlider>(Canvas.Get());
			Listener->Listen(*Slider);
			Place = Canvas->AddChildToCanvas(Slider);
			Place->SetPosition(FVector2D(50.0, 50.0));
			Place->SetSize(FVector2D(114.0, 20.0));
		}

		void Show()
		{
			GEngine->GameViewport->AddViewportWidgetContent(Canvas->TakeWidget());
			Driver.MoveTo(FVector2D(300.0, 300.0));
		}

		/** Where the handle is along a horizontal slider at a share of the way. */
		static FVector2D At(double Share) { return FVector2D(57.0 + 100.0 * Share, 60.0); }

		/** What the listener heard since the last question. */
		std::string ListEvents()
		{
			const std::string Events = Host::ToStd(Listener->Events);
			Listener->Events.Empty();
			return Events;
		}

		TStrongObjectPtr<UCanvasPanel> Canvas;
		TStrongObjectPtr<UControlListener> Listener;
		USlider* Slider = nullptr;
		UCanvasPanelSlot* Place = nullptr;
	};

	TEST_F(FSliderTest, DragChangesTheValueAndTellsAfterwards)
	{
		Show();
		Driver.MoveTo(At(0.25));
		Driver.Press();
		EXPECT_EQ(ListEvents(), "Begin 0.25 ");
		Driver.MoveTo(At(0.75));
		EXPECT_EQ(ListEvents(), "0.75 ");
		Driver.MoveTo(At(3.0));
		EXPECT_EQ(ListEvents(), "1 ");
		Driver.Release();
		EXPECT_EQ(ListEvents(), "End ");
		EXPECT_EQ(Slider->GetValue(), 1.0f);
	}

	TEST_F(FSliderTest, SettingFromCodeRaisesNothing)
	{
		Slider->SetValue(0.25f);
		EXPECT_EQ(Slider->GetValue(), 0.25f);
		Show();
		EXPECT_EQ(Slider->GetValue(), 0.25f);
		Slider->SetValue(0.5f);
		EXPECT_EQ(Slider->GetValue(), 0.5f);
		EXPECT_EQ(ListEvents(), "");
	}

	TEST_F(FSliderTest, ValueOutlivesTheSlateSide)
	{
		Show();
		Driver.SingleClickAt(At(0.5));
		Canvas->ReleaseSlateResources(true);
		EXPECT_EQ(Slider->GetValue(), 0.5f);
		Show();
		EXPECT_EQ(Slider->GetValue(), 0.5f);
	}

	TEST_F(FSliderTest, RangeIsThatOfMinimumAndMaximum)
	{
		Slider->SetMinValue(10.0f);
		Slider->SetMaxValue(20.0f);
		Slider->SetValue(12.5f);
		EXPECT_EQ(Slider->GetNormalizedValue(), 0.25f);
		Show();
		EXPECT_EQ(Slider->GetNormalizedValue(), 0.25f);
		Driver.SingleClickAt(At(0.5));
		EXPECT_EQ(ListEvents(), "Begin 15 End ");
		Slider->SetMaxValue(30.0f);
		EXPECT_EQ(Slider->GetNormalizedValue(), 0.25f);
	}

	TEST_F(FSliderTest, EmptyRangeIsAtItsEnd)
	{
		Slider->SetMaxValue(0.0f);
		EXPECT_EQ(Slider->GetNormalizedValue(), 1.0f);
		Show();
		EXPECT_EQ(Slider->GetNormalizedValue(), 1.0f);
	}

	TEST_F(FSliderTest, VerticalOneRisesUpwards)
	{
		Slider->SetOrientation(Orient_Vertical);
		Place->SetSize(FVector2D(20.0, 114.0));
		Show();
		Driver.SingleClickAt(FVector2D(60.0, 57.0 + 25.0));
		EXPECT_EQ(ListEvents(), "Begin 0.75 End ");
	}

	TEST_F(FSliderTest, ArrowKeysMoveBySteps)
	{
		Show();
		Slider->SetStepSize(0.25f);
		Slider->SetFocus();
		Driver.PressKey(EKeys::Right);
		Driver.PressKey(EKeys::Right);
		Driver.PressKey(EKeys::Left);
		EXPECT_EQ(ListEvents(), "0.25 0.5 0.25 ");
	}

	TEST_F(FSliderTest, MouseUsesStepsWhenAsked)
	{
		Slider->MouseUsesStep = true;
		Slider->SetStepSize(0.25f);
		Show();
		Driver.SingleClickAt(At(0.55));
		EXPECT_EQ(ListEvents(), "Begin 0.5 End ");
	}

	TEST_F(FSliderTest, LockedOneStays)
	{
		Show();
		Slider->SetLocked(true);
		Driver.SingleClickAt(At(0.5));
		Slider->SetFocus();
		Driver.PressKey(EKeys::Right);
		EXPECT_EQ(ListEvents(), "");
		EXPECT_EQ(Slider->GetValue(), 0.0f);
	}

	TEST_F(FSliderTest, WheelMovesNothing)
	{
		Show();
		Driver.MoveTo(At(0.5));
		Driver.Wheel(1.0f);
		EXPECT_EQ(ListEvents(), "");
	}

	TEST_F(FSliderTest, EqualLooksCostNothing)
	{
		Show();
		Slider->SetSliderBarColor(FLinearColor::Red);
		Slider->SetSliderHandleColor(FLinearColor::Green);
		Slider->SetIndentHandle(false);
		const Host::FSlateCounters Start = Host::FSlateCounters::Get();
		Loop.RunFrame(0.016);
		EXPECT_EQ((Host::FSlateCounters::Get() - Start).Painted, 1);
		Slider->SetSliderBarColor(FLinearColor::Red);
		Slider->SetSliderHandleColor(FLinearColor::Green);
		Slider->SetIndentHandle(false);
		const Host::FSlateCounters Before = Host::FSlateCounters::Get();
		Loop.RunFrame(0.016);
		EXPECT_EQ((Host::FSlateCounters::Get() - Before).Painted, 0);
	}
}
