#include "Widgets/Input/SCheckBox.h"

#include "ControlTestTools.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Layout/SBox.h"

class CheckBoxTest : public FControlTest
{
protected:
	SCheckBox::FArguments Arguments()
	{
		return SCheckBox::FArguments().OnCheckStateChanged(FOnCheckStateChanged::CreateLambda([this](ECheckBoxState State)
		{
			Log.Add(State == ECheckBoxState::Checked ? TEXT("Checked") : State == ECheckBoxState::Unchecked ? TEXT("Unchecked") : TEXT("Undetermined"));
			StateInHandler = Box->GetCheckedState();
		}));
	}

	void ShowBox(const SCheckBox::FArguments& InArguments)
	{
		Box = SArgumentNew(InArguments, SCheckBox);
		Box->SetContent(Piece("Content", 50, 10));
		Show(SNew(SBox).HAlign(HAlign_Left).VAlign(VAlign_Top)[Box.ToSharedRef()]);
	}

	TSharedPtr<SCheckBox> Box;
	TOptional<ECheckBoxState> StateInHandler;
};

TEST_F(CheckBoxTest, BoxStandsBesideTheContent)
{
	ShowBox(Arguments());
	EXPECT_EQ(DumpInside(Box.ToSharedRef()),
		"  SBorder (0, 0) 70 x 16\n"
		"    SHorizontalBox (0, 0) 70 x 16\n"
		"      SImage (0, 0) 16 x 16\n"
		"      SBorder (16, 0) 54 x 16\n"
		"        SPiece [Content] (20, 3) 50 x 10");
}

TEST_F(CheckBoxTest, ClickChecksAndUnchecksAndTells)
{
	ShowBox(Arguments());
	Click(Box.ToSharedRef());
	EXPECT_TRUE(Box->IsChecked());
	EXPECT_LOG("Checked");
	Click(Box.ToSharedRef());
	EXPECT_FALSE(Box->IsChecked());
	EXPECT_LOG("Unchecked");
}

TEST_F(CheckBoxTest, HandlerSeesTheNewState)
{
	ShowBox(Arguments());
	Click(Box.ToSharedRef());
	EXPECT_EQ(StateInHandler.GetValue(), ECheckBoxState::Checked);
}

TEST_F(CheckBoxTest, UndeterminedBecomesUncheckedByAClick)
{
	ShowBox(Arguments().IsChecked(ECheckBoxState::Undetermined));
	Click(Box.ToSharedRef());
	EXPECT_LOG("Unchecked");
}

TEST_F(CheckBoxTest, ChangeFromCodeTellsNobody)
{
	ShowBox(Arguments());
	Box->SetIsChecked(ECheckBoxState::Checked);
	EXPECT_TRUE(Box->IsChecked());
	EXPECT_LOG("");
}

TEST_F(CheckBoxTest, GetterRulesTheState)
{
	ECheckBoxState State = ECheckBoxState::Unchecked;
	ShowBox(Arguments().IsChecked(TAttribute<ECheckBoxState>::CreateLambda([&State]() { return State; })));
	Click(Box.ToSharedRef());
	EXPECT_LOG("Checked");
	EXPECT_FALSE(Box->IsChecked());
	State = ECheckBoxState::Checked;
	Frame();
	EXPECT_TRUE(Box->IsChecked());
	EXPECT_GT(Work.Painted, 0);
	Box.Reset();
	Window->SetContent(SNew(SBox));
}

TEST_F(CheckBoxTest, SpaceToggles)
{
	ShowBox(Arguments());
	App().SetKeyboardFocus(Box);
	KeyDown(EKeys::SpaceBar);
	EXPECT_LOG("");
	KeyUp(EKeys::SpaceBar);
	EXPECT_LOG("Checked");
}

TEST_F(CheckBoxTest, ReleaseBesideItChangesNothing)
{
	ShowBox(Arguments());
	MoveTo(Box.ToSharedRef());
	Press();
	EXPECT_TRUE(Box->IsPressed());
	Move(300.0f, 200.0f);
	Release();
	EXPECT_LOG("");
	EXPECT_FALSE(Box->IsPressed());
}

TEST_F(CheckBoxTest, ToggleButtonIsAroundItsContent)
{
	const FCheckBoxStyle& Style = FCoreStyle::Get().GetWidgetStyle<FCheckBoxStyle>("ToggleButtonCheckbox");
	ShowBox(Arguments().Style(&Style));
	EXPECT_EQ(DumpInside(Box.ToSharedRef()),
		"  SBorder (0, 0) 74 x 14\n"
		"    SBorder (0, 0) 74 x 14\n"
		"      SPiece [Content] (12, 2) 50 x 10");
}

TEST_F(CheckBoxTest, NewStyleOfTheOtherTypeKeepsTheContent)
{
	ShowBox(Arguments());
	Box->SetStyle(&FCoreStyle::Get().GetWidgetStyle<FCheckBoxStyle>("ToggleButtonCheckbox"));
	Frame();
	EXPECT_EQ(DumpInside(Box.ToSharedRef()),
		"  SBorder (0, 0) 74 x 14\n"
		"    SBorder (0, 0) 74 x 14\n"
		"      SPiece [Content] (12, 2) 50 x 10");
}

TEST_F(CheckBoxTest, EqualStateInvalidatesNothing)
{
	ShowBox(Arguments());
	Box->SetIsChecked(ECheckBoxState::Unchecked);
	Frame();
	EXPECT_EQ(Work.Painted, 0);
}

TEST_F(CheckBoxTest, PreciseClickIsCancelledByADrag)
{
	ShowBox(Arguments().ClickMethod(EButtonClickMethod::PreciseClick));
	Move(20.0f, 8.0f);
	Press();
	Move(22.0f, 8.0f);
	Release();
	EXPECT_LOG("Checked");
	Press();
	Move(60.0f, 8.0f);
	EXPECT_FALSE(Box->IsPressed());
	Release();
	EXPECT_LOG("");
}

TEST_F(CheckBoxTest, RingIsAroundTheBoxAloneWhenNavigationGivesTheFocus)
{
	Box = SArgumentNew(Arguments(), SCheckBox);
	Box->SetContent(Piece("Content", 50, 10));
	Show(SNew(SBox).HAlign(HAlign_Left).VAlign(VAlign_Top).Padding(10.0f)[Box.ToSharedRef()]);
	Stroke(EKeys::Tab);
	Frame();
	EXPECT_EQ(FindFocusRing(), Host::FPixelRect::Make(7, 7, 29, 29));
	App().ClearKeyboardFocus();
	Frame();
	EXPECT_TRUE(FindFocusRing().IsEmpty());
	Click(Box.ToSharedRef());
	Frame();
	EXPECT_TRUE(Box->HasKeyboardFocus());
	EXPECT_TRUE(FindFocusRing().IsEmpty());
}

TEST_F(CheckBoxTest, RingIsOverTheWholeOfAToggleButton)
{
	ShowBox(Arguments().Style(&FCoreStyle::Get().GetWidgetStyle<FCheckBoxStyle>("ToggleButtonCheckbox")));
	Stroke(EKeys::Tab);
	Frame();
	EXPECT_EQ(FindFocusRing(), Host::FPixelRect::Make(0, 0, 74, 14));
}

TEST_F(CheckBoxTest, DisabledBoxStaysAsItIs)
{
	ShowBox(Arguments());
	Box->SetEnabled(false);
	Frame();
	Click(Box.ToSharedRef());
	Stroke(EKeys::Tab);
	Stroke(EKeys::SpaceBar);
	EXPECT_LOG("");
	EXPECT_FALSE(Box->IsChecked());
}
