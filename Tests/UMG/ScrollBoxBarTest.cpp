#include "EngineTest.h"

#include "Blueprint/WidgetTree.h"
#include "Brushes/SlateColorBrush.h"
#include "Components/ScrollBox.h"
#include "Components/SizeBox.h"
#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "Host/PictureCompare.h"
#include "RecordingUserWidget.h"

namespace
{
	class FScrollBoxBarTest : public Host::FEngineTest
	{
	protected:
		/** Shows a box with more in it than it has room for. */
		UScrollBox& ShowBox()
		{
			URecordingUserWidget* Screen = CreateWidget<URecordingUserWidget>(GEngine->GetGameInstance());
			UScrollBox* Box = Screen->WidgetTree->ConstructWidget<UScrollBox>();
			USizeBox* Tall = Screen->WidgetTree->ConstructWidget<USizeBox>();
			Tall->SetHeightOverride(2000.0f);
			Box->AddChild(Tall);
			Screen->WidgetTree->RootWidget = Box;
			Screen->AddToViewport();
			Loop.RunUntilIdle();
			return *Box;
		}

		/** Colour in the middle of the bar's thumb, which is at its top. */
		FColor GetThumbColour()
		{
			Host::FPicture Picture;
			EXPECT_TRUE(Loop.TakePicture(Picture));
			return Picture.Pixels[30 * Picture.Size.X + Picture.Size.X - 6];
		}
	};

	TEST_F(FScrollBoxBarTest, ShowsItsStyleAndAnother)
	{
		UScrollBox& Box = ShowBox();
		FScrollBarStyle Style;
		Style.SetThickness(12.0f);
		Style.SetNormalThumbImage(FSlateColorBrush(FLinearColor::Red));
		Box.SetWidgetBarStyle(Style);
		Loop.RunUntilIdle();
		EXPECT_EQ(GetThumbColour(), FColor::Red);

		Box.WidgetBarStyle.NormalThumbImage.TintColor = FLinearColor::Blue;
		Box.SynchronizeProperties();
		Loop.RunUntilIdle();
		EXPECT_EQ(GetThumbColour(), FColor::Blue);
	}

	TEST_F(FScrollBoxBarTest, PaddingTakesItsRoomFromTheContent)
	{
		UScrollBox* Box = &ShowBox();
		UWidget* Tall = Box->GetChildAt(0);
		UUserWidget* Screen = Box->GetTypedOuter<UUserWidget>();
		const float Before = static_cast<float>(Tall->GetCachedGeometry().GetLocalSize().X);
		ASSERT_GT(Before, 0.0f);

		EXPECT_EQ(Box->GetScrollbarPadding(), FMargin(2.0f));
		Box->SetScrollbarPadding(FMargin(6.0f, 2.0f, 7.0f, 2.0f));
		Loop.RunUntilIdle();
		EXPECT_EQ(static_cast<float>(Tall->GetCachedGeometry().GetLocalSize().X), Before - 9.0f);

		Screen->RemoveFromParent();
		Screen->AddToViewport();
		Loop.RunUntilIdle();
		EXPECT_EQ(static_cast<float>(Tall->GetCachedGeometry().GetLocalSize().X), Before - 9.0f);
	}
}
