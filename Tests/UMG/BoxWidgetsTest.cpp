#include "EngineTest.h"

#include "Components/CanvasPanel.h"
#include "Components/CanvasPanelSlot.h"
#include "Components/ScaleBox.h"
#include "Components/SizeBox.h"
#include "Components/SizeBoxSlot.h"
#include "Components/Spacer.h"
#include "Engine/Engine.h"
#include "Engine/GameViewportClient.h"

namespace
{
	/** A box of 200 x 100 around a spacer of 50 x 50. */
	class FBoxWidgetsTest : public Host::FEngineTest
	{
	protected:
		template<typename BoxType>
		BoxType* Show()
		{
			UCanvasPanel* Canvas = NewObject<UCanvasPanel>();
			BoxType* Box = NewObject<BoxType>();
			Content = NewObject<USpacer>();
			Content->SetSize(FVector2D(50.0, 50.0));
			Box->SetContent(Content);
			UCanvasPanelSlot* Slot = Canvas->AddChildToCanvas(Box);
			Slot->SetSize(FVector2D(200.0, 100.0));
			GEngine->GameViewport->AddViewportWidgetContent(Canvas->TakeWidget());
			Loop.RunUntilIdle();
			return Box;
		}

		/** Size in pixels at which the content is shown. */
		FVector2D GetShownSize()
		{
			Loop.RunUntilIdle();
			return FVector2D(Content->GetCachedGeometry().GetAbsoluteSize());
		}

		USpacer* Content = nullptr;
	};

	TEST_F(FBoxWidgetsTest, StretchDecidesTheSizeOfTheContent)
	{
		UScaleBox* Box = Show<UScaleBox>();
		const TPair<EStretch::Type, FVector2D> Expected[] = {
			{ EStretch::None, FVector2D(50.0, 50.0) },
			{ EStretch::Fill, FVector2D(200.0, 100.0) },
			{ EStretch::ScaleToFit, FVector2D(100.0, 100.0) },
			{ EStretch::ScaleToFitX, FVector2D(200.0, 200.0) },
			{ EStretch::ScaleToFitY, FVector2D(100.0, 100.0) },
			{ EStretch::ScaleToFill, FVector2D(200.0, 200.0) },
		};
		for (const TPair<EStretch::Type, FVector2D>& Case : Expected)
		{
			Box->SetStretch(Case.Key);
			EXPECT_TRUE(GetShownSize().Equals(Case.Value, 1e-3)) << "stretch " << static_cast<int>(Case.Key) << ": " << Host::ToStd(GetShownSize().ToString());
		}
		Box->SetStretch(EStretch::UserSpecified);
		Box->SetUserSpecifiedScale(1.5f);
		EXPECT_TRUE(GetShownSize().Equals(FVector2D(75.0, 75.0), 1e-3));
	}

	TEST_F(FBoxWidgetsTest, StretchDirectionForbidsToEnlarge)
	{
		UScaleBox* Box = Show<UScaleBox>();
		Box->SetStretchDirection(EStretchDirection::DownOnly);
		EXPECT_TRUE(GetShownSize().Equals(FVector2D(50.0, 50.0), 1e-3));
		Box->SetStretchDirection(EStretchDirection::UpOnly);
		EXPECT_TRUE(GetShownSize().Equals(FVector2D(100.0, 100.0), 1e-3));
	}

	TEST_F(FBoxWidgetsTest, AspectRatioHoldsFillingContent)
	{
		USizeBox* Box = Show<USizeBox>();
		EXPECT_EQ(GetShownSize(), FVector2D(200.0, 100.0));
		Box->SetMaxAspectRatio(1.0f);
		EXPECT_TRUE(GetShownSize().Equals(FVector2D(100.0, 100.0), 1e-3));
		Box->ClearMaxAspectRatio();
		Box->SetMinAspectRatio(4.0f);
		EXPECT_TRUE(GetShownSize().Equals(FVector2D(200.0, 50.0), 1e-3));
		Box->ClearMinAspectRatio();
		EXPECT_EQ(GetShownSize(), FVector2D(200.0, 100.0));
	}
}
