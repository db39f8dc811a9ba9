#include "Widgets/Layout/SGridPanel.h"

#include "LayoutTestTools.h"
#include "Widgets/Layout/SUniformGridPanel.h"

class GridPanelTest : public FLayoutTest
{
};

TEST_F(GridPanelTest, ColumnsAndRowsAreAsLargeAsTheirLargestChildren)
{
	Show(SNew(SGridPanel)
		+ SGridPanel::Slot(0, 0)[Piece("A", 10, 20)]
		+ SGridPanel::Slot(1, 0)[Piece("B", 30, 5)]
		+ SGridPanel::Slot(0, 1)[Piece("C", 40, 7)]);
	EXPECT_EQ(GetDesiredSize(), FVector2f(70.0f, 27.0f));
	EXPECT_EQ(Dump(),
		"  SPiece [A] (0, 0) 40 x 20\n"
		"  SPiece [B] (40, 0) 30 x 20\n"
		"  SPiece [C] (0, 20) 40 x 7");
}

TEST_F(GridPanelTest, PaddingAndAlignmentWorkWithinTheCell)
{
	Show(SNew(SGridPanel)
		+ SGridPanel::Slot(0, 0)[Piece("A", 100, 50)]
		+ SGridPanel::Slot(0, 1).Padding(FMargin(5.0f)).HAlign(HAlign_Right)[Piece("B", 10, 10)]);
	EXPECT_EQ(Dump(),
		"  SPiece [A] (0, 0) 100 x 50\n"
		"  SPiece [B] (85, 55) 10 x 10");
}

TEST_F(GridPanelTest, FillingColumnsShareTheRestByTheirCoefficients)
{
	Show(SNew(SGridPanel).FillColumn(1, 1.0f).FillColumn(2, 3.0f).FillRow(0, 1.0f)
		+ SGridPanel::Slot(0, 0)[Piece("A", 40, 10)]
		+ SGridPanel::Slot(1, 0)[Piece("B", 10, 10)]
		+ SGridPanel::Slot(2, 0)[Piece("C", 10, 10)]);
	EXPECT_EQ(Dump(),
		"  SPiece [A] (0, 0) 40 x 300\n"
		"  SPiece [B] (40, 0) 90 x 300\n"
		"  SPiece [C] (130, 0) 270 x 300");
}

TEST_F(GridPanelTest, FillingColumnsAreNeverNegative)
{
	Show(SNew(SGridPanel).FillColumn(1, 1.0f)
		+ SGridPanel::Slot(0, 0)[Piece("A", 900, 10)]
		+ SGridPanel::Slot(1, 0)[Piece("B", 10, 10)]);
	EXPECT_EQ(Dump(),
		"  SPiece [A] (0, 0) 900 x 10\n"
		"  SPiece [B] (900, 0) 0 x 10");
}

TEST_F(GridPanelTest, SpanningChildLiesOverItsColumns)
{
	Show(SNew(SGridPanel)
		+ SGridPanel::Slot(0, 0)[Piece("A", 10, 10)]
		+ SGridPanel::Slot(1, 0)[Piece("B", 20, 10)]
		+ SGridPanel::Slot(0, 1).ColumnSpan(2)[Piece("C", 25, 10)]);
	EXPECT_EQ(Dump(),
		"  SPiece [A] (0, 0) 10 x 10\n"
		"  SPiece [B] (10, 0) 20 x 10\n"
		"  SPiece [C] (0, 10) 30 x 10");
}

TEST_F(GridPanelTest, WhatASpanLacksIsSharedByItsColumns)
{
	Show(SNew(SGridPanel)
		+ SGridPanel::Slot(0, 0)[Piece("A", 10, 10)]
		+ SGridPanel::Slot(1, 0)[Piece("B", 20, 10)]
		+ SGridPanel::Slot(0, 1).ColumnSpan(2)[Piece("C", 50, 10)]);
	EXPECT_EQ(Dump(),
		"  SPiece [A] (0, 0) 20 x 10\n"
		"  SPiece [B] (20, 0) 30 x 10\n"
		"  SPiece [C] (0, 10) 50 x 10");
}

TEST_F(GridPanelTest, NudgeMovesWithoutEffectOnOthers)
{
	Show(SNew(SGridPanel)
		+ SGridPanel::Slot(0, 0).Nudge(FVector2D(3.0, -4.0))[Piece("A", 10, 10)]
		+ SGridPanel::Slot(1, 0)[Piece("B", 10, 10)]);
	EXPECT_EQ(Dump(),
		"  SPiece [A] (3, -4) 10 x 10\n"
		"  SPiece [B] (10, 0) 10 x 10");
}

TEST_F(GridPanelTest, HigherLayersAreDrawnLater)
{
	const TSharedRef<SGridPanel> Panel = SNew(SGridPanel)
		+ SGridPanel::Slot(0, 0, SGridPanel::Layer(1))[Piece("Upper", 10, 10)]
		+ SGridPanel::Slot(0, 0)[Piece("Lower", 10, 10)];
	Panel->AddSlot(0, 0)[Piece("LowerToo", 10, 10)];
	Show(Panel);
	EXPECT_EQ(Dump(),
		"  SPiece [Lower] (0, 0) 10 x 10\n"
		"  SPiece [LowerToo] (0, 0) 10 x 10\n"
		"  SPiece [Upper] (0, 0) 10 x 10");
}

TEST_F(GridPanelTest, ChangedLayerChangesTheOrder)
{
	SGridPanel::FSlot* Slot = nullptr;
	Show(SNew(SGridPanel)
		+ SGridPanel::Slot(0, 0).Expose(Slot)[Piece("A", 10, 10)]
		+ SGridPanel::Slot(0, 0)[Piece("B", 10, 10)]);
	Slot->SetLayer(2);
	Frame();
	EXPECT_EQ(Dump(), "  SPiece [B] (0, 0) 10 x 10\n  SPiece [A] (0, 0) 10 x 10");
}

TEST_F(GridPanelTest, CollapsedChildTakesNoColumn)
{
	const TSharedRef<SPiece> Last = Piece("B", 30, 10);
	Show(SNew(SGridPanel)
		+ SGridPanel::Slot(0, 0)[Piece("A", 10, 10)]
		+ SGridPanel::Slot(5, 5)[Last]);
	Last->SetVisibility(EVisibility::Collapsed);
	Frame();
	EXPECT_EQ(GetDesiredSize(), FVector2f(10.0f, 10.0f));
}

TEST_F(GridPanelTest, RemovedFillGivesTheColumnItsContentsWidth)
{
	const TSharedRef<SGridPanel> Panel = SNew(SGridPanel).FillColumn(0, 1.0f)
		+ SGridPanel::Slot(0, 0)[Piece("A", 10, 10)];
	Show(Panel);
	Panel->ClearFill();
	Frame();
	EXPECT_EQ(Dump(), "  SPiece [A] (0, 0) 10 x 10");
}

TEST_F(GridPanelTest, GetterOfAFillIsFollowed)
{
	float Share = 1.0f;
	Show(SNew(SGridPanel).FillColumn(0, TAttribute<float>::CreateLambda([&Share]() { return Share; })).FillColumn(1, 1.0f)
		+ SGridPanel::Slot(0, 0)[Piece("A", 10, 10)]
		+ SGridPanel::Slot(1, 0)[Piece("B", 10, 10)]);
	Share = 3.0f;
	Host::FAttributeBindings::UpdateAll();
	Frame();
	EXPECT_EQ(Dump(), "  SPiece [A] (0, 0) 300 x 10\n  SPiece [B] (300, 0) 100 x 10");
}

TEST_F(GridPanelTest, RemovedSlotIsGone)
{
	const TSharedRef<SPiece> A = Piece("A", 10, 10);
	const TSharedRef<SGridPanel> Panel = SNew(SGridPanel) + SGridPanel::Slot(0, 0)[A] + SGridPanel::Slot(1, 0)[Piece("B", 20, 10)];
	Show(Panel);
	EXPECT_TRUE(Panel->RemoveSlot(A));
	EXPECT_FALSE(Panel->RemoveSlot(A));
	Frame();
	EXPECT_EQ(Dump(), "  SPiece [B] (0, 0) 20 x 10");
}

TEST_F(GridPanelTest, CellsFarOutsideBecomeTheNearestOnes)
{
	SGridPanel::FSlot* Slot = nullptr;
	const TSharedRef<SGridPanel> Panel = SNew(SGridPanel).FillColumn(-5, 0.0f)
		+ SGridPanel::Slot(-3, 2000000000).ColumnSpan(2000000000).Expose(Slot)[Piece("A", 10, 10)];
	Show(Panel);
	EXPECT_EQ(Slot->GetColumn(), 0);
	EXPECT_EQ(Slot->GetRow(), SGridPanel::MaxTracks - 1);
	Slot->SetRowSpan(2000000000);
	Slot->SetColumnSpan(-1);
	Panel->SetRowFill(2000000000, 0.0f);
	Frame();
	EXPECT_EQ(Slot->GetColumnSpan(), 1);
	EXPECT_EQ(GetDesiredSize(), FVector2f(10.0f, 10.0f));
}

TEST_F(GridPanelTest, EqualValuesInvalidateNothing)
{
	SGridPanel::FSlot* Slot = nullptr;
	const TSharedRef<SGridPanel> Panel = SNew(SGridPanel).FillColumn(0, 2.0f) + SGridPanel::Slot(0, 0).Expose(Slot)[Piece("A", 10, 10)];
	Show(Panel);
	Slot->SetColumn(0);
	Slot->SetRow(0);
	Slot->SetColumnSpan(1);
	Slot->SetRowSpan(1);
	Slot->SetLayer(0);
	Slot->SetNudge(FVector2D::ZeroVector);
	Panel->SetColumnFill(0, 2.0f);
	ExpectNoWork();
}

class UniformGridPanelTest : public FLayoutTest
{
};

TEST_F(UniformGridPanelTest, WantsCellsOfTheLargestChild)
{
	Show(SNew(SUniformGridPanel).SlotPadding(FMargin(1.0f))
		+ SUniformGridPanel::Slot(0, 0)[Piece("A", 10, 30)]
		+ SUniformGridPanel::Slot(1, 1)[Piece("B", 20, 5)]);
	EXPECT_EQ(GetDesiredSize(), FVector2f(44.0f, 64.0f));
}

TEST_F(UniformGridPanelTest, SharesItsRoomEvenly)
{
	Show(SNew(SUniformGridPanel).SlotPadding(FMargin(1.0f))
		+ SUniformGridPanel::Slot(0, 0)[Piece("A", 10, 30)]
		+ SUniformGridPanel::Slot(1, 1).HAlign(HAlign_Center).VAlign(VAlign_Bottom)[Piece("B", 20, 5)]);
	EXPECT_EQ(Dump(),
		"  SPiece [A] (1, 1) 198 x 148\n"
		"  SPiece [B] (290, 294) 20 x 5");
}

TEST_F(UniformGridPanelTest, CellsAreNotWantedSmallerThanTheMinimum)
{
	Show(SNew(SUniformGridPanel).MinDesiredSlotWidth(50.0f).MinDesiredSlotHeight(40.0f)
		+ SUniformGridPanel::Slot(2, 0)[Piece("A", 10, 10)]);
	EXPECT_EQ(GetDesiredSize(), FVector2f(150.0f, 40.0f));
}
