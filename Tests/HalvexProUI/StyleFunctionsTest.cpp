#include "EngineTest.h"

#include "Components/Border.h"
#include "Components/Button.h"
#include "Components/TextBlock.h"
#include "Engine/Font.h"
#include "HalvexProUISettings.h"
#include "HalvexUISubsystem.h"
#include "Style/HalvexStyleModels.h"
#include "Style/HalvexUIStyleConfiguration.h"
#include "UObject/UnrealType.h"

namespace
{
	using FStyleFunctionsTest = Host::FEngineTest;

	TEST_F(FStyleFunctionsTest, BorderStyleMakesARoundedBox)
	{
		UBorder* Border = NewObject<UBorder>();
		FHalvexBorderStyle Style;
		Style.ColorStyle = FHalvexColorHandler(TEXT("Primary"), false);
		Style.Opacity = 0.5f;
		Style.UniformBorder = 7.0f;
		UHalvexStyleModels::SetHalvexBorderStyle(Border, Style);
		EXPECT_EQ(Border->Background.DrawAs.GetValue(), ESlateBrushDrawType::RoundedBox);
		EXPECT_EQ(Border->Background.OutlineSettings.CornerRadii, FVector4(7.0, 7.0, 7.0, 7.0));
		EXPECT_EQ(Border->Background.OutlineSettings.RoundingType.GetValue(), ESlateBrushRoundingType::FixedRadius);
		EXPECT_EQ(Border->Background.TintColor.GetSpecifiedColor(), Style.ColorStyle.GetColor().CopyWithNewOpacity(0.5f));
	}

	TEST_F(FStyleFunctionsTest, BorderStyleTakesEachCornerWhenNotUniform)
	{
		UBorder* Border = NewObject<UBorder>();
		FHalvexBorderStyle Style;
		Style.bUniformCorner = false;
		Style.CornerBorder = FVector4(1.0, 2.0, 3.0, 4.0);
		Style.RoundType = ESlateBrushRoundingType::HalfHeightRadius;
		UHalvexStyleModels::SetHalvexBorderStyle(Border, Style);
		EXPECT_EQ(Border->Background.OutlineSettings.CornerRadii, FVector4(1.0, 2.0, 3.0, 4.0));
		EXPECT_EQ(Border->Background.OutlineSettings.RoundingType.GetValue(), ESlateBrushRoundingType::HalfHeightRadius);
	}

	TEST_F(FStyleFunctionsTest, BorderStyleUsesItsOpacityNotTheHandlers)
	{
		UBorder* Border = NewObject<UBorder>();
		FHalvexBorderStyle Style;
		Style.ColorStyle = FHalvexColorHandler(TEXT("Primary"), false);
		Style.ColorStyle.bOverrideOpacity = true;
		Style.ColorStyle.OpacityOverride = 0.2f;
		UHalvexStyleModels::SetHalvexBorderStyle(Border, Style);
		EXPECT_EQ(Border->Background.TintColor.GetSpecifiedColor().A, 1.0f);
	}

	TEST_F(FStyleFunctionsTest, BorderStyleReplacesTheWholeBrush)
	{
		UBorder* Border = NewObject<UBorder>();
		FSlateBrush Old;
		Old.ImageSize = FVector2D(7.0, 9.0);
		Old.OutlineSettings.Width = 3.0f;
		Border->SetBrush(Old);
		UHalvexStyleModels::SetHalvexBorderStyle(Border, FHalvexBorderStyle());
		EXPECT_EQ(Border->Background.ImageSize, FSlateBrush().ImageSize);
		EXPECT_EQ(Border->Background.OutlineSettings.Width, FSlateBrush().OutlineSettings.Width);
		EXPECT_TRUE(Border->Background.TintColor.IsColorSpecified());
	}

	TEST_F(FStyleFunctionsTest, CustomAndDisabledModesColourAlike)
	{
		UBorder* Border = NewObject<UBorder>();
		FHalvexBorderStyle Style;
		Style.Opacity = 0.75f;
		Style.ColorStyle.ColorMode = EColorHandlerMode::ECHM_ColorCustom;
		Style.ColorStyle.ColorCustom = FLinearColor(0.1f, 0.2f, 0.3f, 0.4f);
		UHalvexStyleModels::SetHalvexBorderStyle(Border, Style);
		EXPECT_EQ(Border->Background.TintColor.GetSpecifiedColor(), FLinearColor(0.1f, 0.2f, 0.3f, 0.75f));
		Style.ColorStyle = FHalvexColorHandler(TEXT("Secondary"), true);
		Style.ColorStyle.ColorMode = EColorHandlerMode::ECHM_Disable;
		UHalvexStyleModels::SetHalvexBorderStyle(Border, Style);
		EXPECT_EQ(Border->Background.TintColor.GetSpecifiedColor().ToFColor(true).ToHex(), TEXT("4B465CBF"));
	}

	TEST_F(FStyleFunctionsTest, ButtonStyleLeavesTheButtonAsItWas)
	{
		UButton* Button = NewObject<UButton>();
		UButton* Untouched = NewObject<UButton>();
		FHalvexBorderStyle Style;
		Style.ColorStyle = FHalvexColorHandler(TEXT("Danger"), false);
		Style.RoundType = ESlateBrushRoundingType::HalfHeightRadius;
		UHalvexStyleModels::SetHalvexButtonStyle(Button, Style);
		for (TFieldIterator<FProperty> It(UButton::StaticClass()); It; ++It)
		{
			EXPECT_TRUE(It->Identical_InContainer(Button, Untouched)) << Host::ToStd(It->GetName());
		}
	}

	TEST_F(FStyleFunctionsTest, TextStyleSetsColourAndFont)
	{
		UTextBlock* Text = NewObject<UTextBlock>();
		FHalvexTextStyle Style;
		Style.ColorStyle.bOverrideOpacity = true;
		Style.ColorStyle.OpacityOverride = 0.25f;
		Style.FontSchema = TEXT("h4-b");
		UHalvexStyleModels::SetHalvexTextStyle(Text, Style);
		EXPECT_EQ(Text->GetColorAndOpacity().GetSpecifiedColor(), Style.ColorStyle.GetColor());
		EXPECT_EQ(Text->GetColorAndOpacity().GetSpecifiedColor().A, 0.25f);
		EXPECT_EQ(Text->GetFont().Size, 18.0f);
		EXPECT_EQ(Text->GetFont().TypefaceFontName, FName(TEXT("bold")));
	}

	TEST_F(FStyleFunctionsTest, TextKeepsItsFontWithoutAProjectFont)
	{
		UTextBlock* Text = NewObject<UTextBlock>();
		const FSlateFontInfo Before = Text->GetFont();
		UHalvexProUISettings* Settings = GetMutableDefault<UHalvexProUISettings>();
		const TSoftObjectPtr<UHalvexUIStyleConfiguration> Style = Settings->ProjectUIConfiguration;
		Settings->ProjectUIConfiguration = nullptr;
		UHalvexUISubsystem::Get()->RefreshSettingsReferences();
		FHalvexTextStyle TextStyle;
		TextStyle.FontSchema = TEXT("h1");
		UHalvexStyleModels::SetHalvexTextStyle(Text, TextStyle);
		EXPECT_EQ(Text->GetFont(), Before);
		EXPECT_FALSE(UHalvexStyleModels::GetFontInfoFromFontSchema(TEXT("h1")).FontObject);
		Settings->ProjectUIConfiguration = Style;
		UHalvexUISubsystem::Get()->RefreshSettingsReferences();
	}

	TEST_F(FStyleFunctionsTest, UnknownSchemaGivesEighteenPointsOfTheDefaultTypeface)
	{
		const FSlateFontInfo Font = UHalvexStyleModels::GetFontInfoFromFontSchema(TEXT("h5"));
		EXPECT_EQ(Font.FontObject, UHalvexUISubsystem::Get()->GetHalvexFontStyle().Font);
		EXPECT_EQ(Font.Size, 18.0f);
		EXPECT_TRUE(Font.TypefaceFontName.IsNone());
		EXPECT_EQ(Font.OutlineSettings.OutlineSize, 0);
		EXPECT_EQ(Font.OutlineSettings.OutlineColor, FLinearColor::Black);
	}

	TEST_F(FStyleFunctionsTest, SchemaGivesTheProjectsFontInItsSizeAndTypeface)
	{
		const FSlateFontInfo Font = UHalvexStyleModels::GetFontInfoFromFontSchema(TEXT("h5-b"));
		EXPECT_EQ(Font.FontObject, UHalvexUISubsystem::Get()->GetHalvexFontStyle().Font);
		EXPECT_EQ(Font.Size, 16.0f);
		EXPECT_EQ(Font.TypefaceFontName, FName(TEXT("bold")));
		EXPECT_EQ(Font.OutlineSettings.OutlineSize, 0);
		EXPECT_EQ(Font.OutlineSettings.OutlineColor, FLinearColor::Black);
	}

	TEST_F(FStyleFunctionsTest, UniformCornersHideTheFour)
	{
		FSlateBrush Brush;
		FHalvexCornerStyle Corners;
		Corners.UniformCorner = 8.0f;
		Corners.CornerRadius = FVector4(1.0, 2.0, 3.0, 4.0);
		Corners.SetCornerBrush(Brush);
		EXPECT_EQ(Brush.OutlineSettings.CornerRadii, FVector4(8.0, 8.0, 8.0, 8.0));
	}

	TEST_F(FStyleFunctionsTest, CornerBrushChangesTheShapeOnly)
	{
		FSlateBrush Brush;
		Brush.TintColor = FSlateColor(FLinearColor::Green);
		FHalvexCornerStyle Corners;
		Corners.bUseUniformCorner = false;
		Corners.CornerRadius = FVector4(1.0, 2.0, 3.0, 4.0);
		Corners.SetCornerBrush(Brush);
		EXPECT_EQ(Brush.DrawAs.GetValue(), ESlateBrushDrawType::RoundedBox);
		EXPECT_EQ(Brush.OutlineSettings.CornerRadii, FVector4(1.0, 2.0, 3.0, 4.0));
		EXPECT_EQ(Brush.OutlineSettings.RoundingType.GetValue(), ESlateBrushRoundingType::FixedRadius);
		EXPECT_EQ(Brush.TintColor.GetSpecifiedColor(), FLinearColor::Green);
	}

	TEST_F(FStyleFunctionsTest, DisabledButtonBrushKeepsItsShape)
	{
		FButtonStyle Style;
		Style.Disabled.DrawAs = ESlateBrushDrawType::Box;
		Style.Disabled.OutlineSettings.CornerRadii = FVector4(9.0, 8.0, 7.0, 6.0);
		const FSlateBrush Disabled = Style.Disabled;
		FHalvexCornerStyle Corners;
		Corners.RoundingType = ESlateBrushRoundingType::HalfHeightRadius;
		Corners.SetCornerBrushButton(Style);
		EXPECT_EQ(Style.Disabled, Disabled);
		for (const FSlateBrush* Brush : { &Style.Normal, &Style.Hovered, &Style.Pressed })
		{
			EXPECT_EQ(Brush->DrawAs.GetValue(), ESlateBrushDrawType::RoundedBox);
			EXPECT_EQ(Brush->OutlineSettings.CornerRadii, FVector4(5.0, 5.0, 5.0, 5.0));
			EXPECT_EQ(Brush->OutlineSettings.RoundingType.GetValue(), ESlateBrushRoundingType::HalfHeightRadius);
		}
	}

	TEST_F(FStyleFunctionsTest, NullWidgetsAreIgnored)
	{
		UHalvexStyleModels::SetHalvexBorderStyle(nullptr, FHalvexBorderStyle());
		UHalvexStyleModels::SetHalvexButtonStyle(nullptr, FHalvexBorderStyle());
		UHalvexStyleModels::SetHalvexTextStyle(nullptr, FHalvexTextStyle());
	}
}
