#include "Widgets/Layout/SBorder.h"

#include "Host/DrawElement.h"
#include "LayoutTestTools.h"

class BorderTest : public FLayoutTest
{
protected:
	BorderTest() : Red(FLinearColor::Red), Blue(FLinearColor::Blue) {}

	int32 CountElements() const
	{
		int32 Count = 0;
		Root.ForEachElement(Host::FPixelRect::Everything(), [&Count](TConstArrayView<Host::FDrawElement> Elements) { Count += Elements.Num(); });
		return Count;
	}

	FSlateColorBrush Red;
	FSlateColorBrush Blue;
};

TEST_F(BorderTest, PadsItsContentByTwoUnitsUnlessTold)
{
	Show(SNew(SBorder)[Piece("A", 20, 30)]);
	EXPECT_EQ(GetDesiredSize(), FVector2f(24.0f, 34.0f));
	EXPECT_EQ(Dump(), "  SPiece [A] (2, 2) 396 x 296");
}

TEST_F(BorderTest, TakesTheBrushOfTheCoreStyleUnlessTold)
{
	const TSharedRef<SBorder> Border = SNew(SBorder);
	EXPECT_EQ(Border->GetBorderImage(), FCoreStyle::Get().GetBrush("Border"));
}

TEST_F(BorderTest, DrawsItsBrushBelowItsContent)
{
	Show(SNew(SBorder).BorderImage(&Red)[Piece("A", 20, 30)]);
	EXPECT_EQ(CountElements(), 2);
}

TEST_F(BorderTest, NullBrushDrawsNothing)
{
	const FSlateBrush* None = nullptr;
	Show(SNew(SBorder).BorderImage(None)[Piece("A", 20, 30)]);
	EXPECT_EQ(CountElements(), 1);
}

TEST_F(BorderTest, ChangedBrushPaintsTheBorderOnly)
{
	const TSharedRef<SBorder> Border = SNew(SBorder).BorderImage(&Red)[Piece("A", 20, 30)];
	Show(Border);
	Border->SetBorderImage(&Blue);
	ExpectFrame(0, 0, 1);
}

TEST_F(BorderTest, BrushChangedInPlaceIsPaintedWhenItIsSetAgain)
{
	const TSharedRef<SBorder> Border = SNew(SBorder).BorderImage(&Red)[Piece("A", 20, 30)];
	Show(Border);
	Red.TintColor = FLinearColor::Green;
	Border->SetBorderImage(&Red);
	ExpectFrame(0, 0, 1);
	bool bFound = false;
	Root.ForEachElement(Host::FPixelRect::Everything(), [&bFound](TConstArrayView<Host::FDrawElement> Elements)
	{
		for (const Host::FDrawElement& Element : Elements)
		{
			bFound |= Element.Colour == FColor(0, 255, 0, 255);
		}
	});
	EXPECT_TRUE(bFound);
}

TEST_F(BorderTest, ChangedBackgroundColorPaintsTheBorderOnly)
{
	const TSharedRef<SBorder> Border = SNew(SBorder).BorderImage(&Red)[Piece("A", 20, 30)];
	Show(Border);
	Border->SetBorderBackgroundColor(FSlateColor(FLinearColor::Gray));
	ExpectFrame(0, 0, 1);
}

TEST_F(BorderTest, ChangedContentColorPaintsTheContentToo)
{
	const TSharedRef<SBorder> Border = SNew(SBorder).BorderImage(&Red)[Piece("A", 20, 30)];
	Show(Border);
	Border->SetColorAndOpacity(FLinearColor::Gray);
	ExpectFrame(0, 0, 2);
}

TEST_F(BorderTest, EqualValuesInvalidateNothing)
{
	const TSharedRef<SBorder> Border = SNew(SBorder).BorderImage(&Red).Padding(4.0f)[Piece("A", 20, 30)];
	Show(Border);
	Border->SetPadding(FMargin(4.0f));
	Border->SetHAlign(HAlign_Fill);
	Border->SetVAlign(VAlign_Fill);
	Border->SetBorderBackgroundColor(FSlateColor(FLinearColor::White));
	Border->SetColorAndOpacity(FLinearColor::White);
	Border->SetShowEffectWhenDisabled(true);
	ExpectNoWork();
}

TEST_F(BorderTest, DesiredSizeScaleMultipliesTheWantedSize)
{
	Show(SNew(SBorder).Padding(0.0f).DesiredSizeScale(FVector2D(0.5, 2.0))[Piece("A", 20, 30)]);
	EXPECT_EQ(GetDesiredSize(), FVector2f(10.0f, 60.0f));
}

TEST_F(BorderTest, ClearedContentLeavesThePadding)
{
	const TSharedRef<SBorder> Border = SNew(SBorder).Padding(3.0f)[Piece("A", 20, 30)];
	Show(Border);
	Border->ClearContent();
	Frame();
	EXPECT_EQ(GetDesiredSize(), FVector2f(6.0f, 6.0f));
}
