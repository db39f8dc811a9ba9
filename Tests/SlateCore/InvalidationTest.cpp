#include "Host/WidgetActivity.h"
#include "TestWidgets.h"

namespace
{
	/** Ten rows of ten leaves. */
	struct FLeafGrid
	{
		FLeafGrid()
		{
			for (int32 Y = 0; Y < 10; ++Y)
			{
				const TSharedRef<SHorizontalBox> Row = SNew(SHorizontalBox);
				for (int32 X = 0; X < 10; ++X)
				{
					TSharedPtr<STestLeaf> Leaf;
					Row->AddSlot().AutoWidth()[SAssignNew(Leaf, STestLeaf)];
					Leaves.Add(Leaf.ToSharedRef());
				}
				Rows.Add(Row);
				Column->AddSlot().AutoHeight()[Row];
			}
		}

		STestLeaf& At(int32 X, int32 Y) { return Leaves[Y * 10 + X].Get(); }

		TSharedRef<SVerticalBox> Column = SNew(SVerticalBox);
		TArray<TSharedRef<SHorizontalBox>> Rows;
		TArray<TSharedRef<STestLeaf>> Leaves;
	};

	constexpr int64 NumGridWidgets = 1 + 1 + 10 + 100;
}

TEST(InvalidationTest, FirstFrameDoesEachWidgetOnce)
{
	FLeafGrid Grid;
	FTestTree Tree(Grid.Column);
	EXPECT_TRUE(Tree.Run());
	Tree.ExpectWork(NumGridWidgets, NumGridWidgets, NumGridWidgets);
	EXPECT_EQ(Tree.Work.Elements, 100);
}

TEST(InvalidationTest, UnchangedFrameDoesNothing)
{
	FLeafGrid Grid;
	FTestTree Tree(Grid.Column);
	Tree.Run();
	const uint32 Generation = Tree.Root.GetGeneration();
	EXPECT_FALSE(Tree.Root.NeedsFrame());
	EXPECT_FALSE(Tree.Run());
	Tree.ExpectWork(0, 0, 0);
	EXPECT_EQ(Tree.Work.Visited, 0);
	EXPECT_EQ(Tree.Root.GetGeneration(), Generation);
}

TEST(InvalidationTest, PaintOfOneVisitsOnlyItsAncestors)
{
	FLeafGrid Grid;
	FTestTree Tree(Grid.Column);
	Tree.Run();
	Grid.At(3, 4).SetColor(FLinearColor::Red);
	EXPECT_TRUE(Tree.Root.NeedsFrame());
	EXPECT_TRUE(Tree.Run());
	Tree.ExpectWork(0, 0, 1);
	EXPECT_LE(Tree.Work.Visited, 8);
	EXPECT_EQ(Tree.GetDamageBounds(), MakePixelRect(30, 40, 40, 50));
}

TEST(InvalidationTest, MeasuringToTheSameSizeLeavesTheParentAlone)
{
	FLeafGrid Grid;
	FTestTree Tree(Grid.Column);
	Tree.Run();
	Grid.At(3, 4).Invalidate(EInvalidateWidgetReason::Layout);
	Tree.Run();
	Tree.ExpectWork(1, 1, 1);
}

TEST(InvalidationTest, GrowthInARowMovesOnlyWhatFollows)
{
	FLeafGrid Grid;
	FTestTree Tree(Grid.Column);
	Tree.Run();
	Grid.At(7, 4).SetSize(FVector2D(15.0, 10.0));
	Tree.Run();
	// The leaf, its row and the column are measured; so is the frame around it, whose child grew in width.
	EXPECT_EQ(Tree.Work.Measured, 4);
	// The same four are arranged, and the two leaves that moved.
	EXPECT_EQ(Tree.Work.Arranged, 6);
	EXPECT_EQ(Tree.Work.Painted, 3);
	EXPECT_EQ(Grid.At(6, 4).NumPainted, 1);
	EXPECT_EQ(Grid.At(8, 4).NumPainted, 2);
	EXPECT_EQ(Grid.At(8, 5).NumPainted, 1);
}

TEST(InvalidationTest, GrowthThatDoesNotShowStopsWhereItEnds)
{
	FLeafGrid Grid;
	FTestTree Tree(Grid.Column);
	Grid.At(0, 0).SetSize(FVector2D(200.0, 10.0));
	Tree.Run();
	Grid.At(9, 4).SetSize(FVector2D(15.0, 10.0));
	Tree.Run();
	// The column is as wide as its widest row before and after, so the frame is left alone.
	EXPECT_EQ(Tree.Work.Measured, 3);
	EXPECT_EQ(Tree.Work.Painted, 1);
}

TEST(InvalidationTest, MarkingTwiceCostsOnce)
{
	FLeafGrid Grid;
	FTestTree Tree(Grid.Column);
	Tree.Run();
	for (int32 Time = 0; Time < 5; ++Time)
	{
		Grid.At(3, 4).Invalidate(EInvalidateWidgetReason::Paint);
		Grid.At(4, 4).Invalidate(EInvalidateWidgetReason::Paint);
	}
	Tree.Run();
	Tree.ExpectWork(0, 0, 2);
}

TEST(InvalidationTest, SamePaintingLeavesNoDamage)
{
	FLeafGrid Grid;
	FTestTree Tree(Grid.Column);
	Tree.Run();
	Grid.At(3, 4).Invalidate(EInvalidateWidgetReason::Paint);
	EXPECT_FALSE(Tree.Run());
	Tree.ExpectWork(0, 0, 1);
}

TEST(InvalidationTest, MoveDamagesBothPlaces)
{
	TSharedPtr<STestLeaf> Spacer;
	TSharedPtr<STestLeaf> Leaf;
	FTestTree Tree(SNew(SHorizontalBox)
		+ SHorizontalBox::Slot().AutoWidth().VAlign(VAlign_Top)[SAssignNew(Spacer, STestLeaf).Color(FLinearColor::Transparent)]
		+ SHorizontalBox::Slot().AutoWidth().VAlign(VAlign_Top)[SAssignNew(Leaf, STestLeaf)]);
	Tree.Run();
	Spacer->SetSize(FVector2D(50.0, 10.0));
	EXPECT_TRUE(Tree.Run());
	EXPECT_TRUE(Tree.GetDamageBounds().Contains(MakePixelRect(10, 0, 20, 10)));
	EXPECT_TRUE(Tree.GetDamageBounds().Contains(MakePixelRect(50, 0, 60, 10)));
}

TEST(InvalidationTest, RemovalLeavesDamageAndNothingElse)
{
	FLeafGrid Grid;
	FTestTree Tree(Grid.Column);
	Tree.Run();
	Tree.Root.ClearDamage();
	Grid.Rows[9]->RemoveSlot(Grid.Leaves[99]);
	EXPECT_TRUE(Tree.RunKeepingDamage());
	EXPECT_EQ(Tree.GetDamageBounds(), MakePixelRect(90, 90, 100, 100));
	EXPECT_EQ(Tree.GetElements().Num(), 99);
	EXPECT_EQ(Grid.At(8, 9).NumPainted, 1);
}

TEST(InvalidationTest, RemovalOfAMarkedWidgetForgetsNoMarkOfItsSiblings)
{
	FLeafGrid Grid;
	FTestTree Tree(Grid.Column);
	Tree.Run();
	Grid.At(3, 9).SetColor(FLinearColor::Red);
	Grid.At(5, 9).SetSize(FVector2D(14.0, 10.0));
	Grid.At(9, 9).SetColor(FLinearColor::Red);
	Grid.Rows[9]->RemoveSlot(Grid.Leaves[99]);
	Tree.Run();
	EXPECT_EQ(Grid.At(3, 9).NumPainted, 2);
	EXPECT_EQ(Tree.GetElements()[93].Colour, FColor(255, 0, 0));
	EXPECT_EQ(Tree.GetElements()[95].Bounds, MakePixelRect(50, 90, 64, 100));
	EXPECT_EQ(Tree.GetElements().Num(), 99);

	// Marks work as before, in what stayed and in what comes back.
	Grid.At(3, 9).SetColor(FLinearColor::Green);
	Grid.At(9, 9).SetColor(FLinearColor::Green);
	Grid.Rows[8]->AddSlot().AutoWidth()[Grid.Leaves[99]];
	Tree.Run();
	EXPECT_EQ(Tree.GetElements()[90].Colour, FColor(0, 255, 0));
	EXPECT_EQ(Tree.GetElements()[94].Colour, FColor(0, 255, 0));
	Grid.At(9, 9).SetColor(FLinearColor::Red);
	Tree.Run();
	EXPECT_EQ(Tree.GetElements()[90].Colour, FColor(255, 0, 0));
}

TEST(InvalidationTest, AddedWidgetIsDamageAloneInItsPlace)
{
	FLeafGrid Grid;
	FTestTree Tree(Grid.Column);
	Tree.Run();
	Grid.Rows[9]->AddSlot().AutoWidth()[SNew(STestLeaf)];
	EXPECT_TRUE(Tree.Run());
	EXPECT_EQ(Tree.GetDamageBounds(), MakePixelRect(100, 90, 110, 100));
	EXPECT_EQ(Tree.GetElements().Num(), 101);
}

TEST(InvalidationTest, EmptyBoxesLeaveNoDamageWhenTheyGo)
{
	TSharedPtr<SOverlay> Overlay;
	TSharedPtr<SWidget> Layer;
	FTestTree Tree(SAssignNew(Overlay, SOverlay)
		+ SOverlay::Slot()
		[
			SAssignNew(Layer, SOverlay)
			+ SOverlay::Slot().HAlign(HAlign_Left).VAlign(VAlign_Top)[SNew(STestLeaf)]
		]);
	Tree.Run();
	Tree.Root.ClearDamage();
	Overlay->RemoveSlot(Layer.ToSharedRef());
	Tree.RunKeepingDamage();
	EXPECT_EQ(Tree.GetDamageBounds(), MakePixelRect(0, 0, 10, 10));
}

TEST(InvalidationTest, InheritedTintRepaintsEverythingBelow)
{
	FLeafGrid Grid;
	FTestTree Tree(Grid.Column);
	Tree.Run();
	Tree.Top->SetColorAndOpacity(FLinearColor(1.0f, 0.5f, 0.5f, 1.0f));
	Tree.Run();
	Tree.ExpectWork(0, 0, NumGridWidgets);
}

TEST(InvalidationTest, OpacityRepaintsTheWidgetAndWhatIsInIt)
{
	FLeafGrid Grid;
	FTestTree Tree(Grid.Column);
	Tree.Run();
	Grid.Rows[2]->SetRenderOpacity(0.5f);
	Tree.Run();
	Tree.ExpectWork(0, 0, 11);
	EXPECT_EQ(Tree.GetElements()[20].Colour.A, 128);
	EXPECT_EQ(Tree.GetElements()[30].Colour.A, 255);
	Grid.At(0, 2).SetColor(FLinearColor::Red);
	Tree.Run();
	EXPECT_EQ(Tree.GetElements()[20].Colour.A, 128) << "repainted alone, it keeps the opacity of its row";
}

TEST(InvalidationTest, DisablingReachesWhatIsInside)
{
	FLeafGrid Grid;
	FTestTree Tree(Grid.Column);
	Tree.Run();
	Grid.Rows[2]->SetEnabled(false);
	Tree.Run();
	Tree.ExpectWork(0, 0, 11);
	EXPECT_FALSE(Grid.At(5, 2).bPaintedEnabled);
	EXPECT_TRUE(Grid.At(5, 2).IsEnabled());
}

TEST(InvalidationTest, VolatileWidgetIsPaintedOnEveryFrameThatBegins)
{
	FLeafGrid Grid;
	FTestTree Tree(Grid.Column);
	Grid.At(1, 1).ForceVolatile(true);
	Tree.Run();
	EXPECT_TRUE(Grid.At(1, 1).IsVolatile());
	Host::FWidgetActivity::BeginFrame(1.0, 0.1f);
	Tree.Run();
	Tree.ExpectWork(0, 0, 1);
	Grid.At(1, 1).ForceVolatile(false);
	Tree.Run();
	Host::FWidgetActivity::BeginFrame(2.0, 0.1f);
	Tree.Run();
	Tree.ExpectWork(0, 0, 0);
}

TEST(InvalidationTest, PrepassReasonMeasuresEverythingBelow)
{
	FLeafGrid Grid;
	FTestTree Tree(Grid.Column);
	Tree.Run();
	Grid.Rows[3]->Invalidate(EInvalidateWidgetReason::Prepass);
	Tree.Run();
	EXPECT_EQ(Tree.Work.Measured, 11);
	EXPECT_EQ(Tree.Work.Painted, 0);
}

TEST(InvalidationTest, ScaleOfTheWindowMeasuresEverything)
{
	FLeafGrid Grid;
	FTestTree Tree(Grid.Column);
	Tree.Run();
	Tree.Root.SetSize(FIntPoint(400, 300), 2.0f);
	Tree.Run();
	Tree.ExpectWork(NumGridWidgets, NumGridWidgets, NumGridWidgets);
	EXPECT_EQ(Tree.GetElements()[99].Bounds, MakePixelRect(180, 180, 200, 200));
}

TEST(InvalidationTest, MarkInAWidgetThatIsOutsideTheTreeIsSeenWhenItComesIn)
{
	FLeafGrid Grid;
	FTestTree Tree(SNew(SOverlay));
	Tree.Run();
	Tree.Top->SetContent(Grid.Column);
	Tree.Run();
	const TSharedPtr<SWidget> Taken = Tree.Top->TakeContent();
	Tree.Run();
	EXPECT_EQ(Tree.GetElements().Num(), 0);
	Grid.At(3, 4).SetSize(FVector2D(12.0, 12.0));
	Grid.At(3, 4).SetColor(FLinearColor::Red);
	EXPECT_FALSE(Tree.Root.NeedsFrame());
	Tree.Top->SetContent(Taken.ToSharedRef());
	EXPECT_TRUE(Tree.Run());
	const Host::FDrawElement Element = Tree.GetElements()[43];
	EXPECT_EQ(Element.Bounds, MakePixelRect(30, 40, 42, 52));
	EXPECT_EQ(Element.Colour, FColor(255, 0, 0));
}

TEST(InvalidationTest, WidgetMovesToAnotherParent)
{
	FLeafGrid Grid;
	FTestTree Tree(Grid.Column);
	Tree.Run();
	Grid.Rows[0]->AddSlot().AutoWidth()[Grid.Leaves[99]];
	Tree.Run();
	EXPECT_EQ(Grid.Rows[9]->NumSlots(), 10);
	EXPECT_EQ(Grid.Rows[9]->GetSlot(9).GetWidget(), SNullWidget::NullWidget);
	EXPECT_EQ(Grid.Leaves[99]->GetParentWidget(), Grid.Rows[0]);
	EXPECT_EQ(Tree.GetElements().Num(), 100);
	EXPECT_EQ(Grid.Leaves[99]->GetCachedGeometry().GetAbsolutePosition(), FVector2f(100.0f, 0.0f));
}

TEST(InvalidationTest, PaintedAfterTheChildrenLiesAboveThem)
{
	TSharedPtr<STestLeaf> Leaf;
	FTestTree Tree(SNew(STestFrame).DrawsOver(true)[SAssignNew(Leaf, STestLeaf).Color(FLinearColor::Red)]);
	Tree.Run();
	TArray<Host::FDrawElement> Elements = Tree.GetElements();
	ASSERT_EQ(Elements.Num(), 3);
	EXPECT_EQ(Elements[0].Colour, STestFrame::UnderColor().ToFColorSRGB());
	EXPECT_EQ(Elements[1].Colour, FColor(255, 0, 0));
	EXPECT_EQ(Elements[2].Colour, STestFrame::OverColor().ToFColorSRGB());
	Leaf->SetColor(FLinearColor::Blue);
	Tree.Run();
	Elements = Tree.GetElements();
	ASSERT_EQ(Elements.Num(), 3);
	EXPECT_EQ(Elements[1].Colour, FColor(0, 0, 255));
	EXPECT_EQ(Elements[2].Colour, STestFrame::OverColor().ToFColorSRGB());
}

TEST(InvalidationTest, DamageStaysWithinThePicture)
{
	FTestTree Tree(SNew(SHorizontalBox) + SHorizontalBox::Slot().AutoWidth()[SNew(STestLeaf).Size(FVector2D(1000.0, 1000.0))]);
	Tree.Run();
	EXPECT_EQ(Tree.GetDamageBounds(), MakePixelRect(0, 0, 400, 300));
}

TEST(InvalidationTest, TraversalOfAnAreaLeavesOutWhatIsElsewhere)
{
	FLeafGrid Grid;
	FTestTree Tree(Grid.Column);
	Tree.Run();
	EXPECT_EQ(Tree.GetElements(MakePixelRect(35, 45, 36, 46)).Num(), 1);
	EXPECT_EQ(Tree.GetElements(MakePixelRect(200, 200, 300, 300)).Num(), 0);
}
