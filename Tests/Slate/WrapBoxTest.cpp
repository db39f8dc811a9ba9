#include "Widgets/Layout/SWrapBox.h"

#include "LayoutTestTools.h"
#include "Widgets/SBoxPanel.h"

class WrapBoxTest : public FLayoutTest
{
protected:
	/** Three pieces of 40 x 10 in lines of 100. */
	TSharedRef<SWrapBox> MakeThree(EHorizontalAlignment Alignment = HAlign_Left)
	{
		return SNew(SWrapBox).PreferredSize(100.0f).InnerSlotPadding(FVector2D(4.0, 6.0)).HAlign(Alignment)
			+ SWrapBox::Slot()[Piece("A", 40, 10)]
			+ SWrapBox::Slot().Expose(Second)[Piece("B", 40, 10)]
			+ SWrapBox::Slot()[Piece("C", 40, 10)];
	}

	SWrapBox::FSlot* Second = nullptr;
};

TEST_F(WrapBoxTest, BeginsALineWhereAChildDoesNotFit)
{
	Show(MakeThree());
	EXPECT_EQ(GetDesiredSize(), FVector2f(84.0f, 26.0f));
	EXPECT_EQ(Dump(),
		"  SPiece [A] (0, 0) 40 x 10\n"
		"  SPiece [B] (44, 0) 40 x 10\n"
		"  SPiece [C] (0, 16) 40 x 10");
}

TEST_F(WrapBoxTest, ChildWiderThanTheLineHasItToItself)
{
	Show(SNew(SWrapBox).PreferredSize(100.0f)
		+ SWrapBox::Slot()[Piece("A", 10, 10)]
		+ SWrapBox::Slot()[Piece("B", 150, 10)]
		+ SWrapBox::Slot()[Piece("C", 10, 10)]);
	EXPECT_EQ(Dump(),
		"  SPiece [A] (0, 0) 10 x 10\n"
		"  SPiece [B] (0, 10) 150 x 10\n"
		"  SPiece [C] (0, 20) 10 x 10");
}

TEST_F(WrapBoxTest, UseAllottedSizeWrapsAtTheWidthAndWantsTheHeightInTheSameFrame)
{
	TSharedPtr<SWrapBox> Box;
	Show(SNew(SVerticalBox)
		+ SVerticalBox::Slot().AutoHeight()
		[
			SAssignNew(Box, SWrapBox).UseAllottedSize(true)
			+ SWrapBox::Slot()[Piece("A", 250, 10)]
			+ SWrapBox::Slot()[Piece("B", 250, 10)]
		]
		+ SVerticalBox::Slot().AutoHeight()[Piece("Below", 10, 10)]);
	EXPECT_EQ(Dump(),
		"  SWrapBox (0, 0) 400 x 20 SelfHitTestInvisible\n"
		"    SPiece [A] (0, 0) 250 x 10\n"
		"    SPiece [B] (0, 10) 250 x 10\n"
		"  SPiece [Below] (0, 20) 400 x 10");
}

TEST_F(WrapBoxTest, FillEmptySpaceTakesTheRestOfTheLine)
{
	const TSharedRef<SWrapBox> Box = MakeThree();
	Second->SetFillEmptySpace(true);
	Show(Box);
	EXPECT_EQ(Dump(),
		"  SPiece [A] (0, 0) 40 x 10\n"
		"  SPiece [B] (44, 0) 56 x 10\n"
		"  SPiece [C] (0, 16) 40 x 10");
}

TEST_F(WrapBoxTest, ForcedNewLineBegins)
{
	const TSharedRef<SWrapBox> Box = MakeThree();
	Second->SetForceNewLine(true);
	Show(Box);
	EXPECT_EQ(Dump(),
		"  SPiece [A] (0, 0) 40 x 10\n"
		"  SPiece [B] (0, 16) 40 x 10\n"
		"  SPiece [C] (44, 16) 40 x 10");
}

TEST_F(WrapBoxTest, FillLineWhenSizeLessThanGivesAWholeLineInNarrowBoxes)
{
	const TSharedRef<SWrapBox> Box = MakeThree();
	Second->SetFillLineWhenSizeLessThan(120.0f);
	Show(Box);
	EXPECT_EQ(Dump(),
		"  SPiece [A] (0, 0) 40 x 10\n"
		"  SPiece [B] (0, 16) 100 x 10\n"
		"  SPiece [C] (0, 32) 40 x 10");
	Box->SetWrapSize(130.0f);
	Frame();
	EXPECT_EQ(Dump(),
		"  SPiece [A] (0, 0) 40 x 10\n"
		"  SPiece [B] (44, 0) 40 x 10\n"
		"  SPiece [C] (88, 0) 40 x 10");
}

TEST_F(WrapBoxTest, LinesStandWhereTheAlignmentSays)
{
	Show(MakeThree(HAlign_Right));
	EXPECT_EQ(Dump(),
		"  SPiece [A] (16, 0) 40 x 10\n"
		"  SPiece [B] (60, 0) 40 x 10\n"
		"  SPiece [C] (60, 16) 40 x 10");
}

TEST_F(WrapBoxTest, AlignmentToFillWidensTheGaps)
{
	Show(MakeThree(HAlign_Fill));
	EXPECT_EQ(Dump(),
		"  SPiece [A] (0, 0) 40 x 10\n"
		"  SPiece [B] (60, 0) 40 x 10\n"
		"  SPiece [C] (0, 16) 40 x 10");
}

TEST_F(WrapBoxTest, VerticalLinesFollowEachOtherToTheRight)
{
	Show(SNew(SWrapBox).Orientation(Orient_Vertical).PreferredSize(25.0f).InnerSlotPadding(FVector2D(4.0, 6.0))
		+ SWrapBox::Slot()[Piece("A", 40, 10)]
		+ SWrapBox::Slot()[Piece("B", 30, 10)]);
	EXPECT_EQ(GetDesiredSize(), FVector2f(74.0f, 10.0f));
	EXPECT_EQ(Dump(), "  SPiece [A] (0, 0) 40 x 10\n  SPiece [B] (44, 0) 30 x 10");
}

TEST_F(WrapBoxTest, CollapsedChildLeavesNoGap)
{
	const TSharedRef<SPiece> B = Piece("B", 40, 10);
	Show(SNew(SWrapBox).PreferredSize(200.0f).InnerSlotPadding(FVector2D(4.0, 0.0))
		+ SWrapBox::Slot()[Piece("A", 40, 10)]
		+ SWrapBox::Slot()[B]
		+ SWrapBox::Slot()[Piece("C", 40, 10)]);
	B->SetVisibility(EVisibility::Collapsed);
	Frame();
	EXPECT_EQ(GetDesiredSize().X, 84.0f);
}

TEST_F(WrapBoxTest, EqualValuesInvalidateNothing)
{
	const TSharedRef<SWrapBox> Box = MakeThree();
	Show(Box);
	Box->SetWrapSize(100.0f);
	Box->SetInnerSlotPadding(FVector2D(4.0, 6.0));
	Box->SetUseAllottedSize(false);
	Box->SetOrientation(Orient_Horizontal);
	Box->SetHorizontalAlignment(HAlign_Left);
	Second->SetForceNewLine(false);
	ExpectNoWork();
}
