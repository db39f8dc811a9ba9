#include "Host/AutomationScript.h"

#include "AutomationTestTools.h"
#include "InputRecorder.h"

namespace
{
	class FAutomationScriptTest : public Host::FAutomationTest
	{
	protected:
		bool Run(const char* Text)
		{
			const FString File = Content.Write(TEXT("drive.lua"), Text);
			return Host::FAutomationScript(Loop).RunFile(File);
		}

		/** Runs a script that must fail with a line that begins with "drive.lua:" and the number of the line, and has the text in it. */
		void ExpectFailure(const char* Text, const TCHAR* Line)
		{
			const Host::FExpectedLog Failed(Line);
			EXPECT_FALSE(Run(Text));
		}

		void ShowForm()
		{
			Show(R"({ "Class": "VerticalBox", "Name": "Form", "Children": [
				{ "Class": "EditableTextBox", "Name": "First" }, { "Class": "EditableTextBox", "Name": "Second" },
				{ "Class": "TextBlock", "Name": "Gone", "Properties": { "Visibility": "Collapsed" } },
				{ "Class": "TextBlock", "Name": "Label", "Properties": { "Text": "Label", "MinDesiredWidth": 12.5 } } ] })");
		}
	};

	TEST_F(FAutomationScriptTest, HasTheSameStepsAsTheDriver)
	{
		UInputRecorder* Recorder = Show<UInputRecorder>(R"({ "Class": "Border", "Name": "Pad" })", TEXT("/Script/AutomationTestTypes.InputRecorder"));
		Driver.MoveTo(FVector2D(5.0, 5.0));
		Recorder->SetKeyboardFocus();
		Recorder->Events.Empty();
		EXPECT_TRUE(Run(R"(
			Move("Pad")
			Move(10, 20)
			Press()
			Release()
			Click("Pad", "Right")
			DoubleClick(30, 40)
			Drag("Pad", 50, 60, 2)
			DragBy("Pad", 10, 0, 1)
			Wheel("Pad", 3)
			Wheel(-1)
			Hold("Shift")
			Key("B", "Ctrl")
			Hold()
			Hover(1, 1, 0.1)
		)"));
		EXPECT_EQ(Host::ToStd(FString::Join(Recorder->Events, TEXT(", "))),
			"Move, Move, Down Left, Up Left, Move, Down Right, Up Right, Move, Down Left, Up Left, Double Left, Up Left, "
			"Move, Down Left, Move, Move, Up Left, Move, Down Left, Move, Up Left, Move, Wheel 3, Wheel -1, "
			"KeyDown LeftShift Shift, KeyDown B Ctrl Shift, KeyUp B Ctrl Shift, KeyUp LeftShift, Move");
	}

	TEST_F(FAutomationScriptTest, ReadsWhatIsOnTheScreen)
	{
		ShowForm();
		EXPECT_TRUE(Run(R"(
			Focus("Second")
			Type("two")
			Expect(Read("Second", "Text") == "two", "text")
			Expect(Read("Label", "MinDesiredWidth") == 12.5, "number")
			Expect(Read("Label", "Slot.Padding").Left == 0, "structure")
			Expect(Read("Label", "bIsEnabled") == true, "switch")
			Expect(Count("class:EditableTextBox") == 2, "count")
			Expect(Find("Label"):GetText() == "Label", "handle")
			Expect(Find("Gone") == nil, "hidden")
			Expect(Find("Nobody") == nil, "nobody")
			WaitFor("Label")
			local Left = 3
			WaitUntil(function() Left = Left - 1 return Left == 0 end, 1)
		)"));
	}

	TEST_F(FAutomationScriptTest, FailuresNameTheLineAndTheReason)
	{
		ShowForm();
		ExpectFailure("Wait(0)\nClick('Labl')", TEXT("drive.lua:2: there is no widget 'Labl'; the nearest is 'Label'"));
		ExpectFailure("Click('Gone')", TEXT("drive.lua:1: 'Gone' is there, but it is collapsed"));
		ExpectFailure("Move('class:EditableTextBox')", TEXT("drive.lua:1: 'class:EditableTextBox' are 2 widgets"));
		ExpectFailure("Find('class:EditableTextBox')", TEXT("drive.lua:1: 'class:EditableTextBox' are 2 widgets"));
		ExpectFailure("Read('Label', 'Nothing')", TEXT("drive.lua:1: TextBlock has no property 'Nothing'"));
		ExpectFailure("Focus('Label')", TEXT("drive.lua:1: 'Label' is not reached by the Tab key"));
		ExpectFailure("WaitFor('Labl', 0.2)", TEXT("drive.lua:1: after 0.2 seconds there is no widget 'Labl'"));
		ExpectFailure("WaitUntil(function() end, 0.2)", TEXT("drive.lua:1: what was waited for did not come within 0.2 seconds"));
		ExpectFailure("Expect(1 > 2, 'one is less')", TEXT("drive.lua:1: one is less"));
		ExpectFailure("Key('Nokey')", TEXT("drive.lua:1: there is no key 'Nokey'"));
		ExpectFailure("Key('A', 'Strg')", TEXT("drive.lua:1: there is no modifier 'Strg'; there are Ctrl, Shift and Alt"));
		ExpectFailure("Click('Label', 'Top')", TEXT("drive.lua:1: there is no mouse button 'Top'"));
		ExpectFailure("Drag('Label', 1, 1, 0)", TEXT("drive.lua:1: a drag has 1 to 10000 steps"));
		ExpectFailure("Click()", TEXT("drive.lua:1: bad argument #1 to 'Click'"));
		const Host::FExpectedLog Unwritten(TEXT("/dev/null/x.png: cannot be written"));
		ExpectFailure("PictureOf('Label', '/dev/null/x.png')", TEXT("drive.lua:1: /dev/null"));
	}

	TEST_F(FAutomationScriptTest, WhatCoversAWidgetIsNamed)
	{
		ShowForm();
		Show(R"({ "Class": "Border", "Name": "Curtain" })");
		ExpectFailure("Click('Label')", TEXT("drive.lua:1: 'Label' is covered by 'Curtain'"));
	}

	TEST_F(FAutomationScriptTest, ConditionThatDoesNotEndIsEnded)
	{
		const Host::FExpectedLog Ended(TEXT("was ended"));
		EXPECT_FALSE(Run("WaitUntil(function() while true do end end)"));
	}
}
