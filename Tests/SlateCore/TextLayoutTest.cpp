#include "FontTestTools.h"

#include "Host/TextBoundaries.h"
#include "Host/TextLayout.h"

using namespace Host;

/** Layouts use the shared font services. */
class TextLayoutTest : public testing::Test
{
protected:
	TextLayoutTest()
	{
		Style.Font = FFontServices::Get().GetFont(FSlateFontInfo(MakePlainFont(), 15.0f), 1.0f);
		Pitch = Style.Font->GetMetrics().LineHeight;
	}

	virtual void TearDown() override
	{
		Style.Font.Reset();
		FFontServices::Shutdown();
	}

	void Set(const FString& Text)
	{
		Layout.SetStyle(Style);
		Layout.SetText(Text);
	}

	float GetWidth(const FString& Text) const
	{
		return FFontServices::Get().Shape(Style.Font.ToSharedRef(), Text)->GetWidth();
	}

	TArray<FString> GetLines()
	{
		TArray<FString> Result;
		for (const FTextLine& Line : Layout.GetLines())
		{
			Result.Add(FString(Layout.GetText().Mid(Line.Begin, Line.End - Line.Begin)));
		}
		return Result;
	}

	TArray<FPlacedRun> Place(FVector2f Area, ETextOverflow Overflow = ETextOverflow::Clip)
	{
		TArray<FPlacedRun> Runs;
		Layout.Place(Area, Overflow, Runs);
		return Runs;
	}

	static TArray<FString> Strings(std::initializer_list<const TCHAR*> Lines)
	{
		TArray<FString> Result;
		for (const TCHAR* Line : Lines)
		{
			Result.Add(Line);
		}
		return Result;
	}

	FTextLayoutStyle Style;
	FTextLayout Layout;
	float Pitch;
};

static const TCHAR* const Sentence = TEXT("The quick brown fox jumps over the lazy dog");

TEST_F(TextLayoutTest, AnEmptyTextIsOneLineHigh)
{
	Set(TEXT(""));
	EXPECT_EQ(Layout.GetLines().Num(), 1);
	EXPECT_EQ(Layout.GetSize().X, 0.0f);
	EXPECT_EQ(Layout.GetSize().Y, Pitch);
}

TEST_F(TextLayoutTest, LineBreaksOfAllKindsEndLines)
{
	Set(TEXT("a\nb\r\nc\rd\u2028e\u2029f"));
	EXPECT_EQ(GetLines(), Strings({ TEXT("a"), TEXT("b"), TEXT("c"), TEXT("d"), TEXT("e"), TEXT("f") }));
}

TEST_F(TextLayoutTest, ALineBreakAtTheEndBeginsAnEmptyLine)
{
	Set(TEXT("a\n"));
	EXPECT_EQ(GetLines(), Strings({ TEXT("a"), TEXT("") }));
	EXPECT_EQ(Layout.GetSize().Y, 2.0f * Pitch);
}

TEST_F(TextLayoutTest, SizeIsTheWidestLineInWholePixels)
{
	Set(TEXT("short\na much longer line\nx"));
	EXPECT_EQ(Layout.GetSize().X, FMath::CeilToFloat(GetWidth(TEXT("a much longer line"))));
	EXPECT_EQ(Layout.GetSize().Y, 3.0f * Pitch);
}

TEST_F(TextLayoutTest, LinesWrapBetweenWords)
{
	Style.WrapWidth = GetWidth(TEXT("The quick brown")) + 1.0f;
	Set(Sentence);
	EXPECT_EQ(GetLines()[0], TEXT("The quick brown "));
	for (const FTextLine& Line : Layout.GetLines())
	{
		EXPECT_LE(Line.Width, Style.WrapWidth);
	}
	EXPECT_EQ(FString::Join(GetLines(), TEXT("")), Sentence);
}

TEST_F(TextLayoutTest, BlanksAtTheEndOfALineTakeNoRoom)
{
	Style.WrapWidth = GetWidth(TEXT("The quick"));
	Set(TEXT("The quick    brown"));
	EXPECT_EQ(GetLines(), Strings({ TEXT("The quick    "), TEXT("brown") }));
	EXPECT_FLOAT_EQ(Layout.GetLines()[0].Width, GetWidth(TEXT("The quick")));
}

TEST_F(TextLayoutTest, TextWrappedAtItsOwnSizeDoesNotWrap)
{
	for (int32 Size = 6; Size < 40; ++Size)
	{
		Style.Font = FFontServices::Get().GetFont(FSlateFontInfo(MakePlainFont(), static_cast<float>(Size)), 1.37f);
		Style.WrapWidth = 0.0f;
		Set(Sentence);
		const float Width = Layout.GetSize().X;
		// On its way through slate units a width loses a few bits.
		Style.WrapWidth = Width / 1.37f * 1.37f;
		Layout.SetStyle(Style);
		EXPECT_EQ(Layout.GetLines().Num(), 1) << Size;
	}
}

TEST_F(TextLayoutTest, ALongWordSticksOut)
{
	Style.WrapWidth = GetWidth(TEXT("abc"));
	Set(TEXT("a abcdefghi b"));
	EXPECT_EQ(GetLines(), Strings({ TEXT("a "), TEXT("abcdefghi "), TEXT("b") }));
}

TEST_F(TextLayoutTest, ALongWordCanBeBroken)
{
	Style.WrapWidth = GetWidth(TEXT("abcd")) + 0.5f;
	Style.bBreakWords = true;
	Set(TEXT("abcdefgh"));
	EXPECT_GT(Layout.GetLines().Num(), 1);
	EXPECT_EQ(GetLines()[0], TEXT("abcd"));
	EXPECT_EQ(FString::Join(GetLines(), TEXT("")), TEXT("abcdefgh"));
}

TEST_F(TextLayoutTest, AWidthOfNothingPutsOneCharacterOnALine)
{
	Style.WrapWidth = 0.01f;
	Style.bBreakWords = true;
	Set(TEXT("xe\u0301z"));
	EXPECT_EQ(GetLines(), Strings({ TEXT("x"), TEXT("e\u0301"), TEXT("z") }));
}

TEST_F(TextLayoutTest, ChangingTheWidthShapesNothing)
{
	Set(Sentence);
	Layout.GetSize();
	const int32 Shaped = Layout.GetNumShaped();
	for (float Width = 30.0f; Width < 300.0f; Width += 7.0f)
	{
		Style.WrapWidth = Width;
		Layout.SetStyle(Style);
		Layout.GetSize();
	}
	EXPECT_EQ(Layout.GetNumShaped(), Shaped);
}

TEST_F(TextLayoutTest, AChangeShapesOnlyItsParagraph)
{
	Set(TEXT("one\ntwo\nthree\nfour"));
	Layout.GetSize();
	EXPECT_EQ(Layout.GetNumShaped(), 4);
	Layout.SetText(TEXT("one\ntwo!\nthree\nfour"));
	Layout.GetSize();
	EXPECT_EQ(Layout.GetNumShaped(), 5);
	Layout.SetText(TEXT("one\ntwo!\nnew\nthree\nfour"));
	EXPECT_EQ(GetLines(), Strings({ TEXT("one"), TEXT("two!"), TEXT("new"), TEXT("three"), TEXT("four") }));
	EXPECT_EQ(Layout.GetNumShaped(), 6);
}

TEST_F(TextLayoutTest, AnotherFontShapesEverything)
{
	Set(TEXT("one\ntwo"));
	const float Width = Layout.GetSize().X;
	Style.Font = FFontServices::Get().GetFont(FSlateFontInfo(MakePlainFont(), 30.0f), 1.0f);
	Layout.SetStyle(Style);
	EXPECT_GT(Layout.GetSize().X, 1.9f * Width);
}

TEST_F(TextLayoutTest, LineHeightScalesTheDistanceOfLines)
{
	Style.LineHeightScale = 1.5f;
	Set(TEXT("a\nb"));
	const TArray<FPlacedRun> Runs = Place(FVector2f(100.0f, 100.0f));
	EXPECT_FLOAT_EQ(Runs[1].Origin.Y - Runs[0].Origin.Y, FMath::RoundToFloat(Pitch * 1.5f));
	EXPECT_FLOAT_EQ(Layout.GetSize().Y, 2.0f * FMath::RoundToFloat(Pitch * 1.5f));
}

TEST_F(TextLayoutTest, TheMarginSurroundsTheText)
{
	Set(TEXT("abc"));
	const FVector2f Bare = Layout.GetSize();
	Style.Margin = FMargin(1.0f, 2.0f, 3.0f, 4.0f);
	Layout.SetStyle(Style);
	EXPECT_EQ(Layout.GetSize(), Bare + FVector2f(4.0f, 6.0f));
	const FPlacedRun Run = Place(FVector2f(200.0f, 100.0f))[0];
	EXPECT_EQ(Run.Origin, FVector2f(1.0f, 2.0f + Style.Font->GetMetrics().Baseline));
}

TEST_F(TextLayoutTest, LinesAreAlignedWithinTheArea)
{
	const float Width = GetWidth(TEXT("abc"));
	Set(TEXT("abc"));
	EXPECT_FLOAT_EQ(Place(FVector2f(200.0f, 50.0f))[0].Origin.X, 0.0f);
	Style.Align = ETextAlign::Center;
	Layout.SetStyle(Style);
	EXPECT_NEAR(Place(FVector2f(200.0f, 50.0f))[0].Origin.X, (200.0f - Width) / 2.0f, 0.01f);
	Style.Align = ETextAlign::End;
	Layout.SetStyle(Style);
	EXPECT_NEAR(Place(FVector2f(200.0f, 50.0f))[0].Origin.X, 200.0f - Width, 0.01f);
}

TEST_F(TextLayoutTest, HebrewStartsAtTheRight)
{
	Set(TEXT("\u05D0\u05D1\u05D2"));
	EXPECT_NEAR(Place(FVector2f(200.0f, 50.0f))[0].Origin.X, 200.0f - Layout.GetLines()[0].Width, 0.01f);
	Style.Align = ETextAlign::End;
	Layout.SetStyle(Style);
	EXPECT_NEAR(Place(FVector2f(200.0f, 50.0f))[0].Origin.X, 0.0f, 0.01f);
}

TEST_F(TextLayoutTest, WrappedHebrewFillsLinesInReadingOrder)
{
	Style.WrapWidth = 0.0f;
	Set(TEXT("\u05D0\u05D0 \u05D1\u05D1"));
	Style.WrapWidth = Layout.GetLines()[0].Width - 1.0f;
	Layout.SetStyle(Style);
	EXPECT_EQ(GetLines(), Strings({ TEXT("\u05D0\u05D0 "), TEXT("\u05D1\u05D1") }));
}

TEST_F(TextLayoutTest, ATooWideLineEndsInAnEllipsis)
{
	Set(TEXT("A rather long name"));
	const float Width = GetWidth(TEXT("A rather")) + GetWidth(TEXT("\u2026")) + 0.5f;
	const TArray<FPlacedRun> Runs = Place(FVector2f(Width, Pitch), ETextOverflow::Ellipsis);
	ASSERT_EQ(Runs.Num(), 1);
	EXPECT_EQ(FString(Runs[0].Run->GetText()), TEXT("A rather\u2026"));
	EXPECT_LE(Runs[0].Run->GetWidth(), Width);
}

TEST_F(TextLayoutTest, ALineThatFitsHasNoEllipsis)
{
	Set(TEXT("A name"));
	const TArray<FPlacedRun> Runs = Place(Layout.GetSize(), ETextOverflow::Ellipsis);
	EXPECT_EQ(FString(Runs[0].Run->GetText()), TEXT("A name"));
}

TEST_F(TextLayoutTest, WithoutRoomOnlyTheEllipsisShows)
{
	Set(TEXT("A name"));
	const TArray<FPlacedRun> Runs = Place(FVector2f(1.0f, Pitch), ETextOverflow::Ellipsis);
	EXPECT_EQ(FString(Runs[0].Run->GetText()), TEXT("\u2026"));
}

TEST_F(TextLayoutTest, LinesBelowTheAreaAreCutWithAnEllipsis)
{
	Style.WrapWidth = 120.0f;
	Set(Sentence);
	ASSERT_GT(Layout.GetLines().Num(), 2);
	const TArray<FPlacedRun> Runs = Place(FVector2f(120.0f, 2.0f * Pitch), ETextOverflow::MultilineEllipsis);
	ASSERT_EQ(Runs.Num(), 2);
	EXPECT_FALSE(FString(Runs[0].Run->GetText()).EndsWith(TEXT("\u2026")));
	EXPECT_TRUE(FString(Runs[1].Run->GetText()).EndsWith(TEXT("\u2026")));
	EXPECT_EQ(Place(FVector2f(120.0f, 2.0f * Pitch), ETextOverflow::Ellipsis).Num(), Layout.GetLines().Num());
}

TEST_F(TextLayoutTest, WrappedLinesAreTheRunsOfTheirText)
{
	Style.WrapWidth = 90.0f;
	Set(Sentence);
	const TArray<FPlacedRun> Runs = Place(FVector2f(90.0f, 500.0f));
	ASSERT_EQ(Runs.Num(), Layout.GetLines().Num());
	for (const FPlacedRun& Placed : Runs)
	{
		EXPECT_NEAR(Placed.Run->GetWidth(), GetWidth(FString(Placed.Run->GetText())), 0.05f);
	}
}

TEST_F(TextLayoutTest, CaretsRiseFromLeftToRight)
{
	Set(TEXT("Hello"));
	float Last = -1.0f;
	for (int32 Index = 0; Index <= 5; ++Index)
	{
		const FCaretPlace Caret = Layout.GetCaret(Index, 200.0f);
		EXPECT_GT(Caret.X, Last);
		EXPECT_EQ(Caret.Height, Pitch);
		Last = Caret.X;
	}
	EXPECT_NEAR(Last, GetWidth(TEXT("Hello")), 0.01f);
}

TEST_F(TextLayoutTest, APointFindsTheCaretThatItIsNearestTo)
{
	Set(TEXT("Hello\nworld"));
	for (int32 Index = 0; Index <= 11; ++Index)
	{
		const FCaretPlace Caret = Layout.GetCaret(Index, 200.0f);
		EXPECT_EQ(Layout.FindIndexAt(FVector2f(Caret.X + 0.4f, Caret.Top + 2.0f), 200.0f), Index);
	}
	EXPECT_EQ(Layout.FindIndexAt(FVector2f(-50.0f, -50.0f), 200.0f), 0);
	EXPECT_EQ(Layout.FindIndexAt(FVector2f(500.0f, 500.0f), 200.0f), 11);
}

TEST_F(TextLayoutTest, CaretsAndPointsAgreeWhenAligned)
{
	Style.Align = ETextAlign::End;
	Set(TEXT("Hello\nmy world"));
	for (int32 Index = 0; Index <= 14; ++Index)
	{
		const FCaretPlace Caret = Layout.GetCaret(Index, 300.0f);
		EXPECT_EQ(Layout.FindIndexAt(FVector2f(Caret.X, Caret.Top + 2.0f), 300.0f), Index);
	}
	EXPECT_NEAR(Layout.GetCaret(5, 300.0f).X, 300.0f, 0.01f);
}

TEST_F(TextLayoutTest, CaretsOfHebrewFallFromRightToLeft)
{
	Set(TEXT("\u05D0\u05D1\u05D2"));
	EXPECT_NEAR(Layout.GetCaret(0, 200.0f).X, 200.0f, 0.01f);
	EXPECT_LT(Layout.GetCaret(1, 200.0f).X, Layout.GetCaret(0, 200.0f).X);
	EXPECT_LT(Layout.GetCaret(3, 200.0f).X, Layout.GetCaret(2, 200.0f).X);
}

TEST_F(TextLayoutTest, ACaretWhereDirectionsMeetStandsAtEitherNeighbour)
{
	Set(TEXT("ab\u05D0\u05D1"));
	const float BehindLatin = GetWidth(TEXT("ab"));
	EXPECT_NEAR(Layout.GetCaret(2, 200.0f, true).X, BehindLatin, 0.05f);
	EXPECT_NEAR(Layout.GetCaret(2, 200.0f, false).X, Layout.GetSize().X, 1.0f);
	EXPECT_NEAR(Layout.GetCaret(4, 200.0f, true).X, BehindLatin, 0.05f);
}

TEST_F(TextLayoutTest, PlacesBesideEachOtherCrossTheLineOnTheScreen)
{
	Set(TEXT("ab\u05D0\u05D1c"));
	const TArray<int32> Indices = {0, 1, 2, 3, 2, 5};
	FTextPlace Place;
	float Last = -1.0f;
	for (const int32 Index : Indices)
	{
		EXPECT_EQ(Place.Index, Index);
		EXPECT_GT(Layout.GetCaret(Place.Index, 200.0f, Place.bAfter).X, Last);
		Last = Layout.GetCaret(Place.Index, 200.0f, Place.bAfter).X;
		Place = Layout.FindPlaceBeside(Place, true);
	}
	EXPECT_EQ(Place.Index, 5);
}

TEST_F(TextLayoutTest, APointFindsTheCharacterThatItFallsOn)
{
	Set(TEXT("ab"));
	const float Middle = Layout.GetCaret(1, 200.0f).X;
	EXPECT_TRUE(Layout.FindPlaceAt(FVector2f(Middle - 1.0f, 1.0f), 200.0f).bAfter);
	EXPECT_FALSE(Layout.FindPlaceAt(FVector2f(Middle + 1.0f, 1.0f), 200.0f).bAfter);
}

TEST_F(TextLayoutTest, AMarkHasNoCaretOfItsOwn)
{
	Set(TEXT("xe\u0301z"));
	const float Left = Layout.GetCaret(1, 200.0f).X;
	const float Right = Layout.GetCaret(3, 200.0f).X;
	for (float X = Left; X <= Right; X += 0.25f)
	{
		EXPECT_NE(Layout.FindIndexAt(FVector2f(X, 1.0f), 200.0f), 2);
	}
}

TEST_F(TextLayoutTest, ACaretWhereALineWrapsStandsOnEitherLine)
{
	Style.WrapWidth = GetWidth(TEXT("Hello "));
	Set(TEXT("Hello world"));
	EXPECT_EQ(Layout.GetCaret(6, 200.0f).Line, 1);
	EXPECT_EQ(Layout.GetCaret(6, 200.0f).X, 0.0f);
	EXPECT_EQ(Layout.GetCaret(6, 200.0f, true).Line, 0);
	EXPECT_NEAR(Layout.GetCaret(6, 200.0f, true).X, GetWidth(TEXT("Hello ")), 0.05f);
}

TEST_F(TextLayoutTest, ASelectionWithinALineIsOneBox)
{
	Set(TEXT("Hello world"));
	TArray<FSelectionBox> Boxes;
	Layout.GetSelection(2, 7, 200.0f, Boxes);
	ASSERT_EQ(Boxes.Num(), 1);
	EXPECT_NEAR(Boxes[0].Left, Layout.GetCaret(2, 200.0f).X, 0.01f);
	EXPECT_NEAR(Boxes[0].Right, Layout.GetCaret(7, 200.0f).X, 0.01f);
}

TEST_F(TextLayoutTest, ASelectionOverLinesHasABoxOnEach)
{
	Set(TEXT("Hello\nnew\nworld"));
	TArray<FSelectionBox> Boxes;
	Layout.GetSelection(2, 12, 200.0f, Boxes);
	ASSERT_EQ(Boxes.Num(), 3);
	EXPECT_EQ(Boxes[1].Top, Pitch);
	EXPECT_EQ(Boxes[1].Left, 0.0f);
	EXPECT_NEAR(Boxes[1].Right, GetWidth(TEXT("new")), 0.01f);
}

TEST_F(TextLayoutTest, ASelectionOverMixedDirectionsHasSeveralBoxes)
{
	Set(TEXT("ab \u05D0\u05D1 cd"));
	TArray<FSelectionBox> Boxes;
	// From within the first word into the Hebrew one, which begins at its right end.
	Layout.GetSelection(1, 4, 200.0f, Boxes);
	EXPECT_EQ(Boxes.Num(), 2);
}

TEST_F(TextLayoutTest, RandomEditsGiveWhatAFreshLayoutGives)
{
	const TCHAR* Pieces[] = { TEXT("word "), TEXT("longer words "), TEXT("\n"), TEXT("\u05D0\u05D1 "), TEXT("e\u0301"), TEXT("1,5 "), TEXT("\t"), TEXT("-") };
	uint32 Random = 99;
	const auto Next = [&Random](int32 Limit)
	{
		Random = Random * 1664525 + 1013904223;
		return static_cast<int32>((Random >> 8) % static_cast<uint32>(Limit));
	};
	Style.WrapWidth = 110.0f;
	Set(TEXT(""));
	FString Text;
	for (int32 Round = 0; Round < 300; ++Round)
	{
		const int32 Place = Next(Text.Len() + 1);
		if (Next(3) == 0)
		{
			const int32 Count = FMath::Min(Next(12), Text.Len() - Place);
			Text = Text.Left(Place) + Text.Mid(Place + Count);
		}
		else
		{
			Text = Text.Left(Place) + Pieces[Next(UE_ARRAY_COUNT(Pieces))] + Text.Mid(Place);
		}
		Layout.SetText(Text);

		FTextLayout Fresh;
		Fresh.SetStyle(Style);
		Fresh.SetText(Text);
		ASSERT_EQ(Layout.GetSize(), Fresh.GetSize()) << Round;
		ASSERT_EQ(Layout.GetLines().Num(), Fresh.GetLines().Num()) << Round;
		for (int32 Line = 0; Line < Fresh.GetLines().Num(); ++Line)
		{
			ASSERT_EQ(Layout.GetLines()[Line].Begin, Fresh.GetLines()[Line].Begin);
			ASSERT_EQ(Layout.GetLines()[Line].Width, Fresh.GetLines()[Line].Width);
		}
	}
}

TEST_F(TextLayoutTest, LinesTogetherHoldTheWholeText)
{
	Style.bBreakWords = true;
	for (float Width = 5.0f; Width < 200.0f; Width += 13.0f)
	{
		Style.WrapWidth = Width;
		Set(TEXT("Some words, and \u05D0\u05D1\u05D2 \u05D3; fi-ligatures and a verylongwordthatneverends."));
		EXPECT_EQ(FString::Join(GetLines(), TEXT("")), FString(Layout.GetText())) << Width;
	}
}
