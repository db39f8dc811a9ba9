#include "EngineTest.h"

#include "Blueprint/WidgetTree.h"
#include "Components/ScrollBox.h"
#include "Components/SizeBox.h"
#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "RecordingUserWidget.h"

namespace
{
	class FScrollBarPaddingTest : public Host::FEngineTest
	{
	};

	TEST_F(FScrollBarPaddingTest, TakesItsRoomFromTheContent)
	{
		URecordingUserWidget* Screen = CreateWidget<URecordingUserWidget>(GEngine->GetGameInstance());
		UScrollBox* Box = Screen->WidgetTree->ConstructWidget<UScrollBox>();
		USizeBox* Tall = Screen->WidgetTree->ConstructWidget<USizeBox>();
		Tall->SetHeightOverride(2000.0f);
		Box->AddChild(Tall);
		Screen->WidgetTree->RootWidget = Box;
		Screen->AddToViewport();
		Loop.RunUntilIdle();
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
