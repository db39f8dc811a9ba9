#include "Host/WindowPicture.h"

#include <gtest/gtest.h>

#include "Brushes/SlateColorBrush.h"
#include "ElementScene.h"
#include "Framework/Application/SlateApplication.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/SWindow.h"

using namespace Host;

TEST(WindowPicture, ShowsTheWidgetsOfTheWindow)
{
	static const FSlateColorBrush Brush(FLinearColor::Red);
	const TSharedPtr<FSlateRenderer> Renderer = ElementScene::MakeCpu();
	FSlateApplication::Create();
	{
		const TSharedRef<SWindow> Window = SNew(SWindow).ClientSize(FVector2D(40.0, 30.0))[SNew(SBorder).BorderImage(&Brush)];
		FSlateApplication::Get().AddWindow(Window);
		FSlateApplication::Get().Tick();

		const FPicture Picture = TakeWindowPicture(*Renderer, *Window);

		ASSERT_EQ(Picture.Size, FIntPoint(40, 30));
		EXPECT_EQ(Picture.At(20, 15), FColor(255, 0, 0, 255));
	}
	FSlateApplication::Shutdown();
}
