#include "Async/Async.h"

#include "CoreGlobals.h"
#include "CoreMinimal.h"
#include "Host/BackgroundThreads.h"
#include "Host/GameThreadQueue.h"
#include "gtest/gtest.h"

#include <sys/resource.h>
#include <unistd.h>

#include <atomic>
#include <future>

TEST(AsyncTest, BackgroundWorkRunsOnAnotherThreadAndHandsBack)
{
	std::promise<void> Handed;
	bool bElsewhere = false;
	bool bBack = false;
	AsyncTask(ENamedThreads::AnyBackgroundThreadNormalTask, [&]
	{
		bElsewhere = !IsInGameThread();
		AsyncTask(ENamedThreads::GameThread, [&] { bBack = IsInGameThread(); });
		Handed.set_value();
	});
	Handed.get_future().wait();
	EXPECT_FALSE(bBack) << "not before the next tick";
	Host::FGameThreadQueue::Run();
	EXPECT_TRUE(bElsewhere);
	EXPECT_TRUE(bBack);
	Host::FBackgroundThreads::Stop();
}

TEST(AsyncTest, BackgroundWorkYieldsToTheGameThread)
{
	const auto GetNiceness = [] { return ::getpriority(PRIO_PROCESS, static_cast<id_t>(::gettid())); };
	std::promise<int> Niceness;
	AsyncTask(ENamedThreads::AnyBackgroundThreadNormalTask, [&] { Niceness.set_value(GetNiceness()); });
	// There is nothing below the lowest priority, should the tests themselves be run with it.
	const int Lowest = 19;
	EXPECT_GE(Niceness.get_future().get(), FMath::Min(GetNiceness() + 1, Lowest));
	Host::FBackgroundThreads::Stop();
}

TEST(AsyncTest, StopWaitsForWhatRunsAndDropsTheRest)
{
	std::promise<void> Started;
	std::promise<void> MayEnd;
	std::shared_future<void> End = MayEnd.get_future().share();
	std::atomic<int32> Ended = 0;
	AsyncTask(ENamedThreads::AnyBackgroundThreadNormalTask, [&]
	{
		Started.set_value();
		End.wait();
		++Ended;
	});
	Started.get_future().wait();
	MayEnd.set_value();
	Host::FBackgroundThreads::Stop();
	EXPECT_EQ(1, Ended);
	EXPECT_EQ(0, Host::FBackgroundThreads::GetNumPending());
}

TEST(AsyncTest, WorkAfterAStopStartsTheThreadsAgain)
{
	Host::FBackgroundThreads::Stop();
	std::promise<void> Ran;
	AsyncTask(ENamedThreads::AnyBackgroundThreadNormalTask, [&] { Ran.set_value(); });
	Ran.get_future().wait();
	Host::FBackgroundThreads::Stop();
}
