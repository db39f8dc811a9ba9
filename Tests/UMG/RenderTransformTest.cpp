#include "EngineTest.h"

#include "Components/SizeBox.h"
#include "Engine/Engine.h"
#include "Engine/GameViewportClient.h"
#include "UObject/StrongObjectPtr.h"

namespace
{
	/** A widget over the whole window of 800 x 600 pixels. */
	class FRenderTransformTest : public Host::FEngineTest
	{
	protected:
		FRenderTransformTest()
			: Box(NewObject<USizeBox>())
		{
		}

		void Show()
		{
			GEngine->GameViewport->AddViewportWidgetContent(Box->TakeWidget());
			Loop.RunUntilIdle();
		}

		/** Where the widget is drawn. */
		std::string GetPlace()
		{
			Loop.RunUntilIdle();
			const FSlateRect Rect = Box->GetCachedGeometry().GetRenderBoundingRect();
			return Host::ToStd(FString::Printf(TEXT("%.0f %.0f %.0f %.0f"), Rect.Left, Rect.Top, Rect.Right, Rect.Bottom));
		}

		const TStrongObjectPtr<USizeBox> Box;
	};

	TEST_F(FRenderTransformTest, LeavesTheMiddleInPlaceUnlessToldOtherwise)
	{
		Show();
		Box->SetRenderScale(FVector2D(0.5, 0.5));
		EXPECT_EQ(GetPlace(), "200 150 600 450");
	}

	TEST_F(FRenderTransformTest, PivotSetBeforeTheTransformCounts)
	{
		Show();
		Box->SetRenderTransformPivot(FVector2D(0.0, 0.0));
		EXPECT_EQ(GetPlace(), "0 0 800 600");
		Box->SetRenderScale(FVector2D(0.5, 0.5));
		EXPECT_EQ(GetPlace(), "0 0 400 300");
	}

	TEST_F(FRenderTransformTest, PivotSetBeforeTheWidgetIsShownCounts)
	{
		Box->SetRenderTransformPivot(FVector2D(1.0, 1.0));
		Box->SetRenderScale(FVector2D(0.5, 0.5));
		Show();
		EXPECT_EQ(GetPlace(), "400 300 800 600");
	}

	TEST_F(FRenderTransformTest, PivotMovesWhatIsTransformed)
	{
		Show();
		Box->SetRenderScale(FVector2D(0.5, 0.5));
		Box->SetRenderTransformPivot(FVector2D(1.0, 0.0));
		EXPECT_EQ(GetPlace(), "400 0 800 300");
	}

	TEST_F(FRenderTransformTest, IdentityPutsTheWidgetBack)
	{
		Show();
		Box->SetRenderScale(FVector2D(0.5, 0.5));
		EXPECT_EQ(GetPlace(), "200 150 600 450");
		Box->SetRenderTransform(FWidgetTransform());
		EXPECT_EQ(GetPlace(), "0 0 800 600");
	}
}
