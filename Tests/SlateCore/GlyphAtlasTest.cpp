#include "FontTestTools.h"

using namespace Host;

class GlyphAtlasTest : public FFontTest
{
protected:
	/** The key of a text's first glyph. */
	FGlyphKey GetKey(const FSizedFontRef& Font, const TCHAR* Text, int32 Subpixel = 0, EGlyphPart Part = EGlyphPart::Fill)
	{
		float Scale;
		return Font->MakeKey(Services.Shape(Font, Text)->GetGlyphs()[0], Part, 1.0f, Subpixel, true, Scale);
	}

	uint8 GetTexel(int32 X, int32 Y)
	{
		return Atlas.GetTexels()[Y * FGlyphAtlas::Width + X];
	}

	int32 SumCoverage(const FAtlasGlyph& Glyph)
	{
		int32 Sum = 0;
		for (int32 Y = Glyph.Y; Y < Glyph.Y + Glyph.Height; ++Y)
		{
			for (int32 X = Glyph.X; X < Glyph.X + Glyph.Width; ++X)
			{
				Sum += GetTexel(X, Y);
			}
		}
		return Sum;
	}

	FGlyphAtlas& Atlas = Services.GetAtlas();
};

TEST_F(GlyphAtlasTest, AGlyphIsRasterisedOnce)
{
	const FGlyphKey Key = GetKey(GetPlain(20.0f), TEXT("a"));
	const FAtlasGlyph First = Atlas.Find(Key);
	const FAtlasGlyph Second = Atlas.Find(Key);
	EXPECT_EQ(Atlas.GetNumRasterised(), 1u);
	EXPECT_EQ(First.X, Second.X);
	EXPECT_EQ(First.Y, Second.Y);
}

TEST_F(GlyphAtlasTest, APictureCoversWhatTheGlyphCovers)
{
	const FAtlasGlyph Glyph = Atlas.Find(GetKey(GetPlain(20.0f), TEXT("H")));
	EXPECT_FALSE(Glyph.IsBlank());
	EXPECT_GT(SumCoverage(Glyph), 255 * 20);
	// A capital letter stands on the baseline and reaches up to its height, 14 pixels, which hinting may round up.
	EXPECT_EQ(Glyph.Top, Glyph.Height);
	EXPECT_NEAR(Glyph.Height, 14, 1);
	EXPECT_GE(Glyph.Left, 1);
}

TEST_F(GlyphAtlasTest, ABlankHasNoPicture)
{
	EXPECT_TRUE(Atlas.Find(GetKey(GetPlain(20.0f), TEXT(" "))).IsBlank());
	EXPECT_EQ(Atlas.GetHeight(), 0);
}

TEST_F(GlyphAtlasTest, GlyphsDoNotTouch)
{
	const FSizedFontRef Font = GetPlain(24.0f);
	const FShapedRunRef Run = Services.Shape(Font, TEXT("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789"));
	TArray<FAtlasGlyph> Glyphs;
	for (const FShapedGlyph& Glyph : Run->GetGlyphs())
	{
		float Scale;
		Glyphs.Add(Atlas.Find(Font->MakeKey(Glyph, EGlyphPart::Fill, 1.0f, 0, true, Scale)));
	}
	for (int32 A = 0; A < Glyphs.Num(); ++A)
	{
		EXPECT_GE(Glyphs[A].X, 1);
		EXPECT_GE(Glyphs[A].Y, 1);
		EXPECT_LT(Glyphs[A].X + Glyphs[A].Width, FGlyphAtlas::Width + 1);
		EXPECT_LT(Glyphs[A].Y + Glyphs[A].Height, Atlas.GetHeight());
		for (int32 B = 0; B < A; ++B)
		{
			const bool bApart = Glyphs[A].X + Glyphs[A].Width < Glyphs[B].X || Glyphs[B].X + Glyphs[B].Width < Glyphs[A].X
				|| Glyphs[A].Y + Glyphs[A].Height < Glyphs[B].Y || Glyphs[B].Y + Glyphs[B].Height < Glyphs[A].Y;
			EXPECT_TRUE(bApart) << A << " and " << B;
		}
	}
}

TEST_F(GlyphAtlasTest, AGlyphIsSurroundedByEmptyTexels)
{
	const FSizedFontRef Font = GetPlain(24.0f);
	for (const TCHAR* Text : { TEXT("W"), TEXT("i"), TEXT("Q"), TEXT("g") })
	{
		const FAtlasGlyph Glyph = Atlas.Find(GetKey(Font, Text));
		for (int32 X = Glyph.X - 1; X <= Glyph.X + Glyph.Width; ++X)
		{
			EXPECT_EQ(GetTexel(X, Glyph.Y - 1), 0);
			EXPECT_EQ(GetTexel(X, Glyph.Y + Glyph.Height), 0);
		}
		for (int32 Y = Glyph.Y; Y < Glyph.Y + Glyph.Height; ++Y)
		{
			EXPECT_EQ(GetTexel(Glyph.X - 1, Y), 0);
		}
	}
}

TEST_F(GlyphAtlasTest, QuarterPixelsHavePicturesOfTheirOwn)
{
	const FSizedFontRef Font = GetPlain(20.0f);
	const FAtlasGlyph Whole = Atlas.Find(GetKey(Font, TEXT("l"), 0));
	const FAtlasGlyph Half = Atlas.Find(GetKey(Font, TEXT("l"), 2));
	EXPECT_EQ(Atlas.GetNumRasterised(), 2u);
	EXPECT_NEAR(SumCoverage(Whole), SumCoverage(Half), 255 * 2);
	EXPECT_NE(GetTexel(Whole.X, Whole.Y + 5), GetTexel(Half.X, Half.Y + 5));
}

TEST_F(GlyphAtlasTest, HintingMakesHorizontalStemsCrisp)
{
	// The top row of a capital E is fully covered when its height is fitted to the grid.
	const FAtlasGlyph Fitted = Atlas.Find(GetKey(GetPlain(17.0f), TEXT("E")));
	EXPECT_GT(GetTexel(Fitted.X + Fitted.Width / 2, Fitted.Y), 240);
}

TEST_F(GlyphAtlasTest, MonochromeGlyphsAreBlackAndWhite)
{
	const FSizedFontRef Font = Services.GetFont(MakeInfo(MakePlainFont(EFontHinting::Monochrome), 20.0f), 1.0f);
	const FAtlasGlyph Glyph = Atlas.Find(GetKey(Font, TEXT("S")));
	ASSERT_FALSE(Glyph.IsBlank());
	for (int32 Y = Glyph.Y; Y < Glyph.Y + Glyph.Height; ++Y)
	{
		for (int32 X = Glyph.X; X < Glyph.X + Glyph.Width; ++X)
		{
			EXPECT_TRUE(GetTexel(X, Y) == 0 || GetTexel(X, Y) == 255);
		}
	}
}

TEST_F(GlyphAtlasTest, AnOutlineWidensTheGlyph)
{
	FSlateFontInfo Info = MakeInfo(Plain, 30.0f);
	Info.OutlineSettings.OutlineSize = 2;
	const FSizedFontRef Font = Services.GetFont(Info, 1.0f);
	const FAtlasGlyph Fill = Atlas.Find(GetKey(Font, TEXT("o")));
	const FAtlasGlyph Outline = Atlas.Find(GetKey(Font, TEXT("o"), 0, EGlyphPart::Outline));
	EXPECT_GE(Outline.Width, Fill.Width + 3);
	EXPECT_LE(Outline.Width, Fill.Width + 5);
	EXPECT_GT(SumCoverage(Outline), SumCoverage(Fill));
}

TEST_F(GlyphAtlasTest, ASeparateOutlineLeavesTheGlyphOut)
{
	FSlateFontInfo Info = MakeInfo(Plain, 40.0f);
	Info.OutlineSettings.OutlineSize = 2;
	Info.OutlineSettings.bSeparateFillAlpha = true;
	const FSizedFontRef Font = Services.GetFont(Info, 1.0f);
	const FAtlasGlyph Fill = Atlas.Find(GetKey(Font, TEXT("l")));
	const FAtlasGlyph Outline = Atlas.Find(GetKey(Font, TEXT("l"), 0, EGlyphPart::Outline));
	EXPECT_EQ(GetTexel(Outline.X + Outline.Width / 2, Outline.Y + Outline.Height / 2), 0);
	EXPECT_EQ(GetTexel(Fill.X + Fill.Width / 2, Fill.Y + Fill.Height / 2), 255);
	EXPECT_GT(GetTexel(Outline.X + 1, Outline.Y + Outline.Height / 2), 0);
}

TEST_F(GlyphAtlasTest, SkewSlantsAnUprightFace)
{
	FSlateFontInfo Info = MakeInfo(Plain, 40.0f);
	const FAtlasGlyph Upright = Atlas.Find(GetKey(Services.GetFont(Info, 1.0f), TEXT("l")));
	Info.SkewAmount = 0.5f;
	const FAtlasGlyph Slanted = Atlas.Find(GetKey(Services.GetFont(Info, 1.0f), TEXT("l")));
	EXPECT_NEAR(Slanted.Width, Upright.Width + Upright.Height / 2, 3);
}

TEST_F(GlyphAtlasTest, AMagnifiedRunIsRasterisedAtTheSizeThatIsSeen)
{
	const FSizedFontRef Font = GetPlain(20.0f);
	const FShapedGlyph Glyph = Services.Shape(Font, TEXT("a"))->GetGlyphs()[0];
	float Scale = 0.0f;
	const FGlyphKey Key = Font->MakeKey(Glyph, EGlyphPart::Fill, 2.5f, 0, false, Scale);
	EXPECT_EQ(Key.Size, 50 * 64);
	EXPECT_EQ(Scale, 1.0f);
	EXPECT_EQ(Key.Flags, EGlyphFlags::HintNone);
}

TEST_F(GlyphAtlasTest, SizesOfAZoomAreShared)
{
	const FSizedFontRef Font = GetPlain(20.0f);
	const FShapedGlyph Glyph = Services.Shape(Font, TEXT("a"))->GetGlyphs()[0];
	float Scale = 0.0f;
	const FGlyphKey First = Font->MakeKey(Glyph, EGlyphPart::Fill, 1.300f, 0, false, Scale);
	const FGlyphKey Second = Font->MakeKey(Glyph, EGlyphPart::Fill, 1.302f, 0, false, Scale);
	EXPECT_EQ(First, Second);
	EXPECT_NEAR(static_cast<float>(Second.Size) / 64.0f * Scale, 20.0f * 1.302f, 0.001f);
}

TEST_F(GlyphAtlasTest, HugeGlyphsAreMagnified)
{
	const FSizedFontRef Font = GetPlain(900.0f);
	const FShapedGlyph Glyph = Services.Shape(Font, TEXT("W"))->GetGlyphs()[0];
	float Scale = 0.0f;
	const FGlyphKey Key = Font->MakeKey(Glyph, EGlyphPart::Fill, 1.0f, 3, true, Scale);
	EXPECT_LE(Key.Size, FGlyphAtlas::MaxPixelSize * 64);
	EXPECT_NEAR(static_cast<float>(Key.Size) / 64.0f * Scale, 900.0f, 0.01f);
	EXPECT_FALSE(Atlas.Find(Key).IsBlank());
}

TEST_F(GlyphAtlasTest, ChangesAreReportedByRevision)
{
	const FSizedFontRef Font = GetPlain(20.0f);
	Atlas.Find(GetKey(Font, TEXT("a")));
	const uint64 Seen = Atlas.GetRevision();
	TArray<FPixelRect> Areas;
	Atlas.GetChangesSince(Seen, Areas);
	EXPECT_TRUE(Areas.IsEmpty());

	const FAtlasGlyph Glyph = Atlas.Find(GetKey(Font, TEXT("b")));
	Atlas.GetChangesSince(Seen, Areas);
	ASSERT_EQ(Areas.Num(), 1);
	EXPECT_EQ(Areas[0], FPixelRect::Make(Glyph.X, Glyph.Y, Glyph.X + Glyph.Width, Glyph.Y + Glyph.Height));
}

TEST_F(GlyphAtlasTest, WhoMissedTooManyChangesGetsEverything)
{
	for (float Size = 8.0f; Size < 40.0f; Size += 1.0f)
	{
		const FSizedFontRef Font = GetPlain(Size);
		for (TCHAR Letter = 'a'; Letter <= 'z'; ++Letter)
		{
			const TCHAR Text[] = { Letter, 0 };
			Atlas.Find(GetKey(Font, Text));
		}
	}
	TArray<FPixelRect> Areas;
	Atlas.GetChangesSince(0, Areas);
	ASSERT_EQ(Areas.Num(), 1);
	EXPECT_EQ(Areas[0], FPixelRect::Make(0, 0, FGlyphAtlas::Width, Atlas.GetHeight()));
}

TEST_F(GlyphAtlasTest, AFullAtlasReusesWhatIsNoLongerDrawn)
{
	constexpr int32 Rows = 512;
	Atlas.SetSoftLimit(Rows);
	const uint32 Generation = Atlas.GetGeneration();
	for (float Size = 10.0f; Size < 90.0f; Size += 1.0f)
	{
		Atlas.BeginFrame();
		const FSizedFontRef Font = GetPlain(Size);
		for (TCHAR Letter = 'a'; Letter <= 'z'; ++Letter)
		{
			const TCHAR Text[] = { Letter, 0 };
			EXPECT_FALSE(Atlas.Find(GetKey(Font, Text)).IsBlank());
		}
		ASSERT_LE(Atlas.GetHeight(), Rows);
	}
	EXPECT_GT(Atlas.GetGeneration(), Generation);
}

TEST_F(GlyphAtlasTest, WhatTheFrameDrawsIsNeverTakenAway)
{
	Atlas.SetSoftLimit(64);
	Atlas.BeginFrame();
	const uint32 Generation = Atlas.GetGeneration();
	const FGlyphKey First = GetKey(GetPlain(20.0f), TEXT("Q"));
	const FAtlasGlyph Place = Atlas.Find(First);
	const int32 Coverage = SumCoverage(Place);
	for (float Size = 20.0f; Size < 70.0f; Size += 1.0f)
	{
		const FSizedFontRef Font = GetPlain(Size);
		for (TCHAR Letter = 'A'; Letter <= 'Z'; ++Letter)
		{
			const TCHAR Text[] = { Letter, 0 };
			EXPECT_FALSE(Atlas.Find(GetKey(Font, Text)).IsBlank());
		}
	}
	EXPECT_EQ(Atlas.GetGeneration(), Generation);
	EXPECT_GT(Atlas.GetHeight(), 64);
	EXPECT_EQ(SumCoverage(Place), Coverage);
	EXPECT_EQ(Atlas.Find(First).X, Place.X);
}

TEST_F(GlyphAtlasTest, ReusedGlyphsAreRasterisedAgainTheSame)
{
	Atlas.SetSoftLimit(64);
	const FGlyphKey Key = GetKey(GetPlain(30.0f), TEXT("R"));
	const int32 Coverage = SumCoverage(Atlas.Find(Key));
	for (float Size = 31.0f; Size < 60.0f; Size += 1.0f)
	{
		Atlas.BeginFrame();
		for (TCHAR Letter = 'A'; Letter <= 'Z'; ++Letter)
		{
			const TCHAR Text[] = { Letter, 0 };
			Atlas.Find(GetKey(GetPlain(Size), Text));
		}
	}
	const uint64 Before = Atlas.GetNumRasterised();
	EXPECT_EQ(SumCoverage(Atlas.Find(Key)), Coverage);
	EXPECT_EQ(Atlas.GetNumRasterised(), Before + 1);
}

TEST_F(GlyphAtlasTest, ClearingForgetsAllGlyphs)
{
	const FGlyphKey Key = GetKey(GetPlain(20.0f), TEXT("a"));
	Atlas.Find(Key);
	const uint32 Generation = Atlas.GetGeneration();
	Atlas.Clear();
	EXPECT_EQ(Atlas.GetNumGlyphs(), 0);
	EXPECT_GT(Atlas.GetGeneration(), Generation);
	EXPECT_FALSE(Atlas.Find(Key).IsBlank());
}

TEST_F(GlyphAtlasTest, AGlyphOfAClosedFaceIsBlank)
{
	FGlyphKey Key;
	Key.Face = 1234;
	Key.Glyph = 5;
	Key.Size = 20 * 64;
	EXPECT_TRUE(Atlas.Find(Key).IsBlank());
}
