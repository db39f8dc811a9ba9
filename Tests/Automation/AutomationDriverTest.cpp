#include "AutomationTestTools.h"
#include "Components/EditableTextBox.h"
#include "Engine/World.h"
#include "Host/Clock.h"
#include "Host/PictureCompare.h"
#include "InputRecorder.h"

namespace
{
	class FAutomationDriverTest : public Host::FAutomationTest
	{
	protected:
		/** A pad of 200 x 100 pixels in the top left corner, with a recorder around it. */
		UInputRecorder* ShowPad()
		{
			UInputRecorder* Recorder = Show<UInputRecorder>(R"({ "Class": "CanvasPanel", "Name": "Canvas", "Children": [
				{ "Class": "Border", "Name": "Pad", "Properties": { "BrushColor": "#FF0000", "ToolTipText": "About the pad" }, "Slot": { "LayoutData": { "Offsets": { "Left": 0, "Top": 0, "Right": 200, "Bottom": 100 } } } },
				{ "Class": "Border", "Name": "Other", "Properties": { "BrushColor": "#0000FF" }, "Slot": { "LayoutData": { "Offsets": { "Left": 400, "Top": 0, "Right": 200, "Bottom": 100 } } } } ] })", TEXT("/Script/AutomationTestTypes.InputRecorder"));
			Driver.MoveTo(FVector2D(300.0, 300.0));
			Recorder->Events.Empty();
			Recorder->Places.Empty();
			return Recorder;
		}

		UUserWidget* ShowFields()
		{
			return Show(R"({ "Class": "VerticalBox", "Children": [ { "Class": "EditableTextBox", "Name": "First" }, { "Class": "EditableTextBox", "Name": "Second" }, { "Class": "TextBlock", "Name": "Label", "Properties": { "Text": "Label" } } ] })");
		}

		static std::string ListEvents(UInputRecorder& Recorder)
		{
			const FString Joined = FString::Join(Recorder.Events, TEXT(", "));
			Recorder.Events.Empty();
			Recorder.Places.Empty();
			return Host::ToStd(Joined);
		}

		std::string Read(const TCHAR* Locator, const TCHAR* Path)
		{
			FString Text;
			return Host::ToStd(Driver.Read(Locator, Path, Text) ? Text : Driver.GetError());
		}
	};

	TEST_F(FAutomationDriverTest, ClickGoesToTheMiddleOfTheWidget)
	{
		UInputRecorder* Recorder = ShowPad();
		EXPECT_TRUE(Driver.Click(TEXT("Pad"))) << Host::ToStd(Driver.GetError());
		ASSERT_EQ(Recorder->Places.Num(), 3);
		EXPECT_EQ(Recorder->Places[1], FVector2D(100.0, 50.0));
		EXPECT_EQ(ListEvents(*Recorder), "Move, Down Left, Up Left");
		EXPECT_TRUE(Driver.Click(TEXT("Pad"), EKeys::RightMouseButton));
		EXPECT_EQ(ListEvents(*Recorder), "Move, Down Right, Up Right");
	}

	TEST_F(FAutomationDriverTest, TwoClicksAreNoDoubleClickAndADoubleClickIs)
	{
		UInputRecorder* Recorder = ShowPad();
		Driver.Move(TEXT("Pad"));
		ListEvents(*Recorder);
		EXPECT_TRUE(Driver.Click(TEXT("Pad")));
		EXPECT_TRUE(Driver.Click(TEXT("Pad")));
		EXPECT_EQ(ListEvents(*Recorder), "Move, Down Left, Up Left, Move, Down Left, Up Left");
		EXPECT_TRUE(Driver.DoubleClick(TEXT("Pad")));
		EXPECT_EQ(ListEvents(*Recorder), "Move, Down Left, Up Left, Double Left, Up Left");
	}

	TEST_F(FAutomationDriverTest, DragGoesInStepsOfEqualLength)
	{
		UInputRecorder* Recorder = ShowPad();
		EXPECT_TRUE(Driver.Drag(TEXT("Pad"), TEXT("Other"), 4)) << Host::ToStd(Driver.GetError());
		EXPECT_EQ(Recorder->Places.Last(), FVector2D(500.0, 50.0));
		// What lies between the two takes no mouse.
		EXPECT_EQ(ListEvents(*Recorder), "Move, Down Left, Move, Move, Up Left");

		EXPECT_TRUE(Driver.DragBy(TEXT("Pad"), FVector2D(40.0, 20.0), 2));
		ASSERT_EQ(Recorder->Places.Num(), 5);
		EXPECT_EQ(Recorder->Places[1], FVector2D(100.0, 50.0));
		EXPECT_EQ(Recorder->Places[2], FVector2D(120.0, 60.0));
		EXPECT_EQ(Recorder->Places[3], FVector2D(140.0, 70.0));
		EXPECT_EQ(ListEvents(*Recorder), "Move, Down Left, Move, Move, Up Left");
	}

	TEST_F(FAutomationDriverTest, WheelTurnsOverTheWidget)
	{
		UInputRecorder* Recorder = ShowPad();
		EXPECT_TRUE(Driver.WheelOver(TEXT("Pad"), -2.0f));
		EXPECT_EQ(ListEvents(*Recorder), "Move, Wheel -2");
	}

	TEST_F(FAutomationDriverTest, HoverRestsUntilToolTipsAreUp)
	{
		ShowPad();
		EXPECT_EQ(Driver.Count(TEXT("text:About the pad")), 0);
		EXPECT_TRUE(Driver.Hover(TEXT("Pad")));
		EXPECT_EQ(Driver.Count(TEXT("text:About the pad")), 1);
	}

	TEST_F(FAutomationDriverTest, HeldModifiersGoWithEverything)
	{
		UInputRecorder* Recorder = ShowPad();
		EXPECT_TRUE(Driver.Click(TEXT("Pad")));
		Recorder->SetKeyboardFocus();
		ListEvents(*Recorder);
		Driver.Hold(TEXT("Ctrl+Shift"));
		EXPECT_EQ(ListEvents(*Recorder), "KeyDown LeftShift Ctrl Shift, KeyDown LeftControl Ctrl Shift");
		Driver.Click(TEXT("Pad"));
		EXPECT_EQ(ListEvents(*Recorder), "Move Ctrl Shift, Down Left Ctrl Shift, Up Left Ctrl Shift");
		Driver.Hold(TEXT("Ctrl"));
		EXPECT_EQ(ListEvents(*Recorder), "KeyUp LeftShift Ctrl");
		Driver.PressKey(EKeys::A, TEXT("Alt"));
		EXPECT_EQ(ListEvents(*Recorder), "KeyDown A Ctrl Alt, KeyUp A Ctrl Alt");
		Driver.Hold(FString());
		EXPECT_EQ(ListEvents(*Recorder), "KeyUp LeftControl");
	}

	TEST_F(FAutomationDriverTest, TextIsTypedWhereTheFocusIs)
	{
		ShowFields();
		EXPECT_TRUE(Driver.Click(TEXT("First"))) << Host::ToStd(Driver.GetError());
		Driver.Type(TEXT("Łódź 12"));
		EXPECT_EQ(Read(TEXT("First"), TEXT("Text")), "Łódź 12");
		Driver.PressKey(EKeys::A, TEXT("Ctrl"));
		Driver.PressKey(EKeys::Delete);
		EXPECT_EQ(Read(TEXT("First"), TEXT("Text")), "");
	}

	TEST_F(FAutomationDriverTest, FocusGoesByTheTabKey)
	{
		UUserWidget* Screen = ShowFields();
		EXPECT_TRUE(Driver.Focus(TEXT("Second"))) << Host::ToStd(Driver.GetError());
		Driver.Type(TEXT("two"));
		EXPECT_EQ(Read(TEXT("Second"), TEXT("Text")), "two");
		EXPECT_EQ(Read(TEXT("First"), TEXT("Text")), "");
		EXPECT_TRUE(Driver.Focus(TEXT("First")));
		EXPECT_FALSE(Driver.Focus(TEXT("Label")));
		EXPECT_EQ(Host::ToStd(Driver.GetError()), "'Label' is not reached by the Tab key");
		EXPECT_TRUE(Driver.Focus(TEXT("First")));
		Screen->GetWidgetFromName(TEXT("Second"))->SetIsEnabled(false);
		EXPECT_FALSE(Driver.Focus(TEXT("Second")));
	}

	TEST_F(FAutomationDriverTest, WaitingTurnsTheClock)
	{
		ShowPad();
		const double Start = Host::FClock::Now();
		Driver.Wait(2.0);
		EXPECT_NEAR(Host::FClock::Now() - Start, 2.0, 1.0e-3);
		int32 Asked = 0;
		EXPECT_TRUE(Driver.WaitUntil([&Asked] { return ++Asked > 3; }, 10.0));
		EXPECT_EQ(Asked, 4);
		EXPECT_NEAR(Host::FClock::Now() - Start, 2.05, 1.0e-3);
		EXPECT_FALSE(Driver.WaitUntil([] { return false; }, 1.0));
		EXPECT_NEAR(Host::FClock::Now() - Start, 3.05, 1.0e-3);
	}

	TEST_F(FAutomationDriverTest, WaitsForWhatComesLater)
	{
		UInputRecorder* Recorder = ShowPad();
		UWidget* Pad = Recorder->GetWidgetFromName(TEXT("Pad"));
		Pad->SetVisibility(ESlateVisibility::Hidden);
		FTimerHandle Handle;
		GEngine->GetGameInstance()->GetWorld()->GetTimerManager().SetTimer(Handle, FTimerDelegate::CreateWeakLambda(Pad, [Pad] { Pad->SetVisibility(ESlateVisibility::Visible); }), 1.0f, false);
		EXPECT_FALSE(Driver.WaitFor(TEXT("Pad"), 0.5));
		EXPECT_EQ(Host::ToStd(Driver.GetError()), "after 0.5 seconds 'Pad' is there, but it is hidden");
		EXPECT_TRUE(Driver.WaitFor(TEXT("Pad"), 1.0));
	}

	TEST_F(FAutomationDriverTest, PropertiesAreReadByPath)
	{
		ShowPad();
		EXPECT_EQ(Read(TEXT("Pad"), TEXT("Slot.LayoutData.Offsets.Right")).substr(0, 3), "200");
		EXPECT_EQ(Read(TEXT("Pad"), TEXT("ToolTipText")), "About the pad");
		EXPECT_EQ(Read(TEXT("Pad"), TEXT("Nothing")), "Border has no property 'Nothing'");
		EXPECT_EQ(Read(TEXT("Pat"), TEXT("Nothing")), "there is no widget 'Pat'; the nearest is 'Pad'");
	}

	TEST_F(FAutomationDriverTest, PictureOfAWidgetIsWhatIsInViewOfIt)
	{
		ShowPad();
		Host::FPicture Picture;
		ASSERT_TRUE(Driver.TakePictureOf(TEXT("Other"), Picture)) << Host::ToStd(Driver.GetError());
		EXPECT_EQ(Picture.Size, FIntPoint(200, 100));
		ASSERT_EQ(Picture.Pixels.Num(), 20000);
		for (const FColor& Pixel : Picture.Pixels)
		{
			ASSERT_EQ(Pixel, FColor(0, 0, 255, 255));
		}
		const FString File = Content.GetFolder() + TEXT("/pad.png");
		ASSERT_TRUE(Driver.TakePictureOf(TEXT("Pad"), File)) << Host::ToStd(Driver.GetError());
		FString Error;
		ASSERT_TRUE(Host::LoadPicture(File, Picture, Error)) << Host::ToStd(Error);
		EXPECT_EQ(Picture.At(199, 99), FColor(255, 0, 0, 255));
	}

	TEST_F(FAutomationDriverTest, StepThatCannotBeDoneDoesNothing)
	{
		UInputRecorder* Recorder = ShowPad();
		const double Start = Host::FClock::Now();
		EXPECT_FALSE(Driver.Click(TEXT("Paddle")));
		EXPECT_FALSE(Driver.Move(TEXT("class:Border")));
		EXPECT_FALSE(Driver.Drag(TEXT("Pad"), TEXT("Nowhere at all")));
		EXPECT_FALSE(Driver.WheelOver(TEXT("Paddle"), 1.0f));
		EXPECT_FALSE(Driver.Hover(TEXT("Paddle")));
		EXPECT_EQ(ListEvents(*Recorder), "");
		EXPECT_LT(Host::FClock::Now() - Start, 1.0);
	}
}
