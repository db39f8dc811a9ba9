#include "Widgets/Layout/SBox.h"

#include "LayoutTestTools.h"

class BoxTest : public FLayoutTest
{
};

TEST_F(BoxTest, WantsWhatItsContentAndPaddingWant)
{
	Show(SNew(SBox).Padding(FMargin(1.0f, 2.0f, 3.0f, 4.0f))[Piece("A", 20, 30)]);
	EXPECT_EQ(GetDesiredSize(), FVector2f(24.0f, 36.0f));
	EXPECT_EQ(Dump(), "  SPiece [A] (1, 2) 396 x 294");
}

TEST_F(BoxTest, OverrideReplacesTheDesiredSizeOfItsAxis)
{
	Show(SNew(SBox).WidthOverride(100.0f).Padding(5.0f)[Piece("A", 20, 30)]);
	EXPECT_EQ(GetDesiredSize(), FVector2f(100.0f, 40.0f));
}

TEST_F(BoxTest, OverrideSmallerThanTheContentHoldsToo)
{
	Show(SNew(SBox).HeightOverride(7.0f)[Piece("A", 20, 30)]);
	EXPECT_EQ(GetDesiredSize(), FVector2f(20.0f, 7.0f));
}

TEST_F(BoxTest, OverridePrevailsOverMinimumAndMaximum)
{
	Show(SNew(SBox).WidthOverride(100.0f).MinDesiredWidth(120.0f).MaxDesiredWidth(50.0f)[Piece("A", 20, 30)]);
	EXPECT_EQ(GetDesiredSize().X, 100.0f);
}

TEST_F(BoxTest, MinimumAndMaximumBoundTheDesiredSize)
{
	Show(SNew(SBox).MinDesiredWidth(50.0f).MaxDesiredHeight(10.0f)[Piece("A", 20, 30)]);
	EXPECT_EQ(GetDesiredSize(), FVector2f(50.0f, 10.0f));
}

TEST_F(BoxTest, MaximumPrevailsOverMinimum)
{
	Show(SNew(SBox).MinDesiredWidth(50.0f).MaxDesiredWidth(40.0f)[Piece("A", 20, 30)]);
	EXPECT_EQ(GetDesiredSize().X, 40.0f);
}

TEST_F(BoxTest, DefaultOptionalSizeUnsetsAnOverride)
{
	const TSharedRef<SBox> Box = SNew(SBox).WidthOverride(100.0f)[Piece("A", 20, 30)];
	Show(Box);
	Box->SetWidthOverride(FOptionalSize());
	Frame();
	EXPECT_EQ(GetDesiredSize().X, 20.0f);
}

TEST_F(BoxTest, CollapsedContentWantsNothingNotEvenTheOverride)
{
	const TSharedRef<SPiece> Content = Piece("A", 20, 30);
	Show(SNew(SBox).WidthOverride(100.0f)[Content]);
	Content->SetVisibility(EVisibility::Collapsed);
	Frame();
	EXPECT_EQ(GetDesiredSize(), FVector2f(0.0f, 0.0f));
}

TEST_F(BoxTest, OverrideHoldsWithoutContent)
{
	Show(SNew(SBox).WidthOverride(100.0f).HeightOverride(50.0f));
	EXPECT_EQ(GetDesiredSize(), FVector2f(100.0f, 50.0f));
}

TEST_F(BoxTest, AlignsItsContentWithinThePadding)
{
	Show(SNew(SBox).HAlign(HAlign_Right).VAlign(VAlign_Center).Padding(FMargin(0.0f, 0.0f, 10.0f, 0.0f))[Piece("A", 20, 30)]);
	EXPECT_EQ(Dump(), "  SPiece [A] (370, 135) 20 x 30");
}

TEST_F(BoxTest, ContentThatIsAlignedIsNotLargerThanTheBox)
{
	Show(SNew(SBox).HAlign(HAlign_Left).VAlign(VAlign_Top)[Piece("A", 900, 30)]);
	EXPECT_EQ(Dump(), "  SPiece [A] (0, 0) 400 x 30");
}

TEST_F(BoxTest, MaxAspectRatioNarrowsFillingContentAroundItsMiddle)
{
	Show(SNew(SBox).MaxAspectRatio(1.0f)[Piece("A", 20, 30)]);
	EXPECT_EQ(Dump(), "  SPiece [A] (50, 0) 300 x 300");
}

TEST_F(BoxTest, MinAspectRatioFlattensFillingContentAroundItsMiddle)
{
	Show(SNew(SBox).MinAspectRatio(2.0f)[Piece("A", 20, 30)]);
	EXPECT_EQ(Dump(), "  SPiece [A] (0, 50) 400 x 200");
}

TEST_F(BoxTest, AspectRatioWithinItsRangeChangesNothing)
{
	Show(SNew(SBox).MinAspectRatio(1.0f).MaxAspectRatio(2.0f)[Piece("A", 20, 30)]);
	EXPECT_EQ(Dump(), "  SPiece [A] (0, 0) 400 x 300");
}

TEST_F(BoxTest, AspectRatioDoesNotChangeTheDesiredSize)
{
	Show(SNew(SBox).MaxAspectRatio(1.0f)[Piece("A", 200, 30)]);
	EXPECT_EQ(GetDesiredSize(), FVector2f(200.0f, 30.0f));
}

TEST_F(BoxTest, AspectRatioKeepsTheAlignmentOfContentThatDoesNotFill)
{
	Show(SNew(SBox).HAlign(HAlign_Right).MaxAspectRatio(0.1f)[Piece("A", 200, 30)]);
	EXPECT_EQ(Dump(), "  SPiece [A] (370, 0) 30 x 300");
}

TEST_F(BoxTest, EqualValuesInvalidateNothing)
{
	const TSharedRef<SBox> Box = SNew(SBox).WidthOverride(100.0f).Padding(5.0f).MaxAspectRatio(2.0f)[Piece("A", 20, 30)];
	Show(Box);
	Box->SetWidthOverride(100.0f);
	Box->SetHeightOverride(FOptionalSize());
	Box->SetPadding(FMargin(5.0f));
	Box->SetHAlign(HAlign_Fill);
	Box->SetVAlign(VAlign_Fill);
	Box->SetMaxAspectRatio(2.0f);
	ExpectNoWork();
}

TEST_F(BoxTest, ChangedAlignmentMeasuresNoContent)
{
	const TSharedRef<SBox> Box = SNew(SBox)[Piece("A", 20, 30)];
	Show(Box);
	Box->SetHAlign(HAlign_Left);
	ExpectFrame(1, 2, 2);
}

TEST_F(BoxTest, GetterOfTheOverrideIsFollowed)
{
	float Width = 100.0f;
	Show(SNew(SBox).WidthOverride(TAttribute<FOptionalSize>::CreateLambda([&Width]() { return FOptionalSize(Width); }))[Piece("A", 20, 30)]);
	Width = 150.0f;
	Host::FAttributeBindings::UpdateAll();
	Frame();
	EXPECT_EQ(GetDesiredSize().X, 150.0f);
}

TEST_F(BoxTest, ReplacedContentIsShown)
{
	const TSharedRef<SBox> Box = SNew(SBox)[Piece("A", 20, 30)];
	Show(Box);
	Box->SetContent(Piece("B", 5, 6));
	Frame();
	EXPECT_EQ(GetDesiredSize(), FVector2f(5.0f, 6.0f));
	EXPECT_EQ(Dump(), "  SPiece [B] (0, 0) 400 x 300");
}

TEST_F(BoxTest, NegativeOverrideWantsNothing)
{
	Show(SNew(SBox).WidthOverride(-50.0f)[Piece("A", 20, 30)]);
	EXPECT_EQ(GetDesiredSize(), FVector2f(0.0f, 30.0f));
}
