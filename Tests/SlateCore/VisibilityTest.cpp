#include "TestWidgets.h"

namespace
{
	struct FThreeLeaves
	{
		FThreeLeaves()
		{
			for (int32 Index = 0; Index < 3; ++Index)
			{
				TSharedPtr<STestLeaf> Leaf;
				Row->AddSlot().AutoWidth().VAlign(VAlign_Top)[SAssignNew(Leaf, STestLeaf)];
				Leaves.Add(Leaf.ToSharedRef());
			}
		}

		TSharedRef<SHorizontalBox> Row = SNew(SHorizontalBox);
		TArray<TSharedRef<STestLeaf>> Leaves;
	};
}

TEST(VisibilityTest, FlagsAreAsNamed)
{
	EXPECT_TRUE(EVisibility::Visible.IsVisible());
	EXPECT_TRUE(EVisibility::Visible.IsHitTestVisible());
	EXPECT_TRUE(EVisibility::Visible.AreChildrenHitTestVisible());
	EXPECT_TRUE(EVisibility::HitTestInvisible.IsVisible());
	EXPECT_FALSE(EVisibility::HitTestInvisible.AreChildrenHitTestVisible());
	EXPECT_FALSE(EVisibility::SelfHitTestInvisible.IsHitTestVisible());
	EXPECT_TRUE(EVisibility::SelfHitTestInvisible.AreChildrenHitTestVisible());
	EXPECT_FALSE(EVisibility::Hidden.IsVisible());
	EXPECT_FALSE(EVisibility::Collapsed.IsVisible());
	EXPECT_EQ(EVisibility(), EVisibility::Visible);
	EXPECT_EQ(EVisibility(EVisibility::SelfHitTestInvisible).ToString(), TEXT("SelfHitTestInvisible"));
}

TEST(VisibilityTest, HiddenKeepsItsRoomAndIsNotPainted)
{
	FThreeLeaves Three;
	FTestTree Tree(Three.Row);
	Tree.Run();
	Three.Leaves[1]->SetVisibility(EVisibility::Hidden);
	EXPECT_TRUE(Tree.Run());
	EXPECT_EQ(Tree.GetDamageBounds(), MakePixelRect(10, 0, 20, 10));
	EXPECT_EQ(Tree.GetElements().Num(), 2);
	EXPECT_EQ(Tree.Work.Measured, 0);
	EXPECT_EQ(Three.Leaves[2]->NumPainted, 1);
}

TEST(VisibilityTest, CollapsedGivesUpItsRoom)
{
	FThreeLeaves Three;
	FTestTree Tree(Three.Row);
	Tree.Run();
	Three.Leaves[1]->SetVisibility(EVisibility::Collapsed);
	Tree.Run();
	EXPECT_EQ(Three.Leaves[2]->GetCachedGeometry().GetAbsolutePosition(), FVector2f(10.0f, 0.0f));
	EXPECT_EQ(Three.Row->GetDesiredSize(), FVector2f(20.0f, 10.0f));
}

TEST(VisibilityTest, ShowingAgainPaintsNothingAnewButDamagesIt)
{
	FThreeLeaves Three;
	FTestTree Tree(Three.Row);
	Tree.Run();
	Three.Leaves[1]->SetVisibility(EVisibility::Hidden);
	Tree.Run();
	Three.Leaves[1]->SetVisibility(EVisibility::Visible);
	EXPECT_TRUE(Tree.Run());
	EXPECT_EQ(Three.Leaves[1]->NumPainted, 1);
	EXPECT_EQ(Tree.GetDamageBounds(), MakePixelRect(10, 0, 20, 10));
	EXPECT_EQ(Tree.GetElements().Num(), 3);
}

TEST(VisibilityTest, ChangeWhileCollapsedIsSeenAfterwards)
{
	FThreeLeaves Three;
	FTestTree Tree(Three.Row);
	Tree.Run();
	Three.Row->SetVisibility(EVisibility::Collapsed);
	Tree.Run();
	Three.Leaves[1]->SetColor(FLinearColor::Red);
	Three.Leaves[1]->SetSize(FVector2D(30.0, 10.0));
	Tree.Run();
	Three.Leaves[2]->SetColor(FLinearColor::Blue);
	Tree.Run();
	EXPECT_EQ(Three.Leaves[1]->NumPainted, 1);
	Three.Row->SetVisibility(EVisibility::Visible);
	Tree.Run();
	const TArray<Host::FDrawElement> Elements = Tree.GetElements();
	ASSERT_EQ(Elements.Num(), 3);
	EXPECT_EQ(Elements[1].Colour, FColor(255, 0, 0));
	EXPECT_EQ(Elements[1].Bounds, MakePixelRect(10, 0, 40, 10));
	EXPECT_EQ(Elements[2].Colour, FColor(0, 0, 255));
}

TEST(VisibilityTest, ChangeWhileHiddenIsSeenAfterwards)
{
	FThreeLeaves Three;
	FTestTree Tree(SNew(SOverlay) + SOverlay::Slot()[Three.Row]);
	Tree.Run();
	Three.Row->SetVisibility(EVisibility::Hidden);
	Tree.Run();
	Three.Leaves[0]->SetColor(FLinearColor::Red);
	Tree.Run();
	Three.Leaves[1]->SetColor(FLinearColor::Red);
	Tree.Run();
	Three.Row->SetVisibility(EVisibility::Visible);
	Tree.Run();
	EXPECT_EQ(Tree.GetElements()[0].Colour, FColor(255, 0, 0));
	EXPECT_EQ(Tree.GetElements()[1].Colour, FColor(255, 0, 0));
}

TEST(VisibilityTest, HitTestVisibilityCostsNoFrame)
{
	FThreeLeaves Three;
	FTestTree Tree(Three.Row);
	Tree.Run();
	Three.Leaves[1]->SetVisibility(EVisibility::HitTestInvisible);
	EXPECT_FALSE(Tree.Root.NeedsFrame());
	EXPECT_NE(Tree.Hit(15.0f, 5.0f), Three.Leaves[1]);
}
