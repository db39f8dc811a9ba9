#include "Host/AnimationCurve.h"

#include "gtest/gtest.h"

namespace
{
	using Host::EKeyInterpolation;

	double ValueAt(const Host::FAnimationCurve& Curve, double Time)
	{
		double Value = 0.0;
		Curve.Evaluate(Time, TArrayView<double>(&Value, 1));
		return Value;
	}

	void AddKey(Host::FAnimationCurve& Curve, double Time, double Value, EKeyInterpolation Interpolation)
	{
		EXPECT_TRUE(Curve.AddKey(Time, TConstArrayView<double>(&Value, 1), Interpolation));
	}

	/** From 0 to 8 in two seconds. */
	Host::FAnimationCurve MakeRise(EKeyInterpolation Interpolation)
	{
		Host::FAnimationCurve Curve(1);
		AddKey(Curve, 1.0, 0.0, Interpolation);
		AddKey(Curve, 3.0, 8.0, Interpolation);
		return Curve;
	}

	TEST(AnimationCurve, KeepsTheValueOfItsEndsOutsideOfThem)
	{
		for (const EKeyInterpolation Interpolation : { EKeyInterpolation::Constant, EKeyInterpolation::Linear, EKeyInterpolation::Cubic })
		{
			const Host::FAnimationCurve Curve = MakeRise(Interpolation);
			EXPECT_EQ(ValueAt(Curve, 0.0), 0.0);
			EXPECT_EQ(ValueAt(Curve, 1.0), 0.0);
			EXPECT_EQ(ValueAt(Curve, 3.0), 8.0);
			EXPECT_EQ(ValueAt(Curve, 9.0), 8.0);
		}
	}

	TEST(AnimationCurve, ConstantKeysHoldUntilTheNextOne)
	{
		const Host::FAnimationCurve Curve = MakeRise(EKeyInterpolation::Constant);
		EXPECT_EQ(ValueAt(Curve, 2.999), 0.0);
	}

	TEST(AnimationCurve, LinearKeysGoStraight)
	{
		const Host::FAnimationCurve Curve = MakeRise(EKeyInterpolation::Linear);
		EXPECT_DOUBLE_EQ(ValueAt(Curve, 1.5), 2.0);
		EXPECT_DOUBLE_EQ(ValueAt(Curve, 2.0), 4.0);
	}

	TEST(AnimationCurve, CubicKeysAreAtRestAtTheEnds)
	{
		const Host::FAnimationCurve Curve = MakeRise(EKeyInterpolation::Cubic);
		// 3s^2 - 2s^3 of the way.
		EXPECT_DOUBLE_EQ(ValueAt(Curve, 1.5), 8.0 * 0.15625);
		EXPECT_DOUBLE_EQ(ValueAt(Curve, 2.0), 4.0);
		EXPECT_DOUBLE_EQ(ValueAt(Curve, 2.5), 8.0 * 0.84375);
	}

	TEST(AnimationCurve, CubicKeysBetweenOthersHaveTheSlopeFromNeighbourToNeighbour)
	{
		Host::FAnimationCurve Curve(1);
		AddKey(Curve, 0.0, 0.0, EKeyInterpolation::Cubic);
		AddKey(Curve, 1.0, 5.0, EKeyInterpolation::Cubic);
		AddKey(Curve, 3.0, 6.0, EKeyInterpolation::Cubic);
		const double Step = 1e-6;
		EXPECT_NEAR((ValueAt(Curve, 1.0) - ValueAt(Curve, 1.0 - Step)) / Step, 2.0, 1e-4);
		EXPECT_NEAR((ValueAt(Curve, 1.0 + Step) - ValueAt(Curve, 1.0)) / Step, 2.0, 1e-4);
	}

	TEST(AnimationCurve, EachKeySaysHowItGoesOn)
	{
		Host::FAnimationCurve Curve(1);
		AddKey(Curve, 0.0, 0.0, EKeyInterpolation::Linear);
		AddKey(Curve, 1.0, 1.0, EKeyInterpolation::Constant);
		AddKey(Curve, 2.0, 3.0, EKeyInterpolation::Linear);
		EXPECT_DOUBLE_EQ(ValueAt(Curve, 0.5), 0.5);
		EXPECT_DOUBLE_EQ(ValueAt(Curve, 1.5), 1.0);
	}

	TEST(AnimationCurve, KeysComeInOrderOfTime)
	{
		Host::FAnimationCurve Curve(1);
		const double Value = 1.0;
		const TConstArrayView<double> Values(&Value, 1);
		EXPECT_FALSE(Curve.AddKey(-0.5, Values, EKeyInterpolation::Linear));
		EXPECT_TRUE(Curve.AddKey(0.5, Values, EKeyInterpolation::Linear));
		EXPECT_FALSE(Curve.AddKey(0.5, Values, EKeyInterpolation::Linear));
		EXPECT_FALSE(Curve.AddKey(0.25, Values, EKeyInterpolation::Linear));
		EXPECT_EQ(Curve.GetNumKeys(), 1);
		EXPECT_EQ(Curve.GetLastTime(), 0.5);
	}

	TEST(AnimationCurve, ChannelsGoTheirOwnWay)
	{
		Host::FAnimationCurve Curve(2);
		const double First[] = { 0.0, 10.0 };
		const double Second[] = { 1.0, 20.0 };
		EXPECT_TRUE(Curve.AddKey(0.0, First, EKeyInterpolation::Linear));
		EXPECT_TRUE(Curve.AddKey(1.0, Second, EKeyInterpolation::Linear));
		double Values[2];
		Curve.Evaluate(0.5, Values);
		EXPECT_DOUBLE_EQ(Values[0], 0.5);
		EXPECT_DOUBLE_EQ(Values[1], 15.0);
	}
}
