#include "EngineTest.h"

#include "Components/TextBlock.h"
#include "HalvexProUISettings.h"
#include "HalvexUISubsystem.h"
#include "Host/PropertyEdit.h"
#include "Style/HalvexUIStyleConfiguration.h"

namespace
{
	class FUISubsystemTest : public Host::FEngineTest
	{
	protected:
		virtual void TearDown() override
		{
			UseStyle(FSoftObjectPath(TEXT("/HalvexPro/Widgets/UIStyle_Hx_Light.UIStyle_Hx_Light")));
			Host::FEngineTest::TearDown();
		}

		static void UseStyle(const FSoftObjectPath& Path)
		{
			GetMutableDefault<UHalvexProUISettings>()->ProjectUIConfiguration = Path;
			UHalvexUISubsystem::Get()->RefreshSettingsReferences();
		}

		static FString GetHex(const TCHAR* ColorID, bool bContrast)
		{
			return UHalvexUISubsystem::Get()->GetHalvexColorByID(ColorID, bContrast).ToFColor(true).ToHex();
		}
	};

	TEST_F(FUISubsystemTest, StyleColoursHaveAContrast)
	{
		EXPECT_EQ(GetHex(TEXT("Primary"), false), TEXT("7367F0FF"));
		EXPECT_EQ(GetHex(TEXT("Primary"), true), TEXT("FBFBFBFF"));
	}

	TEST_F(FUISubsystemTest, SimpleColoursIgnoreTheContrastFlag)
	{
		EXPECT_EQ(GetHex(TEXT("Success"), false), TEXT("28C76FFF"));
		EXPECT_EQ(GetHex(TEXT("Success"), true), TEXT("28C76FFF"));
	}

	TEST_F(FUISubsystemTest, UnknownColourIsTransparentAndUnlogged)
	{
		EXPECT_EQ(UHalvexUISubsystem::Get()->GetHalvexColorByID(TEXT("NoSuchColour")), FLinearColor::Transparent);
	}

	TEST_F(FUISubsystemTest, HandlerSwapsBetweenColourAndContrast)
	{
		FHalvexColorHandler Handler;
		EXPECT_EQ(Handler.GetColor().ToFColor(true).ToHex(), TEXT("7367F0FF"));
		EXPECT_EQ(Handler.GetContrastColor().ToFColor(true).ToHex(), TEXT("FBFBFBFF"));
		Handler.bUseContrast = true;
		EXPECT_EQ(Handler.GetColor().ToFColor(true).ToHex(), TEXT("FBFBFBFF"));
		EXPECT_EQ(Handler.GetContrastColor().ToFColor(true).ToHex(), TEXT("7367F0FF"));
		EXPECT_TRUE(Handler.GetColorSlate().IsColorSpecified());
		EXPECT_EQ(Handler.GetColorSlate().GetSpecifiedColor(), Handler.GetColor());
		EXPECT_EQ(Handler.GetContrastColorSlate().GetSpecifiedColor(), Handler.GetContrastColor());
	}

	TEST_F(FUISubsystemTest, CustomColourIgnoresTheStyleButNotTheOpacity)
	{
		FHalvexColorHandler Handler;
		Handler.ColorMode = EColorHandlerMode::ECHM_ColorCustom;
		Handler.ColorCustom = FLinearColor(0.25f, 0.5f, 0.75f, 1.0f);
		EXPECT_EQ(Handler.GetColor(), Handler.ColorCustom);
		EXPECT_EQ(Handler.GetContrastColor(), Handler.ColorCustom);
		Handler.bOverrideOpacity = true;
		Handler.OpacityOverride = 0.2f;
		EXPECT_EQ(Handler.GetColor(), FLinearColor(0.25f, 0.5f, 0.75f, 0.2f));
		EXPECT_EQ(Handler.GetContrastColor(), FLinearColor(0.25f, 0.5f, 0.75f, 0.2f));
	}

	TEST_F(FUISubsystemTest, SimpleModeFindsStyleColoursToo)
	{
		FHalvexColorHandler Handler(TEXT("Third"), true);
		Handler.ColorMode = EColorHandlerMode::ECHM_ColorSimple;
		EXPECT_EQ(Handler.GetColor().ToFColor(true).ToHex(), TEXT("7367F0FF"));
	}

	TEST_F(FUISubsystemTest, DisabledModeResolvesAsStyleMode)
	{
		FHalvexColorHandler Handler(TEXT("Danger"), false);
		Handler.ColorMode = EColorHandlerMode::ECHM_Disable;
		EXPECT_EQ(Handler.GetColor().ToFColor(true).ToHex(), TEXT("EA5455FF"));
	}

	TEST_F(FUISubsystemTest, StyleColourWinsOverASimpleOneOfTheSameIdentifier)
	{
		UHalvexUIStyleConfiguration* Style = NewObject<UHalvexUIStyleConfiguration>();
		Style->ColorSimpleMap.Add(TEXT("Primary"), FLinearColor::Green);
		GetMutableDefault<UHalvexProUISettings>()->ProjectUIConfiguration = Style;
		UHalvexUISubsystem::Get()->RefreshSettingsReferences();
		EXPECT_EQ(GetHex(TEXT("Primary"), false), TEXT("7367F0FF"));
	}

	TEST_F(FUISubsystemTest, WithoutAConfigurationEveryAnswerIsEmpty)
	{
		UseStyle(FSoftObjectPath());
		const UHalvexUISubsystem* Subsystem = UHalvexUISubsystem::Get();
		EXPECT_EQ(Subsystem->GetHalvexColorByID(TEXT("Primary")), FLinearColor::Transparent);
		EXPECT_FALSE(Subsystem->GetHalvexFontStyle().Font);
		EXPECT_TRUE(Subsystem->GetHalvexFontStyle().FontSizing.IsEmpty());
		EXPECT_FALSE(Subsystem->GetFontIconDataByID(TEXT("FontAwesomeFree")).Font);
		EXPECT_TRUE(Subsystem->GetAllColorStyleOptions().IsEmpty());
		EXPECT_TRUE(Subsystem->GetAllColorSimpleOptions().IsEmpty());
		EXPECT_TRUE(Subsystem->GetAllFontIconOptions().IsEmpty());
		EXPECT_TRUE(Subsystem->GetAllFontIconsStylesNames(TEXT("FontAwesomeFree")).IsEmpty());
		EXPECT_TRUE(Subsystem->GetAllIconsNames(TEXT("FontAwesomeFree")).IsEmpty());
	}

	TEST_F(FUISubsystemTest, AssetOfAnotherClassLeavesItUnconfigured)
	{
		UseStyle(FSoftObjectPath(TEXT("/HalvexPro/Widgets/Fonts/Monserrat/Monserrat.Monserrat")));
		EXPECT_EQ(UHalvexUISubsystem::Get()->GetHalvexColorByID(TEXT("Primary")), FLinearColor::Transparent);
	}

	TEST_F(FUISubsystemTest, OptionListsAreInMapOrder)
	{
		const UHalvexUISubsystem* Subsystem = UHalvexUISubsystem::Get();
		EXPECT_EQ(Subsystem->GetAllColorStyleOptions(), TArray<FName>({ TEXT("Primary"), TEXT("Secondary"), TEXT("Third") }));
		EXPECT_EQ(Subsystem->GetAllColorSimpleOptions(), TArray<FName>({ TEXT("Success"), TEXT("Warning"), TEXT("Danger") }));
		EXPECT_EQ(Subsystem->GetAllFontIconOptions(), TArray<FName>({ TEXT("FontAwesomeFree") }));
		EXPECT_EQ(Subsystem->GetAllFontIconsStylesNames(TEXT("FontAwesomeFree")), TArray<FName>({ TEXT("Regular"), TEXT("Solid"), TEXT("Brands") }));
		EXPECT_TRUE(Subsystem->GetAllIconsNames(TEXT("FontAwesomeFree")).Contains(TEXT("thumbs-up")));
		EXPECT_TRUE(Subsystem->GetAllIconsNames(TEXT("NoSuchFont")).IsEmpty());
	}

	TEST_F(FUISubsystemTest, EditingTheSettingsReloadsTheStyle)
	{
		UHalvexProUISettings* Settings = GetMutableDefault<UHalvexProUISettings>();
		FString Error;
		ASSERT_TRUE(Host::FPropertyEdit::SetFromText(Settings, TEXT("ProjectUIConfiguration"), TEXT("/HalvexPro/Widgets/UIStyle_Hx_Dark.UIStyle_Hx_Dark"), Error)) << Host::ToStd(Error);
		EXPECT_EQ(GetHex(TEXT("Background"), false), TEXT("13111CFF"));
	}

	TEST_F(FUISubsystemTest, VisibilityUtilitiesSetTheWidget)
	{
		UTextBlock* Widget = NewObject<UTextBlock>();
		UHalvexUISubsystem::CollapseWidget(Widget);
		EXPECT_EQ(Widget->GetVisibility(), ESlateVisibility::Collapsed);
		UHalvexUISubsystem::HiddeWidget(Widget);
		EXPECT_EQ(Widget->GetVisibility(), ESlateVisibility::Hidden);
		UHalvexUISubsystem::CollapseWidget(nullptr);
		UHalvexUISubsystem::HiddeWidget(nullptr);
		UHalvexUISubsystem::ShowsWidget(nullptr, true);
	}

	TEST_F(FUISubsystemTest, ShowingWithHitTestMakesTheWidgetItselfUnhittable)
	{
		UTextBlock* Widget = NewObject<UTextBlock>();
		UHalvexUISubsystem::ShowsWidget(Widget, true);
		EXPECT_EQ(Widget->GetVisibility(), ESlateVisibility::SelfHitTestInvisible);
		UHalvexUISubsystem::ShowsWidget(Widget, false);
		EXPECT_EQ(Widget->GetVisibility(), ESlateVisibility::Visible);
	}
}
