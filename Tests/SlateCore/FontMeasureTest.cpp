#include "FontTestTools.h"

#include "Fonts/FontMeasure.h"

using namespace Host;

class FontMeasureTest : public FFontTest
{
protected:
	virtual void TearDown() override
	{
		FFontServices::Shutdown();
	}

	FSlateFontInfo Info = MakeInfo(Plain, 20.0f);
	TSharedRef<FSlateFontMeasure> Measure = FSlateFontMeasure::Get();
};

TEST_F(FontMeasureTest, ALineMeasuresWhatItsRunDoes)
{
	const FVector2f Size = Measure->Measure(TEXT("Living room"), Info);
	EXPECT_FLOAT_EQ(Size.X, Services.Shape(GetPlain(20.0f), TEXT("Living room"))->GetWidth());
	EXPECT_FLOAT_EQ(Size.Y, GetPlain(20.0f)->GetMetrics().LineHeight);
}

TEST_F(FontMeasureTest, ScaleMultipliesTheSize)
{
	EXPECT_NEAR(Measure->Measure(TEXT("Living room"), Info, 2.0f).X, 2.0f * Measure->Measure(TEXT("Living room"), Info).X, 0.1f);
}

TEST_F(FontMeasureTest, SeveralLinesMeasureTheWidest)
{
	const FVector2f Size = Measure->Measure(TEXT("a\r\nwide line\nb"), Info);
	EXPECT_FLOAT_EQ(Size.X, Measure->Measure(TEXT("wide line"), Info).X);
	EXPECT_FLOAT_EQ(Size.Y, 3.0f * GetPlain(20.0f)->GetMetrics().LineHeight);
}

TEST_F(FontMeasureTest, EmptyTextIsOneLineHigh)
{
	const FVector2f Size = Measure->Measure(FText(), Info);
	EXPECT_EQ(Size.X, 0.0f);
	EXPECT_FLOAT_EQ(Size.Y, GetPlain(20.0f)->GetMetrics().LineHeight);
}

TEST_F(FontMeasureTest, APartIsMeasuredAsItStandsInTheText)
{
	const float Whole = Measure->Measure(TEXT("AVAVA"), Info).X;
	const float Front = Measure->Measure(TEXT("AVAVA"), 0, 2, Info).X;
	const float Back = Measure->Measure(TEXT("AVAVA"), 2, 5, Info).X;
	EXPECT_NEAR(Front + Back, Whole, 0.01f);
	EXPECT_GT(Measure->Measure(TEXT("AVAVA"), 2, 5, Info, false).X, Back);
}

TEST_F(FontMeasureTest, HeightAndBaselineFollowTheMetrics)
{
	const FFontMetrics& Metrics = GetPlain(20.0f)->GetMetrics();
	EXPECT_EQ(Measure->GetMaxCharacterHeight(Info), static_cast<uint16>(Metrics.LineHeight));
	EXPECT_EQ(Measure->GetBaseline(Info), static_cast<int16>(Metrics.Baseline - Metrics.LineHeight));
	EXPECT_LT(Measure->GetBaseline(Info), 0);
}

TEST_F(FontMeasureTest, AnOffsetFindsTheNearestPlaceBetweenCharacters)
{
	const int32 Width = static_cast<int32>(Measure->Measure(TEXT("MMMM"), Info).X);
	EXPECT_EQ(Measure->FindCharacterIndexAtOffset(TEXT("MMMM"), Info, -10), 0);
	EXPECT_EQ(Measure->FindCharacterIndexAtOffset(TEXT("MMMM"), Info, 1), 0);
	EXPECT_EQ(Measure->FindCharacterIndexAtOffset(TEXT("MMMM"), Info, Width / 4), 1);
	EXPECT_EQ(Measure->FindCharacterIndexAtOffset(TEXT("MMMM"), Info, Width / 2 + 2), 2);
	EXPECT_EQ(Measure->FindCharacterIndexAtOffset(TEXT("MMMM"), Info, Width * 10), 4);
}
