#include "LayoutTestTools.h"
#include "Widgets/Layout/SConstraintCanvas.h"
#include "Widgets/SCanvas.h"

class ConstraintCanvasTest : public FLayoutTest
{
protected:
	TSharedRef<SConstraintCanvas> MakeCanvas(FAnchors Anchors, FMargin Offset, FVector2D Alignment, bool bAutoSize = false)
	{
		return SNew(SConstraintCanvas)
			+ SConstraintCanvas::Slot().Anchors(Anchors).Offset(Offset).Alignment(Alignment).AutoSize(bAutoSize).Expose(Slot)[Piece("A", 50, 20)];
	}

	SConstraintCanvas::FSlot* Slot = nullptr;
};

TEST_F(ConstraintCanvasTest, PointAnchorTakesPositionAndSizeFromTheOffset)
{
	Show(MakeCanvas(FAnchors(0.0f, 0.0f), FMargin(10.0f, 20.0f, 100.0f, 30.0f), FVector2D(0.0, 0.0)));
	EXPECT_EQ(Dump(), "  SPiece [A] (10, 20) 100 x 30");
}

TEST_F(ConstraintCanvasTest, OffsetIsFromTheAnchor)
{
	Show(MakeCanvas(FAnchors(1.0f, 1.0f), FMargin(-10.0f, -20.0f, 100.0f, 30.0f), FVector2D(1.0, 1.0)));
	EXPECT_EQ(Dump(), "  SPiece [A] (290, 250) 100 x 30");
}

TEST_F(ConstraintCanvasTest, AlignmentPutsAPointOfTheChildAtTheAnchor)
{
	Show(MakeCanvas(FAnchors(0.5f, 0.5f), FMargin(0.0f, 0.0f, 100.0f, 30.0f), FVector2D(0.5, 0.0)));
	EXPECT_EQ(Dump(), "  SPiece [A] (150, 150) 100 x 30");
}

TEST_F(ConstraintCanvasTest, AutoSizeTakesTheSizeThatTheChildWants)
{
	Show(MakeCanvas(FAnchors(0.5f, 0.5f), FMargin(0.0f, 0.0f, 100.0f, 30.0f), FVector2D(0.5, 0.5), true));
	EXPECT_EQ(Dump(), "  SPiece [A] (175, 140) 50 x 20");
}

TEST_F(ConstraintCanvasTest, StretchingAnchorsMakeTheOffsetMargins)
{
	Show(MakeCanvas(FAnchors(0.0f, 0.0f, 1.0f, 1.0f), FMargin(10.0f, 20.0f, 30.0f, 40.0f), FVector2D(0.5, 0.5)));
	EXPECT_EQ(Dump(), "  SPiece [A] (10, 20) 360 x 240");
}

TEST_F(ConstraintCanvasTest, OneDirectionMayStretchAndTheOtherNot)
{
	Show(MakeCanvas(FAnchors(0.25f, 1.0f, 0.75f, 1.0f), FMargin(0.0f, 0.0f, 10.0f, 30.0f), FVector2D(0.0, 1.0)));
	EXPECT_EQ(Dump(), "  SPiece [A] (100, 270) 190 x 30");
}

TEST_F(ConstraintCanvasTest, NegativeSizesAreNone)
{
	Show(MakeCanvas(FAnchors(0.0f, 0.0f), FMargin(10.0f, 20.0f, -100.0f, 30.0f), FVector2D(0.5, 0.0)));
	EXPECT_EQ(Dump(), "  SPiece [A] (10, 20) 0 x 30");
}

TEST_F(ConstraintCanvasTest, HigherZOrderIsDrawnLaterAndEqualOnesAsAdded)
{
	const TSharedRef<SConstraintCanvas> Canvas = SNew(SConstraintCanvas)
		+ SConstraintCanvas::Slot().ZOrder(1.0f)[Piece("Top", 10, 10)]
		+ SConstraintCanvas::Slot()[Piece("First", 10, 10)]
		+ SConstraintCanvas::Slot().Expose(Slot)[Piece("Second", 10, 10)]
		+ SConstraintCanvas::Slot()[Piece("Third", 10, 10)];
	const auto GetOrder = [&Canvas]()
	{
		std::string Order;
		Canvas->GetChildren()->ForEachWidget([&Order](SWidget& Child) { Order += std::string(TCHAR_TO_UTF8(*Child.GetTag().ToString())) + " "; });
		return Order;
	};
	EXPECT_EQ(GetOrder(), "First Second Third Top ");
	Slot->SetZOrder(2.0f);
	EXPECT_EQ(GetOrder(), "First Third Top Second ");
	Slot->SetZOrder(0.0f);
	EXPECT_EQ(GetOrder(), "First Second Third Top ");
}

TEST_F(ConstraintCanvasTest, WantsRoomForChildrenThatAreHeldAtAnEdge)
{
	Show(MakeCanvas(FAnchors(0.0f, 0.5f), FMargin(10.0f, 20.0f, 100.0f, 30.0f), FVector2D(0.0, 0.0)));
	EXPECT_EQ(GetDesiredSize(), FVector2f(110.0f, 30.0f));
}

TEST_F(ConstraintCanvasTest, MovedSlotPaintsItsChildOnly)
{
	const TSharedRef<SConstraintCanvas> Canvas = MakeCanvas(FAnchors(0.5f, 0.5f), FMargin(0.0f, 0.0f, 100.0f, 30.0f), FVector2D(0.0, 0.0));
	Canvas->AddSlot()[Piece("B", 10, 10)];
	Show(Canvas);
	Slot->SetOffset(FMargin(5.0f, 0.0f, 100.0f, 30.0f));
	ExpectFrame(1, 2, 2);
}

TEST_F(ConstraintCanvasTest, EqualValuesInvalidateNothing)
{
	Show(MakeCanvas(FAnchors(0.5f, 0.5f), FMargin(0.0f, 0.0f, 100.0f, 30.0f), FVector2D(0.0, 0.0)));
	Slot->SetOffset(FMargin(0.0f, 0.0f, 100.0f, 30.0f));
	Slot->SetAnchors(FAnchors(0.5f, 0.5f));
	Slot->SetAlignment(FVector2D(0.0, 0.0));
	Slot->SetAutoSize(false);
	Slot->SetZOrder(0.0f);
	ExpectNoWork();
}

class CanvasTest : public FLayoutTest
{
};

TEST_F(CanvasTest, PlacesChildrenByPositionAndSize)
{
	Show(SNew(SCanvas)
		+ SCanvas::Slot().Position(FVector2D(10.0, 20.0)).Size(FVector2D(30.0, 40.0))[Piece("A", 5, 5)]
		+ SCanvas::Slot().Position(FVector2D(100.0, 100.0)).Size(FVector2D(30.0, 40.0)).HAlign(HAlign_Center).VAlign(VAlign_Bottom)[Piece("B", 5, 5)]);
	EXPECT_EQ(GetDesiredSize(), FVector2f(0.0f, 0.0f));
	EXPECT_EQ(Dump(), "  SPiece [A] (10, 20) 30 x 40\n  SPiece [B] (85, 60) 30 x 40");
}

TEST_F(CanvasTest, GetterOfAPositionIsFollowed)
{
	FVector2D Place(1.0, 2.0);
	Show(SNew(SCanvas)
		+ SCanvas::Slot().Position(TAttribute<FVector2D>::CreateLambda([&Place]() { return Place; })).Size(FVector2D(3.0, 4.0))[Piece("A", 5, 5)]);
	Place = FVector2D(7.0, 8.0);
	Host::FAttributeBindings::UpdateAll();
	Frame();
	EXPECT_EQ(Dump(), "  SPiece [A] (7, 8) 3 x 4");
}
