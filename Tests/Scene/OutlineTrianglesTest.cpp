#include "Host/OutlineTriangles.h"

#include <gtest/gtest.h>

using namespace Host;

namespace
{
	double SumTriangles(const TArray<FVector2D>& Points, const TArray<int32>& Triangles)
	{
		double Sum = 0.0;
		for (int32 First = 0; First < Triangles.Num(); First += 3)
		{
			const FVector2D Corners[] = { Points[Triangles[First]], Points[Triangles[First + 1]], Points[Triangles[First + 2]] };
			const double Area = GetSignedArea(Corners);
			EXPECT_GE(Area, 0.0) << "a triangle is turned over";
			Sum += Area;
		}
		return Sum;
	}

	void ExpectFilled(const TArray<FVector2D>& Points)
	{
		TArray<int32> Triangles;
		ASSERT_TRUE(TriangulateOutline(Points, Triangles));
		EXPECT_EQ(Triangles.Num(), 3 * (Points.Num() - 2));
		EXPECT_NEAR(SumTriangles(Points, Triangles), GetSignedArea(Points), 1.0e-9);
	}
}

TEST(OutlineTriangles, FillASquare)
{
	ExpectFilled({ { 0.0, 0.0 }, { 4.0, 0.0 }, { 4.0, 4.0 }, { 0.0, 4.0 } });
}

TEST(OutlineTriangles, FillAnOutlineWithInwardCorners)
{
	ExpectFilled({ { 0.0, 0.0 }, { 6.0, 0.0 }, { 6.0, 2.0 }, { 2.0, 2.0 }, { 2.0, 4.0 }, { 6.0, 4.0 }, { 6.0, 6.0 }, { 0.0, 6.0 } });
}

TEST(OutlineTriangles, FillACombWithManyTeeth)
{
	constexpr int32 Teeth = 20;
	TArray<FVector2D> Points = { { 0.0, -1.0 }, { 2.0 * Teeth, -1.0 } };
	for (int32 Tooth = Teeth; Tooth > 0; --Tooth)
	{
		Points.Add(FVector2D(2.0 * Tooth, 5.0));
		Points.Add(FVector2D(2.0 * Tooth - 1.0, 0.0));
	}
	Points.Add(FVector2D(0.0, 5.0));
	ExpectFilled(Points);
}

TEST(OutlineTriangles, CornersOnAStraightSideAreLeftOut)
{
	const TArray<FVector2D> Points = { { 0.0, 0.0 }, { 2.0, 0.0 }, { 4.0, 0.0 }, { 4.0, 4.0 }, { 0.0, 4.0 } };
	TArray<int32> Triangles;

	ASSERT_TRUE(TriangulateOutline(Points, Triangles));

	EXPECT_NEAR(SumTriangles(Points, Triangles), 16.0, 1.0e-9);
}

TEST(OutlineTriangles, CrossingSidesAreRefused)
{
	TArray<int32> Triangles;
	EXPECT_FALSE(TriangulateOutline({ { 0.0, 0.0 }, { 4.0, 4.0 }, { 4.0, 0.0 }, { 0.0, 4.0 } }, Triangles));
}

TEST(OutlineTriangles, AreasHaveTheSignOfTheTurn)
{
	EXPECT_DOUBLE_EQ(GetSignedArea({ { 0.0, 0.0 }, { 3.0, 0.0 }, { 3.0, 2.0 }, { 0.0, 2.0 } }), 6.0);
	EXPECT_DOUBLE_EQ(GetSignedArea({ { 0.0, 2.0 }, { 3.0, 2.0 }, { 3.0, 0.0 }, { 0.0, 0.0 } }), -6.0);
}
