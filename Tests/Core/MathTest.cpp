#include "Math/UnrealMathUtility.h"

#include "CoreMinimal.h"
#include "gtest/gtest.h"

#include <cmath>

TEST(MathTest, ClampKeepsValuesWithinTheBounds)
{
	EXPECT_EQ(5, FMath::Clamp(5, 0, 10));
	EXPECT_EQ(0, FMath::Clamp(-1, 0, 10));
	EXPECT_EQ(10, FMath::Clamp(11, 0, 10));
}

TEST(MathTest, ClampWithInvertedBoundsGivesTheLowerBoundArgument)
{
	EXPECT_EQ(10, FMath::Clamp(5, 10, 0));
	EXPECT_EQ(10, FMath::Clamp(-5, 10, 0));
}

TEST(MathTest, MixedTypesMeetAsInArithmetic)
{
	static_assert(std::is_same_v<double, decltype(FMath::Max(1, 2.0))>);
	static_assert(std::is_same_v<float, decltype(FMath::Min(1.0f, 2))>);
	EXPECT_EQ(2.5, FMath::Max(2, 2.5));
	EXPECT_EQ(0.5f, FMath::Clamp(0, 0.5f, 2.0f));
}

TEST(MathTest, RoundingGoesHalfUp)
{
	EXPECT_EQ(3, FMath::RoundToInt(2.5f));
	EXPECT_EQ(-2, FMath::RoundToInt(-2.5f));
	EXPECT_EQ(3, FMath::RoundToInt(2.5));
	EXPECT_EQ(-3, FMath::RoundToInt(-2.6));
}

TEST(MathTest, TruncatingGoesTowardZeroAndFlooringDown)
{
	EXPECT_EQ(-1, FMath::TruncToInt(-1.9f));
	EXPECT_EQ(1, FMath::TruncToInt(1.9f));
	EXPECT_EQ(-2, FMath::FloorToInt(-1.1f));
	EXPECT_EQ(-1, FMath::CeilToInt(-1.9f));
}

TEST(MathTest, LerpReachesBothEndsAndGoesBeyond)
{
	EXPECT_FLOAT_EQ(2.0f, FMath::Lerp(2.0f, 4.0f, 0.0f));
	EXPECT_FLOAT_EQ(4.0f, FMath::Lerp(2.0f, 4.0f, 1.0f));
	EXPECT_FLOAT_EQ(5.0f, FMath::Lerp(2.0f, 4.0f, 1.5f));
	EXPECT_EQ(FVector2D(1.5, 3.0), FMath::Lerp(FVector2D(1, 2), FVector2D(2, 4), 0.5f));
}

TEST(MathTest, LerpOfWholeNumbersRounds)
{
	EXPECT_EQ(10, FMath::Lerp(0, 10, 1.0f));
	EXPECT_EQ(3, FMath::Lerp(0, 10, 0.25f));
}

TEST(MathTest, NearlyEqualHasATolerance)
{
	EXPECT_TRUE(FMath::IsNearlyEqual(1.0f, 1.05f, 0.1f));
	EXPECT_FALSE(FMath::IsNearlyEqual(1.0f, 1.05f));
	EXPECT_TRUE(FMath::IsNearlyZero(1e-9));
}

TEST(MathTest, AnglesUnwindToHalfATurnEitherWay)
{
	EXPECT_NEAR(10.0, FMath::UnwindDegrees(370.0), 1e-9);
	EXPECT_NEAR(-170.0, FMath::UnwindDegrees(190.0), 1e-9);
	EXPECT_NEAR(-20.0, FMath::FindDeltaAngleDegrees(10.0, 350.0), 1e-9);
}

TEST(MathTest, RangePercentIsAFraction)
{
	EXPECT_FLOAT_EQ(0.25f, FMath::GetRangePct(2.0f, 6.0f, 3.0f));
	EXPECT_EQ(1.0, FMath::GetRangePct(2.0, 2.0, 2.0));
	EXPECT_EQ(0.0, FMath::GetRangePct(2.0, 2.0, 1.0));
}

TEST(MathTest, PowersOfTwoAreFound)
{
	EXPECT_EQ(1u, FMath::RoundUpToPowerOfTwo(0));
	EXPECT_EQ(64u, FMath::RoundUpToPowerOfTwo(33));
	EXPECT_EQ(5u, FMath::FloorLog2(63));
	EXPECT_EQ(6u, FMath::CeilLogTwo(33));
	EXPECT_TRUE(FMath::IsPowerOfTwo(32));
	EXPECT_FALSE(FMath::IsPowerOfTwo(33));
}

TEST(MathTest, RandomSeriesRepeatsWithItsSeed)
{
	FMath::RandInit(7);
	const int32 First[] = {FMath::RandRange(1, 6), FMath::RandRange(1, 6), FMath::RandRange(1, 6)};
	FMath::RandInit(7);
	for (const int32 Expected : First)
	{
		EXPECT_EQ(Expected, FMath::RandRange(1, 6));
	}
}

TEST(MathTest, RandomNumbersStayInTheirRange)
{
	for (int32 Round = 0; Round < 10000; ++Round)
	{
		const int32 Number = FMath::RandRange(-3, 3);
		ASSERT_GE(Number, -3);
		ASSERT_LE(Number, 3);
		const float Fraction = FMath::FRand();
		ASSERT_GE(Fraction, 0.0f);
		ASSERT_LT(Fraction, 1.0f);
	}
}

TEST(MathTest, Vector2DInterpToCoversTheFractionOfTheWay)
{
	// At speed 5 a step of 0.01 s covers 5 % of the remaining distance.
	const FVector2D Next = FMath::Vector2DInterpTo(FVector2D(0, 0), FVector2D(100, -40), 0.01f, 5.0f);
	EXPECT_NEAR(5.0, Next.X, 1e-5);
	EXPECT_NEAR(-2.0, Next.Y, 1e-5);
}

TEST(MathTest, Vector2DInterpToWithoutSpeedJumps)
{
	EXPECT_EQ(FVector2D(3, 4), FMath::Vector2DInterpTo(FVector2D(0, 0), FVector2D(3, 4), 0.01f, 0.0f));
	EXPECT_EQ(FVector2D(3, 4), FMath::Vector2DInterpTo(FVector2D(0, 0), FVector2D(3, 4), 0.01f, -1.0f));
}

TEST(MathTest, Vector2DInterpToNeverOvershoots)
{
	EXPECT_EQ(FVector2D(3, 4), FMath::Vector2DInterpTo(FVector2D(0, 0), FVector2D(3, 4), 10.0f, 5.0f));
}

TEST(MathTest, Vector2DInterpToSnapsWithinAHundredthOfAUnit)
{
	const FVector2D Target(1, 1);
	EXPECT_EQ(Target, FMath::Vector2DInterpTo(Target + FVector2D(0.0099, 0.0), Target, 0.01f, 5.0f));
	EXPECT_NE(Target, FMath::Vector2DInterpTo(Target + FVector2D(0.0101, 0.0), Target, 0.01f, 5.0f));
}

TEST(MathTest, Vector2DInterpToReachesTheTargetExactly)
{
	FVector2D Current(0, 0);
	const FVector2D Target(1, 0.5);
	int32 Steps = 0;
	while (Current != Target && Steps < 1000)
	{
		Current = FMath::Vector2DInterpTo(Current, Target, 0.01f, 5.0f);
		++Steps;
	}
	// The distance 1.118 shrinks by 5 % a step: below 0.01 after 92 steps, and the next one snaps.
	EXPECT_EQ(93, Steps);
}

TEST(MathTest, ScalarInterpolationFollowsTheSameRule)
{
	EXPECT_NEAR(5.0f, FMath::FInterpTo(0.0f, 100.0f, 0.01f, 5.0f), 1e-4f);
	EXPECT_EQ(100.0f, FMath::FInterpTo(0.0f, 100.0f, 0.01f, 0.0f));
	EXPECT_EQ(1.0f, FMath::FInterpTo(0.99995f, 1.0f, 0.01f, 0.001f));
}

TEST(MathTest, ConstantInterpolationMovesByTheStep)
{
	EXPECT_FLOAT_EQ(2.0f, FMath::FInterpConstantTo(0.0f, 10.0f, 0.5f, 4.0f));
	EXPECT_FLOAT_EQ(-2.0f, FMath::FInterpConstantTo(0.0f, -10.0f, 0.5f, 4.0f));
	EXPECT_EQ(10.0f, FMath::FInterpConstantTo(9.0f, 10.0f, 0.5f, 4.0f));
	EXPECT_TRUE(FMath::Vector2DInterpConstantTo(FVector2D(0, 0), FVector2D(3, 4), 1.0f, 2.5f).Equals(FVector2D(1.5, 2.0), 1e-6));
}

TEST(MathTest, TrailingZerosOfWideWordsAreCounted)
{
	EXPECT_EQ(0u, FMath::CountTrailingZeros64(1));
	EXPECT_EQ(40u, FMath::CountTrailingZeros64(uint64(3) << 40));
	EXPECT_EQ(64u, FMath::CountTrailingZeros64(0));
}
