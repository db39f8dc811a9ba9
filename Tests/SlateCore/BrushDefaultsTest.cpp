#include <gtest/gtest.h>

#include "Brushes/SlateColorBrush.h"
#include "Brushes/SlateNoResource.h"
#include "Brushes/SlateRoundedBoxBrush.h"
#include "Styling/SlateTypes.h"
#include "Styling/WidgetStyle.h"

TEST(SlateColorTest, DefaultIsFuchsiaAndSpecified)
{
	const FSlateColor Color;
	EXPECT_EQ(Color.GetSpecifiedColor(), FLinearColor(1.0f, 0.0f, 1.0f, 1.0f));
	EXPECT_TRUE(Color.IsColorSpecified());
}

TEST(SlateColorTest, NumbersOfTheRules)
{
	EXPECT_EQ(static_cast<int32>(ESlateColorStylingMode::UseColor_Specified), 0);
	EXPECT_EQ(static_cast<int32>(ESlateColorStylingMode::UseColor_Foreground), 2);
	EXPECT_EQ(static_cast<int32>(ESlateColorStylingMode::UseColor_UseStyle), 4);
}

TEST(SlateColorTest, ForegroundComesFromTheStyle)
{
	FWidgetStyle Style;
	Style.SetForegroundColor(FSlateColor(FLinearColor(0.5f, 0.25f, 0.0f, 1.0f)));
	EXPECT_EQ(FSlateColor::UseForeground().GetColor(Style), FLinearColor(0.5f, 0.25f, 0.0f, 1.0f));
	EXPECT_LT(FSlateColor::UseSubduedForeground().GetColor(Style).A, 1.0f);
	EXPECT_FALSE(FSlateColor::UseForeground().IsColorSpecified());
	EXPECT_NE(FSlateColor::UseForeground(), FSlateColor());
}

TEST(SlateColorTest, EightBitColoursAreSrgb)
{
	EXPECT_EQ(FSlateColor(FColor(255, 128, 0, 255)).GetSpecifiedColor(), FLinearColor(FColor(255, 128, 0, 255)));
}

TEST(BrushDefaultsTest, BrushIsAWhiteImageOf32)
{
	const FSlateBrush Brush;
	EXPECT_EQ(Brush.DrawAs, ESlateBrushDrawType::Image);
	EXPECT_EQ(Brush.Tiling, ESlateBrushTileType::NoTile);
	EXPECT_EQ(Brush.Mirroring, ESlateBrushMirrorType::NoMirror);
	EXPECT_EQ(Brush.GetImageSize(), FVector2f(32.0f, 32.0f));
	EXPECT_EQ(Brush.Margin, FMargin(0.0f));
	EXPECT_EQ(Brush.TintColor, FSlateColor(FLinearColor::White));
	EXPECT_EQ(Brush.GetResourceObject(), nullptr);
	EXPECT_TRUE(Brush.GetResourceName().IsNone());
	EXPECT_TRUE(Brush.IsSet());
}

TEST(BrushDefaultsTest, OutlineIsHalfHeightRadiusWithOneOddRadius)
{
	const FSlateBrushOutlineSettings Outline;
	EXPECT_EQ(Outline.CornerRadii, FVector4(0.0, 0.0, 0.0, 1.0));
	EXPECT_EQ(Outline.Color, FSlateColor(FLinearColor(0.0f, 0.0f, 0.0f, 0.0f)));
	EXPECT_EQ(Outline.Width, 0.0f);
	EXPECT_EQ(Outline.RoundingType, ESlateBrushRoundingType::HalfHeightRadius);
	EXPECT_FALSE(Outline.bUseBrushTransparency);
}

TEST(BrushDefaultsTest, OutlineWithARadiusIsFixed)
{
	EXPECT_EQ(FSlateBrushOutlineSettings(4.0f).RoundingType, ESlateBrushRoundingType::FixedRadius);
	EXPECT_EQ(FSlateBrushOutlineSettings(4.0f).CornerRadii, FVector4(4.0, 4.0, 4.0, 4.0));
	EXPECT_EQ(FSlateBrushOutlineSettings(FVector4(1.0, 2.0, 3.0, 4.0)).RoundingType, ESlateBrushRoundingType::FixedRadius);
	EXPECT_EQ(FSlateBrushOutlineSettings(FSlateColor(FLinearColor::Red), 2.0f).RoundingType, ESlateBrushRoundingType::HalfHeightRadius);
	EXPECT_EQ(FSlateBrushOutlineSettings(4.0f, FLinearColor::Red, 2.0f).Width, 2.0f);
}

TEST(BrushDefaultsTest, NumbersOfTheEnumerations)
{
	EXPECT_EQ(ESlateBrushDrawType::NoDrawType, 0);
	EXPECT_EQ(ESlateBrushDrawType::Box, 1);
	EXPECT_EQ(ESlateBrushDrawType::Border, 2);
	EXPECT_EQ(ESlateBrushDrawType::Image, 3);
	EXPECT_EQ(ESlateBrushDrawType::RoundedBox, 4);
	EXPECT_EQ(ESlateBrushRoundingType::FixedRadius, 0);
	EXPECT_EQ(ESlateBrushRoundingType::HalfHeightRadius, 1);
	EXPECT_EQ(static_cast<int32>(ECheckBoxState::Undetermined), 2);
	EXPECT_EQ(ESelectInfo::Direct, 3);
}

TEST(BrushDefaultsTest, HelpersDrawAsTheyAreNamed)
{
	EXPECT_EQ(FSlateNoResource().DrawAs, ESlateBrushDrawType::NoDrawType);
	EXPECT_FALSE(FSlateNoResource().IsSet());
	EXPECT_EQ(FSlateColorBrush(FLinearColor::Red).TintColor, FSlateColor(FLinearColor::Red));
	const FSlateRoundedBoxBrush Rounded(FLinearColor::Red, 6.0f, FLinearColor::Blue, 2.0f);
	EXPECT_EQ(Rounded.DrawAs, ESlateBrushDrawType::RoundedBox);
	EXPECT_EQ(Rounded.OutlineSettings.CornerRadii, FVector4(6.0, 6.0, 6.0, 6.0));
	EXPECT_EQ(Rounded.OutlineSettings.RoundingType, ESlateBrushRoundingType::FixedRadius);
}

TEST(BrushDefaultsTest, BrushesAreComparedWhole)
{
	FSlateBrush A;
	const FSlateBrush B;
	EXPECT_EQ(A, B);
	A.OutlineSettings.Width = 1.0f;
	EXPECT_NE(A, B);
}

TEST(StyleDefaultsTest, ButtonStyleUsesTheForegroundAndDefaultBrushes)
{
	const FButtonStyle Style;
	EXPECT_EQ(Style.Normal, FSlateBrush());
	EXPECT_EQ(Style.Disabled, FSlateBrush());
	EXPECT_EQ(Style.NormalForeground, FSlateColor::UseForeground());
	EXPECT_EQ(Style.PressedForeground, FSlateColor::UseForeground());
	EXPECT_EQ(Style.NormalPadding, FMargin(0.0f));
	EXPECT_EQ(Style.GetTypeName(), FButtonStyle::TypeName);
}

TEST(StyleDefaultsTest, SettersChain)
{
	const FButtonStyle Style = FButtonStyle().SetNormal(FSlateColorBrush(FLinearColor::Red)).SetNormalForeground(FLinearColor::Blue).SetPressedPadding(FMargin(3.0f));
	EXPECT_EQ(Style.Normal.TintColor, FSlateColor(FLinearColor::Red));
	EXPECT_EQ(Style.NormalForeground, FSlateColor(FLinearColor::Blue));
	EXPECT_EQ(Style.PressedPadding, FMargin(3.0f));
	TArray<const FSlateBrush*> Brushes;
	Style.GetResources(Brushes);
	EXPECT_EQ(Brushes.Num(), 4);
}

TEST(MarginTest, ConstructorsSetTheSidesTheyName)
{
	EXPECT_EQ(FMargin(), FMargin(0.0f, 0.0f, 0.0f, 0.0f));
	EXPECT_EQ(FMargin(2.0f), FMargin(2.0f, 2.0f, 2.0f, 2.0f));
	EXPECT_EQ(FMargin(1.0f, 2.0f), FMargin(1.0f, 2.0f, 1.0f, 2.0f));
	EXPECT_EQ(FMargin(FVector2D(1.0, 2.0)), FMargin(1.0f, 2.0f, 1.0f, 2.0f));
	EXPECT_EQ(FMargin(FVector4(1.0, 2.0, 3.0, 4.0)), FMargin(1.0f, 2.0f, 3.0f, 4.0f));
	EXPECT_EQ(FMargin(1.0f, 2.0f, 3.0f, 4.0f).GetDesiredSize(), FVector2D(4.0, 6.0));
	EXPECT_EQ(FMargin(1.0f, 2.0f, 3.0f, 4.0f).GetTotalSpaceAlong<Orient_Vertical>(), 6.0f);
}
