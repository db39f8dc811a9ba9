#include "EngineTest.h"

#include "Blueprint/UserWidget.h"
#include "Components/EditableText.h"
#include "Components/EditableTextBox.h"
#include "Components/VerticalBox.h"
#include "Engine/Engine.h"
#include "Engine/GameViewportClient.h"
#include "EditableTextListener.h"
#include "Styling/CoreStyle.h"
#include "Widgets/Input/SEditableText.h"

namespace
{
	/** What holds for a text with a frame and for one without. */
	template <typename WidgetType>
	class FEditableTextWidgetTest : public Host::FEngineTest
	{
	protected:
		FEditableTextWidgetTest()
		{
			Box->AddToRoot();
			Listener->AddToRoot();
			Widget = NewObject<WidgetType>(Box);
			Widget->OnTextChanged.AddDynamic(Listener, &UEditableTextListener::OnChanged);
			Widget->OnTextCommitted.AddDynamic(Listener, &UEditableTextListener::OnCommitted);
			Box->AddChild(Widget);
		}

		virtual void TearDown() override
		{
			FEngineTest::TearDown();
			Box->RemoveFromRoot();
			Listener->RemoveFromRoot();
		}

		/** Shows it, and gives it the focus by a click. */
		void Focus()
		{
			Show();
			// Apart from the last click, which may have been here.
			Driver.Wait(1.0);
			Driver.ClickAt(Driver.GetMiddle(*Widget));
		}

		void Show()
		{
			GEngine->GameViewport->AddViewportWidgetContent(Box->TakeWidget());
			Loop.RunUntilIdle();
		}

		std::string GetText() const { return Host::ToStd(Widget->GetText()); }
		std::string TakeEvents()
		{
			const std::string Events = Host::ToStd(FString::Join(Listener->Events, TEXT(" ")));
			Listener->Events.Reset();
			return Events;
		}

		UVerticalBox* Box = NewObject<UVerticalBox>();
		UEditableTextListener* Listener = NewObject<UEditableTextListener>();
		WidgetType* Widget = nullptr;
	};

	using FWidgetTypes = testing::Types<UEditableText, UEditableTextBox>;
	TYPED_TEST_SUITE(FEditableTextWidgetTest, FWidgetTypes);

	TYPED_TEST(FEditableTextWidgetTest, TypingIsToldAndEnterCommits)
	{
		this->Focus();
		this->Driver.Type(TEXT("ab"));
		EXPECT_EQ(this->TakeEvents(), "Changed:a Changed:ab");
		this->Driver.PressKey(EKeys::Enter);
		EXPECT_EQ(this->TakeEvents(), "OnEnter:ab");
		EXPECT_EQ(this->GetText(), "ab");
	}

	TYPED_TEST(FEditableTextWidgetTest, TextFromCodeIsToldWhenItIsAnother)
	{
		this->Widget->SetText(FText::FromString(TEXT("before")));
		this->Show();
		EXPECT_EQ(this->TakeEvents(), "");
		this->Widget->SetText(FText::FromString(TEXT("before")));
		EXPECT_EQ(this->TakeEvents(), "");
		this->Widget->SetText(FText::FromString(TEXT("after")));
		EXPECT_EQ(this->TakeEvents(), "Changed:after");
	}

	TYPED_TEST(FEditableTextWidgetTest, TextOutlivesTheSlateSide)
	{
		this->Focus();
		this->Driver.Type(TEXT("ab"));
		this->Widget->ReleaseSlateResources(true);
		EXPECT_EQ(this->GetText(), "ab");
	}

	TYPED_TEST(FEditableTextWidgetTest, SettersHoldBeforeAndAfterItIsShown)
	{
		this->Widget->SetIsReadOnly(true);
		this->Focus();
		this->Driver.Type(TEXT("a"));
		EXPECT_EQ(this->GetText(), "");
		this->Widget->SetIsReadOnly(false);
		this->Driver.Type(TEXT("a"));
		EXPECT_EQ(this->GetText(), "a");
		this->Widget->SetRevertTextOnEscape(true);
		this->Driver.PressKey(EKeys::Escape);
		EXPECT_EQ(this->GetText(), "");
		EXPECT_TRUE(this->Widget->GetRevertTextOnEscape());
	}

	TYPED_TEST(FEditableTextWidgetTest, CommitCanKeepTheFocusAndSelect)
	{
		this->Widget->SetClearKeyboardFocusOnCommit(false);
		this->Widget->SetSelectAllTextOnCommit(true);
		this->Focus();
		this->Driver.Type(TEXT("ab"));
		this->Driver.PressKey(EKeys::Enter);
		this->Driver.Type(TEXT("c"));
		EXPECT_EQ(this->GetText(), "c");
	}

	TYPED_TEST(FEditableTextWidgetTest, FocusCanSelect)
	{
		this->Widget->SetText(FText::FromString(TEXT("ab")));
		this->Widget->SetSelectAllTextWhenFocused(true);
		this->Focus();
		this->Driver.Type(TEXT("c"));
		EXPECT_EQ(this->GetText(), "c");
	}

	TYPED_TEST(FEditableTextWidgetTest, MinimumDesiredWidthIsAskedFor)
	{
		this->Show();
		this->Widget->SetMinimumDesiredWidth(300.0f);
		this->Widget->ForceLayoutPrepass();
		EXPECT_GE(this->Widget->GetDesiredSize().X, 300.0);
	}

	TYPED_TEST(FEditableTextWidgetTest, PasswordKeepsItsText)
	{
		this->Widget->SetIsPassword(true);
		this->Focus();
		this->Driver.Type(TEXT("ab"));
		EXPECT_EQ(this->GetText(), "ab");
		EXPECT_EQ(this->Driver.Find(TEXT("text:ab")), nullptr);
	}

	using FEditableTextTest = FEditableTextWidgetTest<UEditableText>;

	TEST_F(FEditableTextTest, StyleIsReplacedAsAWhole)
	{
		Widget->SetText(FText::FromString(TEXT("ab")));
		Show();
		FEditableTextStyle Style = Widget->GetWidgetStyle();
		Style.SetColorAndOpacity(FLinearColor::Red);
		Widget->SetWidgetStyle(Style);
		EXPECT_EQ(Widget->GetWidgetStyle().ColorAndOpacity.GetSpecifiedColor(), FLinearColor::Red);
		Loop.RunUntilIdle();
		Host::FPicture Picture;
		ASSERT_TRUE(Loop.TakePicture(Picture));
		const bool bAnyRed = Picture.Pixels.ContainsByPredicate([](const FColor& Pixel) { return Pixel.R > 200 && Pixel.G < 60 && Pixel.B < 60; });
		EXPECT_TRUE(bAnyRed);
	}

	TEST_F(FEditableTextTest, FontIsThatOfTheStyle)
	{
		Widget->SetText(FText::FromString(TEXT("ab")));
		Show();
		const double Before = Widget->GetDesiredSize().Y;
		Widget->SetFont(FCoreStyle::GetDefaultFontStyle("Regular", 40.0f));
		EXPECT_EQ(Widget->GetFont().Size, 40.0f);
		EXPECT_EQ(Widget->GetWidgetStyle().Font.Size, 40.0f);
		Widget->ForceLayoutPrepass();
		EXPECT_GT(Widget->GetDesiredSize().Y, Before * 2.0);
	}

	TEST_F(FEditableTextTest, TextIsCutAtItsEdges)
	{
		EXPECT_EQ(Widget->GetClipping(), EWidgetClipping::ClipToBounds);
		EXPECT_EQ(Widget->TakeWidget()->GetClipping(), EWidgetClipping::ClipToBounds);
	}

	TEST_F(FEditableTextTest, HintStandsWhileThereIsNoText)
	{
		Widget->SetHintText(FText::FromString(TEXT("a hint that is wide")));
		Show();
		Widget->ForceLayoutPrepass();
		const double WithHint = Widget->GetDesiredSize().X;
		Widget->SetText(FText::FromString(TEXT("a")));
		Widget->ForceLayoutPrepass();
		EXPECT_LT(Widget->GetDesiredSize().X, WithHint);
		EXPECT_EQ(Host::ToStd(Widget->GetHintText()), "a hint that is wide");
	}
}
