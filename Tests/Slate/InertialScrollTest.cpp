#include "Framework/Layout/InertialScrollManager.h"

#include <gtest/gtest.h>

TEST(InertialScrollTest, SpeedIsThatOfTheLastTenthOfASecond)
{
	FInertialScrollManager Inertia;
	Inertia.AddScrollSample(500.0f, 0.0);
	for (int32 Step = 0; Step <= 4; ++Step)
	{
		Inertia.AddScrollSample(10.0f, 1.0 + Step * 0.02);
	}
	EXPECT_NEAR(Inertia.GetScrollVelocity(), 500.0f, 1.0f);
}

TEST(InertialScrollTest, OneQuickStepIsNoLeap)
{
	FInertialScrollManager Inertia;
	Inertia.AddScrollSample(10.0f, 1.0);
	EXPECT_NEAR(Inertia.GetScrollVelocity(), 600.0f, 0.1f);
}

TEST(InertialScrollTest, MotionFadesUntilItRests)
{
	FInertialScrollManager Inertia;
	Inertia.AddScrollSample(10.0f, 1.0);
	float Last = Inertia.GetScrollVelocity();
	for (int32 Step = 0; Step < 200 && Last != 0.0f; ++Step)
	{
		Inertia.UpdateScrollVelocity(0.016f);
		EXPECT_LT(Inertia.GetScrollVelocity(), Last);
		Last = Inertia.GetScrollVelocity();
	}
	EXPECT_EQ(Last, 0.0f);
}

TEST(InertialScrollTest, ManyShortFramesFadeAsFewLongOnes)
{
	FInertialScrollManager Short;
	FInertialScrollManager Long;
	Short.AddScrollSample(50.0f, 1.0);
	Long.AddScrollSample(50.0f, 1.0);
	for (int32 Step = 0; Step < 10; ++Step)
	{
		Short.UpdateScrollVelocity(0.01f);
	}
	Long.UpdateScrollVelocity(0.1f);
	EXPECT_NEAR(Short.GetScrollVelocity(), Long.GetScrollVelocity(), 0.1f);
}

TEST(InertialScrollTest, PauseBeforeLettingGoStopsTheMotion)
{
	FInertialScrollManager Inertia;
	Inertia.AddScrollSample(10.0f, 1.0);
	Inertia.AddScrollSample(0.0f, 1.5);
	EXPECT_EQ(Inertia.GetScrollVelocity(), 0.0f);
}
