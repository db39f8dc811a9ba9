#include "Host/AttributeBindings.h"
#include "TestWidgets.h"

namespace
{
	int64 CountPolled()
	{
		const int64 Before = Host::FSlateCounters::Get().PolledAttributes;
		Host::FAttributeBindings::UpdateAll();
		return Host::FSlateCounters::Get().PolledAttributes - Before;
	}
}

TEST(AttributeTest, ValuesAreNotPolled)
{
	FTestTree Tree(SNew(STestLeaf).Size(FVector2D(20.0, 20.0)));
	EXPECT_EQ(CountPolled(), 0);
}

TEST(AttributeTest, GetterIsAskedOnceAFrame)
{
	int32 NumAsked = 0;
	FTestTree Tree(SNew(STestLeaf).Color_Lambda([&NumAsked]() { ++NumAsked; return FLinearColor::Red; }));
	NumAsked = 0;
	EXPECT_EQ(CountPolled(), 1);
	EXPECT_EQ(NumAsked, 1);
}

TEST(AttributeTest, ChangeInvalidatesForItsReason)
{
	FVector2D Size(20.0, 20.0);
	TSharedPtr<STestLeaf> Leaf;
	FTestTree Tree(SNew(SHorizontalBox) + SHorizontalBox::Slot().AutoWidth()[SAssignNew(Leaf, STestLeaf).Size_Lambda([&Size]() { return Size; })]);
	Tree.Run();
	CountPolled();
	EXPECT_FALSE(Tree.Root.NeedsFrame());
	Size = FVector2D(40.0, 20.0);
	CountPolled();
	EXPECT_TRUE(Tree.Root.NeedsFrame());
	Tree.Run();
	EXPECT_EQ(Leaf->GetDesiredSize(), FVector2f(40.0f, 20.0f));
}

TEST(AttributeTest, SettingAValueDropsTheGetter)
{
	TSharedPtr<STestLeaf> Leaf;
	FTestTree Tree(SAssignNew(Leaf, STestLeaf).Color_Lambda([]() { return FLinearColor::Red; }));
	Leaf->SetColor(FLinearColor::Blue);
	EXPECT_EQ(CountPolled(), 0);
	Tree.Run();
	EXPECT_EQ(Tree.GetElements()[0].Colour, FColor(0, 0, 255));
}

TEST(AttributeTest, DestroyedWidgetIsNoLongerPolled)
{
	{
		FTestTree Tree(SNew(STestLeaf).Color_Lambda([]() { return FLinearColor::Red; }));
		EXPECT_EQ(CountPolled(), 1);
	}
	EXPECT_EQ(CountPolled(), 0);
}

TEST(AttributeTest, BoundVisibilityFollowsItsGetter)
{
	EVisibility Wanted = EVisibility::Visible;
	FTestTree Tree(SNew(STestLeaf).Visibility_Lambda([&Wanted]() { return Wanted; }));
	Tree.Run();
	EXPECT_EQ(Tree.GetElements().Num(), 1);
	Wanted = EVisibility::Collapsed;
	CountPolled();
	Tree.Run();
	EXPECT_EQ(Tree.GetElements().Num(), 0);
	Wanted = EVisibility::Visible;
	CountPolled();
	Tree.Run();
	EXPECT_EQ(Tree.GetElements().Num(), 1);
}

TEST(AttributeTest, BoundSlotPaddingFollowsItsGetterAndGoesWithItsSlot)
{
	float Padding = 5.0f;
	const TSharedRef<SHorizontalBox> Row = SNew(SHorizontalBox);
	const TSharedRef<STestLeaf> Leaf = SNew(STestLeaf);
	Row->AddSlot().AutoWidth().Padding(TAttribute<FMargin>::CreateLambda([&Padding]() { return FMargin(Padding); }))[Leaf];
	FTestTree Tree(Row);
	Tree.Run();
	EXPECT_EQ(Leaf->GetCachedGeometry().GetAbsolutePosition(), FVector2f(5.0f, 5.0f));
	Padding = 8.0f;
	EXPECT_EQ(CountPolled(), 1);
	Tree.Run();
	EXPECT_EQ(Leaf->GetCachedGeometry().GetAbsolutePosition(), FVector2f(8.0f, 8.0f));
	Row->ClearChildren();
	EXPECT_EQ(CountPolled(), 0);
}

TEST(AttributeTest, EqualTextsOfAGetterChangeNothing)
{
	EXPECT_TRUE(TSlateAttributeComparePredicate::IdenticalTo(FText::FromString(TEXT("One")), FText::FromString(TEXT("One"))));
	EXPECT_FALSE(TSlateAttributeComparePredicate::IdenticalTo(FText::FromString(TEXT("One")), FText::FromString(TEXT("one"))));
}

TEST(AttributeTest, WidgetMayBeRemovedByAGetterOfAnother)
{
	TSharedPtr<SHorizontalBox> Row;
	SAssignNew(Row, SHorizontalBox);
	TSharedPtr<SWidget> Victim;
	bool bRemove = false;
	Row->AddSlot()[SNew(STestLeaf).Color_Lambda([&]()
	{
		if (bRemove && Victim.IsValid())
		{
			Row->RemoveSlot(Victim.ToSharedRef());
			Victim.Reset();
		}
		return FLinearColor::Blue;
	})];
	Row->AddSlot()[SAssignNew(Victim, STestLeaf).Color_Lambda([]() { return FLinearColor::Red; })];
	FTestTree Tree(Row.ToSharedRef());
	Tree.Run();
	bRemove = true;
	EXPECT_EQ(CountPolled(), 1);
	Tree.Run();
	EXPECT_EQ(Row->NumSlots(), 1);
	EXPECT_EQ(CountPolled(), 1);
}
