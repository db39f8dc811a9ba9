#include "Host/GameThreadQueue.h"

#include "CoreGlobals.h"
#include "CoreMinimal.h"
#include "TestText.h"
#include "gtest/gtest.h"

#include <atomic>
#include <thread>

using Host::FGameThreadQueue;

TEST(GameThreadQueueTest, WorkRunsInTheOrderOfPosting)
{
	FString Order;
	FGameThreadQueue::Post([&]() { Order += TEXT("a"); });
	FGameThreadQueue::Post([&]() { Order += TEXT("b"); });
	EXPECT_EQ("", ToUtf8(Order));
	EXPECT_EQ(2, FGameThreadQueue::Run());
	EXPECT_EQ("ab", ToUtf8(Order));
	EXPECT_TRUE(FGameThreadQueue::IsEmpty());
	EXPECT_EQ(0, FGameThreadQueue::Run());
}

TEST(GameThreadQueueTest, WorkPostedMeanwhileWaitsForTheNextRun)
{
	int32 Calls = 0;
	FGameThreadQueue::Post([&]() { FGameThreadQueue::Post([&]() { ++Calls; }); });
	EXPECT_EQ(1, FGameThreadQueue::Run());
	EXPECT_EQ(0, Calls);
	EXPECT_EQ(1, FGameThreadQueue::Run());
	EXPECT_EQ(1, Calls);
}

TEST(GameThreadQueueTest, OtherThreadsHandOverToTheGameThread)
{
	bool bOnGameThread = false;
	bool bPostedElsewhere = false;
	std::thread([&]()
	{
		bPostedElsewhere = !IsInGameThread();
		FGameThreadQueue::Post([&]() { bOnGameThread = IsInGameThread(); });
	}).join();
	EXPECT_EQ(1, FGameThreadQueue::Run());
	EXPECT_TRUE(bPostedElsewhere);
	EXPECT_TRUE(bOnGameThread);
}

TEST(GameThreadQueueTest, NothingPostedAtOnceIsLost)
{
	constexpr int32 ThreadCount = 4;
	constexpr int32 PostCount = 1000;
	int32 Calls = 0;
	std::vector<std::thread> Threads;
	for (int32 Index = 0; Index < ThreadCount; ++Index)
	{
		Threads.emplace_back([&]()
		{
			for (int32 Round = 0; Round < PostCount; ++Round)
			{
				FGameThreadQueue::Post([&]() { ++Calls; });
			}
		});
	}
	for (std::thread& Thread : Threads)
	{
		Thread.join();
	}
	while (!FGameThreadQueue::IsEmpty())
	{
		FGameThreadQueue::Run();
	}
	EXPECT_EQ(ThreadCount * PostCount, Calls);
}

TEST(GameThreadQueueTest, ASleepingLoopIsWokenOnceForWhatWaits)
{
	std::atomic<int32> WakeUps = 0;
	FGameThreadQueue::SetWakeUp([&]() { ++WakeUps; });
	FGameThreadQueue::Post([]() {});
	FGameThreadQueue::Post([]() {});
	EXPECT_EQ(1, WakeUps);
	FGameThreadQueue::Run();
	FGameThreadQueue::Post([]() {});
	EXPECT_EQ(2, WakeUps);
	FGameThreadQueue::Run();
	FGameThreadQueue::SetWakeUp(nullptr);
}
