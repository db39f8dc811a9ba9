#include "Widgets/Notifications/SProgressBar.h"

#include "Brushes/SlateRoundedBoxBrush.h"
#include "ControlTestTools.h"
#include "Host/DrawElement.h"

class ProgressBarTest : public FLayoutTest
{
protected:
	/** Width in units of the picture over the background, of which only a part may be seen. */
	float GetDrawnWidth() const
	{
		float Width = 0.0f;
		Root.ForEachElement(Host::FPixelRect::Everything(), [&Width](TConstArrayView<Host::FDrawElement> Elements) { Width = Elements.Last().LocalSize.X; });
		return Width;
	}

	/** Bounds in pixels of what is drawn over the background. */
	Host::FPixelRect GetFillBounds() const
	{
		Host::FPixelRect Bounds;
		Root.ForEachElement(Host::FPixelRect::Everything(), [&Bounds](TConstArrayView<Host::FDrawElement> Elements)
		{
			for (int32 Index = 1; Index < Elements.Num(); ++Index)
			{
				Bounds = Bounds.Union(Elements[Index].Bounds);
			}
		});
		return Bounds;
	}
};

TEST_F(ProgressBarTest, FillsItsShareFromTheLeft)
{
	Show(SNew(SProgressBar).Percent(0.25f).BorderPadding(FVector2D::ZeroVector));
	EXPECT_EQ(GetFillBounds(), Host::FPixelRect::Make(0, 0, 100, 300));
}

TEST_F(ProgressBarTest, FillsFromWhereItIsTold)
{
	const TSharedRef<SProgressBar> Bar = SNew(SProgressBar).Percent(0.5f).BorderPadding(FVector2D::ZeroVector);
	Show(Bar);
	Bar->SetBarFillType(EProgressBarFillType::RightToLeft);
	Frame();
	EXPECT_EQ(GetFillBounds(), Host::FPixelRect::Make(200, 0, 400, 300));
	Bar->SetBarFillType(EProgressBarFillType::BottomToTop);
	Frame();
	EXPECT_EQ(GetFillBounds(), Host::FPixelRect::Make(0, 150, 400, 300));
	Bar->SetBarFillType(EProgressBarFillType::FillFromCenter);
	Frame();
	EXPECT_EQ(GetFillBounds(), Host::FPixelRect::Make(100, 75, 300, 225));
}

TEST_F(ProgressBarTest, ScaledFillIsDrawnAsLargeAsTheDonePart)
{
	const FProgressBarStyle Style = FProgressBarStyle()
		.SetBackgroundImage(FSlateColorBrush(FLinearColor::White))
		.SetFillImage(FSlateRoundedBoxBrush(FLinearColor::Red, 4.0f));
	const TSharedRef<SProgressBar> Bar = SNew(SProgressBar).Style(&Style).Percent(0.5f).BorderPadding(FVector2D::ZeroVector);
	Show(Bar);
	EXPECT_EQ(GetDrawnWidth(), 400.0f) << "a mask cuts it off instead";
	Bar->SetBarFillStyle(EProgressBarFillStyle::Scale);
	Frame();
	EXPECT_EQ(GetDrawnWidth(), 200.0f);
}

TEST_F(ProgressBarTest, EqualPercentInvalidatesNothing)
{
	const TSharedRef<SProgressBar> Bar = SNew(SProgressBar).Percent(0.5f);
	Show(Bar);
	Bar->SetPercent(TOptional<float>(0.5f));
	ExpectNoWork();
	EXPECT_FALSE(Bar->HasActiveTimers());
}

class MarqueeTest : public FControlTest
{
};

TEST_F(MarqueeTest, UnknownProgressMovesWhileItIsSeenOnly)
{
	const TSharedRef<SProgressBar> Bar = SNew(SProgressBar);
	Show(Bar);
	EXPECT_TRUE(Bar->HasActiveTimers());
	Wait(0.1);
	EXPECT_TRUE(Bar->HasActiveTimers());
	Bar->SetVisibility(EVisibility::Hidden);
	Wait(0.1);
	Wait(0.1);
	EXPECT_FALSE(Bar->HasActiveTimers());
	Bar->SetVisibility(EVisibility::Visible);
	Wait(0.1);
	EXPECT_TRUE(Bar->HasActiveTimers());
	Bar->SetPercent(TOptional<float>(0.5f));
	Wait(0.1);
	Wait(0.1);
	EXPECT_FALSE(Bar->HasActiveTimers());
}
