#include "FontTestTools.h"

using namespace Host;

class CompositeFontTest : public FFontTest
{
protected:
	FShapedRunRef Shape(const TSharedRef<FCompositeFont>& Font, const TCHAR* Text, FName Typeface = NAME_None)
	{
		return Services.Shape(Services.GetFont(MakeInfo(Font, 20.0f, Typeface), 1.0f), Text);
	}

	static uint16 GetFaceOf(const FShapedRun& Run, int32 Glyph)
	{
		return Run.GetFont().GetSlots()[Run.GetGlyphs()[Glyph].Slot].Face;
	}
};

TEST_F(CompositeFontTest, ATypefaceIsChosenByName)
{
	EXPECT_GT(Shape(Plain, TEXT("Hello"), TEXT("bold"))->GetWidth(), Shape(Plain, TEXT("Hello"), TEXT("regular"))->GetWidth());
}

TEST_F(CompositeFontTest, NoNameMeansTheFirstTypeface)
{
	EXPECT_EQ(Shape(Plain, TEXT("Hello"))->GetWidth(), Shape(Plain, TEXT("Hello"), TEXT("regular"))->GetWidth());
}

TEST_F(CompositeFontTest, AnUnknownNameMeansTheFirstTypeface)
{
	EXPECT_EQ(Shape(Plain, TEXT("Hello"), TEXT("semi-italic"))->GetWidth(), Shape(Plain, TEXT("Hello"), TEXT("regular"))->GetWidth());
}

TEST_F(CompositeFontTest, NamesOfTypefacesIgnoreCase)
{
	EXPECT_EQ(Shape(Plain, TEXT("Hello"), TEXT("BOLD"))->GetWidth(), Shape(Plain, TEXT("Hello"), TEXT("bold"))->GetWidth());
}

TEST_F(CompositeFontTest, ASubFontDrawsItsCharacters)
{
	const FShapedRunRef Run = Shape(MakeCyrillicFont(), TEXT("a\u0434b"));
	ASSERT_EQ(Run->GetGlyphs().Num(), 3);
	EXPECT_EQ(GetFaceOf(*Run, 0), GetFaceOf(*Run, 2));
	EXPECT_NE(GetFaceOf(*Run, 0), GetFaceOf(*Run, 1));
	EXPECT_NE(Run->GetGlyphs()[1].Glyph, 0);
}

TEST_F(CompositeFontTest, ASubFontUsesTheTypefaceOfTheSameName)
{
	const TSharedRef<FCompositeFont> Font = MakeCyrillicFont();
	EXPECT_GT(Shape(Font, TEXT("\u0434\u0434\u0434"), TEXT("bold"))->GetWidth(), Shape(Font, TEXT("\u0434\u0434\u0434"), TEXT("regular"))->GetWidth());
}

TEST_F(CompositeFontTest, SubFontsAreOpenedWhenTheyAreNeeded)
{
	const TSharedRef<FCompositeFont> Font = MakeCyrillicFont();
	Shape(Font, TEXT("abc"));
	const int32 Before = Services.GetCounts().Faces;
	Shape(Font, TEXT("\u0434"));
	EXPECT_EQ(Before, 1);
	EXPECT_EQ(Services.GetCounts().Faces, 2);
}

TEST_F(CompositeFontTest, ASubFontIsScaled)
{
	const FShapedRunRef Normal = Shape(MakeCyrillicFont(), TEXT("\u0434"));
	const FShapedRunRef Scaled = Shape(MakeCyrillicFont(1.5f), TEXT("\u0434"));
	EXPECT_NEAR(Scaled->GetWidth(), 1.5f * Normal->GetWidth(), 0.05f);
	EXPECT_EQ(Scaled->GetFont().GetSlots()[Scaled->GetGlyphs()[0].Slot].Size, 30 * 64);
}

TEST_F(CompositeFontTest, WordsOfASubFontAreOneItemWithTheirBlanks)
{
	const FShapedRunRef Run = Shape(MakeCyrillicFont(), TEXT("\u0434\u0430 \u043D\u0435\u0442"));
	ASSERT_EQ(Run->GetGlyphs().Num(), 6);
	for (int32 Index = 1; Index < 6; ++Index)
	{
		EXPECT_EQ(GetFaceOf(*Run, Index), GetFaceOf(*Run, 0));
	}
}

TEST_F(CompositeFontTest, TheFirstSubFontWithTheCharacterWins)
{
	const TSharedRef<FCompositeFont> Font = MakePlainFont();
	for (const TCHAR* File : { TEXT("Montserrat-Bold.ttf"), TEXT("Montserrat-Cyrillic-Regular.ttf"), TEXT("Montserrat-Cyrillic-Bold.ttf") })
	{
		// The first one has no Cyrillic letters: its range promises more than its file holds.
		FCompositeSubFont SubFont;
		SubFont.Typeface.AppendFont(TEXT("regular"), GetFontFile(File), EFontHinting::Default, EFontLoadingPolicy::LazyLoad);
		SubFont.CharacterRanges.Add(FInt32Range::Inclusive(0x400, 0x4FF));
		Font->SubTypefaces.Add(SubFont);
	}
	EXPECT_EQ(Shape(Font, TEXT("\u0434"))->GetGlyphs()[0].Slot, 2u);
}

TEST_F(CompositeFontTest, ASubFontCanTakeLatinLetters)
{
	const TSharedRef<FCompositeFont> Font = MakePlainFont();
	FCompositeSubFont SubFont;
	SubFont.Typeface.AppendFont(TEXT("regular"), GetFontFile(TEXT("Montserrat-Bold.ttf")), EFontHinting::Default, EFontLoadingPolicy::LazyLoad);
	SubFont.CharacterRanges.Add(FInt32Range::Inclusive('0', '9'));
	Font->SubTypefaces.Add(SubFont);
	const FShapedRunRef Run = Shape(Font, TEXT("a1b"));
	EXPECT_EQ(Run->GetGlyphs()[0].Slot, 0u);
	EXPECT_EQ(Run->GetGlyphs()[1].Slot, 1u);
	EXPECT_EQ(Run->GetGlyphs()[2].Slot, 0u);
}

TEST_F(CompositeFontTest, TheFallbackDrawsWhatTheTypefaceLacks)
{
	const TSharedRef<FCompositeFont> Font = MakePlainFont();
	Font->FallbackTypeface.Typeface.AppendFont(TEXT("any"), GetFontFile(TEXT("Montserrat-Cyrillic-Regular.ttf")), EFontHinting::Default, EFontLoadingPolicy::LazyLoad);
	const FShapedRunRef Run = Shape(Font, TEXT("a\u0434"));
	EXPECT_EQ(Run->GetGlyphs()[0].Slot, 0u);
	EXPECT_NE(Run->GetGlyphs()[1].Slot, 0u);
	EXPECT_NE(Run->GetGlyphs()[1].Glyph, 0);
}

TEST_F(CompositeFontTest, WithoutFallbackTheMissingGlyphIsShown)
{
	const TSharedRef<FCompositeFont> Font = MakePlainFont();
	Font->FallbackTypeface.Typeface.AppendFont(TEXT("any"), GetFontFile(TEXT("Montserrat-Cyrillic-Regular.ttf")), EFontHinting::Default, EFontLoadingPolicy::LazyLoad);
	FSlateFontInfo Info = MakeInfo(Font, 20.0f);
	Info.FontFallback = EFontFallback::FF_NoFallback;
	const FShapedRunRef Run = Services.Shape(Services.GetFont(Info, 1.0f), TEXT("\u0434"));
	EXPECT_EQ(Run->GetGlyphs()[0].Glyph, 0);
	EXPECT_GT(Run->GetWidth(), 0.0f);
}

TEST_F(CompositeFontTest, TheBuiltInFaceIsTheLastResort)
{
	const TSharedRef<FCompositeFont> Cyrillic = MakeShared<FCompositeFont>(TEXT("regular"), GetFontFile(TEXT("Montserrat-Cyrillic-Regular.ttf")),
		EFontHinting::Default, EFontLoadingPolicy::LazyLoad);
	const FShapedRunRef Run = Shape(Cyrillic, TEXT("\u0434W"));
	EXPECT_EQ(Run->GetGlyphs()[0].Slot, 0u);
	EXPECT_EQ(Run->GetGlyphs()[1].Slot, 1u);
	EXPECT_NE(Run->GetGlyphs()[1].Glyph, 0);
}

TEST_F(CompositeFontTest, ACopyHasARevisionOfItsOwn)
{
	const FCompositeFont Copy = *Plain;
	EXPECT_NE(Copy.GetHistoryRevision(), Plain->GetHistoryRevision());
	FCompositeFont Assigned;
	const int32 Before = Assigned.GetHistoryRevision();
	Assigned = *Plain;
	EXPECT_NE(Assigned.GetHistoryRevision(), Before);
	EXPECT_NE(Assigned.GetHistoryRevision(), Plain->GetHistoryRevision());
}

TEST_F(CompositeFontTest, AChangeShowsOnceTheFontIsMarkedDirty)
{
	const float Regular = Shape(Plain, TEXT("Hello"))->GetWidth();
	Plain->DefaultTypeface.Fonts.RemoveAt(0);
	Plain->MakeDirty();
	EXPECT_GT(Shape(Plain, TEXT("Hello"))->GetWidth(), Regular);
}

TEST_F(CompositeFontTest, RangesKnowTheirBounds)
{
	const FInt32Range Range(FInt32RangeBound::Exclusive(5), FInt32RangeBound::Inclusive(8));
	EXPECT_FALSE(Range.Contains(5));
	EXPECT_TRUE(Range.Contains(6));
	EXPECT_TRUE(Range.Contains(8));
	EXPECT_FALSE(Range.Contains(9));
	EXPECT_TRUE(FInt32Range::All().Contains(MIN_int32));
	EXPECT_FALSE(FInt32Range().Contains(0));
}

TEST_F(CompositeFontTest, DescriptionsCompareByValue)
{
	const FSlateFontInfo Info = MakeInfo(Plain, 20.0f);
	FSlateFontInfo Other = Info;
	EXPECT_EQ(Info, Other);
	EXPECT_EQ(GetTypeHash(Info), GetTypeHash(Other));
	Other.OutlineSettings.OutlineColor = FLinearColor::White;
	EXPECT_NE(Info, Other);
}

TEST_F(CompositeFontTest, DescriptionsHaveTheDocumentedDefaults)
{
	const FSlateFontInfo Info;
	EXPECT_EQ(Info.Size, 24.0f);
	EXPECT_EQ(Info.FontObject, nullptr);
	EXPECT_TRUE(Info.TypefaceFontName.IsNone());
	EXPECT_EQ(Info.LetterSpacing, 0);
	EXPECT_FALSE(Info.HasValidFont());
	EXPECT_EQ(Info.OutlineSettings.OutlineSize, 0);
	EXPECT_EQ(Info.OutlineSettings.OutlineColor, FLinearColor::Black);
	EXPECT_TRUE(MakeInfo(Plain, 20.0f).HasValidFont());
}
