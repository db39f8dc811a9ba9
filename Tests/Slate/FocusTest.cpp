#include "ApplicationTestTools.h"

class FocusTest : public FApplicationTest
{
protected:
	/** Four in two rows: One Two / Three Four, in Group. */
	void ShowFour()
	{
		const auto Make = [this](int32 Index, const TCHAR* Name) -> TSharedRef<SWidget>
		{
			return SAssignNew(Fields[Index], SEventRecorder).Name(Name).Focusable(true).Log(&Log);
		};
		Show(SAssignNew(Group, SEventRecorder).Name(TEXT("Group")).Log(&Log)
		[
			SNew(SVerticalBox)
			+ SVerticalBox::Slot()[SNew(SHorizontalBox) + SHorizontalBox::Slot()[Make(0, TEXT("One"))] + SHorizontalBox::Slot()[Make(1, TEXT("Two"))]]
			+ SVerticalBox::Slot()[SNew(SHorizontalBox) + SHorizontalBox::Slot()[Make(2, TEXT("Three"))] + SHorizontalBox::Slot()[Make(3, TEXT("Four"))]]
		]);
		Log.Reset();
	}

	~FocusTest() override
	{
		for (TSharedPtr<SEventRecorder>& Field : Fields)
		{
			Field.Reset();
		}
		Group.Reset();
	}

	TSharedPtr<SEventRecorder> Fields[4];
	TSharedPtr<SEventRecorder> Group;
};

TEST_F(FocusTest, SettingItTellsBoth)
{
	ShowFour();
	EXPECT_TRUE(App().SetKeyboardFocus(Fields[0]));
	EXPECT_LOG("One.FocusReceived");
	EXPECT_TRUE(Fields[0]->HasKeyboardFocus());
	EXPECT_TRUE(Group->HasFocusedDescendants());
	EXPECT_FALSE(App().SetKeyboardFocus(Fields[0]));
	EXPECT_TRUE(App().SetUserFocus(0, Fields[3]));
	EXPECT_LOG("One.FocusLost Four.FocusReceived");
	App().ClearKeyboardFocus();
	EXPECT_LOG("Four.FocusLost");
	EXPECT_FALSE(App().GetKeyboardFocusedWidget().IsValid());
}

TEST_F(FocusTest, CauseIsKept)
{
	ShowFour();
	App().SetKeyboardFocus(Fields[0], EFocusCause::WindowActivate);
	EXPECT_EQ(Fields[0]->HasUserFocus(0).GetValue(), EFocusCause::WindowActivate);
	EXPECT_FALSE(Fields[0]->HasUserFocus(1).IsSet());
}

TEST_F(FocusTest, WidgetThatTakesNoFocusHandsItUp)
{
	ShowFour();
	EXPECT_FALSE(App().SetKeyboardFocus(Group));
	const TSharedRef<SOverlay> Content = SNew(SOverlay);
	TSharedPtr<SEventRecorder> Outer;
	Show(SAssignNew(Outer, SEventRecorder).Name(TEXT("Outer")).Focusable(true).Log(&Log)[Content]);
	EXPECT_TRUE(App().SetKeyboardFocus(Content));
	EXPECT_TRUE(Outer->HasKeyboardFocus());
}

TEST_F(FocusTest, PressFocusesTheLowestThatTakesIt)
{
	ShowFour();
	Move(300.0f, 10.0f);
	Press();
	EXPECT_TRUE(Fields[1]->HasKeyboardFocus());
	EXPECT_EQ(Fields[1]->HasAnyUserFocus().GetValue(), EFocusCause::Mouse);
}

TEST_F(FocusTest, PressOnNothingFocusableClearsIt)
{
	ShowFour();
	App().SetKeyboardFocus(Fields[0]);
	Fields[1]->SetVisibility(EVisibility::HitTestInvisible);
	Move(300.0f, 10.0f);
	Press();
	EXPECT_FALSE(App().GetKeyboardFocusedWidget().IsValid());
}

TEST_F(FocusTest, ReplyDecidesTheFocusOfAPress)
{
	ShowFour();
	Fields[1]->Handles = TEXT("Down");
	Fields[1]->NextReply = FReply::Handled().SetUserFocus(Fields[2].ToSharedRef());
	Move(300.0f, 10.0f);
	Press();
	EXPECT_TRUE(Fields[2]->HasKeyboardFocus());
}

TEST_F(FocusTest, TabGoesThroughTheTreeInOrderAndRound)
{
	ShowFour();
	Key(EKeys::Tab);
	EXPECT_TRUE(Fields[0]->HasKeyboardFocus());
	Key(EKeys::Tab);
	EXPECT_TRUE(Fields[1]->HasKeyboardFocus());
	Key(EKeys::Tab);
	Key(EKeys::Tab);
	EXPECT_TRUE(Fields[3]->HasKeyboardFocus());
	Key(EKeys::Tab);
	EXPECT_TRUE(Fields[0]->HasKeyboardFocus());
	Key(EKeys::Tab, true);
	EXPECT_TRUE(Fields[3]->HasKeyboardFocus());
}

TEST_F(FocusTest, TabSkipsWhatIsDisabledOrHidden)
{
	ShowFour();
	Fields[1]->SetEnabled(false);
	Fields[2]->SetVisibility(EVisibility::Hidden);
	App().SetKeyboardFocus(Fields[0]);
	Key(EKeys::Tab);
	EXPECT_TRUE(Fields[3]->HasKeyboardFocus());
}

TEST_F(FocusTest, ArrowsGoToTheNeighbour)
{
	ShowFour();
	App().SetKeyboardFocus(Fields[0]);
	EXPECT_TRUE(Key(EKeys::Right));
	EXPECT_TRUE(Fields[1]->HasKeyboardFocus());
	Key(EKeys::Down);
	EXPECT_TRUE(Fields[3]->HasKeyboardFocus());
	Key(EKeys::Left);
	EXPECT_TRUE(Fields[2]->HasKeyboardFocus());
	Key(EKeys::Up);
	EXPECT_TRUE(Fields[0]->HasKeyboardFocus());
	EXPECT_FALSE(Key(EKeys::Up));
	EXPECT_TRUE(Fields[0]->HasKeyboardFocus());
}

TEST_F(FocusTest, BoundaryRulesAreKept)
{
	ShowFour();
	App().SetKeyboardFocus(Fields[3]);
	Group->NavigationReply = FNavigationReply::Stop();
	Key(EKeys::Tab);
	EXPECT_TRUE(Fields[3]->HasKeyboardFocus());
	Group->NavigationReply = FNavigationReply::Wrap();
	Key(EKeys::Tab);
	EXPECT_TRUE(Fields[0]->HasKeyboardFocus());
	Group->NavigationReply = FNavigationReply::Explicit(Fields[2]);
	Key(EKeys::Right);
	EXPECT_TRUE(Fields[2]->HasKeyboardFocus());
}

TEST_F(FocusTest, OnlyNavigationShowsTheFocus)
{
	ShowFour();
	const auto CountElements = [this]()
	{
		App().Tick();
		int32 Count = 0;
		Window->GetRoot().ForEachElement(Host::FPixelRect::Everything(), [&Count](TConstArrayView<Host::FDrawElement> Elements) { Count += Elements.Num(); });
		return Count;
	};
	const int32 Before = CountElements();
	App().SetKeyboardFocus(Fields[0]);
	EXPECT_EQ(CountElements(), Before);
	Key(EKeys::Tab);
	EXPECT_EQ(CountElements(), Before + 1);
	App().SetKeyboardFocus(Fields[0]);
	EXPECT_EQ(CountElements(), Before);
}

TEST_F(FocusTest, RemovedWidgetLosesIt)
{
	ShowFour();
	App().SetKeyboardFocus(Fields[0]);
	TakeLog();
	Show(SNew(SOverlay));
	EXPECT_LOG("One.FocusLost");
	EXPECT_FALSE(App().GetKeyboardFocusedWidget().IsValid());
}
