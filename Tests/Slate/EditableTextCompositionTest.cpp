#include "EditableTextTools.h"

#include "Host/SlateLoop.h"

/** Text that an input method composes. */
class EditableTextCompositionTest : public FEditableTextTest
{
protected:
	EditableTextCompositionTest() { Host::FSlateLoop::SetTextInputDevice(&Device); }
	~EditableTextCompositionTest() override { Host::FSlateLoop::SetTextInputDevice(nullptr); }

	static bool Compose(const TCHAR* InText, int32 CaretPosition) { return Host::FSlateLoop::ProcessComposition(InText, CaretPosition); }

	FTextInputLog Device;
};

TEST_F(EditableTextCompositionTest, TextIsEnteredOnlyWhileATextHasTheFocus)
{
	ShowText(Arguments());
	EXPECT_EQ(Device.Take(), TEXT(""));
	EXPECT_FALSE(Compose(TEXT("ni"), 2));
	App().SetKeyboardFocus(Text);
	EXPECT_EQ(Device.Take(), TEXT("Start"));
	App().ClearKeyboardFocus();
	EXPECT_EQ(Device.Take(), TEXT("Stop"));
}

TEST_F(EditableTextCompositionTest, TextThatIsGoneEndsTheInput)
{
	ShowFocused(Arguments());
	Device.Take();
	Text.Reset();
	Window->SetContent(SNew(SBox));
	App().Tick();
	EXPECT_EQ(Device.Take(), TEXT("Stop"));
}

TEST_F(EditableTextCompositionTest, DeviceThatComesLaterLearnsOfTheText)
{
	Host::FSlateLoop::SetTextInputDevice(nullptr);
	ShowFocused(Arguments());
	Host::FSlateLoop::SetTextInputDevice(&Device);
	EXPECT_EQ(Device.Take(), TEXT("Start"));
	EXPECT_GT(Device.CaretArea.Height(), 10);
}

TEST_F(EditableTextCompositionTest, CompositionStandsUnderlinedAtTheCaretAndIsNoPartOfTheText)
{
	ShowFocused(Arguments(TEXT("ab")));
	Stroke(EKeys::Left);
	EXPECT_TRUE(Compose(TEXT("ni"), 2));
	EXPECT_EQ(GetShown(), TEXT("anib"));
	EXPECT_EQ(Content(), "ab");
	EXPECT_LOG("");
	const TArray<Host::FPixelRect> Boxes = FindBoxes(Composing);
	ASSERT_EQ(Boxes.Num(), 1);
	FSlateBrush Line;
	Line.TintColor = FLinearColor::White;
	const TArray<Host::FPixelRect> Lines = FindBoxes(Line);
	ASSERT_EQ(Lines.Num(), 1);
	EXPECT_NEAR(Lines[0].Left, Boxes[0].Left, 1);
	EXPECT_NEAR(Lines[0].Right, Boxes[0].Right, 1);
	EXPECT_EQ(Lines[0].Bottom - Lines[0].Top, 1);
}

TEST_F(EditableTextCompositionTest, CaretStandsWhereTheInputMethodSays)
{
	ShowFocused(Arguments());
	Compose(TEXT("nihao"), 0);
	EXPECT_EQ(GetCaretX(), 0);
	Compose(TEXT("nihao"), 2);
	const int32 Middle = GetCaretX();
	EXPECT_GT(Middle, 0);
	Compose(TEXT("nihao"), 99);
	EXPECT_GT(GetCaretX(), Middle);
	EXPECT_EQ(Device.CaretArea.Min.X, GetCaretX());
}

TEST_F(EditableTextCompositionTest, ResultTakesThePlaceOfTheComposition)
{
	ShowFocused(Arguments(TEXT("ab")));
	Compose(TEXT("nihao"), 5);
	Type(TEXT("\u4F60\u597D"));
	EXPECT_EQ(Content(), "ab\xE4\xBD\xA0\xE5\xA5\xBD");
	EXPECT_EQ(GetShown(), TEXT("ab\u4F60\u597D"));
	Compose(TEXT(""), 0);
	Stroke(EKeys::Z, true);
	EXPECT_EQ(Content(), "ab");
}

TEST_F(EditableTextCompositionTest, SelectionIsReplacedByTheResultAndComesBackWithoutOne)
{
	ShowFocused(Arguments(TEXT("abcd")));
	Stroke(EKeys::Left, false, true);
	Stroke(EKeys::Left, false, true);
	Compose(TEXT("ni"), 2);
	EXPECT_EQ(GetShown(), TEXT("abni"));
	EXPECT_EQ(FindBoxes(Selection).Num(), 0);
	Compose(TEXT(""), 0);
	EXPECT_EQ(GetShown(), TEXT("abcd"));
	EXPECT_EQ(Selected(), "cd");
	Compose(TEXT("ni"), 2);
	Type(TEXT("\u4F60"));
	EXPECT_EQ(Content(), "ab\xE4\xBD\xA0");
}

TEST_F(EditableTextCompositionTest, KeysAreLeftToTheInputMethod)
{
	ShowFocused(Arguments(TEXT("ab")));
	Compose(TEXT("ni"), 2);
	Stroke(EKeys::Enter);
	Stroke(EKeys::Escape);
	Stroke(EKeys::BackSpace);
	Stroke(EKeys::Left);
	EXPECT_TRUE(Text->HasKeyboardFocus());
	EXPECT_EQ(GetShown(), TEXT("abni"));
	EXPECT_LOG("");
	Compose(TEXT(""), 0);
	Stroke(EKeys::Enter);
	EXPECT_LOG("Enter:ab");
}

TEST_F(EditableTextCompositionTest, PressAndLossOfTheFocusCancelIt)
{
	ShowFocused(Arguments(TEXT("ab")));
	Device.Take();
	Compose(TEXT("ni"), 2);
	Move(1.0f, 15.0f);
	Press();
	Release();
	EXPECT_EQ(Device.Take(), TEXT("Cancel"));
	EXPECT_EQ(GetShown(), TEXT("ab"));
	Compose(TEXT("ni"), 2);
	App().ClearKeyboardFocus();
	EXPECT_EQ(Device.Take(), TEXT("Cancel Stop"));
	EXPECT_EQ(GetShown(), TEXT("ab"));
	EXPECT_EQ(Content(), "ab");
}

TEST_F(EditableTextCompositionTest, ReadOnlyTextIsNotComposedIn)
{
	ShowFocused(Arguments(TEXT("ab")).IsReadOnly(true));
	Compose(TEXT("ni"), 2);
	EXPECT_EQ(GetShown(), TEXT("ab"));
}

TEST_F(EditableTextCompositionTest, CompositionOfAPasswordIsNotShown)
{
	ShowFocused(Arguments(TEXT("a")).IsPassword(true));
	Compose(TEXT("ni"), 2);
	EXPECT_EQ(GetShown(), TEXT("\u2022\u2022\u2022"));
}
