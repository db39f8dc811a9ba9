#include "EngineTest.h"

#include "Brushes/SlateColorBrush.h"
#include "Components/CanvasPanel.h"
#include "Components/CanvasPanelSlot.h"
#include "Components/ProgressBar.h"
#include "Engine/Engine.h"
#include "Engine/GameViewportClient.h"
#include "Host/PictureCompare.h"
#include "Host/SlateCounters.h"
#include "UObject/StrongObjectPtr.h"

namespace
{
	/** A progress bar of 100 x 20 at (50, 50), white where it is filled, blue elsewhere, and red as a marquee. */
	class FProgressBarTest : public Host::FEngineTest
	{
	protected:
		virtual void SetUp() override
		{
			Canvas.Reset(NewObject<UCanvasPanel>());
			Bar = NewObject<UProgressBar>(Canvas.Get());
			Bar->SetWidgetStyle(FProgressBarStyle()
				.SetBackgroundImage(FSlateColorBrush(FLinearColor::Blue))
				.SetFillImage(FSlateColorBrush(FLinearColor::White))
				.SetMarqueeImage(FSlateColorBrush(FLinearColor::Red)));
			UCanvasPanelSlot* Place = Canvas->AddChildToCanvas(Bar);
			Place->SetPosition(FVector2D(50.0, 50.0));
			Place->SetSize(FVector2D(100.0, 20.0));
			GEngine->GameViewport->AddViewportWidgetContent(Canvas->TakeWidget());
		}

		/** Where the bar has a colour: "left, top, right, bottom" in pixels from its top left, or "nowhere". */
		std::string FindColor(const FColor& Color)
		{
			Loop.RunFrame(0.016);
			Host::FPicture Picture;
			EXPECT_TRUE(Loop.TakePicture(Picture));
			FIntPoint Min(100, 20);
			FIntPoint Max(0, 0);
			for (int32 Y = 0; Y < 20; ++Y)
			{
				for (int32 X = 0; X < 100; ++X)
				{
					const FColor& Pixel = Picture.At(50 + X, 50 + Y);
					if (Pixel.R == Color.R && Pixel.G == Color.G && Pixel.B == Color.B)
					{
						Min = FIntPoint(FMath::Min(Min.X, X), FMath::Min(Min.Y, Y));
						Max = FIntPoint(FMath::Max(Max.X, X + 1), FMath::Max(Max.Y, Y + 1));
					}
				}
			}
			return Min.X < Max.X ? Host::ToStd(FString::Printf(TEXT("%d, %d, %d, %d"), Min.X, Min.Y, Max.X, Max.Y)) : "nowhere";
		}

		int64 CountPaintings(double Seconds)
		{
			const Host::FSlateCounters Before = Host::FSlateCounters::Get();
			Driver.Wait(Seconds);
			return (Host::FSlateCounters::Get() - Before).Painted;
		}

		TStrongObjectPtr<UCanvasPanel> Canvas;
		UProgressBar* Bar = nullptr;
	};

	TEST_F(FProgressBarTest, IsFilledToItsShare)
	{
		EXPECT_EQ(FindColor(FColor::White), "nowhere");
		Bar->SetPercent(0.25f);
		EXPECT_EQ(Bar->GetPercent(), 0.25f);
		EXPECT_EQ(FindColor(FColor::White), "0, 0, 25, 20");
		EXPECT_EQ(FindColor(FColor::Blue), "25, 0, 100, 20");
	}

	TEST_F(FProgressBarTest, FillsFromWhereItIsTold)
	{
		Bar->SetPercent(0.5f);
		Bar->SetBarFillType(EProgressBarFillType::RightToLeft);
		EXPECT_EQ(FindColor(FColor::White), "50, 0, 100, 20");
		Bar->SetBarFillType(EProgressBarFillType::TopToBottom);
		EXPECT_EQ(FindColor(FColor::White), "0, 0, 100, 10");
		Bar->SetBarFillType(EProgressBarFillType::FillFromCenterHorizontal);
		EXPECT_EQ(FindColor(FColor::White), "25, 0, 75, 20");
	}

	TEST_F(FProgressBarTest, FillKeepsOffTheEdges)
	{
		Bar->SetPercent(1.0f);
		Bar->SetBorderPadding(FVector2D(10.0, 5.0));
		EXPECT_EQ(FindColor(FColor::White), "10, 5, 90, 15");
	}

	TEST_F(FProgressBarTest, FillIsTinted)
	{
		Bar->SetPercent(0.5f);
		Bar->SetFillColorAndOpacity(FLinearColor::Green);
		EXPECT_EQ(FindColor(FColor::Green), "0, 0, 50, 20");
	}

	TEST_F(FProgressBarTest, MarqueeRunsThroughTheBarInPlaceOfTheShare)
	{
		Bar->SetPercent(0.5f);
		Bar->SetIsMarquee(true);
		Driver.Wait(0.4);
		EXPECT_EQ(FindColor(FColor::White), "nowhere");
		const std::string First = FindColor(FColor::Red);
		EXPECT_NE(First, "nowhere");
		Driver.Wait(0.2);
		EXPECT_NE(FindColor(FColor::Red), First);
		Bar->SetIsMarquee(false);
		EXPECT_EQ(FindColor(FColor::White), "0, 0, 50, 20");
		EXPECT_EQ(FindColor(FColor::Red), "nowhere");
	}

	TEST_F(FProgressBarTest, MarqueeThatIsHiddenCausesNoFrames)
	{
		Bar->SetIsMarquee(true);
		EXPECT_GT(CountPaintings(0.5), 10);
		Bar->SetVisibility(ESlateVisibility::Hidden);
		Driver.Wait(0.1);
		EXPECT_EQ(CountPaintings(0.5), 0);
		Bar->SetVisibility(ESlateVisibility::Visible);
		EXPECT_GT(CountPaintings(0.5), 10);
		Bar->SetIsMarquee(false);
		Driver.Wait(0.1);
		EXPECT_EQ(CountPaintings(0.5), 0);
	}

	TEST_F(FProgressBarTest, PropertiesComeThroughToANewSlateSide)
	{
		Bar->SetPercent(0.5f);
		Bar->SetBarFillType(EProgressBarFillType::BottomToTop);
		Bar->SetBarFillStyle(EProgressBarFillStyle::Scale);
		Bar->SetBorderPadding(FVector2D(2.0, 2.0));
		Bar->SetFillColorAndOpacity(FLinearColor::Green);
		GEngine->GameViewport->RemoveAllViewportWidgets();
		Canvas->ReleaseSlateResources(true);
		GEngine->GameViewport->AddViewportWidgetContent(Canvas->TakeWidget());
		EXPECT_EQ(FindColor(FColor::Green), "2, 10, 98, 18");
	}
}
