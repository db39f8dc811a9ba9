#include "Containers/Ticker.h"

#include "CoreMinimal.h"
#include "gtest/gtest.h"

namespace
{
	FTickerDelegate CallTimes(int32& Calls, int32 Most)
	{
		return FTickerDelegate::CreateLambda([&Calls, Most](float) { return ++Calls < Most; });
	}
}

TEST(TickerTest, CallbackComesEveryFrameUntilItGivesFalse)
{
	FTSTicker Ticker;
	int32 Calls = 0;
	Ticker.AddTicker(CallTimes(Calls, 3));
	EXPECT_EQ(0.0, Ticker.GetSecondsUntilNextCall());
	for (int32 Frame = 0; Frame < 5; ++Frame)
	{
		Ticker.Tick(0.1f);
	}
	EXPECT_EQ(3, Calls);
	EXPECT_LT(Ticker.GetSecondsUntilNextCall(), 0.0) << "a loop may sleep";
}

TEST(TickerTest, DelayPassesBeforeEachCall)
{
	FTSTicker Ticker;
	int32 Calls = 0;
	Ticker.AddTicker(CallTimes(Calls, 2), 1.0f);
	Ticker.Tick(0.75f);
	EXPECT_EQ(0, Calls);
	EXPECT_EQ(0.25, Ticker.GetSecondsUntilNextCall());
	Ticker.Tick(0.5f);
	EXPECT_EQ(1, Calls);
	Ticker.Tick(0.75f);
	EXPECT_EQ(1, Calls);
	Ticker.Tick(0.5f);
	EXPECT_EQ(2, Calls);
}

TEST(TickerTest, RemovedCallbackIsNotCalledAlsoWhenItRemovesItself)
{
	FTSTicker Ticker;
	int32 Calls = 0;
	FTSTicker::FDelegateHandle Self;
	Self = Ticker.AddTicker(FTickerDelegate::CreateLambda([&](float)
	{
		++Calls;
		FTSTicker::RemoveTicker(Self);
		return true;
	}));
	const FTSTicker::FDelegateHandle Other = Ticker.AddTicker(CallTimes(Calls, 9));
	FTSTicker::RemoveTicker(Other);
	Ticker.Tick(0.1f);
	Ticker.Tick(0.1f);
	EXPECT_EQ(1, Calls);
	FTSTicker::RemoveTicker(Other);
}

TEST(TickerTest, CallbackAddedDuringATickWaitsForTheNext)
{
	FTSTicker Ticker;
	int32 Calls = 0;
	Ticker.AddTicker(FTickerDelegate::CreateLambda([&](float)
	{
		Ticker.AddTicker(CallTimes(Calls, 1));
		return false;
	}));
	Ticker.Tick(0.1f);
	EXPECT_EQ(0, Calls);
	Ticker.Tick(0.1f);
	EXPECT_EQ(1, Calls);
}
