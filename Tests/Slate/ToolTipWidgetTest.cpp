#include "Widgets/SToolTip.h"

#include "LayoutTestTools.h"
#include "Widgets/Layout/SBox.h"

TEST(ToolTipWidgetTest, WithoutTextAndContentIsEmpty)
{
	const TSharedRef<SToolTip> Nothing = SNew(SToolTip);
	const TSharedRef<SToolTip> WithText = SNew(SToolTip).Text(FText::FromString(TEXT("Reset")));
	const TSharedRef<SToolTip> WithContent = SNew(SToolTip)[SNew(SBox)];
	EXPECT_TRUE(Nothing->IsEmpty());
	EXPECT_FALSE(WithText->IsEmpty());
	EXPECT_FALSE(WithContent->IsEmpty());
}

TEST(ToolTipWidgetTest, TextIsThatOfTheGetter)
{
	FText Text;
	const TSharedRef<SToolTip> Tip = SNew(SToolTip).Text(TAttribute<FText>::CreateLambda([&Text]() { return Text; }));
	EXPECT_TRUE(Tip->IsEmpty());
	Text = FText::FromString(TEXT("Two rooms"));
	EXPECT_FALSE(Tip->IsEmpty());
	EXPECT_EQ(Tip->GetTextTooltip().ToString(), TEXT("Two rooms"));
}
