#include "Host/Clock.h"

#include "CoreMinimal.h"
#include "Misc/App.h"
#include "gtest/gtest.h"

using Host::FClock;

TEST(ClockTest, TimeStandsStillUntilItIsMoved)
{
	FClock::Set(100.0);
	EXPECT_EQ(100.0, FClock::Now());
	EXPECT_EQ(0.0, FClock::DeltaTime());
	EXPECT_EQ(100.0, FClock::Now());
}

TEST(ClockTest, AdvancingMovesByTheStep)
{
	FClock::Set(0.0);
	FClock::Advance(0.5);
	FClock::Advance(0.25);
	EXPECT_EQ(0.75, FClock::Now());
	EXPECT_EQ(0.25, FClock::DeltaTime());
}

TEST(ClockTest, TheApplicationTellsTheSameTime)
{
	FClock::Set(3.0);
	FClock::Advance(0.125);
	EXPECT_EQ(3.125, FApp::GetCurrentTime());
	EXPECT_EQ(0.125, FApp::GetDeltaTime());
}

TEST(ClockTest, FollowingRealTimeStartsWithoutAJump)
{
	FClock::Set(50.0);
	FClock::FollowRealTime();
	EXPECT_EQ(50.0, FClock::Now());
	FClock::FollowRealTime();
	EXPECT_GE(FClock::Now(), 50.0);
	EXPECT_GE(FClock::DeltaTime(), 0.0);
}

TEST(ClockDeathTest, TimeDoesNotRunBackwards)
{
	::testing::FLAGS_gtest_death_test_style = "threadsafe";
	EXPECT_DEATH(FClock::Advance(-0.1), "Assertion failed");
}
