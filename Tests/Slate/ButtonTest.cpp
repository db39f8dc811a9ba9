#include "Widgets/Input/SButton.h"

#include "ControlTestTools.h"
#include "Widgets/Layout/SBox.h"

class ButtonTest : public FControlTest
{
protected:
	ButtonTest()
	{
		Style = FButtonStyle()
			.SetNormal(FSlateColorBrush(FLinearColor::Red))
			.SetHovered(FSlateColorBrush(FLinearColor::Green))
			.SetPressed(FSlateColorBrush(FLinearColor::Blue))
			.SetDisabled(FSlateColorBrush(FLinearColor::Gray))
			.SetNormalForeground(FSlateColor(FLinearColor::Red))
			.SetHoveredForeground(FSlateColor(FLinearColor::Green))
			.SetPressedForeground(FSlateColor(FLinearColor::Blue))
			.SetDisabledForeground(FSlateColor(FLinearColor::Gray))
			.SetNormalPadding(FMargin(10.0f))
			.SetPressedPadding(FMargin(10.0f));
	}

	SButton::FArguments Arguments()
	{
		return SButton::FArguments()
			.ButtonStyle(&Style)
			.ContentPadding(FMargin(0.0f))
			.OnClicked(FOnClicked::CreateLambda([this]() { return Note(TEXT("Clicked")); }))
			.OnPressed(FSimpleDelegate::CreateLambda([this]() { Note(TEXT("Pressed")); }))
			.OnReleased(FSimpleDelegate::CreateLambda([this]() { Note(TEXT("Released")); }))
			.OnHovered(FSimpleDelegate::CreateLambda([this]() { Note(TEXT("Hovered")); }))
			.OnUnhovered(FSimpleDelegate::CreateLambda([this]() { Note(TEXT("Unhovered")); }));
	}

	/** A button of 100 x 40 at the top left of the window. */
	void ShowButton(const SButton::FArguments& InArguments)
	{
		Button = SArgumentNew(InArguments, SButton);
		Button->SetContent(Piece("Content", 80, 20));
		Show(SNew(SBox).HAlign(HAlign_Left).VAlign(VAlign_Top)[Button.ToSharedRef()]);
		Log.Reset();
	}

	void ShowButton() { ShowButton(Arguments()); }

	FReply Note(const TCHAR* What)
	{
		Log.Add(What);
		return FReply::Unhandled();
	}

	FButtonStyle Style;
	TSharedPtr<SButton> Button;
};

TEST_F(ButtonTest, PaddingOfTheStyleIsAroundTheContent)
{
	ShowButton();
	EXPECT_EQ(FVector2f(Button->GetDesiredSize()), FVector2f(100.0f, 40.0f));
}

TEST_F(ButtonTest, ClickIsAPressAndAReleaseOverTheButton)
{
	ShowButton();
	Move(50.0f, 20.0f);
	EXPECT_LOG("Hovered");
	EXPECT_TRUE(Press());
	EXPECT_TRUE(Button->IsPressed());
	EXPECT_TRUE(Button->HasMouseCapture());
	EXPECT_LOG("Pressed");
	EXPECT_TRUE(Release());
	EXPECT_FALSE(Button->IsPressed());
	EXPECT_FALSE(Button->HasMouseCapture());
	EXPECT_LOG("Released Clicked");
}

TEST_F(ButtonTest, ReleaseBesideTheButtonIsNoClick)
{
	ShowButton();
	Move(50.0f, 20.0f);
	Press();
	Move(300.0f, 20.0f);
	TakeLog();
	Release();
	EXPECT_EQ(TakeLog().Contains(TEXT("Clicked")), false);
	EXPECT_FALSE(Button->IsPressed());
}

TEST_F(ButtonTest, ReleaseOfAPressElsewhereIsNoClick)
{
	ShowButton();
	Move(300.0f, 20.0f);
	Press();
	Move(50.0f, 20.0f);
	TakeLog();
	Release();
	EXPECT_LOG("");
}

TEST_F(ButtonTest, OtherMouseButtonsAreLeftToOthers)
{
	ShowButton();
	Move(50.0f, 20.0f);
	TakeLog();
	EXPECT_FALSE(Press(EKeys::RightMouseButton));
	Release(EKeys::RightMouseButton);
	EXPECT_LOG("");
}

TEST_F(ButtonTest, MouseDownClicksAtOnce)
{
	ShowButton(Arguments().ClickMethod(EButtonClickMethod::MouseDown));
	Move(50.0f, 20.0f);
	TakeLog();
	Press();
	EXPECT_LOG("Pressed Clicked");
	Release();
	EXPECT_LOG("Released");
}

TEST_F(ButtonTest, MouseUpClicksWhereverItWasPressed)
{
	ShowButton(Arguments().ClickMethod(EButtonClickMethod::MouseUp));
	Move(300.0f, 20.0f);
	Press();
	Move(50.0f, 20.0f);
	TakeLog();
	Release();
	EXPECT_LOG("Clicked");
}

TEST_F(ButtonTest, PreciseClickIsCancelledByADrag)
{
	ShowButton(Arguments().ClickMethod(EButtonClickMethod::PreciseClick));
	Move(20.0f, 20.0f);
	TakeLog();
	Press();
	Move(22.0f, 20.0f);
	Release();
	EXPECT_LOG("Pressed Released Clicked");
	Press();
	Move(60.0f, 20.0f);
	EXPECT_FALSE(Button->IsPressed());
	Release();
	EXPECT_LOG("Pressed Released");
}

TEST_F(ButtonTest, DoubleClickIsTwoClicks)
{
	ShowButton();
	Move(50.0f, 20.0f);
	TakeLog();
	Press();
	Release();
	Press();
	Release();
	EXPECT_LOG("Pressed Released Clicked Pressed Released Clicked");
}

TEST_F(ButtonTest, UnhandledReplyOfTheHandlerIsHandled)
{
	ShowButton();
	Move(50.0f, 20.0f);
	Press();
	EXPECT_TRUE(Release());
}

TEST_F(ButtonTest, BrushFollowsTheState)
{
	ShowButton();
	EXPECT_EQ(Button->GetBorderImage(), &Style.Normal);
	Move(50.0f, 20.0f);
	EXPECT_EQ(Button->GetBorderImage(), &Style.Hovered);
	Press();
	EXPECT_EQ(Button->GetBorderImage(), &Style.Pressed);
	Release();
	EXPECT_EQ(Button->GetBorderImage(), &Style.Hovered);
	Button->SetEnabled(false);
	EXPECT_EQ(Button->GetBorderImage(), &Style.Disabled);
	Button->SetEnabled(true);
	Move(300.0f, 20.0f);
	EXPECT_EQ(Button->GetBorderImage(), &Style.Normal);
}

TEST_F(ButtonTest, ForegroundFollowsTheState)
{
	ShowButton();
	EXPECT_EQ(Button->GetForegroundColor(), FSlateColor(FLinearColor::Red));
	Move(50.0f, 20.0f);
	EXPECT_EQ(Button->GetForegroundColor(), FSlateColor(FLinearColor::Green));
	Press();
	EXPECT_EQ(Button->GetForegroundColor(), FSlateColor(FLinearColor::Blue));
	Release();
	Button->SetForegroundColor(FSlateColor(FLinearColor::Yellow));
	EXPECT_EQ(Button->GetForegroundColor(), FSlateColor(FLinearColor::Yellow));
}

TEST_F(ButtonTest, BrushSetFromOutsideLastsUntilTheNextChange)
{
	const FSlateColorBrush Own(FLinearColor::White);
	ShowButton();
	Button->SetBorderImage(&Own);
	Frame();
	EXPECT_EQ(Button->GetBorderImage(), &Own);
	Move(50.0f, 20.0f);
	EXPECT_EQ(Button->GetBorderImage(), &Style.Hovered);
}

TEST_F(ButtonTest, BrushSetByTheHoveredHandlerPrevails)
{
	const FSlateColorBrush Own(FLinearColor::White);
	ShowButton();
	Button->SetOnHovered(FSimpleDelegate::CreateLambda([this, &Own]() { Button->SetBorderImage(&Own); }));
	Move(50.0f, 20.0f);
	EXPECT_EQ(Button->GetBorderImage(), &Own);
	Button->SetOnHovered(FSimpleDelegate());
}

TEST_F(ButtonTest, NewStyleIsTakenAtOnce)
{
	FButtonStyle Other = Style;
	Other.SetNormalPadding(FMargin(20.0f));
	ShowButton();
	Button->SetButtonStyle(&Other);
	Frame();
	EXPECT_EQ(Button->GetBorderImage(), &Other.Normal);
	EXPECT_EQ(FVector2f(Button->GetDesiredSize()), FVector2f(120.0f, 60.0f));
	Button->SetButtonStyle(&Style);
}

TEST_F(ButtonTest, HoverPaintsTheButtonAndMeasuresNothing)
{
	ShowButton();
	FrameAfter([this]() { Move(50.0f, 20.0f); });
	EXPECT_EQ(Work.Measured, 0);
	EXPECT_EQ(Work.Arranged, 0);
	EXPECT_EQ(Work.Painted, 2) << "the button, and its content in another foreground";
}

TEST_F(ButtonTest, PressedPaddingMovesTheContent)
{
	Style.SetPressedPadding(FMargin(12.0f, 11.0f, 8.0f, 9.0f));
	ShowButton();
	Move(50.0f, 20.0f);
	Press();
	Frame();
	EXPECT_EQ(DumpInside(Button.ToSharedRef()), "  SPiece [Content] (12, 11) 80 x 20");
	Release();
	Frame();
	EXPECT_EQ(DumpInside(Button.ToSharedRef()), "  SPiece [Content] (10, 10) 80 x 20");
}

TEST_F(ButtonTest, DisabledButtonTakesNoPress)
{
	ShowButton();
	Button->SetEnabled(false);
	Move(50.0f, 20.0f);
	Press();
	Release();
	EXPECT_LOG("");
}

TEST_F(ButtonTest, EnterAndSpaceClickWhenLetGo)
{
	ShowButton();
	App().SetKeyboardFocus(Button);
	for (const FKey& Key : {EKeys::Enter, EKeys::SpaceBar})
	{
		EXPECT_TRUE(KeyDown(Key));
		EXPECT_TRUE(Button->IsPressed());
		EXPECT_LOG("Pressed");
		EXPECT_TRUE(KeyUp(Key));
		EXPECT_LOG("Released Clicked");
	}
}

TEST_F(ButtonTest, HeldKeyPressesOnce)
{
	ShowButton(Arguments().PressMethod(EButtonPressMethod::ButtonPress));
	App().SetKeyboardFocus(Button);
	KeyDown(EKeys::Enter);
	KeyDown(EKeys::Enter, false, false, true);
	EXPECT_LOG("Pressed Clicked");
	KeyUp(EKeys::Enter);
	EXPECT_LOG("Released");
}

TEST_F(ButtonTest, LostFocusReleasesTheKeyWithoutAClick)
{
	ShowButton();
	App().SetKeyboardFocus(Button);
	KeyDown(EKeys::SpaceBar);
	App().ClearKeyboardFocus();
	EXPECT_LOG("Pressed Released");
}

TEST_F(ButtonTest, PressFocusesAFocusableButton)
{
	ShowButton();
	Click(Button.ToSharedRef());
	EXPECT_TRUE(Button->HasKeyboardFocus());
}

TEST_F(ButtonTest, UnfocusableButtonTakesNoFocus)
{
	ShowButton(Arguments().IsFocusable(false));
	Click(Button.ToSharedRef());
	EXPECT_FALSE(Button->HasKeyboardFocus());
}

TEST_F(ButtonTest, LostCaptureReleases)
{
	ShowButton();
	Move(50.0f, 20.0f);
	Press();
	TakeLog();
	App().ReleaseMouseCapture();
	EXPECT_LOG("Released");
	EXPECT_FALSE(Button->IsPressed());
}

TEST_F(ButtonTest, TextIsShownWhereNoContentIsGiven)
{
	Button = SNew(SButton).Text(FText::FromString(TEXT("Reset filter")));
	Show(Button.ToSharedRef());
	EXPECT_NE(DumpInside(Button.ToSharedRef()).find("\"Reset filter\""), std::string::npos);
}

TEST_F(ButtonTest, BoundContentPaddingAddsToThatOfTheStyle)
{
	float Padding = 1.0f;
	ShowButton(Arguments().ContentPadding(TAttribute<FMargin>::CreateLambda([&Padding]() { return FMargin(Padding); })));
	EXPECT_EQ(FVector2f(Button->GetDesiredSize()), FVector2f(102.0f, 42.0f));
	Padding = 2.0f;
	Frame();
	EXPECT_EQ(FVector2f(Button->GetDesiredSize()), FVector2f(104.0f, 44.0f));
	Button.Reset();
	Window->SetContent(SNew(SBox));
}

TEST_F(ButtonTest, HandlerMayRemoveTheButton)
{
	ShowButton();
	Button->SetOnClicked(FOnClicked::CreateLambda([this]()
	{
		Window->SetContent(SNew(SBox));
		Button.Reset();
		return FReply::Handled();
	}));
	Move(50.0f, 20.0f);
	Press();
	EXPECT_TRUE(Release());
	App().Tick();
}
