#include "TestWidgets.h"

namespace
{
	FColor Red(255, 0, 0);
	FColor Green(0, 255, 0);
	FColor Blue(0, 0, 255);

	TSharedRef<STestLeaf> MakeLeaf(const FColor& Color)
	{
		return SNew(STestLeaf).Color(FLinearColor(Color));
	}

	void ExpectColors(const FTestTree& Tree, std::initializer_list<FColor> Colors)
	{
		const TArray<Host::FDrawElement> Elements = Tree.GetElements();
		ASSERT_EQ(Elements.Num(), static_cast<int32>(Colors.size()));
		int32 Index = 0;
		for (const FColor& Color : Colors)
		{
			EXPECT_EQ(Elements[Index++].Colour, Color) << "element " << Index - 1;
		}
	}
}

TEST(OverlayTest, LaterSlotsAreDrawnOnTop)
{
	FTestTree Tree(SNew(SOverlay) + SOverlay::Slot()[MakeLeaf(Red)] + SOverlay::Slot()[MakeLeaf(Green)]);
	Tree.Run();
	ExpectColors(Tree, { Red, Green });
}

TEST(OverlayTest, OrderOfSlotsFollowsTheirZOrder)
{
	const TSharedRef<SOverlay> Overlay = SNew(SOverlay);
	Overlay->AddSlot(5)[MakeLeaf(Red)];
	Overlay->AddSlot(1)[MakeLeaf(Green)];
	Overlay->AddSlot()[MakeLeaf(Blue)];
	FTestTree Tree(Overlay);
	Tree.Run();
	ExpectColors(Tree, { Green, Red, Blue });
}

TEST(OverlayTest, ChangedZOrderIsDrawnAnew)
{
	const TSharedRef<SOverlay> Overlay = SNew(SOverlay);
	SOverlay::FOverlaySlot* Slot = nullptr;
	Overlay->AddSlot(1).Expose(Slot)[MakeLeaf(Red)];
	Overlay->AddSlot(2)[MakeLeaf(Green)];
	FTestTree Tree(Overlay);
	Tree.Run();
	Slot->SetZOrder(3);
	EXPECT_TRUE(Tree.Run());
	ExpectColors(Tree, { Green, Red });
	EXPECT_EQ(Tree.GetDamageBounds(), MakePixelRect(0, 0, 400, 300)) << "neither has changed, but another one lies on top";
}

TEST(OverlayTest, AddedAndRemovedSlotsDoNotDamageTheOthers)
{
	const TSharedRef<SOverlay> Overlay = SNew(SOverlay);
	Overlay->AddSlot(1)[MakeLeaf(Red)];
	Overlay->AddSlot(3)[MakeLeaf(Blue)];
	FTestTree Tree(Overlay);
	Tree.Run();
	Overlay->AddSlot(2).HAlign(HAlign_Left).VAlign(VAlign_Top)[MakeLeaf(Green)];
	Tree.Run();
	ExpectColors(Tree, { Red, Green, Blue });
	EXPECT_EQ(Tree.GetDamageBounds(), MakePixelRect(0, 0, 10, 10));
}

TEST(OverlayTest, WantsTheGreatestOfItsChildren)
{
	const TSharedRef<SOverlay> Overlay = SNew(SOverlay)
		+ SOverlay::Slot().Padding(5.0f)[SNew(STestLeaf).Size(FVector2D(20.0, 10.0))]
		+ SOverlay::Slot()[SNew(STestLeaf).Size(FVector2D(10.0, 30.0))];
	FTestTree Tree(Overlay);
	Tree.Run();
	EXPECT_EQ(Overlay->GetDesiredSize(), FVector2f(30.0f, 30.0f));
}

TEST(OverlayTest, ChildrenAreAlignedEachByItself)
{
	const TSharedRef<STestLeaf> Fill = MakeLeaf(Red);
	const TSharedRef<STestLeaf> Corner = MakeLeaf(Green);
	FTestTree Tree(SNew(SOverlay)
		+ SOverlay::Slot()[Fill]
		+ SOverlay::Slot().HAlign(HAlign_Right).VAlign(VAlign_Bottom).Padding(4.0f)[Corner]);
	Tree.Run();
	EXPECT_EQ(Fill->GetCachedGeometry().GetLocalSize(), FVector2f(400.0f, 300.0f));
	EXPECT_EQ(Corner->GetCachedGeometry().GetAbsolutePosition(), FVector2f(386.0f, 286.0f));
}

TEST(OverlayTest, SlotsAreRemovedByWidgetAndByOrder)
{
	const TSharedRef<SOverlay> Overlay = SNew(SOverlay);
	const TSharedRef<STestLeaf> First = MakeLeaf(Red);
	Overlay->AddSlot(1)[First];
	Overlay->AddSlot(2)[MakeLeaf(Green)];
	Overlay->AddSlot(3)[MakeLeaf(Blue)];
	FTestTree Tree(Overlay);
	EXPECT_TRUE(Overlay->RemoveSlot(First));
	EXPECT_FALSE(Overlay->RemoveSlot(First));
	Overlay->RemoveSlot(2);
	Tree.Run();
	ExpectColors(Tree, { Blue });
	Overlay->ClearChildren();
	EXPECT_EQ(Overlay->GetNumWidgets(), 0);
	Tree.Run();
	ExpectColors(Tree, {});
}
