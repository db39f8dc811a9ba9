#include "FontTestTools.h"

#include "Host/SizedFont.h"

using namespace Host;

class FontServicesTest : public FFontTest
{
};

TEST_F(FontServicesTest, PointsAreFourThirdsOfAPixel)
{
	EXPECT_FLOAT_EQ(Services.GetFont(FSlateFontInfo(Plain, 24.0f), 1.0f)->GetPixelSize(), 32.0f);
	EXPECT_FLOAT_EQ(Services.GetFont(FSlateFontInfo(Plain, 24.0f), 1.5f)->GetPixelSize(), 48.0f);
}

TEST_F(FontServicesTest, EqualRequestsGiveTheSameFont)
{
	const FSizedFontRef First = GetPlain(20.0f);
	EXPECT_EQ(&First.Get(), &GetPlain(20.0f).Get());
	EXPECT_NE(&First.Get(), &GetPlain(21.0f).Get());
}

TEST_F(FontServicesTest, DescriptionsThatDifferInAnyWayGiveDifferentFonts)
{
	const FSlateFontInfo Base = MakeInfo(Plain, 20.0f);
	TArray<FSlateFontInfo> Variants;
	Variants.Init(Base, 5);
	Variants[0].LetterSpacing = 10;
	Variants[1].SkewAmount = 0.2f;
	Variants[2].OutlineSettings.OutlineSize = 1;
	Variants[3].TypefaceFontName = TEXT("bold");
	Variants[4].FontFallback = EFontFallback::FF_NoFallback;
	const FSizedFontRef Font = Services.GetFont(Base, 1.0f);
	for (const FSlateFontInfo& Variant : Variants)
	{
		EXPECT_NE(&Services.GetFont(Variant, 1.0f).Get(), &Font.Get());
	}
}

TEST_F(FontServicesTest, OutlineColourIsNoPartOfTheFont)
{
	FSlateFontInfo Info = MakeInfo(Plain, 20.0f);
	Info.OutlineSettings = FFontOutlineSettings(2, FLinearColor::White);
	const FSizedFontRef White = Services.GetFont(Info, 1.0f);
	Info.OutlineSettings.OutlineColor = FLinearColor::Black;
	EXPECT_EQ(&White.Get(), &Services.GetFont(Info, 1.0f).Get());
}

TEST_F(FontServicesTest, LineHeightAndBaselineAreWholePixels)
{
	for (float Size = 7.0f; Size < 60.0f; Size += 1.3f)
	{
		const FFontMetrics& Metrics = GetPlain(Size)->GetMetrics();
		EXPECT_FLOAT_EQ(Metrics.LineHeight, FMath::RoundToFloat(Metrics.LineHeight)) << Size;
		EXPECT_FLOAT_EQ(Metrics.Baseline, FMath::RoundToFloat(Metrics.Baseline)) << Size;
		EXPECT_GT(Metrics.Baseline, 0.0f);
		EXPECT_LT(Metrics.Baseline, Metrics.LineHeight);
	}
}

TEST_F(FontServicesTest, MetricsFollowTheFace)
{
	// The face states an ascender of 968, a descender of -251 and no gap, for an em of 1000.
	const FFontMetrics& Metrics = GetPlain(100.0f)->GetMetrics();
	EXPECT_NEAR(Metrics.Ascender, 96.8f, 0.01f);
	EXPECT_NEAR(Metrics.Descender, 25.1f, 0.01f);
	EXPECT_FLOAT_EQ(Metrics.LineHeight, 122.0f);
	EXPECT_FLOAT_EQ(Metrics.Baseline, 97.0f);
	EXPECT_GT(Metrics.UnderlineOffset, 0.0f);
	EXPECT_GE(Metrics.UnderlineThickness, 1.0f);
}

TEST_F(FontServicesTest, AnImpossibleScaleGivesAFontThatCanBeUsed)
{
	for (const float Scale : { 0.0f, -1.0f, NAN, 1e30f })
	{
		const FSizedFontRef Font = Services.GetFont(MakeInfo(Plain, 20.0f), Scale);
		EXPECT_GT(Font->GetPixelSize(), 0.0f);
		EXPECT_GE(Services.Shape(Font, TEXT("abc"))->GetWidth(), 0.0f);
	}
}

TEST_F(FontServicesTest, AFontWithoutFacesIsDrawnWithTheDefaultOne)
{
	Services.SetDefaultFont(Plain);
	const FSizedFontRef Font = Services.GetFont(FSlateFontInfo(), 1.0f);
	EXPECT_FLOAT_EQ(Font->GetPixelSize(), 32.0f);
	EXPECT_EQ(Font->GetSlots()[0].Face, GetPlain(32.0f)->GetSlots()[0].Face);
}

TEST_F(FontServicesTest, WithoutADefaultFontTheBuiltInFaceIsShown)
{
	const FShapedRunRef Run = Services.Shape(Services.GetFont(FSlateFontInfo(), 1.0f), TEXT("Größe 12,5 m²"));
	EXPECT_EQ(Run->GetGlyphs().Num(), 13);
	for (const FShapedGlyph& Glyph : Run->GetGlyphs())
	{
		EXPECT_NE(Glyph.Glyph, 0);
	}
}

TEST_F(FontServicesTest, SettingTheDefaultFontAndFlushingRaiseTheGeneration)
{
	const uint32 Before = Services.GetGeneration();
	Services.SetDefaultFont(Plain);
	const uint32 Between = Services.GetGeneration();
	Services.Flush();
	EXPECT_GT(Between, Before);
	EXPECT_GT(Services.GetGeneration(), Between);
}

TEST_F(FontServicesTest, FontsOutliveAFlush)
{
	const FSizedFontRef Font = GetPlain(20.0f);
	const FShapedRunRef Run = Services.Shape(Font, TEXT("abc"));
	Services.Flush();
	EXPECT_NE(&GetPlain(20.0f).Get(), &Font.Get());
	float Scale;
	EXPECT_FALSE(Services.GetAtlas().Find(Font->MakeKey(Run->GetGlyphs()[0], EGlyphPart::Fill, 1.0f, 0, true, Scale)).IsBlank());
	EXPECT_EQ(Services.Shape(Font, TEXT("abc"))->GetGlyphs().Num(), 3);
}

TEST_F(FontServicesTest, FontsOutliveTheServices)
{
	FSizedFontPtr Font;
	FShapedRunPtr Run;
	{
		FFontServices ShortLived;
		Font = ShortLived.GetFont(MakeInfo(Plain, 20.0f), 1.0f);
		Run = ShortLived.Shape(Font.ToSharedRef(), TEXT("abc"));
	}
	EXPECT_EQ(Run->GetGlyphs().Num(), 3);
	EXPECT_FALSE(Run->GetInkBounds().IsEmpty());
}

TEST_F(FontServicesTest, AFaceIsOpenedOnceForAllSizes)
{
	for (float Size = 10.0f; Size < 20.0f; Size += 1.0f)
	{
		GetPlain(Size);
	}
	EXPECT_EQ(Services.GetCounts().Faces, 1);
}

TEST_F(FontServicesTest, FontsThatNoOneHoldsAreDropped)
{
	Services.SetRunCacheLimit(0);
	const TWeakPtr<const FSizedFont> First = GetPlain(5.0f);
	for (int32 Index = 0; Index < 200; ++Index)
	{
		GetPlain(6.0f + 0.25f * static_cast<float>(Index));
	}
	EXPECT_FALSE(First.IsValid());
}

TEST_F(FontServicesTest, AStreamedFaceLooksLikeALoadedOne)
{
	const TSharedRef<FCompositeFont> Streamed = MakeShared<FCompositeFont>(TEXT("regular"), GetFontFile(TEXT("Montserrat-Regular.ttf")),
		EFontHinting::Default, EFontLoadingPolicy::Stream);
	const FSizedFontRef Font = Services.GetFont(MakeInfo(Streamed, 20.0f), 1.0f);
	const FShapedRunRef Run = Services.Shape(Font, TEXT("AVATAR"));
	const FShapedRunRef Expected = Services.Shape(GetPlain(20.0f), TEXT("AVATAR"));
	EXPECT_FLOAT_EQ(Run->GetWidth(), Expected->GetWidth());
	EXPECT_NE(Font->GetSlots()[0].Face, GetPlain(20.0f)->GetSlots()[0].Face);
	float Scale;
	EXPECT_FALSE(Services.GetAtlas().Find(Font->MakeKey(Run->GetGlyphs()[0], EGlyphPart::Fill, 1.0f, 0, true, Scale)).IsBlank());
}
