#include "KitTest.h"

#include "Engine/Font.h"
#include "Host/PropertyEdit.h"
#include "HalvexUISubsystem.h"
#include "KitReflection.h"
#include "Widgets/HxButton.h"
#include "Widgets/HxText.h"

namespace
{
	using namespace KitReflection;

	const std::string Contrast = "4B465CFF";
	const std::string Regular = "FBFBFBFF";

	class FHxTextTest : public FKitTest
	{
	protected:
		void MakeText()
		{
			Text = Make<UHxText>(TEXT("Text"));
			Text->SetText(FText::FromString(TEXT("Words")));
			Place(*Text, 100.0, 100.0);
		}

		void ShowText()
		{
			MakeText();
			Show();
		}

		std::string GetColour() const { return Host::ToStd(Text->GetColorAndOpacity().GetSpecifiedColor().ToFColor(true).ToHex()); }

		/** Calls the text's protected handler as the event does. */
		void Receive(UHxButton* Button, bool bSelected)
		{
			struct
			{
				UHxButton* Button;
				bool bSelected;
			} Parms{ Button, bSelected };
			Text->ProcessEvent(Text->FindFunctionChecked(TEXT("ReceivedButtonChangeState")), &Parms);
		}

		UHxText* Text = nullptr;
	};

	TEST_F(FHxTextTest, PropertiesStandInTheirOrderWithTheirTypes)
	{
		const UClass* Class = UHxText::StaticClass();
		EXPECT_EQ(Class->GetSuperClass(), UTextBlock::StaticClass());
		EXPECT_EQ(ListNames(Class), "FontStyle ColorText");
		EXPECT_EQ(ListOutsideCategory(Class, TEXT("HalvexText")), "");
		EXPECT_EQ(GetType(Class, TEXT("FontStyle")), "FName");
		EXPECT_EQ(GetType(Class, TEXT("ColorText")), "FHalvexColorHandler");
		EXPECT_TRUE(GetMember(Class, TEXT("FontStyle")).HasAnyPropertyFlags(CPF_Edit));
		EXPECT_TRUE(GetMember(Class, TEXT("ColorText")).HasAnyPropertyFlags(CPF_Edit));
	}

	TEST_F(FHxTextTest, DefaultIsRegularInTheContrastOfSecondary)
	{
		const UHxText* Default = GetDefault<UHxText>();
		EXPECT_EQ(Default->FontStyle, FName(TEXT("regular")));
		EXPECT_EQ(Default->ColorText.ColorMode, EColorHandlerMode::ECHM_ColorStyle);
		EXPECT_EQ(Default->ColorText.ColorID, FName(TEXT("Secondary")));
		EXPECT_TRUE(Default->ColorText.bUseContrast);
		EXPECT_FALSE(Default->ColorText.bOverrideOpacity);
	}

	TEST_F(FHxTextTest, FunctionsAreThoseThatBlueprintsCall)
	{
		const UClass* Class = UHxText::StaticClass();
		for (const TCHAR* Name : { TEXT("UpdateStyle"), TEXT("SetColorByHandler"), TEXT("SetFontStyleFromName"), TEXT("SetContrast"), TEXT("ToggleContrast"), TEXT("BindOnButtonSelectionContras") })
		{
			const UFunction* Function = Class->FindFunctionByName(Name, EIncludeSuperFlag::ExcludeSuper);
			ASSERT_TRUE(Function) << Host::ToStd(FString(Name));
			EXPECT_TRUE(Function->HasAnyFunctionFlags(FUNC_BlueprintCallable)) << Host::ToStd(FString(Name));
		}
		const UFunction* Handler = Class->FindFunctionByName(TEXT("ReceivedButtonChangeState"), EIncludeSuperFlag::ExcludeSuper);
		ASSERT_TRUE(Handler);
		EXPECT_TRUE(Handler->HasAnyFunctionFlags(FUNC_Protected));
	}

	TEST_F(FHxTextTest, PaletteListsItUnderTheProductsHeading)
	{
		EXPECT_EQ(DescribeText(Make<UHxText>()->GetPaletteCategory()), "HalvexWidget/HalvexWidget: Halvex Widget");
	}

	TEST_F(FHxTextTest, IsPaintedInItsColourOnTheFirstFrame)
	{
		ShowText();
		EXPECT_EQ(GetPaintedText(*Text), "Words");
		EXPECT_EQ(GetPaintedTextColour(*Text), Contrast);
		EXPECT_EQ(Text->GetFont().Size, 12.0f);
		EXPECT_EQ(Text->GetFont().TypefaceFontName, FName(TEXT("regular")));
		EXPECT_EQ(Text->GetFont().FontObject, UHalvexUISubsystem::Get()->GetHalvexFontStyle().Font);
	}

	TEST_F(FHxTextTest, StyleWinsOverWhatTheBaseHas)
	{
		MakeText();
		Text->SetColorAndOpacity(FSlateColor(FLinearColor::Green));
		Show();
		EXPECT_EQ(GetPaintedTextColour(*Text), Contrast);
		Text->SetColorAndOpacity(FSlateColor(FLinearColor::Green));
		Text->SynchronizeProperties();
		Settle();
		EXPECT_EQ(GetPaintedTextColour(*Text), Contrast);
	}

	TEST_F(FHxTextTest, ContrastFlagOfAContrastColourShowsTheRegularOne)
	{
		ShowText();
		Text->SetContrast(true);
		Settle();
		EXPECT_EQ(GetPaintedTextColour(*Text), Regular);
		Text->SetContrast(false);
		Settle();
		EXPECT_EQ(GetPaintedTextColour(*Text), Contrast);
	}

	TEST_F(FHxTextTest, ContrastFlagOfARegularColourShowsTheContrast)
	{
		ShowText();
		Text->SetColorByHandler(FHalvexColorHandler(TEXT("Primary"), false));
		EXPECT_EQ(GetColour(), "7367F0FF");
		Text->SetContrast(true);
		EXPECT_EQ(GetColour(), "FBFBFBFF");
	}

	TEST_F(FHxTextTest, TogglingTwiceIsAsTogglingOnce)
	{
		ShowText();
		Text->SetColorByHandler(FHalvexColorHandler(TEXT("Primary"), false));
		Text->ToggleContrast();
		EXPECT_EQ(GetColour(), "FBFBFBFF");
		Text->ToggleContrast();
		EXPECT_EQ(GetColour(), "FBFBFBFF");
	}

	TEST_F(FHxTextTest, TogglingSetsTheFlagToTheOppositeOfTheHandlers)
	{
		ShowText();
		Text->SetContrast(true);
		Text->ToggleContrast();
		EXPECT_EQ(GetColour(), Contrast) << "the handler uses contrast, so the flag is cleared";
		Text->ToggleContrast();
		EXPECT_EQ(GetColour(), Contrast);
	}

	TEST_F(FHxTextTest, CustomColourIsTheSameInBothVariants)
	{
		ShowText();
		FHalvexColorHandler Color;
		Color.ColorMode = EColorHandlerMode::ECHM_ColorCustom;
		Color.ColorCustom = FLinearColor(0.0f, 1.0f, 0.0f, 1.0f);
		Text->SetColorByHandler(Color);
		EXPECT_EQ(GetColour(), "00FF00FF");
		Text->SetContrast(true);
		EXPECT_EQ(GetColour(), "00FF00FF");
	}

	TEST_F(FHxTextTest, OpacityOverrideIsTheAlphaOfBothVariants)
	{
		ShowText();
		FHalvexColorHandler Color(TEXT("Primary"), false);
		Color.bOverrideOpacity = true;
		Color.OpacityOverride = 0.5f;
		Text->SetColorByHandler(Color);
		EXPECT_EQ(GetColour(), "7367F080");
		Text->SetContrast(true);
		EXPECT_EQ(GetColour(), "FBFBFB80");
	}

	TEST_F(FHxTextTest, DisabledColourResolvesLikeAStyleColour)
	{
		ShowText();
		FHalvexColorHandler Color(TEXT("Danger"), false);
		Color.ColorMode = EColorHandlerMode::ECHM_Disable;
		Text->SetColorByHandler(Color);
		EXPECT_EQ(GetColour(), "EA5455FF");
	}

	TEST_F(FHxTextTest, FontFollowsTheSchema)
	{
		ShowText();
		const double Height = Text->GetDesiredSize().Y;
		Text->SetFontStyleFromName(TEXT("h1-b"));
		EXPECT_EQ(Text->FontStyle, FName(TEXT("h1-b")));
		EXPECT_EQ(Text->GetFont().Size, 48.0f);
		EXPECT_EQ(Text->GetFont().TypefaceFontName, FName(TEXT("bold")));
		Settle();
		EXPECT_GT(Text->GetDesiredSize().Y, Height * 3.0);
		Text->SetFontStyleFromName(TEXT("no-such-schema"));
		EXPECT_EQ(Text->GetFont().Size, 18.0f);
	}

	TEST_F(FHxTextTest, CanBeStyledBeforeItIsShown)
	{
		MakeText();
		Text->SetContrast(true);
		Text->SetFontStyleFromName(TEXT("h4"));
		EXPECT_EQ(GetColour(), Regular);
		Show();
		EXPECT_EQ(GetPaintedTextColour(*Text), Regular);
		EXPECT_EQ(Text->GetFont().Size, 18.0f);
	}

	TEST_F(FHxTextTest, FollowsAButton)
	{
		ShowText();
		UHxButton* Button = Make<UHxButton>(TEXT("Button"));
		Button->SelectionMode = EButtonSelectionMode::EBSM_Toggle;
		Place(*Button, 300.0, 100.0, FVector2D(50.0, 50.0));
		Settle();
		Text->BindOnButtonSelectionContras(Button);
		Click(*Button);
		EXPECT_EQ(GetPaintedTextColour(*Text), Regular);
		Click(*Button);
		EXPECT_EQ(GetPaintedTextColour(*Text), Contrast);
	}

	TEST_F(FHxTextTest, FollowingTwiceLeavesOneBinding)
	{
		ShowText();
		UHxButton* Button = Make<UHxButton>(TEXT("Button"));
		Text->BindOnButtonSelectionContras(Button);
		Text->BindOnButtonSelectionContras(Button);
		EXPECT_EQ(Button->OnButtonSelectionChange.GetAllObjects(), TArray<UObject*>({ Text }));
		Text->BindOnButtonSelectionContras(nullptr);
	}

	TEST_F(FHxTextTest, ReportWithoutAButtonIsIgnored)
	{
		ShowText();
		Receive(nullptr, true);
		EXPECT_EQ(GetColour(), Contrast);
		Receive(Make<UHxButton>(), true);
		EXPECT_EQ(GetColour(), Regular);
	}

	TEST_F(FHxTextTest, EditingInTheDesignerRestyles)
	{
		MakeText();
		ShowInDesigner();
		FString Error;
		ASSERT_TRUE(Host::FPropertyEdit::SetFromText(Text, TEXT("ColorText.ColorID"), TEXT("Danger"), Error)) << Host::ToStd(Error);
		ASSERT_TRUE(Host::FPropertyEdit::SetFromText(Text, TEXT("FontStyle"), TEXT("h2"), Error)) << Host::ToStd(Error);
		Settle();
		EXPECT_EQ(GetPaintedTextColour(*Text), "EA5455FF");
		EXPECT_EQ(Text->GetFont().Size, 36.0f);
	}
}
