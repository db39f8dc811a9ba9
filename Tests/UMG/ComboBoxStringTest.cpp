#include "EngineTest.h"

#include "ComboBoxListener.h"
#include "Components/ComboBoxString.h"
#include "Components/SizeBox.h"
#include "Components/VerticalBox.h"
#include "Components/VerticalBoxSlot.h"
#include "Engine/Engine.h"
#include "Engine/GameViewportClient.h"
#include "Framework/Application/SlateApplication.h"
#include "Widgets/SCompoundWidget.h"
#include "Widgets/SWindow.h"
#include "Widgets/Text/STextBlock.h"

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

		/** What shows a text in the window, boxes before lists. */
		TArray<TSharedRef<SWidget>> FindTexts(const FString& Text)
		{
			TArray<TSharedRef<SWidget>> Found;
			AddTexts(FSlateApplication::Get().GetTopLevelWindows()[0], Text, Found);
			return Found;
		}

		static void AddTexts(const TSharedRef<SWidget>& Widget, const FString& Text, TArray<TSharedRef<SWidget>>& Found)
		{
			if (Widget->GetType() == FName("STextBlock") && StaticCastSharedRef<STextBlock>(Widget)->GetText().ToString() == Text)
			{
				Found.Add(Widget);
			}
			FChildren& Children = *Widget->GetChildren();
			for (int32 Index = 0; Index < Children.Num(); ++Index)
			{
				AddTexts(Children.GetChildAt(Index), Text, Found);
			}
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

	TEST_F(FComboBoxStringTest, RowsBeginWhereTheTextOfTheBoxDoes)
	{
		Combo->SetSelectedIndex(0);
		Show();
		const float Boxed = FindTexts(TEXT("Low"))[0]->GetCachedGeometry().GetAbsolutePosition().X;
		Driver.SingleClickAt(Driver.GetMiddle(*Combo));
		EXPECT_EQ(FindTexts(TEXT("Medium"))[0]->GetCachedGeometry().GetAbsolutePosition().X, Boxed);
	}

	TEST_F(FComboBoxStringTest, TextThatIsTooLongStaysWithinTheBox)
	{
		Combo->AddOption(TEXT("A text that is far too long for it"));
		USizeBox* Narrow = NewObject<USizeBox>(Box);
		Narrow->SetWidthOverride(80.0f);
		Narrow->AddChild(Combo);
		Cast<UVerticalBoxSlot>(Box->AddChild(Narrow))->SetHorizontalAlignment(HAlign_Left);
		Combo->SetSelectedIndex(3);
		Show();
		Host::FPicture Picture;
		ASSERT_TRUE(Loop.TakePicture(Picture));
		const int32 Row = FMath::RoundToInt32(Driver.GetMiddle(*Combo).Y);
		TSet<FColor> Beside;
		for (int32 X = 80; X < 300; ++X)
		{
			Beside.Add(Picture.Pixels[Row * Picture.Size.X + X]);
		}
		EXPECT_EQ(Beside.Num(), 1);
	}

	TEST_F(FComboBoxStringTest, RemovingTheSelectedOptionClearsTheSelection)
	{
		Combo->SetSelectedIndex(1);
		Show();
		TakeEvents();
		Combo->RemoveOption(TEXT("Low"));
		EXPECT_EQ(TakeEvents(), "");
		EXPECT_EQ(Combo->GetSelectedIndex(), 0);
		Combo->RemoveOption(TEXT("medium"));
		EXPECT_EQ(TakeEvents(), "Direct:");
		EXPECT_EQ(Combo->GetSelectedIndex(), -1);
		EXPECT_TRUE(FindTexts(TEXT("Medium")).IsEmpty());
	}

	TEST_F(FComboBoxStringTest, OpenListShowsOptionsThatAreAddedAndCleared)
	{
		Show();
		Driver.SingleClickAt(Driver.GetMiddle(*Combo));
		Combo->AddOption(TEXT("Epic"));
		Loop.RunUntilIdle();
		EXPECT_TRUE(Combo->IsOpen());
		EXPECT_EQ(FindTexts(TEXT("Epic")).Num(), 1);
		Combo->ClearOptions();
		Loop.RunUntilIdle();
		EXPECT_TRUE(FindTexts(TEXT("Epic")).IsEmpty());
		TakeEvents();
		Driver.PressKey(EKeys::Enter);
		EXPECT_EQ(TakeEvents(), "");
		Driver.PressKey(EKeys::Escape);
		EXPECT_FALSE(Combo->IsOpen());
	}

	TEST_F(FComboBoxStringTest, EventMakesWhatBoxAndRowsShow)
	{
		Combo->OnGenerateWidgetEvent.BindDynamic(Listener, &UComboBoxListener::MakeOption);
		Combo->SetSelectedIndex(0);
		Show();
		EXPECT_EQ(FindTexts(TEXT("[Low]")).Num(), 1);
		Driver.SingleClickAt(Driver.GetMiddle(*Combo));
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		EXPECT_EQ(FindTexts(TEXT("[Low]")).Num(), 2);
		EXPECT_EQ(FindTexts(TEXT("[Medium]")).Num(), 1);
		// Without a widget of its own, an option is shown as text.
		EXPECT_EQ(FindTexts(TEXT("High")).Num(), 1);
		Driver.PressKey(EKeys::End);
		Driver.PressKey(EKeys::Enter);
		EXPECT_EQ(FindTexts(TEXT("High")).Num(), 1);
		EXPECT_TRUE(FindTexts(TEXT("[Low]")).IsEmpty());
		Combo->ClearSelection();
		EXPECT_TRUE(FindTexts(TEXT("High")).IsEmpty());
	}

	TEST_F(FComboBoxStringTest, TypingFindsRowsThatTheEventMade)
	{
		Combo->OnGenerateWidgetEvent.BindDynamic(Listener, &UComboBoxListener::MakeOption);
		Show();
		Driver.SingleClickAt(Driver.GetMiddle(*Combo));
		TakeEvents();
		Driver.Type(TEXT("[m"));
		Driver.PressKey(EKeys::Enter);
		EXPECT_EQ(TakeEvents(), "OnKeyPress:Medium");
	}

	TEST_F(FComboBoxStringTest, SettersChangeAShownBox)
	{
		Combo->SetSelectedIndex(0);
		Show();
		const auto GetLeft = [this]() { return FindTexts(TEXT("Low"))[0]->GetCachedGeometry().GetAbsolutePosition().X; };
		const float Left = GetLeft();
		Combo->SetContentPadding(FMargin(24.0f, 2.0f));
		Loop.RunUntilIdle();
		EXPECT_EQ(GetLeft(), Left + 20.0f);
		EXPECT_EQ(Combo->GetContentPadding(), FMargin(24.0f, 2.0f));

		FComboBoxStyle Style = Combo->GetWidgetStyle();
		Style.ComboButtonStyle.ButtonStyle.NormalPadding = FMargin(0.0f);
		Style.MenuRowPadding = FMargin(50.0f, 10.0f);
		Combo->SetWidgetStyle(Style);
		Loop.RunUntilIdle();
		EXPECT_EQ(GetLeft(), Left + 8.0f);

		FTableRowStyle Rows = Combo->GetItemStyle();
		Rows.SetTextColor(FLinearColor::Red);
		Combo->SetItemStyle(Rows);
		Combo->SetMaxListHeight(40.0f);
		EXPECT_EQ(Combo->GetMaxListHeight(), 40.0f);
		Driver.SingleClickAt(Driver.GetMiddle(*Combo));
		const TSharedRef<SWidget> Row = FindTexts(TEXT("Medium"))[0]->GetParentWidget().ToSharedRef();
		EXPECT_EQ(StaticCastSharedRef<SCompoundWidget>(Row)->GetForegroundColor(), FSlateColor(FLinearColor::Red));
		EXPECT_EQ(FindTexts(TEXT("Medium"))[0]->GetCachedGeometry().GetAbsolutePosition().X, 53.0f);
		TSharedPtr<SWidget> List = Row;
		while (List->GetType() != FName("Host::SComboList"))
		{
			List = List->GetParentWidget();
		}
		EXPECT_EQ(List->GetCachedGeometry().GetAbsoluteSize().Y, 46.0f);
	}

	TEST_F(FComboBoxStringTest, ArrowGoesAndComes)
	{
		Show();
		const double With = Combo->GetDesiredSize().X;
		Combo->SetHasDownArrow(false);
		EXPECT_FALSE(Combo->IsHasDownArrow());
		Loop.RunUntilIdle();
		EXPECT_EQ(Combo->GetDesiredSize().X, With - 16.0);
		Combo->SetHasDownArrow(true);
		Loop.RunUntilIdle();
		EXPECT_EQ(Combo->GetDesiredSize().X, With);
	}

	TEST_F(FComboBoxStringTest, HandlerMayFillTheBoxAnew)
	{
		Listener->OptionsToFill = {TEXT("One"), TEXT("Two")};
		Combo->OnSelectionChanged.AddDynamic(Listener, &UComboBoxListener::Refill);
		Listener->Refilled = Combo;
		Show();
		Driver.SingleClickAt(Driver.GetMiddle(*Combo));
		Driver.PressKey(EKeys::Down);
		Driver.PressKey(EKeys::Enter);
		EXPECT_EQ(Combo->GetOptionCount(), 2);
		EXPECT_EQ(Combo->GetSelectedIndex(), -1);
		EXPECT_EQ(TakeEvents(), "Opening OnKeyPress:Low Direct:");
	}
}
