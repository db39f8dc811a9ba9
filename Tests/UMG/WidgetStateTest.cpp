#include "EngineTest.h"

#include "Binding/States/WidgetStateRegistration.h"
#include "Blueprint/WidgetTree.h"
#include "Components/Button.h"
#include "Components/CanvasPanel.h"
#include "Components/CanvasPanelSlot.h"
#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "RecordingUserWidget.h"

namespace
{
	/** A button at (100, 100) to (200, 150), and what its listener was told. */
	class FWidgetStateTest : public Host::FEngineTest
	{
	protected:
		FWidgetStateTest()
		{
			URecordingUserWidget* Screen = CreateWidget<URecordingUserWidget>(GEngine->GetGameInstance());
			UCanvasPanel* Canvas = Screen->WidgetTree->ConstructWidget<UCanvasPanel>();
			Button = Screen->WidgetTree->ConstructWidget<UButton>();
			UCanvasPanelSlot* Place = Canvas->AddChildToCanvas(Button);
			Place->SetPosition(FVector2D(100.0, 100.0));
			Place->SetSize(FVector2D(100.0, 50.0));
			Screen->WidgetTree->RootWidget = Canvas;
			Screen->AddToViewport();
			Loop.RunUntilIdle();
			Handle = Button->RegisterPostStateListener(FOnWidgetStateBroadcast::FDelegate::CreateLambda([this](UWidget* Widget, const FWidgetStateBitfield& States)
			{
				EXPECT_EQ(Widget, Button);
				Heard += States.HasAnyFlags(UWidgetHoveredStateRegistration::Bit) ? "h" : "-";
				Heard += States.HasAnyFlags(UWidgetPressedStateRegistration::Bit) ? "p" : "-";
				Heard += States.HasAnyFlags(UWidgetDisabledStateRegistration::Bit) ? "d " : "- ";
			}));
		}

		UButton* Button = nullptr;
		FDelegateHandle Handle;
		std::string Heard;
	};

	TEST_F(FWidgetStateTest, ListenerIsToldTheStatesOfNow)
	{
		EXPECT_EQ(Heard, "--- ");
	}

	TEST_F(FWidgetStateTest, ListenerHearsOfHoverAndPress)
	{
		Heard.clear();
		Driver.MoveTo(FVector2D(150.0, 125.0));
		EXPECT_EQ(Heard, "h-- ");
		Driver.Press();
		EXPECT_EQ(Heard, "h-- hp- ");
		Driver.Release();
		EXPECT_EQ(Heard, "h-- hp- h-- ");
		Driver.MoveTo(FVector2D(10.0, 10.0));
		EXPECT_EQ(Heard, "h-- hp- h-- --- ");
	}

	TEST_F(FWidgetStateTest, ListenerHearsOfDisablingOnce)
	{
		Heard.clear();
		Button->SetIsEnabled(false);
		Button->SetIsEnabled(false);
		EXPECT_EQ(Heard, "--d ");
		Button->SetIsEnabled(true);
		EXPECT_EQ(Heard, "--d --- ");
	}

	TEST_F(FWidgetStateTest, NobodyHearsAfterUnregistering)
	{
		Button->UnregisterPostStateListener(Handle);
		Heard.clear();
		Driver.MoveTo(FVector2D(150.0, 125.0));
		Driver.MoveTo(FVector2D(10.0, 10.0));
		EXPECT_EQ(Heard, "");
	}

	TEST(WidgetStateBitfield, HoldsSetsOfStates)
	{
		FWidgetStateBitfield States;
		EXPECT_FALSE(States.HasBinaryStates());
		States.SetBinaryState(UWidgetHoveredStateRegistration::Bit, true);
		States.SetBinaryState(UWidgetDisabledStateRegistration::Bit, true);
		EXPECT_TRUE(States.HasAllFlags(UWidgetHoveredStateRegistration::Bit));
		EXPECT_FALSE(States.HasAnyFlags(UWidgetPressedStateRegistration::Bit));
		States.SetBinaryState(UWidgetHoveredStateRegistration::Bit, false);
		EXPECT_EQ(States, UWidgetDisabledStateRegistration::Bit);
	}
}
