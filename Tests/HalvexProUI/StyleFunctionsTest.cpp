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

	TEST_F(FStyleFunctionsTest, ButtonStyleLeavesTheButtonAsItWas)
	{
		UButton* Button = NewObject<UButton>();
		UButton* Untouched = NewObject<UButton>();
		UHalvexStyleModels::SetHalvexButtonStyle(Button, FHalvexBorderStyle());
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
		const FSlateFontInfo Bold = UHalvexStyleModels::GetFontInfoFromFontSchema(TEXT("h5-b"));
		EXPECT_EQ(Bold.Size, 16.0f);
		EXPECT_EQ(Bold.TypefaceFontName, FName(TEXT("bold")));
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
		const FSlateBrush Disabled = Style.Disabled;
		FHalvexCornerStyle().SetCornerBrushButton(Style);
		EXPECT_EQ(Style.Disabled, Disabled);
		for (const FSlateBrush* Brush : { &Style.Normal, &Style.Hovered, &Style.Pressed })
		{
			EXPECT_EQ(Brush->DrawAs.GetValue(), ESlateBrushDrawType::RoundedBox);
			EXPECT_EQ(Brush->OutlineSettings.CornerRadii, FVector4(5.0, 5.0, 5.0, 5.0));
		}
	}

	TEST_F(FStyleFunctionsTest, NullWidgetsAreIgnored)
	{
		UHalvexStyleModels::SetHalvexBorderStyle(nullptr, FHalvexBorderStyle());
		UHalvexStyleModels::SetHalvexButtonStyle(nullptr, FHalvexBorderStyle());
		UHalvexStyleModels::SetHalvexTextStyle(nullptr, FHalvexTextStyle());
	}
}
