#include "Math/Box2D.h"
#include "Math/IntRect.h"
#include "Math/Vector.h"
#include "Math/Vector2D.h"
#include "Math/Vector4.h"

#include "TestText.h"
#include "gtest/gtest.h"

#include <type_traits>

TEST(VectorTest, TheUnmarkedVectorsAreOfDoublePrecision)
{
	static_assert(std::is_same_v<double, decltype(FVector2D::X)>);
	static_assert(std::is_same_v<float, decltype(FVector2f::X)>);
	static_assert(std::is_same_v<double, decltype(FVector::X)>);
	static_assert(std::is_same_v<double, decltype(FVector4::X)>);
}

TEST(VectorTest, PrecisionChangesOnlyOnRequest)
{
	static_assert(!std::is_convertible_v<FVector2D, FVector2f>);
	static_assert(!std::is_convertible_v<FVector2f, FVector2D>);
	EXPECT_EQ(FVector2f(0.5f, 2.0f), FVector2f(FVector2D(0.5, 2.0)));
}

TEST(VectorTest, ADefaultFourVectorIsAPlace)
{
	EXPECT_EQ(FVector4(0, 0, 0, 1), FVector4());
}

TEST(VectorTest, AFourVectorIsMadeOfTwoPairs)
{
	EXPECT_EQ(FVector4(1, 2, 3, 4), FVector4(FVector2D(1, 2), FVector2D(3, 4)));
	EXPECT_EQ(FVector4(1, 2, 3, 1), FVector4(FVector(1, 2, 3)));
}

TEST(VectorTest, ConstantsAreZeroAndOne)
{
	EXPECT_EQ(FVector2D(0, 0), FVector2D::ZeroVector);
	EXPECT_EQ(FVector2D(1, 1), FVector2D::UnitVector);
	EXPECT_EQ(FVector(0, 0, 1), FVector::UpVector);
}

TEST(VectorTest, ArithmeticIsPerComponent)
{
	EXPECT_EQ(FVector2D(4, 6), FVector2D(1, 2) + FVector2D(3, 4));
	EXPECT_EQ(FVector2D(3, 8), FVector2D(1, 2) * FVector2D(3, 4));
	EXPECT_EQ(FVector2D(2, 4), FVector2D(1, 2) * 2);
	EXPECT_EQ(FVector2D(2, 4), 2.0f * FVector2D(1, 2));
	EXPECT_EQ(FVector2D(0.5, 1), FVector2D(1, 2) / 2);
	EXPECT_EQ(FVector(3, 6, 9), FVector(1, 2, 3) * 3);
}

TEST(VectorTest, LengthAndDistanceAreEuclidean)
{
	EXPECT_EQ(5.0, FVector2D(3, 4).Size());
	EXPECT_EQ(25.0, FVector2D(3, 4).SizeSquared());
	EXPECT_EQ(5.0, FVector2D::Distance(FVector2D(1, 1), FVector2D(4, 5)));
	EXPECT_EQ(3.0, FVector(1, 2, 2).Size());
}

TEST(VectorTest, NormalOfNothingIsZero)
{
	EXPECT_EQ(FVector2D(0, 0), FVector2D(0, 0).GetSafeNormal());
	EXPECT_TRUE(FVector2D(0, 5).GetSafeNormal().Equals(FVector2D(0, 1)));
	FVector Tiny(1e-9, 0, 0);
	EXPECT_FALSE(Tiny.Normalize());
}

TEST(VectorTest, CrossProductsFollowTheAxes)
{
	EXPECT_EQ(FVector(0, 0, 1), FVector(1, 0, 0) ^ FVector(0, 1, 0));
	EXPECT_EQ(1.0, FVector2D(1, 0) ^ FVector2D(0, 1));
	EXPECT_EQ(11.0, FVector2D(1, 2) | FVector2D(3, 4));
}

TEST(VectorTest, RotationLeadsFromXTowardY)
{
	EXPECT_TRUE(FVector2D(1, 0).GetRotated(90).Equals(FVector2D(0, 1), 1e-9));
}

TEST(VectorTest, TextFormComesBack)
{
	EXPECT_EQ("X=1.500 Y=-2.000", ToUtf8(FVector2D(1.5, -2).ToString()));
	FVector Read(0, 0, 0);
	EXPECT_TRUE(Read.InitFromString(FVector(1.5, -2, 30).ToString()));
	EXPECT_EQ(FVector(1.5, -2, 30), Read);
	EXPECT_FALSE(Read.InitFromString(TEXT("X=1 Y=2")));
}

TEST(VectorTest, EqualZerosHashAlike)
{
	EXPECT_EQ(GetTypeHash(FVector2D(0.0, 0.0)), GetTypeHash(FVector2D(-0.0, 0.0)));
}

TEST(VectorTest, IntPointsCompareExactly)
{
	EXPECT_EQ(FIntPoint(1, 2), FIntPoint(1, 2));
	EXPECT_NE(FIntPoint(1, 2), FIntPoint(2, 1));
	EXPECT_EQ(FIntPoint(0, 0), FIntPoint::ZeroValue);
	EXPECT_EQ("X=3 Y=-4", ToUtf8(FIntPoint(3, -4).ToString()));
	EXPECT_EQ(5, FIntPoint(3, -4).Size());
}

TEST(VectorTest, VectorsRoundToIntPoints)
{
	EXPECT_EQ(FIntPoint(3, -2), FVector2D(2.5, -2.4).IntPoint());
}

TEST(VectorTest, AnIntRectExcludesItsMaximum)
{
	const FIntRect Rect(0, 0, 10, 5);
	EXPECT_TRUE(Rect.Contains(FIntPoint(0, 0)));
	EXPECT_FALSE(Rect.Contains(FIntPoint(10, 0)));
	EXPECT_EQ(50, Rect.Area());
	EXPECT_FALSE(Rect.Intersect(FIntRect(10, 0, 20, 5)));
}

TEST(VectorTest, ClippingRectsThatShareNothingLeavesAnEmptyOne)
{
	FIntRect Rect(0, 0, 10, 10);
	Rect.Clip(FIntRect(20, 20, 30, 30));
	EXPECT_TRUE(Rect.IsEmpty());
}

TEST(VectorTest, ABoxKnowsWhetherItHoldsAnything)
{
	FBox2D Box(ForceInit);
	EXPECT_FALSE(Box.bIsValid);
	Box += FVector2D(2, 3);
	Box += FVector2D(-1, 5);
	EXPECT_EQ(FBox2D(FVector2D(-1, 3), FVector2D(2, 5)), Box);
	EXPECT_FALSE(Box.Overlap(FBox2D(FVector2D(10, 10), FVector2D(11, 11))).bIsValid);
}
