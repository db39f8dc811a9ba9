#include "KitTest.h"

#include "KitReflection.h"
#include "Widgets/HxEditableText.h"

namespace
{
	using namespace KitReflection;

	class FHxEditableTextTest : public FKitTest
	{
	protected:
		void ShowText()
		{
			Text = Make<UHxEditableText>(TEXT("Text"));
			Text->SetText(FText::FromString(TEXT("Words")));
			Place(*Text, 100.0, 100.0, FVector2D(200.0, 60.0));
			Show();
		}

		UHxEditableText* Text = nullptr;
	};

	TEST_F(FHxEditableTextTest, PropertiesStandInTheirOrderWithTheirTypes)
	{
		const UClass* Class = UHxEditableText::StaticClass();
		EXPECT_EQ(Class->GetSuperClass(), UEditableText::StaticClass());
		EXPECT_EQ(ListNames(Class), "FontStyle ColorID");
		EXPECT_EQ(ListOutsideCategory(Class, TEXT("HalvexText")), "");
		EXPECT_EQ(GetType(Class, TEXT("FontStyle")), "FName");
		EXPECT_EQ(GetType(Class, TEXT("ColorID")), "FHalvexColorHandler");
		EXPECT_TRUE(GetMember(Class, TEXT("FontStyle")).HasAnyPropertyFlags(CPF_Edit));
		EXPECT_TRUE(GetMember(Class, TEXT("ColorID")).HasAnyPropertyFlags(CPF_Edit));
	}

	TEST_F(FHxEditableTextTest, DefaultIsRegularInTheContrastOfSecondary)
	{
		const UHxEditableText* Default = GetDefault<UHxEditableText>();
		EXPECT_EQ(Default->FontStyle, FName(TEXT("regular")));
		EXPECT_EQ(Default->ColorID.ColorMode, EColorHandlerMode::ECHM_ColorStyle);
		EXPECT_EQ(Default->ColorID.ColorID, FName(TEXT("Secondary")));
		EXPECT_TRUE(Default->ColorID.bUseContrast);
		EXPECT_FALSE(Default->ColorID.bOverrideOpacity);
	}

	TEST_F(FHxEditableTextTest, FunctionsAreThoseThatBlueprintsCall)
	{
		for (const TCHAR* Name : { TEXT("UpdateStyle"), TEXT("SetColorByHandler"), TEXT("SetFontStyleFromName") })
		{
			const UFunction* Function = UHxEditableText::StaticClass()->FindFunctionByName(Name, EIncludeSuperFlag::ExcludeSuper);
			ASSERT_TRUE(Function) << Host::ToStd(FString(Name));
			EXPECT_TRUE(Function->HasAnyFunctionFlags(FUNC_BlueprintCallable)) << Host::ToStd(FString(Name));
		}
	}

	TEST_F(FHxEditableTextTest, PaletteListsItUnderTheProductsHeading)
	{
		EXPECT_EQ(DescribeText(Make<UHxEditableText>()->GetPaletteCategory()), "HalvexWidget/HalvexWidget: Halvex Widget");
	}

	TEST_F(FHxEditableTextTest, IsPaintedInItsColourOnTheFirstFrame)
	{
		ShowText();
		EXPECT_EQ(GetPaintedText(*Text), "Words");
		EXPECT_EQ(GetPaintedTextColour(*Text), "4B465CFF");
	}

	TEST_F(FHxEditableTextTest, HonoursTheContrastOfItsHandler)
	{
		ShowText();
		Text->SetColorByHandler(FHalvexColorHandler(TEXT("Primary"), false));
		Settle();
		EXPECT_EQ(GetPaintedTextColour(*Text), "7367F0FF");
		Text->SetColorByHandler(FHalvexColorHandler(TEXT("Primary"), true));
		EXPECT_TRUE(Text->ColorID.bUseContrast);
		Settle();
		EXPECT_EQ(GetPaintedTextColour(*Text), "FBFBFBFF");
	}

	TEST_F(FHxEditableTextTest, OpacityOverrideIsTheAlpha)
	{
		ShowText();
		FHalvexColorHandler Color(TEXT("Danger"), false);
		Color.ColorMode = EColorHandlerMode::ECHM_Disable;
		Color.bOverrideOpacity = true;
		Color.OpacityOverride = 0.5f;
		Text->SetColorByHandler(Color);
		Settle();
		EXPECT_EQ(GetPaintedTextColour(*Text), "EA545580");
	}

	TEST_F(FHxEditableTextTest, FontFollowsTheSchema)
	{
		ShowText();
		EXPECT_EQ(Text->GetFont().Size, 12.0f);
		const double Height = Text->GetDesiredSize().Y;
		Text->SetFontStyleFromName(TEXT("h1-b"));
		EXPECT_EQ(Text->FontStyle, FName(TEXT("h1-b")));
		EXPECT_EQ(Text->GetFont().Size, 48.0f);
		EXPECT_EQ(Text->GetFont().TypefaceFontName, FName(TEXT("bold")));
		Settle();
		EXPECT_GT(Text->GetDesiredSize().Y, Height * 3.0);
	}

	TEST_F(FHxEditableTextTest, ColourStaysWhileItIsTypedIn)
	{
		ShowText();
		Click(*Text);
		Driver.PressKey(EKeys::End);
		Driver.Type(TEXT("!"));
		EXPECT_EQ(Host::ToStd(Text->GetText()), "Words!");
		EXPECT_EQ(GetPaintedTextColour(*Text), "4B465CFF");
	}
}
