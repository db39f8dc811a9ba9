#include "EngineTest.h"

#include "Components/Border.h"
#include "Components/Button.h"
#include "Components/TextBlock.h"
#include "Engine/DataTable.h"
#include "Engine/Engine.h"
#include "Engine/Font.h"
#include "Engine/GameViewportClient.h"
#include "HalvexProUISettings.h"
#include "HalvexUISubsystem.h"
#include "Host/PropertyEdit.h"
#include "Misc/ConfigCacheIni.h"
#include "Style/HalvexUIStyleConfiguration.h"
#include "UObject/UObjectIterator.h"
#include "Widgets/SOverlay.h"

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

	TEST_F(FUISubsystemTest, UnknownIconFontIsAnEmptyRecord)
	{
		const FFontIconData& Unknown = UHalvexUISubsystem::Get()->GetFontIconDataByID(TEXT("NoSuchFont"));
		EXPECT_FALSE(Unknown.Font);
		EXPECT_FALSE(Unknown.FontIconList);
		EXPECT_TRUE(UHalvexUISubsystem::Get()->GetFontIconDataByID(TEXT("FontAwesomeFree")).Font);
	}

	TEST_F(FUISubsystemTest, FontStyleIsACopy)
	{
		UHalvexUISubsystem::Get()->GetHalvexFontStyle().FontSizing.Empty();
		EXPECT_EQ(UHalvexUISubsystem::Get()->GetHalvexFontStyle().FontSizing.Num(), 15);
	}

	TEST_F(FUISubsystemTest, AssetOfAnotherClassLeavesItUnconfigured)
	{
		UseStyle(FSoftObjectPath(TEXT("/HalvexPro/Widgets/Fonts/Monserrat/Monserrat.Monserrat")));
		EXPECT_EQ(UHalvexUISubsystem::Get()->GetHalvexColorByID(TEXT("Primary")), FLinearColor::Transparent);
		EXPECT_FALSE(UHalvexUISubsystem::Get()->GetHalvexFontStyle().Font);
	}

	TEST_F(FUISubsystemTest, EachRefreshDecidesAnew)
	{
		UseStyle(FSoftObjectPath());
		EXPECT_TRUE(UHalvexUISubsystem::Get()->GetAllColorStyleOptions().IsEmpty());
		UseStyle(FSoftObjectPath(TEXT("/HalvexPro/Widgets/UIStyle_Hx_Dark.UIStyle_Hx_Dark")));
		EXPECT_TRUE(UHalvexUISubsystem::Get()->GetAllColorStyleOptions().Contains(TEXT("Background")));
		UseStyle(FSoftObjectPath());
		EXPECT_TRUE(UHalvexUISubsystem::Get()->GetAllColorStyleOptions().IsEmpty());
	}

	TEST_F(FUISubsystemTest, TheConfigurationOutlivesACollection)
	{
		TWeakObjectPtr<UHalvexUIStyleConfiguration> Style = NewObject<UHalvexUIStyleConfiguration>();
		Style->ColorSimpleMap.Add(TEXT("Own"), FLinearColor::Green);
		GetMutableDefault<UHalvexProUISettings>()->ProjectUIConfiguration = Style.Get();
		UHalvexUISubsystem::Get()->RefreshSettingsReferences();
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		ASSERT_TRUE(Style.IsValid());
		EXPECT_EQ(UHalvexUISubsystem::Get()->GetHalvexColorByID(TEXT("Own")), FLinearColor::Green);
		UseStyle(FSoftObjectPath());
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		EXPECT_FALSE(Style.IsValid());
	}

	TEST_F(FUISubsystemTest, ColoursThatWereTakenStayUntilTheWidgetRestyles)
	{
		UBorder* Border = NewObject<UBorder>();
		FHalvexBorderStyle Style;
		Style.ColorStyle = FHalvexColorHandler(TEXT("Third"), false);
		UHalvexStyleModels::SetHalvexBorderStyle(Border, Style);
		UseStyle(FSoftObjectPath(TEXT("/HalvexPro/Widgets/UIStyle_Hx_Dark.UIStyle_Hx_Dark")));
		EXPECT_EQ(Border->Background.TintColor.GetSpecifiedColor().ToFColor(true).ToHex(), TEXT("4B465CFF"));
		UHalvexStyleModels::SetHalvexBorderStyle(Border, Style);
		EXPECT_EQ(Border->Background.TintColor.GetSpecifiedColor(), Style.ColorStyle.GetColor());
		EXPECT_NE(Border->Background.TintColor.GetSpecifiedColor().ToFColor(true).ToHex(), TEXT("4B465CFF"));
	}

	TEST_F(FUISubsystemTest, ThereIsOneForTheWholeEngine)
	{
		EXPECT_EQ(UHalvexUISubsystem::Get(), GEngine->GetEngineSubsystem<UHalvexUISubsystem>());
		int32 Count = 0;
		for (TObjectIterator<UHalvexUISubsystem> It; It; ++It)
		{
			++Count;
		}
		EXPECT_EQ(Count, 1);
	}

	TEST_F(FUISubsystemTest, WithoutAnEngineThereIsNoneAndEveryAnswerIsEmpty)
	{
		UTextBlock* Text = NewObject<UTextBlock>();
		const FSlateFontInfo FontBefore = Text->GetFont();
		UBorder* Border = NewObject<UBorder>();
		FHalvexColorHandler Custom;
		Custom.ColorMode = EColorHandlerMode::ECHM_ColorCustom;
		Custom.ColorCustom = FLinearColor::Green;
		FHalvexColorHandler HalfSeen;
		HalfSeen.bOverrideOpacity = true;
		HalfSeen.OpacityOverride = 0.5f;
		FFontIconHandler Icon;

		const TGuardValue<UEngine*> NoEngine(GEngine, nullptr);
		EXPECT_EQ(UHalvexUISubsystem::Get(), nullptr);
		EXPECT_EQ(FHalvexColorHandler().GetColor(), FLinearColor::Transparent);
		EXPECT_EQ(FHalvexColorHandler().GetContrastColor(), FLinearColor::Transparent);
		EXPECT_EQ(HalfSeen.GetColor().A, 0.5f);
		EXPECT_EQ(Custom.GetColor(), FLinearColor::Green);
		EXPECT_FALSE(UHalvexStyleModels::GetFontInfoFromFontSchema(TEXT("h1")).FontObject);
		UHalvexStyleModels::SetHalvexTextStyle(Text, FHalvexTextStyle());
		EXPECT_EQ(Text->GetFont(), FontBefore);
		UHalvexStyleModels::SetHalvexBorderStyle(Border, FHalvexBorderStyle());
		EXPECT_EQ(Border->Background.DrawAs.GetValue(), ESlateBrushDrawType::RoundedBox);
		EXPECT_EQ(Icon.GenerateFontSlate(24), FSlateFontInfo());
		EXPECT_EQ(Host::ToStd(Icon.GetIconUnicode()), "NO TABLE UNICODE");
	}

	TEST_F(FUISubsystemTest, OptionListsAreInMapOrder)
	{
		const UHalvexUISubsystem* Subsystem = UHalvexUISubsystem::Get();
		EXPECT_EQ(Subsystem->GetAllColorStyleOptions(), TArray<FName>({ TEXT("Primary"), TEXT("Secondary"), TEXT("Third") }));
		EXPECT_EQ(Subsystem->GetAllColorSimpleOptions(), TArray<FName>({ TEXT("Success"), TEXT("Warning"), TEXT("Danger") }));
		EXPECT_EQ(Subsystem->GetAllFontIconOptions(), TArray<FName>({ TEXT("FontAwesomeFree") }));
		EXPECT_EQ(Subsystem->GetAllFontIconsStylesNames(TEXT("FontAwesomeFree")), TArray<FName>({ TEXT("Regular"), TEXT("Solid"), TEXT("Brands") }));
		EXPECT_EQ(Subsystem->GetAllIconsNames(TEXT("FontAwesomeFree")), Subsystem->GetFontIconDataByID(TEXT("FontAwesomeFree")).FontIconList->GetRowNames());
		EXPECT_TRUE(Subsystem->GetAllIconsNames(TEXT("FontAwesomeFree")).Contains(TEXT("thumbs-up")));
		EXPECT_TRUE(Subsystem->GetAllFontIconsStylesNames(TEXT("NoSuchFont")).IsEmpty());
		EXPECT_TRUE(Subsystem->GetAllIconsNames(TEXT("NoSuchFont")).IsEmpty());
	}

	TEST_F(FUISubsystemTest, EditingTheSettingsReloadsTheStyle)
	{
		UHalvexProUISettings* Settings = GetMutableDefault<UHalvexProUISettings>();
		FString Error;
		ASSERT_TRUE(Host::FPropertyEdit::SetFromText(Settings, TEXT("ProjectUIConfiguration"), TEXT("/HalvexPro/Widgets/UIStyle_Hx_Dark.UIStyle_Hx_Dark"), Error)) << Host::ToStd(Error);
		EXPECT_EQ(GetHex(TEXT("Background"), false), TEXT("13111CFF"));
	}

	TEST_F(FUISubsystemTest, TheEngineHandlesAnEditOfTheSettingsFirst)
	{
		FString SeenByListeners;
		const FDelegateHandle Handle = FCoreUObjectDelegates::OnObjectPropertyChanged.AddLambda([&SeenByListeners](UObject*, FPropertyChangedEvent&)
		{
			SeenByListeners = GetHex(TEXT("Secondary"), false);
		});
		FString Error;
		ASSERT_TRUE(Host::FPropertyEdit::SetFromText(GetMutableDefault<UHalvexProUISettings>(), TEXT("ProjectUIConfiguration"), TEXT("/HalvexPro/Widgets/UIStyle_Hx_Dark.UIStyle_Hx_Dark"), Error)) << Host::ToStd(Error);
		FCoreUObjectDelegates::OnObjectPropertyChanged.Remove(Handle);
		EXPECT_EQ(SeenByListeners, TEXT("FBFBFBFF"));
		EXPECT_NE(GetHex(TEXT("Secondary"), false), SeenByListeners);
	}

	TEST_F(FUISubsystemTest, TheConfiguredStyleWinsOverTheShippedOne)
	{
		const TCHAR* Section = TEXT("/Script/HalvexProUI.HalvexProUISettings");
		UHalvexProUISettings* Settings = NewObject<UHalvexProUISettings>();
		GConfig->SetString(Section, TEXT("ProjectUIConfiguration"), TEXT("/HalvexPro/Widgets/UIStyle_Hx_Dark.UIStyle_Hx_Dark"), TEXT("Halvex"));
		Settings->LoadConfig();
		GConfig->EmptySection(Section, TEXT("Halvex"));
		EXPECT_EQ(Settings->ProjectUIConfiguration.ToString(), TEXT("/HalvexPro/Widgets/UIStyle_Hx_Dark.UIStyle_Hx_Dark"));
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
		EXPECT_EQ(Widget->GetVisibility(), ESlateVisibility::Hidden);
	}

	TEST_F(FUISubsystemTest, ShownWithHitTestAButtonLetsClicksThrough)
	{
		UButton* Below = NewObject<UButton>();
		UButton* Above = NewObject<UButton>();
		Above->AddChild(NewObject<UButton>());
		const TSharedRef<SWidget> Stack = SNew(SOverlay) + SOverlay::Slot()[Below->TakeWidget()] + SOverlay::Slot()[Above->TakeWidget()];
		GEngine->GameViewport->AddViewportWidgetContent(Stack);
		Loop.RunUntilIdle();
		Driver.MoveTo(FVector2D(4.0, 4.0));
		EXPECT_TRUE(Above->IsHovered());
		UHalvexUISubsystem::ShowsWidget(Above, true);
		Loop.RunUntilIdle();
		Driver.MoveTo(FVector2D(5.0, 5.0));
		EXPECT_FALSE(Above->IsHovered());
		EXPECT_TRUE(Below->IsHovered());
		// What is in it is still there for the pointer.
		Driver.MoveTo(FVector2D(400.0, 300.0));
		EXPECT_TRUE(Above->GetChildAt(0)->IsHovered());
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
