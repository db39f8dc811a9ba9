#include "ApplicationTestTools.h"

#include "Widgets/Layout/SBorder.h"
#include "Widgets/SCanvas.h"

/** A box of 100 x 40 at (50, 50) that goes by a render transform when the mouse moves over it. */
class MovedGeometryTest : public FApplicationTest
{
protected:
	MovedGeometryTest()
	{
		Show(SNew(SCanvas)
			+ SCanvas::Slot().Position(FVector2D(50.0, 50.0)).Size(FVector2D(100.0, 40.0))
			[
				SAssignNew(Box, SBorder).OnMouseMove_Lambda([this](const FGeometry& Geometry, const FPointerEvent& Event)
				{
					Seen.Add(FVector2f(Geometry.AbsoluteToLocal(Event.GetScreenSpacePosition())));
					Went += Step;
					Box->SetRenderTransform(FSlateRenderTransform(Went));
					return FReply::Handled();
				})
			]);
	}

	~MovedGeometryTest() override { Box.Reset(); }

	TSharedPtr<SBorder> Box;
	TArray<FVector2f> Seen;
	FVector2f Step = FVector2f(10.0f, 5.0f);
	FVector2f Went = FVector2f(0.0f, 0.0f);
};

TEST_F(MovedGeometryTest, NextMoveMeetsTheNewPlaceWithoutAFrame)
{
	Move(100.0f, 70.0f);
	Move(100.0f, 70.0f);
	Move(101.0f, 70.0f);
	ASSERT_EQ(Seen.Num(), 3);
	EXPECT_EQ(Seen[0], FVector2f(50.0f, 20.0f));
	EXPECT_EQ(Seen[1], FVector2f(40.0f, 15.0f));
	EXPECT_EQ(Seen[2], FVector2f(31.0f, 10.0f));
}

TEST_F(MovedGeometryTest, BoxThatWentFromUnderTheMouseIsMovedNoMore)
{
	Step = FVector2f(0.0f, 200.0f);
	Move(100.0f, 70.0f);
	Move(100.0f, 71.0f);
	EXPECT_EQ(Seen.Num(), 1);
	Move(100.0f, 271.0f);
	EXPECT_EQ(Seen.Num(), 2);
}

TEST_F(MovedGeometryTest, CaptorMeetsItsNewPlaceToo)
{
	Box->SetOnMouseButtonDown(FPointerEventHandler::CreateLambda([this](const FGeometry&, const FPointerEvent&) { return FReply::Handled().CaptureMouse(Box.ToSharedRef()); }));
	Move(100.0f, 70.0f);
	Press();
	EXPECT_TRUE(Box->HasMouseCapture());
	Seen.Reset();
	Move(300.0f, 200.0f);
	Move(300.0f, 200.0f);
	ASSERT_EQ(Seen.Num(), 2);
	EXPECT_EQ(Seen[1] - Seen[0], -Step);
}
