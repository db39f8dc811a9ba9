#include "ControlTestTools.h"

#include "Widgets/Input/SComboBox.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/Text/STextBlock.h"

/** A combo box of 100 x 30 in the corner of the window, with three options. */
class ComboBoxTest : public FControlTest
{
protected:
	using FCombo = SComboBox<TSharedPtr<FString>>;

	ComboBoxTest()
	{
		for (const TCHAR* Text : {TEXT("Low"), TEXT("Medium"), TEXT("High")})
		{
			Options.Add(MakeShared<FString>(Text));
		}
	}

	void ShowBox(float Top = 0.0f, float Scale = 1.0f)
	{
		MakeBox();
		Window->SetDPIScaleFactor(Scale);
		Show(SNew(SOverlay) + SOverlay::Slot().HAlign(HAlign_Left).VAlign(VAlign_Top).Padding(0.0f, Top, 0.0f, 0.0f)
		[
			SNew(SBox).WidthOverride(100.0f).HeightOverride(30.0f)[Combo.ToSharedRef()]
		]);
	}

	void MakeBox()
	{
		SAssignNew(Combo, FCombo)
			.OptionsSource(&Options)
			.MaxListHeight(MaxListHeight)
			.OnComboBoxOpening_Lambda([this]() { OnOpening(); })
			.OnGenerateWidget_Lambda([this](TSharedPtr<FString> Option) -> TSharedRef<SWidget>
			{
				Rows.Add(SNew(STextBlock).Text(FText::FromString(*Option)));
				return Rows.Last();
			})
			.OnSelectionChanged_Lambda([this](TSharedPtr<FString> Option, ESelectInfo::Type Cause)
			{
				Log.Add(FString::Printf(TEXT("%s:%d"), Option.IsValid() ? **Option : TEXT(""), static_cast<int32>(Cause)));
			});
	}

	/** 40 options, "Option 0" and so on. */
	void MakeLong()
	{
		Options.Reset();
		for (int32 Index = 0; Index < 40; ++Index)
		{
			Options.Add(MakeShared<FString>(FString::Printf(TEXT("Option %d"), Index)));
		}
	}

	/** Opens by key, as a click is another thing that may close the list. */
	void OpenByKey()
	{
		Rows.Reset();
		App().SetKeyboardFocus(Combo->GetChildren()->GetChildAt(0));
		Stroke(EKeys::Enter);
		App().Tick();
		ASSERT_TRUE(Combo->IsOpen());
	}

	/** Top and bottom of a row in the window; nothing tells whether it is clipped. */
	FVector2f SpanOf(const TSharedRef<SWidget>& Row)
	{
		const FGeometry& Geometry = Row->GetCachedGeometry();
		return FVector2f(Geometry.GetAbsolutePosition().Y, Geometry.GetAbsolutePosition().Y + Geometry.GetAbsoluteSize().Y);
	}

	/** The frame of the open list. */
	FVector2f SpanOfList()
	{
		TSharedPtr<SWidget> Widget = Rows[0];
		while (Widget->GetType() != FName("Host::SComboList"))
		{
			Widget = Widget->GetParentWidget();
		}
		return SpanOf(Widget.ToSharedRef());
	}

	void Open()
	{
		Rows.Reset();
		Click(Combo.ToSharedRef());
		App().Tick();
	}

	TArray<TSharedPtr<FString>> Options;
	float MaxListHeight = 450.0f;
	TFunction<void()> OnOpening = []() {};
	TSharedPtr<FCombo> Combo;
	TArray<TSharedRef<SWidget>> Rows;
};

TEST_F(ComboBoxTest, ClickOpensAListBelowAtLeastAsWideAsTheBox)
{
	ShowBox();
	Open();
	EXPECT_TRUE(Combo->IsOpen());
	ASSERT_EQ(Rows.Num(), 3);
	EXPECT_GE(Rows[0]->GetCachedGeometry().GetAbsolutePosition().Y, 30.0f);
	EXPECT_GT(Rows[0]->GetCachedGeometry().GetAbsoluteSize().X, 70.0f);
}

TEST_F(ComboBoxTest, ListOpensAboveWhenThereIsNoRoomBelow)
{
	ShowBox(265.0f);
	Open();
	ASSERT_EQ(Rows.Num(), 3);
	EXPECT_LT(Rows[2]->GetCachedGeometry().GetAbsolutePosition().Y, 265.0f);
}

TEST_F(ComboBoxTest, ListHasTheScaleOfTheBox)
{
	ShowBox();
	Open();
	const float Height = Rows[0]->GetCachedGeometry().GetAbsoluteSize().Y;
	Stroke(EKeys::Escape);
	ShowBox(0.0f, 2.0f);
	Open();
	EXPECT_NEAR(Rows[0]->GetCachedGeometry().GetAbsoluteSize().Y, Height * 2.0f, 2.0f);
}

TEST_F(ComboBoxTest, ClickedRowIsSelectedAndTheListCloses)
{
	ShowBox();
	Open();
	Click(Rows[1]);
	EXPECT_LOG("Medium:2");
	EXPECT_FALSE(Combo->IsOpen());
	Open();
	Click(Rows[1]);
	EXPECT_LOG("");
	EXPECT_FALSE(Combo->IsOpen());
}

TEST_F(ComboBoxTest, ClickOnTheBoxClosesTheListAndTheNextOpensIt)
{
	ShowBox();
	Open();
	Open();
	EXPECT_FALSE(Combo->IsOpen());
	Open();
	EXPECT_TRUE(Combo->IsOpen());
}

TEST_F(ComboBoxTest, ArrowsSelectWhileItIsClosed)
{
	ShowBox();
	Stroke(EKeys::Tab);
	Stroke(EKeys::Down);
	Stroke(EKeys::Down);
	Stroke(EKeys::Down);
	Stroke(EKeys::Down);
	EXPECT_LOG("Low:1 Medium:1 High:1");
	Stroke(EKeys::Up);
	EXPECT_LOG("Medium:1");
}

TEST_F(ComboBoxTest, KeysChooseFromTheOpenList)
{
	ShowBox();
	Stroke(EKeys::Tab);
	Stroke(EKeys::Enter);
	ASSERT_TRUE(Combo->IsOpen());
	Stroke(EKeys::End);
	Stroke(EKeys::Up);
	EXPECT_LOG("");
	Stroke(EKeys::Enter);
	EXPECT_LOG("Medium:0");
	EXPECT_FALSE(Combo->IsOpen());
	Stroke(EKeys::SpaceBar);
	ASSERT_TRUE(Combo->IsOpen());
	Stroke(EKeys::Home);
	Stroke(EKeys::Escape);
	EXPECT_FALSE(Combo->IsOpen());
	EXPECT_LOG("");
	EXPECT_TRUE(Combo->HasFocusedDescendants());
}

TEST_F(ComboBoxTest, SelectionFromCodeIsToldOnce)
{
	ShowBox();
	Combo->SetSelectedItem(Options[2]);
	Combo->SetSelectedItem(Options[2]);
	EXPECT_LOG("High:3");
	Combo->ClearSelection();
	EXPECT_LOG(":3");
}

TEST_F(ComboBoxTest, DisabledBoxOpensNothing)
{
	ShowBox();
	Combo->SetEnabled(false);
	App().Tick();
	Open();
	EXPECT_FALSE(Combo->IsOpen());
}

TEST_F(ComboBoxTest, NoFramesAreNeededWhileNothingHappens)
{
	ShowBox();
	Frame();
	Frame();
	EXPECT_EQ(Work.Visited, 0);
	Open();
	Frame();
	Frame();
	EXPECT_EQ(Work.Visited, 0);
}

TEST_F(ComboBoxTest, LongListIsCutToItsGreatestHeightAndShowsTheSelection)
{
	MakeLong();
	MaxListHeight = 120.0f;
	ShowBox();
	Combo->SetSelectedItem(Options[30]);
	OpenByKey();
	const FVector2f List = SpanOfList();
	EXPECT_NEAR(List.Y - List.X, 120.0f + 6.0f, 0.5f);
	EXPECT_GE(SpanOf(Rows[30]).X, List.X);
	EXPECT_LE(SpanOf(Rows[30]).Y, List.Y);
}

TEST_F(ComboBoxTest, ListTakesTheLargerSideWhenNeitherHasRoomForIt)
{
	MakeLong();
	ShowBox(100.0f);
	OpenByKey();
	EXPECT_NEAR(SpanOfList().X, 130.0f, 0.5f);
	EXPECT_NEAR(SpanOfList().Y, 300.0f, 0.5f);
	Stroke(EKeys::Escape);
	ShowBox(200.0f);
	OpenByKey();
	EXPECT_NEAR(SpanOfList().X, 0.0f, 0.5f);
	EXPECT_NEAR(SpanOfList().Y, 200.0f, 0.5f);
	Stroke(EKeys::End);
	App().Tick();
	EXPECT_LE(SpanOf(Rows[39]).Y, 200.0f);
}

TEST_F(ComboBoxTest, ListStaysWithinTheWidthOfTheWindow)
{
	Options.Add(MakeShared<FString>(TEXT("An option with a text that takes more room than there is beside the box")));
	MakeBox();
	Show(SNew(SOverlay) + SOverlay::Slot().HAlign(HAlign_Right).VAlign(VAlign_Top)
	[
		SNew(SBox).WidthOverride(60.0f).HeightOverride(30.0f)[Combo.ToSharedRef()]
	]);
	OpenByKey();
	const FGeometry& Row = Rows[3]->GetCachedGeometry();
	EXPECT_GE(Row.GetAbsolutePosition().X, 0.0f);
	EXPECT_LE(Row.GetAbsolutePosition().X + Row.GetAbsoluteSize().X, 400.0f);
}

TEST_F(ComboBoxTest, WheelScrollsTheOpenListAndNothingElse)
{
	MakeLong();
	MaxListHeight = 120.0f;
	MakeBox();
	const TSharedRef<SScrollBox> Page = SNew(SScrollBox)
		+ SScrollBox::Slot()[SNew(SBox).HeightOverride(30.0f)[Combo.ToSharedRef()]]
		+ SScrollBox::Slot()[SNew(SBox).HeightOverride(1000.0f)];
	Show(Page);
	OpenByKey();
	MoveTo(Rows[1]);
	const float Before = SpanOf(Rows[1]).X;
	Turn(-1.0f);
	App().Tick();
	EXPECT_LT(SpanOf(Rows[1]).X, Before);
	for (int32 Step = 0; Step < 40; ++Step)
	{
		Turn(-1.0f);
	}
	App().Tick();
	EXPECT_LE(SpanOf(Rows[39]).Y, SpanOfList().Y);
	EXPECT_EQ(Page->GetScrollOffset(), 0.0f);
	EXPECT_TRUE(Combo->IsOpen());
	EXPECT_LOG("");
}

TEST_F(ComboBoxTest, WheelOverTheClosedBoxScrollsWhatItStandsIn)
{
	MakeBox();
	const TSharedRef<SScrollBox> Page = SNew(SScrollBox)
		+ SScrollBox::Slot()[SNew(SBox).HeightOverride(30.0f)[Combo.ToSharedRef()]]
		+ SScrollBox::Slot()[SNew(SBox).HeightOverride(1000.0f)];
	Show(Page);
	MoveTo(Combo.ToSharedRef());
	Turn(-1.0f);
	EXPECT_GT(Page->GetScrollOffset(), 0.0f);
	EXPECT_LOG("");
}

TEST_F(ComboBoxTest, ListClosesWhenItsBoxMoves)
{
	const TSharedRef<SBox> Above = SNew(SBox).HeightOverride(30.0f);
	MakeBox();
	Show(SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight()[Above] + SVerticalBox::Slot().AutoHeight()[Combo.ToSharedRef()]);
	OpenByKey();
	Above->SetHeightOverride(50.0f);
	App().Tick();
	EXPECT_FALSE(Combo->IsOpen());
}

TEST_F(ComboBoxTest, WheelBesideTheListClosesItAndScrolls)
{
	MakeBox();
	const TSharedRef<SScrollBox> Page = SNew(SScrollBox)
		+ SScrollBox::Slot()[SNew(SBox).HeightOverride(30.0f)[Combo.ToSharedRef()]]
		+ SScrollBox::Slot()[SNew(SBox).HeightOverride(1000.0f)];
	Show(Page);
	OpenByKey();
	Move(200.0f, 250.0f);
	Turn(-1.0f);
	EXPECT_FALSE(Combo->IsOpen());
	EXPECT_GT(Page->GetScrollOffset(), 0.0f);
}

TEST_F(ComboBoxTest, ListClosesByAPressBeside)
{
	ShowBox();
	OpenByKey();
	Move(300.0f, 250.0f);
	Press();
	EXPECT_FALSE(Combo->IsOpen());
	Release();
	EXPECT_LOG("");
}

TEST_F(ComboBoxTest, PressOnTheFrameOfTheListKeepsItOpen)
{
	ShowBox();
	OpenByKey();
	Move(1.0f, SpanOfList().X + 1.0f);
	Press();
	Release();
	EXPECT_TRUE(Combo->IsOpen());
	Stroke(EKeys::Down);
	Stroke(EKeys::Enter);
	EXPECT_LOG("Low:0");
}

TEST_F(ComboBoxTest, ListClosesWhenTheFocusGoesElsewhere)
{
	MakeBox();
	const TSharedRef<SButton> Other = SNew(SButton);
	Show(SNew(SVerticalBox) + SVerticalBox::Slot()[Combo.ToSharedRef()] + SVerticalBox::Slot()[Other]);
	OpenByKey();
	App().SetKeyboardFocus(Other);
	EXPECT_FALSE(Combo->IsOpen());
	EXPECT_TRUE(Other->HasKeyboardFocus());
	OpenByKey();
	App().ClearKeyboardFocus();
	EXPECT_FALSE(Combo->IsOpen());
}

TEST_F(ComboBoxTest, TabClosesTheListAndGoesOnFromTheBox)
{
	MakeBox();
	const TSharedRef<SButton> Before = SNew(SButton);
	const TSharedRef<SButton> After = SNew(SButton);
	Show(SNew(SVerticalBox) + SVerticalBox::Slot()[Before] + SVerticalBox::Slot()[Combo.ToSharedRef()] + SVerticalBox::Slot()[After]);
	OpenByKey();
	Stroke(EKeys::Down);
	Stroke(EKeys::Tab);
	EXPECT_FALSE(Combo->IsOpen());
	EXPECT_TRUE(After->HasKeyboardFocus());
	OpenByKey();
	Stroke(EKeys::Tab, false, true);
	EXPECT_TRUE(Before->HasKeyboardFocus());
	EXPECT_LOG("");
}

TEST_F(ComboBoxTest, ListClosesWhenItsBoxIsHiddenDisabledOrTakenAway)
{
	const TSharedRef<SBox> Holder = SNew(SBox).HeightOverride(30.0f);
	MakeBox();
	Holder->SetContent(Combo.ToSharedRef());
	Show(SNew(SOverlay) + SOverlay::Slot().VAlign(VAlign_Top)[Holder]);
	OpenByKey();
	Holder->SetVisibility(EVisibility::Hidden);
	App().Tick();
	EXPECT_FALSE(Combo->IsOpen());
	Holder->SetVisibility(EVisibility::Visible);
	App().Tick();
	OpenByKey();
	Holder->SetEnabled(false);
	App().Tick();
	EXPECT_FALSE(Combo->IsOpen());
	Holder->SetEnabled(true);
	App().Tick();
	OpenByKey();
	Holder->SetContent(SNew(SBox));
	App().Tick();
	EXPECT_FALSE(Combo->IsOpen());
	Holder->SetContent(Combo.ToSharedRef());
	App().Tick();
	OpenByKey();
	Holder->SetContent(SNew(SBox));
	Combo.Reset();
	App().Tick();
	EXPECT_FALSE(App().AnyMenusVisible());
}

TEST_F(ComboBoxTest, ListClosesWhenItsWindowGetsAnotherSize)
{
	ShowBox();
	OpenByKey();
	Window->Resize(FVector2D(300.0, 200.0));
	App().Tick();
	EXPECT_FALSE(Combo->IsOpen());
	OpenByKey();
	Window->SetDPIScaleFactor(1.5f);
	ShowBox(10.0f, 1.5f);
	App().Tick();
	EXPECT_FALSE(App().AnyMenusVisible());
}

TEST_F(ComboBoxTest, HomeAndEndSelectWhileItIsClosed)
{
	ShowBox();
	Stroke(EKeys::Tab);
	Stroke(EKeys::End);
	Stroke(EKeys::Home);
	EXPECT_LOG("High:1 Low:1");
	Options.Reset();
	Combo->RefreshOptions();
	Stroke(EKeys::End);
	EXPECT_LOG("");
}

TEST_F(ComboBoxTest, AltWithDownOpensTheList)
{
	ShowBox();
	Stroke(EKeys::Tab);
	const FModifierKeysState Alt(false, false, false, false, true, false, false, false, false);
	App().ProcessKeyDownEvent(FKeyEvent(EKeys::Down, Alt, 0, false, 0, 0));
	EXPECT_TRUE(Combo->IsOpen());
	EXPECT_LOG("");
}

TEST_F(ComboBoxTest, LetterOpensTheListAtTheRowThatBeginsWithIt)
{
	ShowBox();
	Stroke(EKeys::Tab);
	Stroke(EKeys::H);
	EXPECT_TRUE(Combo->IsOpen());
	EXPECT_LOG("");
	Stroke(EKeys::Enter);
	EXPECT_LOG("High:0");
}

TEST_F(ComboBoxTest, TypingGoesToTheRowThatBeginsWithTheText)
{
	Options.Add(MakeShared<FString>(TEXT("Medium rare")));
	Options.Add(MakeShared<FString>(TEXT("Łódź")));
	ShowBox();
	OpenByKey();
	Type(TEXT("MEDIUM R"));
	Stroke(EKeys::Enter);
	EXPECT_LOG("Medium rare:0");
	OpenByKey();
	Host::FClock::Advance(2.0);
	Type(TEXT("ł"));
	Stroke(EKeys::Enter);
	EXPECT_LOG("Łódź:0");
	OpenByKey();
	Host::FClock::Advance(2.0);
	Type(TEXT("m"));
	Type(TEXT("m"));
	Stroke(EKeys::Enter);
	EXPECT_LOG("Medium rare:0");
	OpenByKey();
	Host::FClock::Advance(2.0);
	Type(TEXT("h"));
	Host::FClock::Advance(2.0);
	Type(TEXT("l"));
	Stroke(EKeys::Enter);
	EXPECT_LOG("Low:0");
}

TEST_F(ComboBoxTest, BlankIsPartOfWhatIsTypedAndElseChooses)
{
	Options.Add(MakeShared<FString>(TEXT("High end")));
	ShowBox();
	OpenByKey();
	Type(TEXT("high"));
	Stroke(EKeys::SpaceBar);
	Type(TEXT(" e"));
	EXPECT_TRUE(Combo->IsOpen());
	Host::FClock::Advance(2.0);
	Stroke(EKeys::SpaceBar);
	EXPECT_LOG("High end:0");
}

TEST_F(ComboBoxTest, PageKeysMoveByWhatIsInView)
{
	MakeLong();
	MaxListHeight = 120.0f;
	ShowBox();
	OpenByKey();
	const int32 InView = FMath::FloorToInt32(120.0f / (SpanOf(Rows[1]).X - SpanOf(Rows[0]).X));
	Stroke(EKeys::Home);
	Stroke(EKeys::PageDown);
	Stroke(EKeys::Enter);
	EXPECT_EQ(Options.Find(Combo->GetSelectedItem()), InView - 1);
	OpenByKey();
	Stroke(EKeys::End);
	Stroke(EKeys::PageDown);
	Stroke(EKeys::PageUp);
	Stroke(EKeys::Enter);
	EXPECT_EQ(Options.Find(Combo->GetSelectedItem()), 40 - InView);
	TakeLog();
}

TEST_F(ComboBoxTest, OpenListShowsChangedOptionsInTheNextFrame)
{
	ShowBox();
	Combo->SetSelectedItem(Options[1]);
	OpenByKey();
	Rows.Reset();
	Options.RemoveAt(0);
	Options.Add(MakeShared<FString>(TEXT("Epic")));
	Combo->RefreshOptions();
	Combo->RefreshOptions();
	App().Tick();
	EXPECT_TRUE(Combo->IsOpen());
	EXPECT_EQ(Rows.Num(), 3);
	Stroke(EKeys::Down);
	Stroke(EKeys::Down);
	Stroke(EKeys::Enter);
	EXPECT_LOG("Medium:3 Epic:0");
}

TEST_F(ComboBoxTest, RowOfAnOptionThatIsGoneSelectsNothing)
{
	ShowBox();
	OpenByKey();
	const TSharedRef<SWidget> Last = Rows[2];
	Options.RemoveAt(2);
	Click(Last);
	EXPECT_FALSE(Combo->IsOpen());
	EXPECT_LOG("");
}

TEST_F(ComboBoxTest, SelectionFromCodeMovesTheMarkOfTheOpenList)
{
	ShowBox();
	OpenByKey();
	Combo->SetSelectedItem(Options[1]);
	Stroke(EKeys::Enter);
	EXPECT_LOG("Medium:3");
	EXPECT_FALSE(Combo->IsOpen());
}

TEST_F(ComboBoxTest, OptionsMayBeMadeWhenTheListOpens)
{
	ShowBox();
	Options.Reset();
	OnOpening = [this]()
	{
		MakeLong();
		Combo->RefreshOptions();
	};
	OpenByKey();
	EXPECT_EQ(Rows.Num(), 40);
}

TEST_F(ComboBoxTest, HandlerMayTakeTheBoxAwayWhenTheListOpens)
{
	ShowBox();
	OnOpening = [this]()
	{
		Window->SetContent(SNew(SBox));
		Combo.Reset();
	};
	App().SetKeyboardFocus(Combo->GetChildren()->GetChildAt(0));
	Stroke(EKeys::Enter);
	App().Tick();
	EXPECT_FALSE(App().AnyMenusVisible());
}

TEST_F(ComboBoxTest, KeysDoNothingToADisabledBox)
{
	ShowBox();
	Stroke(EKeys::Tab);
	Combo->SetEnabled(false);
	App().Tick();
	for (const FKey& Pressed : {EKeys::Down, EKeys::Enter, EKeys::SpaceBar, EKeys::H, EKeys::End})
	{
		Stroke(Pressed);
	}
	EXPECT_FALSE(Combo->IsOpen());
	EXPECT_LOG("");
}
