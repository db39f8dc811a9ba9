#include "EngineTest.h"

#include "Components/Border.h"
#include "Components/Button.h"
#include "Components/CanvasPanel.h"
#include "Components/CanvasPanelSlot.h"
#include "Engine/Engine.h"
#include "Engine/GameViewportClient.h"
#include "Styling/SlateBrush.h"

namespace
{
	/** A red box of 100 x 40 at (100, 100) in a panel over the whole window. */
	class FTransformedHitTest : public Host::FEngineTest
	{
	protected:
		virtual void SetUp() override
		{
			Canvas = NewObject<UCanvasPanel>();
			Box = NewObject<UBorder>();
			FSlateBrush Brush;
			Brush.DrawAs = ESlateBrushDrawType::Image;
			Brush.TintColor = FLinearColor::Red;
			Box->SetBrush(Brush);
			Place(Canvas, Box, FVector2D(100.0, 100.0), FVector2D(100.0, 40.0));
			GEngine->GameViewport->AddViewportWidgetContent(Canvas->TakeWidget());
			Loop.RunUntilIdle();
		}

		static void Place(UCanvasPanel* Panel, UWidget* Widget, FVector2D Position, FVector2D Size)
		{
			UCanvasPanelSlot* Slot = Panel->AddChildToCanvas(Widget);
			Slot->SetPosition(Position);
			Slot->SetSize(Size);
		}

		/** Whether the box is drawn at the pixel, and whether the pointer finds it there: both must agree. */
		bool IsAt(int32 X, int32 Y)
		{
			Loop.RunUntilIdle();
			Host::FPicture Picture;
			EXPECT_TRUE(Loop.TakePicture(Picture));
			const bool bDrawn = Picture.Pixels[Y * Picture.Size.X + X] == FColor(255, 0, 0);
			Driver.MoveTo(FVector2D(X + 0.5, Y + 0.5));
			EXPECT_EQ(bDrawn, Box->IsHovered()) << X << ", " << Y;
			return bDrawn;
		}

		UCanvasPanel* Canvas = nullptr;
		UBorder* Box = nullptr;
	};

	TEST_F(FTransformedHitTest, WithoutOneTheBoxIsInItsPlace)
	{
		EXPECT_TRUE(IsAt(101, 101));
		EXPECT_TRUE(IsAt(198, 138));
		EXPECT_FALSE(IsAt(98, 120));
		EXPECT_FALSE(IsAt(201, 120));
	}

	TEST_F(FTransformedHitTest, TranslationMovesItAndLeavesTheLayout)
	{
		const FVector2D Before = FVector2D(Box->GetCachedGeometry().GetLocalSize());
		Box->SetRenderTranslation(FVector2D(200.0, 50.0));
		EXPECT_FALSE(IsAt(101, 101));
		EXPECT_TRUE(IsAt(301, 151));
		EXPECT_TRUE(IsAt(398, 188));
		EXPECT_EQ(FVector2D(Box->GetCachedGeometry().GetLocalSize()), Before);
	}

	TEST_F(FTransformedHitTest, ScaleIsAroundThePivot)
	{
		Box->SetRenderScale(FVector2D(2.0, 2.0));
		EXPECT_TRUE(IsAt(52, 82));
		EXPECT_TRUE(IsAt(247, 157));
		EXPECT_FALSE(IsAt(48, 120));
		Box->SetRenderTransformPivot(FVector2D(0.0, 0.0));
		EXPECT_FALSE(IsAt(52, 82));
		EXPECT_TRUE(IsAt(297, 177));
	}

	TEST_F(FTransformedHitTest, QuarterTurnStandsTheBoxUpright)
	{
		Box->SetRenderTransformAngle(90.0f);
		// Around its middle, (150, 120).
		EXPECT_TRUE(IsAt(150, 75));
		EXPECT_TRUE(IsAt(150, 165));
		EXPECT_FALSE(IsAt(110, 120));
	}

	TEST_F(FTransformedHitTest, TransformsOfTheParentsAdd)
	{
		Canvas->SetRenderTranslation(FVector2D(30.0, 0.0));
		Box->SetRenderTranslation(FVector2D(0.0, 200.0));
		EXPECT_TRUE(IsAt(131, 301));
		EXPECT_FALSE(IsAt(128, 301));
	}

	TEST_F(FTransformedHitTest, ClippingParentCutsDrawingAndPointerAlike)
	{
		UCanvasPanel* Frame = NewObject<UCanvasPanel>();
		Place(Canvas, Frame, FVector2D(300.0, 300.0), FVector2D(100.0, 100.0));
		Place(Frame, Box, FVector2D(50.0, 50.0), FVector2D(100.0, 40.0));
		EXPECT_TRUE(IsAt(390, 360));
		EXPECT_TRUE(IsAt(420, 360));
		Frame->SetClipping(EWidgetClipping::ClipToBounds);
		EXPECT_TRUE(IsAt(390, 360));
		EXPECT_FALSE(IsAt(420, 360));
		Box->SetRenderTranslation(FVector2D(40.0, 0.0));
		EXPECT_TRUE(IsAt(395, 360));
		EXPECT_FALSE(IsAt(420, 360));
		Frame->SetRenderTranslation(FVector2D(100.0, 0.0));
		EXPECT_TRUE(IsAt(495, 360));
		EXPECT_FALSE(IsAt(505, 360));
	}

	TEST_F(FTransformedHitTest, TurnedFrameCutsDrawingAndPointerAlike)
	{
		UCanvasPanel* Frame = NewObject<UCanvasPanel>();
		Place(Canvas, Frame, FVector2D(300.0, 200.0), FVector2D(200.0, 200.0));
		Place(Frame, Box, FVector2D(-100.0, -100.0), FVector2D(400.0, 400.0));
		Frame->SetClipping(EWidgetClipping::ClipToBounds);
		Frame->SetRenderTransformAngle(45.0f);
		// A diamond around (400, 300) whose corners are 141 away from it.
		EXPECT_TRUE(IsAt(400, 165));
		EXPECT_TRUE(IsAt(535, 300));
		EXPECT_FALSE(IsAt(400, 155));
		EXPECT_FALSE(IsAt(310, 210));
		EXPECT_TRUE(IsAt(335, 240));
	}

	TEST_F(FTransformedHitTest, FramesTurnedAgainstEachOtherShowWhatIsInBoth)
	{
		UCanvasPanel* Outer = NewObject<UCanvasPanel>();
		UCanvasPanel* Inner = NewObject<UCanvasPanel>();
		Place(Canvas, Outer, FVector2D(300.0, 200.0), FVector2D(200.0, 200.0));
		Place(Outer, Inner, FVector2D(0.0, 0.0), FVector2D(200.0, 200.0));
		Place(Inner, Box, FVector2D(-100.0, -100.0), FVector2D(400.0, 400.0));
		for (UCanvasPanel* Frame : { Outer, Inner })
		{
			Frame->SetClipping(EWidgetClipping::ClipToBounds);
			Frame->SetRenderTransformAngle(30.0f);
		}
		// The frames are turned by 30 and by 60 degrees about (400, 300), 100 to each side; the box fills both.
		EXPECT_TRUE(IsAt(400, 300));
		EXPECT_TRUE(IsAt(470, 370));
		EXPECT_FALSE(IsAt(450, 390)) << "a corner of one alone";
		EXPECT_FALSE(IsAt(490, 250)) << "a corner of the other alone";
		Box->SetRenderTransformAngle(20.0f);
		Box->SetRenderScale(FVector2D(0.3, 0.3));
		EXPECT_TRUE(IsAt(440, 300));
		EXPECT_FALSE(IsAt(475, 300));
	}
}
