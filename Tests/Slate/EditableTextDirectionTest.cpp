#include "EditableTextTools.h"

/** Texts whose characters run in both directions. */
using EditableTextDirectionTest = FEditableTextTest;

namespace
{
	/** Two Latin letters, three Hebrew ones and two Latin ones: on the screen the Hebrew ones stand in reverse. */
	const TCHAR* const Mixed = TEXT("ab\u05D0\u05D1\u05D2cd");
}

TEST_F(EditableTextDirectionTest, ArrowsWalkOverTheScreenFromOneSideToTheOther)
{
	ShowFocused(Arguments(Mixed));
	Stroke(EKeys::Home);
	TArray<int32> Places = {GetCaretX()};
	EXPECT_EQ(Places[0], 0);
	for (int32 Character = 0; Character < 7; ++Character)
	{
		Stroke(EKeys::Right);
		EXPECT_GT(GetCaretX(), Places.Last()) << "after " << Character;
		Places.Add(GetCaretX());
	}
	Stroke(EKeys::Right);
	EXPECT_EQ(GetCaretX(), Places.Last());
	for (int32 Character = 6; Character >= 0; --Character)
	{
		Stroke(EKeys::Left);
		EXPECT_EQ(GetCaretX(), Places[Character]);
	}
}

TEST_F(EditableTextDirectionTest, PressPutsTheCaretWhereItWasPressed)
{
	ShowFocused(Arguments(Mixed));
	Stroke(EKeys::Home);
	TArray<int32> Places;
	for (int32 Character = 0; Character < 7; ++Character)
	{
		Places.Add(GetCaretX());
		Stroke(EKeys::Right);
	}
	for (const int32 Place : Places)
	{
		Wait(1.0);
		Move(static_cast<float>(Place) + 0.5f, 15.0f);
		Press();
		Release();
		EXPECT_EQ(GetCaretX(), Place);
	}
}

TEST_F(EditableTextDirectionTest, SelectionIsAsManyBoxesAsItHasPiecesOnTheScreen)
{
	ShowFocused(Arguments(Mixed));
	Stroke(EKeys::Home);
	Stroke(EKeys::Right);
	const int32 BehindFirst = GetCaretX();
	Text->SelectAllText();
	EXPECT_EQ(FindBoxes(Selection).Num(), 1);
	// The second Latin letter and the first Hebrew one: the others of the Hebrew letters stand between them.
	Stroke(EKeys::Home);
	Stroke(EKeys::Right);
	App().ProcessKeyDownEvent(FKeyEvent(EKeys::Right, Modifiers(false, true), 0, false, 0, 0));
	EXPECT_EQ(Selected(), "b");
	Stroke(EKeys::Right, false, true);
	EXPECT_EQ(Selected(), "b\xD7\x90\xD7\x91");
	const TArray<Host::FPixelRect> Boxes = FindBoxes(Selection);
	ASSERT_EQ(Boxes.Num(), 2);
	EXPECT_EQ(Boxes[0].Left, BehindFirst);
	EXPECT_GT(Boxes[1].Left, Boxes[0].Right);
}

TEST_F(EditableTextDirectionTest, CaretStaysWithWhatIsTyped)
{
	ShowFocused(Arguments(TEXT("abcd")));
	Stroke(EKeys::Left);
	Stroke(EKeys::Left);
	const int32 Before = GetCaretX();
	Type(TEXT("\u05D0"));
	const int32 First = GetCaretX();
	Type(TEXT("\u05D1"));
	// What is written to the left has its caret at the left, which does not move.
	EXPECT_NEAR(First, Before, 1);
	EXPECT_NEAR(GetCaretX(), Before, 1);
	Type(TEXT("e"));
	EXPECT_GT(GetCaretX(), Before + 5);
}

TEST_F(EditableTextDirectionTest, ControlArrowsMoveByWordsToTheSideThatTheyShow)
{
	ShowFocused(Arguments(TEXT("\u05D0\u05D1 \u05D2\u05D3")));
	Stroke(EKeys::Home);
	EXPECT_EQ(GetCaretX(), 199);
	Stroke(EKeys::Left, true);
	Type(TEXT("x"));
	EXPECT_EQ(Content(), "\xD7\x90\xD7\x91 x\xD7\x92\xD7\x93");
}

TEST_F(EditableTextDirectionTest, LongTextThatReadsToTheLeftShowsItsBeginning)
{
	FString Long;
	for (int32 Word = 0; Word < 20; ++Word)
	{
		Long += TEXT("\u05D0\u05D1\u05D2\u05D3 ");
	}
	ShowText(Arguments(*Long));
	Move(199.0f, 15.0f);
	Press();
	Release();
	Type(TEXT("x"));
	EXPECT_TRUE(Text->GetText().ToString().StartsWith(TEXT("x")));
}
