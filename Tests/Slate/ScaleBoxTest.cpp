#include "Widgets/Layout/SScaleBox.h"

#include "Host/DrawElement.h"
#include "LayoutTestTools.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"

class ScaleBoxTest : public FLayoutTest
{
protected:
	/** Top left and size of the content in pixels. */
	std::string ContentPixels() const
	{
		const FGeometry& Geometry = Content->GetCachedGeometry();
		const FVector2f TopLeft = Geometry.GetAbsolutePosition();
		const FVector2f Size = Geometry.GetAbsoluteSize();
		const FString Text = FString::Printf(TEXT("%g %g %g %g"), TopLeft.X, TopLeft.Y, Size.X, Size.Y);
		return TCHAR_TO_UTF8(*Text);
	}

	/** Content of 100 x 50 in 400 x 300. */
	TSharedRef<SScaleBox> ShowStretched(EStretch::Type Stretch, EStretchDirection::Type Direction = EStretchDirection::Both, float UserScale = 1.0f)
	{
		const TSharedRef<SScaleBox> Box = SNew(SScaleBox).Stretch(Stretch).StretchDirection(Direction).UserSpecifiedScale(UserScale)
		[
			SAssignNew(Content, SPiece).Size(FVector2D(100.0, 50.0))
		];
		Show(Box);
		return Box;
	}

	TSharedPtr<SPiece> Content;
};

TEST_F(ScaleBoxTest, NoneLeavesTheContentInTheMiddle)
{
	ShowStretched(EStretch::None);
	EXPECT_EQ(ContentPixels(), "150 125 100 50");
}

TEST_F(ScaleBoxTest, FillGivesTheContentTheWholeArea)
{
	ShowStretched(EStretch::Fill);
	EXPECT_EQ(ContentPixels(), "0 0 400 300");
	EXPECT_EQ(Content->GetCachedGeometry().Scale, 1.0f);
}

TEST_F(ScaleBoxTest, ScaleToFitShowsTheWholeContentAsLargeAsPossible)
{
	ShowStretched(EStretch::ScaleToFit);
	EXPECT_EQ(ContentPixels(), "0 50 400 200");
	EXPECT_EQ(Content->GetCachedGeometry().Scale, 4.0f);
	EXPECT_EQ(FVector2f(Content->GetCachedGeometry().GetLocalSize()), FVector2f(100.0f, 50.0f));
}

TEST_F(ScaleBoxTest, ScaleToFitXTakesTheWidth)
{
	ShowStretched(EStretch::ScaleToFitX);
	EXPECT_EQ(ContentPixels(), "0 50 400 200");
}

TEST_F(ScaleBoxTest, ScaleToFitYTakesTheHeight)
{
	ShowStretched(EStretch::ScaleToFitY);
	EXPECT_EQ(ContentPixels(), "-100 0 600 300");
}

TEST_F(ScaleBoxTest, ScaleToFillCoversTheArea)
{
	ShowStretched(EStretch::ScaleToFill);
	EXPECT_EQ(ContentPixels(), "-100 0 600 300");
}

TEST_F(ScaleBoxTest, ScaleBySafeZoneIsOneWhereDisplaysHaveNoMargins)
{
	ShowStretched(EStretch::ScaleBySafeZone);
	EXPECT_EQ(ContentPixels(), "150 125 100 50");
}

TEST_F(ScaleBoxTest, UserSpecifiedTakesTheGivenScale)
{
	ShowStretched(EStretch::UserSpecified, EStretchDirection::Both, 2.0f);
	EXPECT_EQ(ContentPixels(), "100 100 200 100");
	EXPECT_EQ(GetDesiredSize(), FVector2f(200.0f, 100.0f));
}

TEST_F(ScaleBoxTest, DownOnlyDoesNotEnlarge)
{
	ShowStretched(EStretch::ScaleToFit, EStretchDirection::DownOnly);
	EXPECT_EQ(ContentPixels(), "150 125 100 50");
	Content->SetSize(FVector2D(800.0, 100.0));
	Frame();
	EXPECT_EQ(ContentPixels(), "0 125 400 50");
}

TEST_F(ScaleBoxTest, UpOnlyDoesNotReduce)
{
	ShowStretched(EStretch::ScaleToFit, EStretchDirection::UpOnly);
	EXPECT_EQ(ContentPixels(), "0 50 400 200");
	Content->SetSize(FVector2D(800.0, 100.0));
	Frame();
	EXPECT_EQ(ContentPixels(), "-200 100 800 100");
}

TEST_F(ScaleBoxTest, AlignmentPlacesWhatIsSmallerThanTheArea)
{
	const TSharedRef<SScaleBox> Box = ShowStretched(EStretch::ScaleToFit);
	Box->SetVAlign(VAlign_Bottom);
	Frame();
	EXPECT_EQ(ContentPixels(), "0 100 400 200");
}

TEST_F(ScaleBoxTest, DesiredSizeOfAnAreaDependentStretchIsThatOfTheContent)
{
	ShowStretched(EStretch::ScaleToFit);
	EXPECT_EQ(GetDesiredSize(), FVector2f(100.0f, 50.0f));
}

TEST_F(ScaleBoxTest, ScaleToFitXWantsTheHeightThatItsWidthAsksForInTheSameFrame)
{
	Show(SNew(SVerticalBox)
		+ SVerticalBox::Slot().AutoHeight()
		[
			SNew(SScaleBox).Stretch(EStretch::ScaleToFitX)
			[
				SAssignNew(Content, SPiece).Size(FVector2D(100.0, 50.0))
			]
		]);
	EXPECT_EQ(ContentPixels(), "0 0 400 200");
}

TEST_F(ScaleBoxTest, IgnoreInheritedScaleUndoesTheScaleOfTheWindow)
{
	const TSharedRef<SScaleBox> Box = SNew(SScaleBox).IgnoreInheritedScale(true).HAlign(HAlign_Left).VAlign(VAlign_Top)
	[
		SAssignNew(Content, SPiece).Size(FVector2D(100.0, 50.0))
	];
	Show(Box, 400, 300, 2.0f);
	EXPECT_EQ(ContentPixels(), "0 0 100 50");
	EXPECT_EQ(GetDesiredSize(), FVector2f(50.0f, 25.0f));
}

TEST_F(ScaleBoxTest, ContentBeyondTheAreaIsClippedWhereTheStretchAsksForIt)
{
	Show(SNew(SBox).HAlign(HAlign_Center).VAlign(VAlign_Center)
	[
		SNew(SBox).WidthOverride(100.0f).HeightOverride(100.0f)
		[
			SNew(SScaleBox).Stretch(EStretch::ScaleToFill)[Piece("A", 100, 50)]
		]
	]);
	Host::FPixelRect Bounds;
	Root.ForEachElement(Host::FPixelRect::Everything(), [&Bounds](TConstArrayView<Host::FDrawElement> Elements)
	{
		for (const Host::FDrawElement& Element : Elements)
		{
			Bounds = Bounds.Union(Element.Bounds);
		}
	});
	EXPECT_EQ(Bounds, Host::FPixelRect::Make(150, 100, 250, 200));
}

TEST_F(ScaleBoxTest, ScaleOfZeroShowsNothing)
{
	ShowStretched(EStretch::UserSpecified, EStretchDirection::Both, 0.0f);
	EXPECT_EQ(Work.Painted, 1);
}

TEST_F(ScaleBoxTest, EqualValuesInvalidateNothing)
{
	const TSharedRef<SScaleBox> Box = ShowStretched(EStretch::ScaleToFit);
	Box->SetStretch(EStretch::ScaleToFit);
	Box->SetStretchDirection(EStretchDirection::Both);
	Box->SetUserSpecifiedScale(1.0f);
	Box->SetIgnoreInheritedScale(false);
	ExpectNoWork();
}
