#include "EngineTest.h"

#include "ComboBoxListener.h"
#include "Components/ComboBoxString.h"
#include "Components/VerticalBox.h"
#include "Engine/Engine.h"
#include "Engine/GameViewportClient.h"

namespace
{
	class FComboBoxStringTest : public Host::FEngineTest
	{
	protected:
		FComboBoxStringTest()
		{
			Box->AddToRoot();
			Listener->AddToRoot();
			Combo = NewObject<UComboBoxString>(Box);
			Combo->OnSelectionChanged.AddDynamic(Listener, &UComboBoxListener::OnSelectionChanged);
			Combo->OnOpening.AddDynamic(Listener, &UComboBoxListener::OnOpening);
			for (const TCHAR* Option : {TEXT("Low"), TEXT("Medium"), TEXT("High")})
			{
				Combo->AddOption(Option);
			}
			Box->AddChild(Combo);
		}

		virtual void TearDown() override
		{
			FEngineTest::TearDown();
			Box->RemoveFromRoot();
			Listener->RemoveFromRoot();
		}

		void Show()
		{
			GEngine->GameViewport->AddViewportWidgetContent(Box->TakeWidget());
			Loop.RunUntilIdle();
		}

		std::string TakeEvents()
		{
			const std::string Events = Host::ToStd(FString::Join(Listener->Events, TEXT(" ")));
			Listener->Events.Reset();
			return Events;
		}

		UVerticalBox* Box = NewObject<UVerticalBox>();
		UComboBoxListener* Listener = NewObject<UComboBoxListener>();
		UComboBoxString* Combo = nullptr;
	};

	TEST_F(FComboBoxStringTest, OptionsAreFoundByTextInAnyCase)
	{
		EXPECT_EQ(Combo->GetOptionCount(), 3);
		EXPECT_EQ(Combo->FindOptionIndex(TEXT("medium")), 1);
		EXPECT_EQ(Combo->FindOptionIndex(TEXT("none")), -1);
		EXPECT_EQ(Host::ToStd(Combo->GetOptionAtIndex(2)), "High");
		EXPECT_EQ(Host::ToStd(Combo->GetOptionAtIndex(3)), "");
		EXPECT_TRUE(Combo->RemoveOption(TEXT("low")));
		EXPECT_FALSE(Combo->RemoveOption(TEXT("low")));
		EXPECT_EQ(Combo->GetOptionCount(), 2);
	}

	TEST_F(FComboBoxStringTest, SelectionFromCodeIsToldAsDirect)
	{
		Combo->SetSelectedIndex(1);
		EXPECT_EQ(TakeEvents(), "Direct:Medium");
		Show();
		Combo->SetSelectedIndex(1);
		Combo->SetSelectedOption(TEXT("MEDIUM"));
		EXPECT_EQ(TakeEvents(), "");
		Combo->SetSelectedOption(TEXT("High"));
		EXPECT_EQ(TakeEvents(), "Direct:High");
		EXPECT_EQ(Combo->GetSelectedIndex(), 2);
	}

	TEST_F(FComboBoxStringTest, IndexWithoutAnOptionKeepsTheSelection)
	{
		Combo->SetSelectedIndex(1);
		TakeEvents();
		Combo->SetSelectedIndex(-1);
		Combo->SetSelectedIndex(3);
		Combo->SetSelectedOption(TEXT("none"));
		EXPECT_EQ(TakeEvents(), "");
		EXPECT_EQ(Host::ToStd(Combo->GetSelectedOption()), "Medium");
	}

	TEST_F(FComboBoxStringTest, ClearingOptionsTellsAnEmptyTextWhileItIsShown)
	{
		Combo->SetSelectedIndex(1);
		Show();
		TakeEvents();
		Combo->ClearOptions();
		EXPECT_EQ(TakeEvents(), "Direct:");
		EXPECT_EQ(Combo->GetSelectedIndex(), -1);
		EXPECT_EQ(Combo->GetOptionCount(), 0);
	}

	TEST_F(FComboBoxStringTest, UserChoosesByMouseAndKeys)
	{
		Show();
		Driver.SingleClickAt(Driver.GetMiddle(*Combo));
		EXPECT_TRUE(Combo->IsOpen());
		Driver.PressKey(EKeys::Down);
		Driver.PressKey(EKeys::Down);
		const FVector2D Middle = Driver.GetMiddle(*Combo);
		const double Height = Combo->GetCachedGeometry().GetAbsoluteSize().Y;
		Driver.PressKey(EKeys::Enter);
		EXPECT_EQ(TakeEvents(), "Opening OnKeyPress:Medium");
		Driver.PressKey(EKeys::Down);
		EXPECT_EQ(TakeEvents(), "OnNavigation:High");
		Driver.SingleClickAt(Middle);
		Driver.SingleClickAt(Middle + FVector2D(0.0, Height * 0.9));
		EXPECT_EQ(TakeEvents(), "Opening OnMouseClick:Low");
		EXPECT_FALSE(Combo->IsOpen());
	}
}
