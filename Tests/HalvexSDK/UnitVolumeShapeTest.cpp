#include "EngineTest.h"

#include "Records/UnitVolumeShape.h"

namespace
{
	TEST(FUnitVolumeShapeTest, BoxHasItsBoundsAndCorners)
	{
		const FUnitVolumeShape Box = FUnitVolumeShape::MakeBox(FVector(0.0, 0.0, 0.0), FVector(2.0, 3.0, 4.0));
		EXPECT_TRUE(Box.IsBox());
		EXPECT_TRUE(Box.HasVolume());
		EXPECT_EQ(Box.GetGroundArea(), 6.0);
		EXPECT_EQ(Box.GetCorners().Num(), 4);
		EXPECT_TRUE(Box.Contains(FVector(1.0, 1.0, 1.0)));
		EXPECT_FALSE(Box.Contains(FVector(1.0, 1.0, 4.5)));
		EXPECT_FALSE(FUnitVolumeShape().HasVolume());
	}

	TEST(FUnitVolumeShapeTest, ExtrusionHasTheBoundsOfItsOutline)
	{
		// An L.
		const FUnitVolumeShape Shape = FUnitVolumeShape::MakeExtrusion(
			{ FVector2D(0.0, 0.0), FVector2D(4.0, 0.0), FVector2D(4.0, 2.0), FVector2D(2.0, 2.0), FVector2D(2.0, 4.0), FVector2D(0.0, 4.0) }, 10.0, 13.0);
		EXPECT_FALSE(Shape.IsBox());
		EXPECT_EQ(Shape.Min, FVector(0.0, 0.0, 10.0));
		EXPECT_EQ(Shape.Max, FVector(4.0, 4.0, 13.0));
		EXPECT_EQ(Shape.GetGroundArea(), 12.0);
		EXPECT_TRUE(Shape.Contains(FVector(1.0, 3.0, 11.0)));
		EXPECT_FALSE(Shape.Contains(FVector(3.0, 3.0, 11.0)));
		EXPECT_FALSE(Shape.Contains(FVector(1.0, 3.0, 9.0)));
	}

	TEST(FUnitVolumeShapeTest, CornersGoRoundTheSameWayHoweverTheOutlineWasGiven)
	{
		const TArray<FVector2D> Clockwise = { FVector2D(0.0, 0.0), FVector2D(0.0, 1.0), FVector2D(1.0, 1.0), FVector2D(1.0, 0.0) };
		const TArray<FVector2D> Corners = FUnitVolumeShape::MakeExtrusion(Clockwise, 0.0, 1.0).GetCorners();
		EXPECT_EQ(Corners[0], FVector2D(1.0, 0.0));
		EXPECT_EQ(Corners[1], FVector2D(1.0, 1.0));
	}
}
