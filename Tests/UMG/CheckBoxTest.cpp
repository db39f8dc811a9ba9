#include "EngineTest.h"

#include "Binding/States/WidgetStateRegistration.h"
#include "Components/CanvasPanel.h"
#include "Components/CanvasPanelSlot.h"
#include "Components/CheckBox.h"
#include "Components/SizeBox.h"
#include "ControlListener.h"
#include "Engine/Engine.h"
#include "Engine/GameViewportClient.h"
#include "Styling/CoreStyle.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UnrealType.h"

namespace
{
	/** A check box of 100 x 40 at (50, 50), and somebody who listens to it. */
	class FCheckBoxTest : public Host::FEngineTest
	{
	protected:
		virtual void SetUp() override
		{
			Canvas.Reset(NewObject<UCanvasPanel>());
			Listener.Reset(NewObject<UControlListener>());
			Box = NewObject<UCheckBox>(Canvas.Get());
			Listener->Listen(*Box);
			UCanvasPanelSlot* Slot = Canvas->AddChildToCanvas(Box);
			Slot->SetPosition(FVector2D(50.0, 50.0));
			Slot->SetSize(FVector2D(100.0, 40.0));
		}

		void Show()
		{
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
		TStrongObjectPtr<UCanvasPanel> Canvas;
		TStrongObjectPtr<UControlListener> Listener;
		UCheckBox* Box = nullptr;
	};

	TEST_F(FCheckBoxTest, ClicksCheckAndUncheckAndTellAfterwards)
	{
		Show();
		Driver.SingleClickAt(Inside);
		EXPECT_EQ(ListEvents(), "Checked ");
		EXPECT_EQ(Box->GetCheckedState(), ECheckBoxState::Checked);
		Driver.SingleClickAt(Inside);
		EXPECT_EQ(ListEvents(), "Unchecked ");
		EXPECT_FALSE(Box->IsChecked());
	}

	TEST_F(FCheckBoxTest, SettingFromCodeRaisesNothing)
	{
		Box->SetIsChecked(true);
		EXPECT_TRUE(Box->IsChecked());
		Show();
		EXPECT_TRUE(Box->IsChecked());
		Box->SetIsChecked(false);
		EXPECT_FALSE(Box->IsChecked());
		Box->SetCheckedState(ECheckBoxState::Undetermined);
		EXPECT_EQ(Box->GetCheckedState(), ECheckBoxState::Undetermined);
		EXPECT_FALSE(Box->IsChecked());
		EXPECT_EQ(ListEvents(), "");
	}

	TEST_F(FCheckBoxTest, ClickOnUndeterminedUnchecks)
	{
		Box->SetCheckedState(ECheckBoxState::Undetermined);
		Show();
		Driver.SingleClickAt(Inside);
		EXPECT_EQ(ListEvents(), "Unchecked ");
		EXPECT_EQ(Box->GetCheckedState(), ECheckBoxState::Unchecked);
	}

	TEST_F(FCheckBoxTest, StateOutlivesTheSlateSide)
	{
		Show();
		Driver.SingleClickAt(Inside);
		Canvas->ReleaseSlateResources(true);
		EXPECT_TRUE(Box->IsChecked());
		Show();
		EXPECT_TRUE(Box->IsChecked());
	}

	TEST_F(FCheckBoxTest, ItIsPressedWhileHeld)
	{
		Show();
		Driver.MoveTo(Inside);
		EXPECT_FALSE(Box->IsPressed());
		Driver.Press();
		EXPECT_TRUE(Box->IsPressed());
		Driver.MoveTo(Outside);
		Driver.Release();
		EXPECT_FALSE(Box->IsPressed());
		EXPECT_EQ(ListEvents(), "");
	}

	TEST_F(FCheckBoxTest, ClickMethodDecidesWhatAClickIs)
	{
		Box->SetClickMethod(EButtonClickMethod::MouseDown);
		Show();
		Driver.MoveTo(Inside);
		Driver.Press();
		EXPECT_EQ(ListEvents(), "Checked ");
		Driver.Release();
		EXPECT_EQ(ListEvents(), "");

		Box->SetClickMethod(EButtonClickMethod::MouseUp);
		Driver.MoveTo(Outside);
		Driver.Press();
		Driver.MoveTo(Inside);
		Driver.Release();
		EXPECT_EQ(ListEvents(), "Unchecked ");
	}

	TEST_F(FCheckBoxTest, PressMethodDecidesWhatAKeyDoes)
	{
		Show();
		Box->SetFocus();
		EXPECT_TRUE(Box->HasKeyboardFocus());
		Driver.PressKey(EKeys::SpaceBar);
		EXPECT_EQ(ListEvents(), "Checked ");
		Box->SetPressMethod(EButtonPressMethod::ButtonPress);
		Driver.PressKey(EKeys::Enter);
		EXPECT_EQ(ListEvents(), "Unchecked ");
	}

	TEST_F(FCheckBoxTest, BoxThatIsNotFocusableIsLeftAloneByTheKeyboard)
	{
		FindFProperty<FBoolProperty>(Box->GetClass(), TEXT("IsFocusable"))->SetPropertyValue_InContainer(Box, false);
		EXPECT_FALSE(Box->GetIsFocusable());
		Show();
		Box->SetFocus();
		EXPECT_FALSE(Box->HasKeyboardFocus());
	}

	TEST_F(FCheckBoxTest, DisabledItStaysAsItIs)
	{
		Box->SetIsEnabled(false);
		Show();
		Driver.SingleClickAt(Inside);
		EXPECT_EQ(ListEvents(), "");
		EXPECT_FALSE(Box->IsChecked());
	}

	TEST_F(FCheckBoxTest, ContentStandsBesideTheBoxAndTakesClicksForIt)
	{
		USizeBox* Content = NewObject<USizeBox>(Box);
		Content->SetWidthOverride(30.0f);
		Content->SetHeightOverride(10.0f);
		Show();
		Box->SetContent(Content);
		Loop.RunUntilIdle();
		const FVector2D Middle = Driver.GetMiddle(*Content);
		EXPECT_GT(Middle.X, 66.0);
		EXPECT_LT(Middle.X, 150.0);
		Driver.SingleClickAt(Middle);
		EXPECT_EQ(ListEvents(), "Checked ");
		Box->RemoveChild(Content);
		EXPECT_FALSE(Content->IsConstructed());
	}

	TEST_F(FCheckBoxTest, HorizontalAlignmentPlacesTheContent)
	{
		USizeBox* Content = NewObject<USizeBox>(Box);
		Content->SetWidthOverride(30.0f);
		Box->SetContent(Content);
		Box->HorizontalAlignment = HAlign_Right;
		Show();
		EXPECT_GT(Driver.GetMiddle(*Content).X, 120.0);
	}

	TEST_F(FCheckBoxTest, StyleOfAToggleButtonPutsTheContentInside)
	{
		USizeBox* Content = NewObject<USizeBox>(Box);
		Box->SetContent(Content);
		Show();
		const double Before = Content->GetCachedGeometry().GetAbsolutePosition().X;
		const FCheckBoxStyle& Style = FCoreStyle::Get().GetWidgetStyle<FCheckBoxStyle>("ToggleButtonCheckbox");
		Box->SetWidgetStyle(Style);
		Loop.RunUntilIdle();
		EXPECT_EQ(Box->GetWidgetStyle().CheckBoxType, ESlateCheckBoxType::ToggleButton);
		EXPECT_LT(Content->GetCachedGeometry().GetAbsolutePosition().X, Before);
	}

	TEST_F(FCheckBoxTest, ListenersToStatesHearWhenItIsSelected)
	{
		Show();
		std::string Heard;
		Box->RegisterPostStateListener(FOnWidgetStateBroadcast::FDelegate::CreateLambda([&Heard](UWidget*, const FWidgetStateBitfield& States)
		{
			Heard += States.HasAnyFlags(UWidgetSelectedStateRegistration::Bit) ? "s" : "-";
		}));
		EXPECT_EQ(Heard, "-");
		Driver.SingleClickAt(Inside);
		EXPECT_EQ(Heard, "-s");
		Box->SetIsChecked(true);
		EXPECT_EQ(Heard, "-s") << "nothing has changed";
		Box->SetCheckedState(ECheckBoxState::Undetermined);
		EXPECT_EQ(Heard, "-s-");
		EXPECT_FALSE(GetDefault<UWidgetSelectedStateRegistration>()->GetRegisteredWidgetState(Box));
		EXPECT_EQ(Host::ToStd(GetDefault<UWidgetSelectedStateRegistration>()->GetStateName()), "Selected");
	}
}
