#include "Host/TextBoundaries.h"

#include <gtest/gtest.h>

using Host::FTextBoundaries;

TEST(TextBoundariesTest, LettersAreSteppedOverOneByOne)
{
	EXPECT_EQ(FTextBoundaries::NextCharacter(TEXT("abc"), 0), 1);
	EXPECT_EQ(FTextBoundaries::NextCharacter(TEXT("abc"), 2), 3);
	EXPECT_EQ(FTextBoundaries::PreviousCharacter(TEXT("abc"), 3), 2);
	EXPECT_EQ(FTextBoundaries::PreviousCharacter(TEXT("abc"), 1), 0);
}

TEST(TextBoundariesTest, PositionsOutsideTheTextAreItsEnds)
{
	EXPECT_EQ(FTextBoundaries::NextCharacter(TEXT("abc"), 3), 3);
	EXPECT_EQ(FTextBoundaries::NextCharacter(TEXT("abc"), 99), 3);
	EXPECT_EQ(FTextBoundaries::NextCharacter(TEXT("abc"), -5), 1);
	EXPECT_EQ(FTextBoundaries::PreviousCharacter(TEXT("abc"), 0), 0);
	EXPECT_EQ(FTextBoundaries::PreviousCharacter(TEXT("abc"), 99), 2);
	EXPECT_EQ(FTextBoundaries::NextWord(TEXT("abc"), 99), 3);
	EXPECT_EQ(FTextBoundaries::PreviousWord(TEXT("abc"), -1), 0);
}

TEST(TextBoundariesTest, AnAccentBelongsToItsLetter)
{
	EXPECT_EQ(FTextBoundaries::NextCharacter(TEXT("e\u0301x"), 0), 2);
	EXPECT_EQ(FTextBoundaries::PreviousCharacter(TEXT("e\u0301x"), 2), 0);
}

TEST(TextBoundariesTest, AFamilyIsOneCharacter)
{
	const FStringView Family(TEXT("\U0001F468\u200D\U0001F469\u200D\U0001F467x"));
	EXPECT_EQ(FTextBoundaries::NextCharacter(Family, 0), 8);
	EXPECT_EQ(FTextBoundaries::PreviousCharacter(Family, 8), 0);
}

TEST(TextBoundariesTest, ALineBreakOfTwoUnitsIsOneCharacter)
{
	EXPECT_EQ(FTextBoundaries::NextCharacter(TEXT("\r\nx"), 0), 2);
}

TEST(TextBoundariesTest, WordsAreSteppedOverWithTheirBlanks)
{
	const FStringView Text(TEXT("The quick,  brown"));
	EXPECT_EQ(FTextBoundaries::NextWord(Text, 0), 4);
	EXPECT_EQ(FTextBoundaries::NextWord(Text, 4), 9);
	EXPECT_EQ(FTextBoundaries::NextWord(Text, 9), 12);
	EXPECT_EQ(FTextBoundaries::NextWord(Text, 12), 17);
	EXPECT_EQ(FTextBoundaries::PreviousWord(Text, 17), 12);
	EXPECT_EQ(FTextBoundaries::PreviousWord(Text, 12), 9);
	EXPECT_EQ(FTextBoundaries::PreviousWord(Text, 9), 4);
	EXPECT_EQ(FTextBoundaries::PreviousWord(Text, 4), 0);
}

TEST(TextBoundariesTest, ADoubleClickSelectsTheWordAroundIt)
{
	int32 Begin = 0;
	int32 End = 0;
	FTextBoundaries::FindWord(TEXT("The quick brown"), 6, Begin, End);
	EXPECT_EQ(Begin, 4);
	EXPECT_EQ(End, 9);
	FTextBoundaries::FindWord(TEXT("The quick brown"), 99, Begin, End);
	EXPECT_EQ(Begin, 10);
	EXPECT_EQ(End, 15);
	FTextBoundaries::FindWord(TEXT(""), 3, Begin, End);
	EXPECT_EQ(Begin, 0);
	EXPECT_EQ(End, 0);
}

TEST(TextBoundariesTest, LinesBreakAfterBlanksAndHyphens)
{
	TArray<int32> Breaks;
	FTextBoundaries::FindLineBreaks(TEXT("a well-known fact"), Breaks);
	const TArray<int32> Expected = { 2, 7, 13, 17 };
	EXPECT_EQ(Breaks, Expected);
}

TEST(TextBoundariesTest, LinesDoNotBreakAtFixedBlanks)
{
	TArray<int32> Breaks;
	FTextBoundaries::FindLineBreaks(TEXT("12\u00A0m"), Breaks);
	const TArray<int32> Expected = { 4 };
	EXPECT_EQ(Breaks, Expected);
}

TEST(TextBoundariesTest, EmptyTextHasItsEndAsOnlyBreak)
{
	TArray<int32> Breaks;
	FTextBoundaries::FindLineBreaks(FStringView(), Breaks);
	const TArray<int32> Expected = { 0 };
	EXPECT_EQ(Breaks, Expected);
}
