#include "EditableTextTools.h"

#include "Host/SlateLoop.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SEditableTextBox.h"

using EditableTextTest = FEditableTextTest;

TEST_F(EditableTextTest, TypedCharactersStandAtTheCaret)
{
	ShowFocused(Arguments(TEXT("abc")));
	Type(TEXT("d"));
	Stroke(EKeys::Home);
	Type(TEXT("x"));
	EXPECT_EQ(Content(), "xabcd");
	EXPECT_LOG("Changed:abcd Changed:xabcd");
}

TEST_F(EditableTextTest, UnfocusedTextIsNotTypedInto)
{
	ShowText(Arguments(TEXT("abc")));
	Type(TEXT("d"));
	EXPECT_EQ(Content(), "abc");
}

TEST_F(EditableTextTest, ControlCharactersAreNotWritten)
{
	ShowFocused(Arguments());
	Type(TEXT("a\b\t\r\x7F" u"b"));
	EXPECT_EQ(Content(), "ab");
}

TEST_F(EditableTextTest, BackspaceAndDeleteRemoveWholeCharacters)
{
	// A letter with an accent of its own, and a character of two units.
	ShowFocused(Arguments(TEXT("ae\u0301\U0001F3E0z")));
	Stroke(EKeys::Left);
	Stroke(EKeys::BackSpace);
	EXPECT_EQ(Content(), "ae\xCC\x81z");
	Stroke(EKeys::BackSpace);
	EXPECT_EQ(Content(), "az");
	Stroke(EKeys::Delete);
	EXPECT_EQ(Content(), "a");
	Stroke(EKeys::Delete);
	EXPECT_EQ(Content(), "a");
}

TEST_F(EditableTextTest, CharacterBeyondSixteenBitsIsOneChange)
{
	ShowFocused(Arguments());
	Type(TEXT("\U0001F3E0"));
	EXPECT_EQ(Content(), "\xF0\x9F\x8F\xA0");
	EXPECT_EQ(Log.Num(), 1);
}

TEST_F(EditableTextTest, ControlMovesAndRemovesByWords)
{
	ShowFocused(Arguments(TEXT("two rooms free")));
	Stroke(EKeys::Left, true);
	Type(TEXT("_"));
	EXPECT_EQ(Content(), "two rooms _free");
	Stroke(EKeys::BackSpace);
	Stroke(EKeys::BackSpace, true);
	EXPECT_EQ(Content(), "two free");
	Stroke(EKeys::Home);
	Stroke(EKeys::Delete, true);
	EXPECT_EQ(Content(), "free");
}

TEST_F(EditableTextTest, ShiftSelectsAndTypingReplacesTheSelection)
{
	ShowFocused(Arguments(TEXT("abcd")));
	Stroke(EKeys::Left, false, true);
	Stroke(EKeys::Left, false, true);
	EXPECT_EQ(Selected(), "cd");
	Type(TEXT("x"));
	EXPECT_EQ(Content(), "abx");
	EXPECT_FALSE(Text->AnyTextSelected());
	Stroke(EKeys::Home, false, true);
	EXPECT_EQ(Selected(), "abx");
}

TEST_F(EditableTextTest, ArrowLeavesTheSelectionAtItsEdge)
{
	ShowFocused(Arguments(TEXT("abcd")));
	Stroke(EKeys::Left, false, true);
	Stroke(EKeys::Left, false, true);
	Stroke(EKeys::Right);
	Type(TEXT("x"));
	EXPECT_EQ(Content(), "abcdx");
	Stroke(EKeys::A, true);
	Stroke(EKeys::Left);
	Type(TEXT("y"));
	EXPECT_EQ(Content(), "yabcdx");
}

TEST_F(EditableTextTest, ArrowsMoveToTheSideThatTheyShowInRightToLeftText)
{
	ShowFocused(Arguments(TEXT("\u05D0\u05D1\u05D2")));
	Stroke(EKeys::Home);
	Stroke(EKeys::Left);
	Type(TEXT("\u05D3"));
	EXPECT_EQ(Content(), "\xD7\x90\xD7\x93\xD7\x91\xD7\x92");
}

TEST_F(EditableTextTest, ClipboardTakesAndGivesText)
{
	ShowFocused(Arguments(TEXT("abcd")));
	Stroke(EKeys::Left, false, true);
	Stroke(EKeys::Left, false, true);
	Stroke(EKeys::C, true);
	Stroke(EKeys::Home);
	Stroke(EKeys::V, true);
	EXPECT_EQ(Content(), "cdabcd");
	Stroke(EKeys::A, true);
	Stroke(EKeys::X, true);
	EXPECT_EQ(Content(), "");
	EXPECT_EQ(GetClipboard(), TEXT("cdabcd"));
}

TEST_F(EditableTextTest, PastedLineBreaksBecomeBlanks)
{
	FPlatformApplicationMisc::ClipboardCopy(TEXT("one\r\ntwo\nthree"));
	ShowFocused(Arguments());
	Stroke(EKeys::V, true);
	EXPECT_EQ(Content(), "one two three");
}

TEST_F(EditableTextTest, UndoTakesBackTypingAsAWholeAndRedoBringsItBack)
{
	ShowFocused(Arguments(TEXT("a")));
	Type(TEXT("bcd"));
	Stroke(EKeys::BackSpace);
	Stroke(EKeys::Z, true);
	EXPECT_EQ(Content(), "abcd");
	Stroke(EKeys::Z, true);
	EXPECT_EQ(Content(), "a");
	Stroke(EKeys::Z, true);
	EXPECT_EQ(Content(), "a");
	Stroke(EKeys::Y, true);
	Stroke(EKeys::Y, true);
	EXPECT_EQ(Content(), "abc");
	Type(TEXT("e"));
	Stroke(EKeys::Y, true);
	EXPECT_EQ(Content(), "abce");
}

TEST_F(EditableTextTest, MovedCaretEndsAPieceOfTyping)
{
	ShowFocused(Arguments());
	Type(TEXT("ab"));
	Stroke(EKeys::Left);
	Type(TEXT("c"));
	Stroke(EKeys::Z, true);
	EXPECT_EQ(Content(), "ab");
}

TEST_F(EditableTextTest, EnterCommitsOnceAndGivesUpTheFocus)
{
	ShowFocused(Arguments());
	Type(TEXT("a"));
	TakeLog();
	Stroke(EKeys::Enter);
	EXPECT_LOG("Enter:a");
	EXPECT_FALSE(Text->HasKeyboardFocus());
}

TEST_F(EditableTextTest, EnterKeepsTheFocusWhereTold)
{
	ShowFocused(Arguments().ClearKeyboardFocusOnCommit(false).SelectAllTextOnCommit(true));
	Type(TEXT("a"));
	Stroke(EKeys::Enter);
	EXPECT_TRUE(Text->HasKeyboardFocus());
	EXPECT_EQ(Selected(), "a");
}

TEST_F(EditableTextTest, LeavingTheTextCommits)
{
	ShowFocused(Arguments(TEXT("a")));
	App().ClearKeyboardFocus(EFocusCause::Mouse);
	EXPECT_LOG("MovedFocus:a");
}

TEST_F(EditableTextTest, EscapeLeavesTheText)
{
	ShowFocused(Arguments(TEXT("a")));
	Type(TEXT("b"));
	TakeLog();
	Stroke(EKeys::Escape);
	EXPECT_LOG("Cleared:ab");
	EXPECT_FALSE(Text->HasKeyboardFocus());
}

TEST_F(EditableTextTest, EscapeBringsBackTheTextWhereTold)
{
	ShowFocused(Arguments(TEXT("a")).RevertTextOnEscape(true));
	Type(TEXT("b"));
	TakeLog();
	Stroke(EKeys::Escape);
	EXPECT_LOG("Changed:a Cleared:a");
}

TEST_F(EditableTextTest, ReadOnlyTextIsSelectedAndCopiedButNotChanged)
{
	ShowFocused(Arguments(TEXT("abc")).IsReadOnly(true));
	Type(TEXT("d"));
	Stroke(EKeys::BackSpace);
	Stroke(EKeys::A, true);
	Stroke(EKeys::X, true);
	EXPECT_EQ(Content(), "abc");
	EXPECT_EQ(GetClipboard(), TEXT("abc"));
}

TEST_F(EditableTextTest, PasswordIsNeitherShownNorCopied)
{
	FPlatformApplicationMisc::ClipboardCopy(TEXT("before"));
	ShowFocused(Arguments(TEXT("secret")).IsPassword(true));
	Stroke(EKeys::A, true);
	Stroke(EKeys::C, true);
	EXPECT_EQ(GetClipboard(), TEXT("before"));
	EXPECT_EQ(DumpInside(Window.ToSharedRef()).find("secret"), std::string::npos);
	EXPECT_EQ(Content(), "secret");
}

TEST_F(EditableTextTest, TextFromCodeTellsWhenItIsAnother)
{
	ShowText(Arguments(TEXT("a")));
	Text->SetText(FText::FromString(TEXT("a")));
	EXPECT_LOG("");
	Text->SetText(FText::FromString(TEXT("b")));
	EXPECT_LOG("Changed:b");
}

TEST_F(EditableTextTest, EqualValuesInvalidateNothing)
{
	ShowText(Arguments(TEXT("a")));
	Text->SetText(FText::FromString(TEXT("a")));
	Text->SetHintText(FText::GetEmpty());
	Text->SetIsReadOnly(false);
	Text->SetIsPassword(false);
	Text->SetMinDesiredWidth(0.0f);
	Frame();
	EXPECT_EQ(Work.Visited, 0);
}

TEST_F(EditableTextTest, GetterIsFollowedExceptWhileTheTextIsEdited)
{
	FText Value = FText::FromString(TEXT("a"));
	ShowText(SEditableText::FArguments().Text(TAttribute<FText>::CreateLambda([&Value]() { return Value; })));
	Value = FText::FromString(TEXT("b"));
	App().Tick();
	EXPECT_EQ(Content(), "b");
	App().SetKeyboardFocus(Text);
	Value = FText::FromString(TEXT("c"));
	App().Tick();
	EXPECT_EQ(Content(), "b");
	App().ClearKeyboardFocus();
	App().Tick();
	EXPECT_EQ(Content(), "c");
	Text.Reset();
	Window->SetContent(SNew(SBox));
}

TEST_F(EditableTextTest, PressPutsTheCaretAndDraggingSelects)
{
	ShowText(Arguments(TEXT("abcdefgh")));
	Move(1.0f, 15.0f);
	Press();
	EXPECT_TRUE(Text->HasKeyboardFocus());
	Move(199.0f, 15.0f);
	Release();
	EXPECT_EQ(Selected(), "abcdefgh");
}

TEST_F(EditableTextTest, DoubleClickSelectsTheWord)
{
	ShowText(Arguments(TEXT("rooms free")));
	Move(5.0f, 15.0f);
	Press();
	Release();
	Press();
	Release();
	EXPECT_EQ(Selected(), "rooms");
}

TEST_F(EditableTextTest, FocusSelectsEverythingWhereTold)
{
	ShowFocused(Arguments(TEXT("abc")).SelectAllTextWhenFocused(true));
	EXPECT_EQ(Selected(), "abc");
	App().ClearKeyboardFocus();
	EXPECT_FALSE(Text->AnyTextSelected());
	Move(199.0f, 15.0f);
	Press();
	Release();
	EXPECT_EQ(Selected(), "abc");
}

TEST_F(EditableTextTest, CaretBlinksOnlyWhileTheTextHasTheFocus)
{
	ShowText(Arguments(TEXT("abc")));
	EXPECT_FALSE(Text->HasActiveTimers());
	App().SetKeyboardFocus(Text);
	EXPECT_TRUE(Text->HasActiveTimers());
	Wait(0.6);
	Frame();
	Host::FClock::Advance(0.6);
	Frame();
	EXPECT_EQ(Work.Painted, 1);
	EXPECT_EQ(Work.Measured, 0);
	App().ClearKeyboardFocus();
	EXPECT_FALSE(Text->HasActiveTimers());
}

TEST_F(EditableTextTest, TypedCharacterThatIsNotValidIsLeftOut)
{
	ShowFocused(Arguments().OnIsTypedCharValid(FOnIsTypedCharValid::CreateLambda([](TCHAR Character) { return Character >= '0' && Character <= '9'; })));
	Type(TEXT("1a2"));
	EXPECT_EQ(Content(), "12");
}

TEST_F(EditableTextTest, KeyThatWritesIsNotLeftToOthers)
{
	ShowFocused(Arguments());
	EXPECT_TRUE(App().ProcessKeyDownEvent(FKeyEvent(EKeys::SpaceBar, FModifierKeysState(), 0, false, ' ', 0)));
	EXPECT_TRUE(App().ProcessKeyDownEvent(FKeyEvent(EKeys::A, FModifierKeysState(), 0, false, 'a', 0)));
}

TEST_F(EditableTextTest, LongTextScrollsSoThatTheCaretIsSeen)
{
	ShowFocused(Arguments(TEXT("a text that is much longer than two hundred units can show at once")));
	float CaretRight = 0.0f;
	Window->GetRoot().ForEachElement(Host::FPixelRect::Everything(), [&CaretRight](TConstArrayView<Host::FDrawElement> Elements)
	{
		if (!Elements.IsEmpty())
		{
			CaretRight = static_cast<float>(Elements.Last().Bounds.Right);
		}
	});
	EXPECT_LE(CaretRight, 200.0f);
	EXPECT_GT(CaretRight, 190.0f);
}

TEST_F(EditableTextTest, HintIsShownWhileThereIsNoText)
{
	const auto CountRuns = [this]()
	{
		int32 Count = 0;
		Window->GetRoot().ForEachElement(Host::FPixelRect::Everything(), [&Count](TConstArrayView<Host::FDrawElement> Elements)
		{
			for (const Host::FDrawElement& Element : Elements)
			{
				Count += Element.GetRun() && FString(Element.GetRun()->GetText()) == TEXT("Search") ? 1 : 0;
			}
		});
		return Count;
	};
	ShowText(Arguments().HintText(FText::FromString(TEXT("Search"))));
	EXPECT_EQ(CountRuns(), 1);
	Text->SetText(FText::FromString(TEXT("a")));
	App().Tick();
	EXPECT_EQ(CountRuns(), 0);
}

TEST_F(EditableTextTest, UndoTakesBackOneWordAfterTheOther)
{
	ShowFocused(Arguments());
	Type(TEXT("two  rooms"));
	Stroke(EKeys::Z, true);
	EXPECT_EQ(Content(), "two  ");
	Stroke(EKeys::Z, true);
	EXPECT_EQ(Content(), "");
}

TEST_F(EditableTextTest, UndoBringsBackCharactersThatWereRemovedOneAfterTheOther)
{
	ShowFocused(Arguments(TEXT("abcdef")));
	Stroke(EKeys::BackSpace);
	Stroke(EKeys::BackSpace);
	Stroke(EKeys::Home);
	Stroke(EKeys::Delete);
	Stroke(EKeys::Delete);
	EXPECT_EQ(Content(), "cd");
	Stroke(EKeys::Z, true);
	EXPECT_EQ(Content(), "abcd");
	Stroke(EKeys::Z, true);
	EXPECT_EQ(Content(), "abcdef");
}

TEST_F(EditableTextTest, AccentTypedBeforeItsLetterIsOneCharacterWithIt)
{
	ShowFocused(Arguments(TEXT("\u0301")));
	Stroke(EKeys::Home);
	Type(TEXT("e"));
	Stroke(EKeys::BackSpace);
	EXPECT_EQ(Content(), "");
}

TEST_F(EditableTextTest, PasswordIsOneWord)
{
	ShowFocused(Arguments(TEXT("two rooms")).IsPassword(true));
	Stroke(EKeys::Left, true);
	Type(TEXT("x"));
	EXPECT_EQ(Content(), "xtwo rooms");
	Stroke(EKeys::Delete, true);
	EXPECT_EQ(Content(), "x");
}

TEST_F(EditableTextTest, PasswordShowsADotForEachCharacter)
{
	ShowFocused(Arguments(TEXT("e\u0301\U0001F3E0z")).IsPassword(true));
	EXPECT_EQ(GetShown(), TEXT("\u2022\u2022\u2022"));
	Stroke(EKeys::Left);
	Stroke(EKeys::BackSpace);
	EXPECT_EQ(Content(), "e\xCC\x81z");
	EXPECT_EQ(GetShown(), TEXT("\u2022\u2022"));
}

TEST_F(EditableTextTest, InsertKeyCopiesAndPastesAndDeleteCuts)
{
	ShowFocused(Arguments(TEXT("abc")));
	Stroke(EKeys::A, true);
	Stroke(EKeys::Insert, true);
	Stroke(EKeys::Delete, false, true);
	EXPECT_EQ(Content(), "");
	Stroke(EKeys::Insert, false, true);
	Stroke(EKeys::Insert, false, true);
	EXPECT_EQ(Content(), "abcabc");
}

TEST_F(EditableTextTest, ShiftPressSelectsFromTheCaret)
{
	ShowFocused(Arguments(TEXT("abcdef")));
	Move(1.0f, 15.0f);
	Buttons.Add(EKeys::LeftMouseButton);
	App().ProcessMouseButtonDownEvent(nullptr, FPointerEvent(0, Position, LastPosition, Buttons, EKeys::LeftMouseButton, 0.0f, Modifiers(false, true)));
	Release();
	EXPECT_EQ(Selected(), "abcdef");
}

TEST_F(EditableTextTest, DoubleClickSelectsWhatItFallsOnAndNotWhatIsBesideIt)
{
	ShowFocused(Arguments(TEXT("rooms free")));
	for (int32 Moves = 0; Moves < 5; ++Moves)
	{
		Stroke(EKeys::Left);
	}
	const float Border = static_cast<float>(GetCaretX());
	const auto DoubleClickAt = [this](float X)
	{
		Wait(1.0);
		Move(X, 15.0f);
		Press();
		Release();
		Press();
		Release();
	};
	DoubleClickAt(Border - 1.5f);
	EXPECT_EQ(Selected(), "rooms");
	DoubleClickAt(Border + 1.5f);
	EXPECT_EQ(Selected(), " ");
}

TEST_F(EditableTextTest, CaretOfReadOnlyTextNeitherShowsNorBlinks)
{
	ShowFocused(Arguments(TEXT("abc")).IsReadOnly(true));
	EXPECT_EQ(GetCaretX(), -1);
	EXPECT_FALSE(Text->HasActiveTimers());
	Text->SetIsReadOnly(false);
	EXPECT_GT(GetCaretX(), 0);
	EXPECT_TRUE(Text->HasActiveTimers());
}

TEST_F(EditableTextTest, CaretIsOnePixelWideAndAsHighAsTheLine)
{
	ShowFocused(Arguments(TEXT("abc")));
	const TArray<Host::FPixelRect> Boxes = FindBoxes(Caret);
	ASSERT_EQ(Boxes.Num(), 1);
	EXPECT_EQ(Boxes[0].Right - Boxes[0].Left, 1);
	EXPECT_GT(Boxes[0].Bottom - Boxes[0].Top, 10);
}

TEST_F(EditableTextTest, CaretAtTheRightEdgeIsSeen)
{
	ShowFocused(Arguments(TEXT("abc")).Justification(ETextJustify::Right));
	EXPECT_EQ(GetCaretX(), 199);
}

TEST_F(EditableTextTest, ScrolledTextShowsItsBeginningWhenItIsLeft)
{
	ShowFocused(Arguments(TEXT("a text that is much longer than two hundred units can show at once")));
	const auto GetLeft = [this]()
	{
		App().Tick();
		float Left = 0.0f;
		Window->GetRoot().ForEachElement(Host::FPixelRect::Everything(), [&Left](TConstArrayView<Host::FDrawElement> Elements)
		{
			for (const Host::FDrawElement& Element : Elements)
			{
				Left = Element.GetRun() ? Element.LocalToPixel.X : Left;
			}
		});
		return Left;
	};
	EXPECT_LT(GetLeft(), -100.0f);
	App().ClearKeyboardFocus();
	EXPECT_EQ(GetLeft(), 0.0f);
}

TEST_F(EditableTextTest, OverflowIsShortenedWhileTheTextIsNotEdited)
{
	const TCHAR* const Long = TEXT("a text that is much longer than two hundred units can show at once");
	ShowText(Arguments(Long).OverflowPolicy(ETextOverflowPolicy::Ellipsis));
	EXPECT_TRUE(GetShown().EndsWith(TEXT("\u2026")));
	App().SetKeyboardFocus(Text);
	EXPECT_EQ(GetShown(), Long);
}

TEST_F(EditableTextTest, InactiveWindowCommitsAndTakesTheEditingUpAgain)
{
	ShowFocused(Arguments(TEXT("abc")));
	Stroke(EKeys::A, true);
	App().ProcessWindowActivatedEvent(FWindowActivateEvent(FWindowActivateEvent::EA_Deactivate, Window.ToSharedRef()));
	EXPECT_LOG("Default:abc");
	EXPECT_FALSE(Text->HasActiveTimers());
	App().ProcessWindowActivatedEvent(FWindowActivateEvent(FWindowActivateEvent::EA_Activate, Window.ToSharedRef()));
	EXPECT_TRUE(Text->HasKeyboardFocus());
	EXPECT_EQ(Selected(), "abc");
}

class EditableTextBoxTest : public FControlTest
{
protected:
	void ShowBox(const SEditableTextBox::FArguments& InArguments)
	{
		Box = SArgumentNew(InArguments, SEditableTextBox);
		Show(SNew(SVerticalBox)
			+ SVerticalBox::Slot().AutoHeight()[SAssignNew(Before, SButton)]
			+ SVerticalBox::Slot().AutoHeight()[Box.ToSharedRef()]
			+ SVerticalBox::Slot().AutoHeight()[SAssignNew(Behind, SButton)]);
	}

	const FEditableTextBoxStyle& Style = FCoreStyle::Get().GetWidgetStyle<FEditableTextBoxStyle>("NormalEditableTextBox");
	TSharedPtr<SEditableTextBox> Box;
	TSharedPtr<SButton> Before;
	TSharedPtr<SButton> Behind;
};

TEST_F(EditableTextBoxTest, FrameFollowsTheState)
{
	ShowBox(SEditableTextBox::FArguments());
	EXPECT_EQ(Box->GetBorderImage(), &Style.BackgroundImageNormal);
	MoveTo(Box.ToSharedRef());
	EXPECT_EQ(Box->GetBorderImage(), &Style.BackgroundImageHovered);
	Press();
	Release();
	EXPECT_EQ(Box->GetBorderImage(), &Style.BackgroundImageFocused);
	Box->SetIsReadOnly(true);
	EXPECT_EQ(Box->GetBorderImage(), &Style.BackgroundImageReadOnly);
}

TEST_F(EditableTextBoxTest, FocusGoesToTheTextInside)
{
	ShowBox(SEditableTextBox::FArguments());
	App().SetKeyboardFocus(Box);
	EXPECT_TRUE(Box->GetEditableText()->HasKeyboardFocus());
	Type(TEXT("abc"));
	EXPECT_EQ(ToStd(Box->GetText()), "abc");
}

TEST_F(EditableTextBoxTest, GetterOfReadOnlyRulesTheFrame)
{
	bool bReadOnly = false;
	ShowBox(SEditableTextBox::FArguments().IsReadOnly(TAttribute<bool>::CreateLambda([&bReadOnly]() { return bReadOnly; })));
	bReadOnly = true;
	App().Tick();
	EXPECT_TRUE(Box->IsReadOnly());
	EXPECT_EQ(Box->GetBorderImage(), &Style.BackgroundImageReadOnly);
	Box.Reset();
	Window->SetContent(SNew(SBox));
}

TEST_F(EditableTextBoxTest, NavigationEntersAndLeavesTheTextAtOnce)
{
	ShowBox(SEditableTextBox::FArguments());
	App().SetKeyboardFocus(Box);
	Stroke(EKeys::Tab);
	EXPECT_TRUE(Behind->HasKeyboardFocus());
	Stroke(EKeys::Tab, false, true);
	EXPECT_TRUE(Box->GetEditableText()->HasKeyboardFocus());
	Stroke(EKeys::Tab, false, true);
	EXPECT_TRUE(Before->HasKeyboardFocus());
	Stroke(EKeys::Tab);
	EXPECT_TRUE(Box->GetEditableText()->HasKeyboardFocus());
}

TEST_F(EditableTextBoxTest, PressBesideTheTextPutsTheCaretIntoIt)
{
	ShowBox(SEditableTextBox::FArguments().Text(FText::FromString(TEXT("abc"))));
	const FVector2f TopLeft = Box->GetCachedGeometry().GetAbsolutePosition();
	Move(TopLeft.X + 2.0f, TopLeft.Y + 2.0f);
	Press();
	Release();
	EXPECT_TRUE(Box->GetEditableText()->HasKeyboardFocus());
	Type(TEXT("x"));
	EXPECT_EQ(ToStd(Box->GetText()), "xabc");
	Move(TopLeft.X + 2.0f, TopLeft.Y + 2.0f);
	Press();
	Release();
	EXPECT_TRUE(Box->GetEditableText()->HasKeyboardFocus());
}
