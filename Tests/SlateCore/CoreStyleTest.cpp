#include "Styling/CoreStyle.h"

#include <gtest/gtest.h>

#include "ExpectedLog.h"
#include "Styling/SlateStyle.h"

TEST(CoreStyleTest, OffersTheStylesOfBasicWidgets)
{
	EXPECT_TRUE(FCoreStyle::Get().HasWidgetStyle<FButtonStyle>("Button"));
	EXPECT_TRUE(FCoreStyle::Get().HasWidgetStyle<FTextBlockStyle>("NormalText"));
	EXPECT_TRUE(FCoreStyle::Get().HasWidgetStyle<FEditableTextStyle>("NormalEditableText"));
	EXPECT_TRUE(FCoreStyle::Get().GetBrush("WhiteBrush")->IsSet());
	EXPECT_FALSE(FCoreStyle::Get().GetBrush("NoBrush")->IsSet());
}

TEST(CoreStyleTest, UnknownNamesAreReportedAndGiveDefaults)
{
	const Host::FExpectedLog NoStyle(TEXT("has no 'NoSuchButton'"));
	const Host::FExpectedLog NoBrush(TEXT("has no brush 'NoSuchBrush'"));
	EXPECT_EQ(&FCoreStyle::Get().GetWidgetStyle<FButtonStyle>("NoSuchButton"), &FButtonStyle::GetDefault());
	EXPECT_FALSE(FCoreStyle::Get().GetBrush("NoSuchBrush")->IsSet());
	EXPECT_EQ(FCoreStyle::Get().GetOptionalBrush("NoSuchBrush"), nullptr);
}

TEST(CoreStyleTest, StyleOfAnotherKindIsNotTaken)
{
	EXPECT_FALSE(FCoreStyle::Get().HasWidgetStyle<FButtonStyle>("NormalText"));
}

TEST(SlateStyleTest, KeepsWhatIsSet)
{
	FSlateStyleSet Set("Test");
	Set.Set("Size", 4.5f);
	Set.Set("Color", FLinearColor::Red);
	Set.Set("Inset", FMargin(1.0f, 2.0f));
	Set.Set("Button.Big", FButtonStyle().SetNormalPadding(FMargin(9.0f)));
	EXPECT_EQ(Set.GetFloat("Size"), 4.5f);
	EXPECT_EQ(Set.GetFloat("Other", nullptr, 2.0f), 2.0f);
	EXPECT_EQ(Set.GetColor("Color"), FLinearColor::Red);
	EXPECT_EQ(Set.GetMargin("Inset"), FMargin(1.0f, 2.0f));
	EXPECT_EQ(Set.GetWidgetStyle<FButtonStyle>("Button", ".Big").NormalPadding, FMargin(9.0f));
}
