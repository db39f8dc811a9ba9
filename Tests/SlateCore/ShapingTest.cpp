#include "FontTestTools.h"

using namespace Host;

class ShapingTest : public FFontTest
{
};

TEST_F(ShapingTest, EachLetterHasAGlyphAtARisingPosition)
{
	const FShapedRunRef Run = Services.Shape(GetPlain(20.0f), TEXT("Hello"));
	ASSERT_EQ(Run->GetGlyphs().Num(), 5);
	for (int32 Index = 0; Index < 5; ++Index)
	{
		EXPECT_EQ(Run->GetGlyphs()[Index].Cluster, static_cast<uint32>(Index));
		EXPECT_NE(Run->GetGlyphs()[Index].Glyph, 0);
		if (Index > 0)
		{
			EXPECT_GT(Run->GetGlyphs()[Index].X, Run->GetGlyphs()[Index - 1].X);
		}
	}
	EXPECT_GT(Run->GetWidth(), Run->GetGlyphs()[4].X);
}

TEST_F(ShapingTest, EmptyTextHasNoGlyphsAndNoWidth)
{
	const FShapedRunRef Run = Services.Shape(GetPlain(20.0f), FStringView());
	EXPECT_EQ(Run->GetGlyphs().Num(), 0);
	EXPECT_EQ(Run->GetWidth(), 0.0f);
	EXPECT_TRUE(Run->GetInkBounds().IsEmpty());
}

TEST_F(ShapingTest, PairsAreKerned)
{
	const FSizedFontRef Font = GetPlain(20.0f);
	const float Apart = Services.Shape(Font, TEXT("A"))->GetWidth() + Services.Shape(Font, TEXT("V"))->GetWidth();
	EXPECT_LT(Services.Shape(Font, TEXT("AV"))->GetWidth(), Apart - 0.5f);
}

TEST_F(ShapingTest, WidthIsProportionalToSize)
{
	const float Small = Services.Shape(GetPlain(10.0f), TEXT("Some words of text"))->GetWidth();
	const float Large = Services.Shape(GetPlain(40.0f), TEXT("Some words of text"))->GetWidth();
	EXPECT_NEAR(Large, Small * 4.0f, 0.2f);
}

TEST_F(ShapingTest, TheSameTextIsShapedOnce)
{
	const FSizedFontRef Font = GetPlain(20.0f);
	const FShapedRunRef First = Services.Shape(Font, TEXT("Living room"));
	const uint64 Shaped = Services.GetCounts().RunsShaped;
	EXPECT_EQ(&Services.Shape(Font, TEXT("Living room")).Get(), &First.Get());
	EXPECT_EQ(Services.GetCounts().RunsShaped, Shaped);
}

TEST_F(ShapingTest, TextThatDiffersInCaseIsDifferentText)
{
	const FSizedFontRef Font = GetPlain(20.0f);
	EXPECT_NE(Services.Shape(Font, TEXT("ROOM"))->GetWidth(), Services.Shape(Font, TEXT("room"))->GetWidth());
}

TEST_F(ShapingTest, AnotherScaleShapesAnew)
{
	const FSlateFontInfo Info = MakeInfo(Plain, 20.0f);
	const FShapedRunRef Single = Services.Shape(Services.GetFont(Info, 1.0f), TEXT("Living room"));
	const FShapedRunRef Double = Services.Shape(Services.GetFont(Info, 2.0f), TEXT("Living room"));
	EXPECT_NEAR(Double->GetWidth(), 2.0f * Single->GetWidth(), 0.1f);
}

TEST_F(ShapingTest, UncachedTextIsNotKept)
{
	const int32 Before = Services.GetCounts().CachedRuns;
	Services.ShapeUncached(GetPlain(20.0f), TEXT("12:34:56"));
	EXPECT_EQ(Services.GetCounts().CachedRuns, Before);
}

TEST_F(ShapingTest, TheCacheStaysWithinItsLimit)
{
	constexpr SIZE_T Limit = 64 * 1024;
	Services.SetRunCacheLimit(Limit);
	const FSizedFontRef Font = GetPlain(20.0f);
	for (int32 Index = 0; Index < 2000; ++Index)
	{
		Services.Shape(Font, FString::Printf(TEXT("Unit %d"), Index));
		ASSERT_LE(Services.GetCounts().CachedBytes, Limit);
	}
	EXPECT_GT(Services.GetCounts().CachedRuns, 100);
}

TEST_F(ShapingTest, TextInUseStaysInAFullCache)
{
	Services.SetRunCacheLimit(64 * 1024);
	const FSizedFontRef Font = GetPlain(20.0f);
	Services.Shape(Font, TEXT("Title"));
	uint64 TitleShapings = 0;
	for (int32 Index = 0; Index < 5000; ++Index)
	{
		Services.Shape(Font, FString::Printf(TEXT("Unit %d"), Index));
		const uint64 Before = Services.GetCounts().RunsShaped;
		Services.Shape(Font, TEXT("Title"));
		TitleShapings += Services.GetCounts().RunsShaped - Before;
	}
	EXPECT_EQ(TitleShapings, 0u);
}

TEST_F(ShapingTest, RunsAreFreed)
{
	const int32 Before = FShapedRun::GetNumAlive();
	{
		FFontServices ShortLived;
		const FSizedFontRef Font = ShortLived.GetFont(MakeInfo(Plain, 20.0f), 1.0f);
		for (int32 Index = 0; Index < 100; ++Index)
		{
			ShortLived.Shape(Font, FString::FromInt(Index));
		}
		EXPECT_EQ(FShapedRun::GetNumAlive(), Before + 100);
	}
	EXPECT_EQ(FShapedRun::GetNumAlive(), Before);
}

TEST_F(ShapingTest, LetterSpacingFollowsEachCharacter)
{
	FSlateFontInfo Info = MakeInfo(Plain, 20.0f);
	const float Normal = Services.Shape(Services.GetFont(Info, 1.0f), TEXT("Hello"))->GetWidth();
	Info.LetterSpacing = 100;
	const FSizedFontRef Spaced = Services.GetFont(Info, 1.0f);
	EXPECT_FLOAT_EQ(Spaced->GetLetterSpacing(), 2.0f);
	EXPECT_NEAR(Services.Shape(Spaced, TEXT("Hello"))->GetWidth(), Normal + 5 * 2.0f, 0.01f);
}

TEST_F(ShapingTest, LetterSpacingCountsAMarkWithItsLetter)
{
	FSlateFontInfo Info = MakeInfo(Plain, 20.0f);
	const float Normal = Services.Shape(Services.GetFont(Info, 1.0f), TEXT("xe\u0301x"))->GetWidth();
	Info.LetterSpacing = 100;
	EXPECT_NEAR(Services.Shape(Services.GetFont(Info, 1.0f), TEXT("xe\u0301x"))->GetWidth(), Normal + 3 * 2.0f, 0.01f);
}

TEST_F(ShapingTest, LineBreaksAndControlsShowNothing)
{
	const FSizedFontRef Font = GetPlain(20.0f);
	const FShapedRunRef Run = Services.Shape(Font, TEXT("a\nb\r\x01\x7F"));
	const FShapedRunRef Letters = Services.Shape(Font, TEXT("ab"));
	EXPECT_NEAR(Run->GetWidth(), Letters->GetWidth(), 0.3f);
}

TEST_F(ShapingTest, ATabulatorIsAsWideAsFourBlanks)
{
	const FSizedFontRef Font = GetPlain(20.0f);
	EXPECT_NEAR(Services.Shape(Font, TEXT("\t"))->GetWidth(), Services.Shape(Font, TEXT("    "))->GetWidth(), 0.1f);
}

TEST_F(ShapingTest, HebrewReadsFromRightToLeft)
{
	const FShapedRunRef Run = Services.Shape(GetPlain(20.0f), TEXT("\u05D0\u05D1\u05D2"));
	EXPECT_EQ(GetVisualOrder(*Run), TEXT("\u05D2\u05D1\u05D0"));
	EXPECT_TRUE(Run->IsRightToLeft());
	EXPECT_TRUE(Run->GetGlyphs()[0].bRightToLeft);
}

TEST_F(ShapingTest, HebrewWithinLatinKeepsThePlaceOfItsWords)
{
	const FShapedRunRef Run = Services.Shape(GetPlain(20.0f), TEXT("ab \u05D0\u05D1 cd"));
	EXPECT_EQ(GetVisualOrder(*Run), TEXT("ab \u05D1\u05D0 cd"));
	EXPECT_FALSE(Run->IsRightToLeft());
}

TEST_F(ShapingTest, NumbersWithinHebrewReadFromLeftToRight)
{
	const FShapedRunRef Run = Services.Shape(GetPlain(20.0f), TEXT("\u05D0\u05D1 12"));
	EXPECT_EQ(GetVisualOrder(*Run), TEXT("12 \u05D1\u05D0"));
}

TEST_F(ShapingTest, PositionsRiseWhateverTheDirection)
{
	const FShapedRunRef Run = Services.Shape(GetPlain(20.0f), TEXT("ab \u05D0\u05D1 12 \u05D2 cd"));
	for (int32 Index = 1; Index < Run->GetGlyphs().Num(); ++Index)
	{
		EXPECT_GE(Run->GetGlyphs()[Index].X, Run->GetGlyphs()[Index - 1].X);
	}
}

TEST_F(ShapingTest, BrokenSurrogatesDoNoHarm)
{
	const TCHAR Broken[] = { 'a', 0xD800, 'b', 0xDC00, 0xDC00, 0xD83D };
	const FShapedRunRef Run = Services.Shape(GetPlain(20.0f), FStringView(Broken, UE_ARRAY_COUNT(Broken)));
	EXPECT_GT(Run->GetWidth(), 0.0f);
	for (const FShapedGlyph& Glyph : Run->GetGlyphs())
	{
		EXPECT_LT(Glyph.Cluster, UE_ARRAY_COUNT(Broken));
	}
}

TEST_F(ShapingTest, ALineThatIsFarTooLongIsCut)
{
	FString Long;
	Long.Reserve(1 << 21);
	for (int32 Index = 0; Index < (1 << 21); ++Index)
	{
		Long.AppendChar('a');
	}
	const FShapedRunRef Run = Services.ShapeUncached(GetPlain(20.0f), Long);
	EXPECT_GT(Run->GetGlyphs().Num(), 1000);
	EXPECT_LE(Run->GetGlyphs().Num(), 1 << 20);
}

TEST_F(ShapingTest, InkBoundsHoldAccentsAndDescenders)
{
	const FShapedRunRef Run = Services.Shape(GetPlain(20.0f), TEXT("\u00C5g"));
	const FShapedRunRef Flat = Services.Shape(GetPlain(20.0f), TEXT("xx"));
	EXPECT_LT(Run->GetInkBounds().Top, Flat->GetInkBounds().Top - 5.0f);
	EXPECT_GT(Run->GetInkBounds().Bottom, Flat->GetInkBounds().Bottom + 2.0f);
}

TEST_F(ShapingTest, InkBoundsGrowWithOutlineAndSkew)
{
	FSlateFontInfo Info = MakeInfo(Plain, 20.0f);
	const FInkBounds Upright = Services.Shape(Services.GetFont(Info, 1.0f), TEXT("l"))->GetInkBounds();
	Info.SkewAmount = 0.5f;
	const FInkBounds Slanted = Services.Shape(Services.GetFont(Info, 1.0f), TEXT("l"))->GetInkBounds();
	EXPECT_GT(Slanted.Right, Upright.Right + 5.0f);
	Info.SkewAmount = 0.0f;
	Info.OutlineSettings.OutlineSize = 3;
	const FInkBounds Outlined = Services.Shape(Services.GetFont(Info, 1.0f), TEXT("l"))->GetInkBounds();
	EXPECT_FLOAT_EQ(Outlined.Left, Upright.Left - 3.0f);
	EXPECT_FLOAT_EQ(Outlined.Bottom, Upright.Bottom + 3.0f);
}
