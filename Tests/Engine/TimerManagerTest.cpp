#include "EngineTest.h"

#include "TimerManager.h"

namespace
{
	class FTimerManagerTest : public testing::Test
	{
	protected:
		FTimerManager Timers;
		int32 Calls = 0;

		TFunction<void()> Count()
		{
			return [this] { ++Calls; };
		}
	};

	TEST_F(FTimerManagerTest, TimerCallsOnceAfterItsTime)
	{
		FTimerHandle Handle;
		Timers.SetTimer(Handle, Count(), 0.5f);
		Timers.Tick(0.4f);
		EXPECT_EQ(Calls, 0);
		EXPECT_NEAR(Timers.GetTimerRemaining(Handle), 0.1f, 1e-5f);
		Timers.Tick(0.2f);
		EXPECT_EQ(Calls, 1);
		EXPECT_FALSE(Timers.TimerExists(Handle));
		Timers.Tick(10.0f);
		EXPECT_EQ(Calls, 1);
	}

	TEST_F(FTimerManagerTest, LoopingTimerCatchesUpInALongFrame)
	{
		FTimerHandle Handle;
		Timers.SetTimer(Handle, Count(), 0.01f, true);
		Timers.Tick(0.105f);
		EXPECT_EQ(Calls, 10);
		Timers.Tick(0.006f);
		EXPECT_EQ(Calls, 11);
	}

	TEST_F(FTimerManagerTest, LoopingTimerThatEndsItselfIsNotCaughtUpFurther)
	{
		FTimerHandle Handle;
		Timers.SetTimer(Handle, [&]
		{
			if (++Calls == 3)
			{
				Timers.ClearTimer(Handle);
			}
		}, 0.01f, true);
		Timers.Tick(0.105f);
		EXPECT_EQ(Calls, 3);
		EXPECT_FALSE(Handle.IsValid());
		EXPECT_EQ(Timers.GetNumTimers(), 0);
	}

	TEST_F(FTimerManagerTest, LoopingTimerMayBeLimitedToOnceAFrame)
	{
		FTimerHandle Handle;
		Timers.SetTimer(Handle, FTimerDelegate::CreateLambda(Count()), 0.01f, { .bLoop = true, .bMaxOncePerFrame = true });
		Timers.Tick(0.105f);
		EXPECT_EQ(Calls, 1);
	}

	TEST_F(FTimerManagerTest, FirstDelayReplacesTheRateOnce)
	{
		FTimerHandle Handle;
		Timers.SetTimer(Handle, Count(), 1.0f, true, 0.25f);
		Timers.Tick(0.3f);
		EXPECT_EQ(Calls, 1);
		Timers.Tick(0.9f);
		EXPECT_EQ(Calls, 1);
		Timers.Tick(0.1f);
		EXPECT_EQ(Calls, 2);
	}

	TEST_F(FTimerManagerTest, RateOfZeroClearsTheTimer)
	{
		FTimerHandle Handle;
		Timers.SetTimer(Handle, Count(), 1.0f, true);
		Timers.SetTimer(Handle, Count(), 0.0f, true);
		EXPECT_FALSE(Handle.IsValid());
		Timers.Tick(5.0f);
		EXPECT_EQ(Calls, 0);
	}

	TEST_F(FTimerManagerTest, SettingAHandleAgainReplacesItsTimer)
	{
		FTimerHandle Handle;
		Timers.SetTimer(Handle, Count(), 1.0f, true);
		Timers.SetTimer(Handle, Count(), 2.0f, true);
		EXPECT_EQ(Timers.GetNumTimers(), 1);
		Timers.Tick(1.5f);
		EXPECT_EQ(Calls, 0);
	}

	TEST_F(FTimerManagerTest, PausedTimerKeepsItsRemainingTime)
	{
		FTimerHandle Handle;
		Timers.SetTimer(Handle, Count(), 1.0f);
		Timers.Tick(0.4f);
		Timers.PauseTimer(Handle);
		EXPECT_TRUE(Timers.IsTimerPaused(Handle));
		EXPECT_FALSE(Timers.IsTimerActive(Handle));
		Timers.Tick(5.0f);
		EXPECT_EQ(Calls, 0);
		Timers.UnPauseTimer(Handle);
		EXPECT_NEAR(Timers.GetTimerRemaining(Handle), 0.6f, 1e-5f);
		Timers.Tick(0.7f);
		EXPECT_EQ(Calls, 1);
	}

	TEST_F(FTimerManagerTest, TimerMayClearItselfAndSetAnother)
	{
		FTimerHandle Loop;
		FTimerHandle Other;
		Timers.SetTimer(Loop, [&]
		{
			++Calls;
			Timers.ClearTimer(Loop);
			Timers.SetTimer(Other, Count(), 0.01f);
		}, 0.1f, true);
		Timers.Tick(1.0f);
		EXPECT_EQ(Calls, 1);
		Timers.Tick(0.02f);
		EXPECT_EQ(Calls, 2);
	}

	TEST_F(FTimerManagerTest, NextTickRunsOnceInTheNextTick)
	{
		Timers.SetTimerForNextTick([this]
		{
			++Calls;
			Timers.SetTimerForNextTick(Count());
		});
		Timers.Tick(0.01f);
		EXPECT_EQ(Calls, 1);
		Timers.Tick(0.01f);
		EXPECT_EQ(Calls, 2);
		Timers.Tick(0.01f);
		EXPECT_EQ(Calls, 2);
	}

	TEST_F(FTimerManagerTest, EarliestTimerComesFirst)
	{
		std::string Order;
		FTimerHandle A;
		FTimerHandle B;
		FTimerHandle C;
		Timers.SetTimer(A, [&Order] { Order += 'A'; }, 0.3f);
		Timers.SetTimer(B, [&Order] { Order += 'B'; }, 0.1f);
		Timers.SetTimer(C, [&Order] { Order += 'C'; }, 0.2f);
		EXPECT_NEAR(Timers.GetSecondsUntilNextTimer(), 0.1, 1e-6);
		Timers.Tick(1.0f);
		EXPECT_EQ(Order, "BCA");
		EXPECT_LT(Timers.GetSecondsUntilNextTimer(), 0.0);
	}
}
