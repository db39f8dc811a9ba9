#include "EngineTest.h"

#include "ButtonListener.h"
#include "Components/Button.h"
#include "Components/CanvasPanel.h"
#include "Components/CanvasPanelSlot.h"
#include "Engine/Engine.h"
#include "Engine/GameViewportClient.h"
#include "UObject/StrongObjectPtr.h"

namespace
{
	/** A button of 100 x 40 at (50, 50), and somebody who listens to it. */
	class FButtonTest : public Host::FEngineTest
	{
	protected:
		virtual void SetUp() override
		{
			UCanvasPanel* Canvas = NewObject<UCanvasPanel>();
			Button = NewObject<UButton>();
			UCanvasPanelSlot* Slot = Canvas->AddChildToCanvas(Button);
			Slot->SetPosition(FVector2D(50.0, 50.0));
			Slot->SetSize(FVector2D(100.0, 40.0));
			Listener = NewObject<UButtonListener>();
			Listener->Listen(*Button);
			GEngine->GameViewport->AddViewportWidgetContent(Canvas->TakeWidget());
			Driver.MoveTo(Outside);
		}

		/** What the listener heard since the last question. */
		std::string ListEvents()
		{
			const std::string Events = Host::ToStd(Listener->Events);
			Listener->Events.Empty();
			return Events;
		}

		const FVector2D Inside = FVector2D(60.0, 60.0);
		const FVector2D Outside = FVector2D(300.0, 300.0);
		UButton* Button = nullptr;
		UButtonListener* Listener = nullptr;
	};

	TEST_F(FButtonTest, ClickIsHeardBetweenPressAndLeave)
	{
		Driver.MoveTo(Inside);
		EXPECT_EQ(ListEvents(), "Hovered ");
		EXPECT_TRUE(Button->IsHovered());
		Driver.Press();
		EXPECT_EQ(ListEvents(), "Pressed ");
		EXPECT_TRUE(Button->IsPressed());
		EXPECT_TRUE(Button->HasMouseCapture());
		Driver.Release();
		EXPECT_EQ(ListEvents(), "Released Clicked ");
		EXPECT_FALSE(Button->IsPressed());
		EXPECT_FALSE(Button->HasMouseCapture());
		Driver.MoveTo(Outside);
		EXPECT_EQ(ListEvents(), "Unhovered ");
	}

	TEST_F(FButtonTest, ReleaseBesideItIsNoClick)
	{
		Driver.MoveTo(Inside);
		Driver.Press();
		Driver.MoveTo(Outside);
		Driver.Release();
		EXPECT_EQ(ListEvents().find("Clicked"), std::string::npos);
	}

	TEST_F(FButtonTest, ClickMethodDecidesWhatAClickIs)
	{
		Button->SetClickMethod(EButtonClickMethod::MouseDown);
		Driver.MoveTo(Inside);
		ListEvents();
		Driver.Press();
		EXPECT_NE(ListEvents().find("Clicked"), std::string::npos);
		Driver.Release();
		EXPECT_EQ(ListEvents().find("Clicked"), std::string::npos);

		Button->SetClickMethod(EButtonClickMethod::MouseUp);
		Driver.MoveTo(Outside);
		Driver.Press();
		Driver.MoveTo(Inside);
		ListEvents();
		Driver.Release();
		EXPECT_NE(ListEvents().find("Clicked"), std::string::npos);
	}

	TEST_F(FButtonTest, DisabledItHearsNothingOfAClick)
	{
		Button->SetIsEnabled(false);
		Driver.ClickAt(Inside);
		EXPECT_EQ(ListEvents().find("Clicked"), std::string::npos);
		EXPECT_FALSE(Button->IsPressed());
	}

	TEST_F(FButtonTest, ListenersThatDiedAreSkipped)
	{
		UButtonListener* Other = NewObject<UButtonListener>();
		Other->Listen(*Button);
		const TStrongObjectPtr<UButton> KeptButton(Button);
		const TStrongObjectPtr<UButtonListener> KeptListener(Listener);
		Other->MarkAsGarbage();
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		Driver.ClickAt(Inside);
		EXPECT_EQ(ListEvents(), "Hovered Pressed Released Clicked ");
	}
}
