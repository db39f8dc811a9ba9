#include "Async/Async.h"

#include "Host/BackgroundThreads.h"
#include "Host/GameThreadQueue.h"
#include "Misc/AssertionMacros.h"

#include <sys/resource.h>
#include <unistd.h>

#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>
#include <vector>

namespace
{
	/** One processor is left to the game thread. */
	int32 ChooseThreadCount()
	{
		constexpr uint32 Fewest = 1;
		constexpr uint32 Most = 4;
		const uint32 Processors = std::thread::hardware_concurrency();
		return static_cast<int32>(Processors < Fewest + 1 ? Fewest : (Processors - 1 < Most ? Processors - 1 : Most));
	}

	/** The game thread goes first where processors are few: a frame shall not wait for work that nobody waits for. */
	void YieldToGameThread()
	{
		constexpr int Steps = 5;
		const id_t Thread = static_cast<id_t>(::gettid());
		// The system itself cuts it to its lowest priority.
		::setpriority(PRIO_PROCESS, Thread, ::getpriority(PRIO_PROCESS, Thread) + Steps);
	}

	class FThreadPool
	{
	public:
		void Add(TUniqueFunction<void()> Function)
		{
			const std::scoped_lock Lock(Mutex);
			Waiting.push_back(MoveTemp(Function));
			if (Threads.empty())
			{
				bStopping = false;
				for (int32 Index = ChooseThreadCount(); Index > 0; --Index)
				{
					Threads.emplace_back([this] { Work(); });
				}
			}
			WorkCame.notify_one();
		}

		void Stop()
		{
			std::vector<std::thread> Ending;
			std::deque<TUniqueFunction<void()>> Dropped;
			{
				const std::scoped_lock Lock(Mutex);
				bStopping = true;
				Ending.swap(Threads);
				Dropped.swap(Waiting);
				WorkCame.notify_all();
			}
			for (std::thread& Thread : Ending)
			{
				Thread.join();
			}
		}

		int32 GetNumPending()
		{
			const std::scoped_lock Lock(Mutex);
			return static_cast<int32>(Waiting.size()) + NumRunning;
		}

	private:
		void Work()
		{
			YieldToGameThread();
			std::unique_lock Lock(Mutex);
			while (true)
			{
				WorkCame.wait(Lock, [this] { return bStopping || !Waiting.empty(); });
				if (bStopping)
				{
					return;
				}
				{
					const TUniqueFunction<void()> Function = MoveTemp(Waiting.front());
					Waiting.pop_front();
					++NumRunning;
					Lock.unlock();
					Function();
					// What the function holds goes before the lock is taken again.
				}
				Lock.lock();
				--NumRunning;
			}
		}

		std::mutex Mutex;
		std::condition_variable WorkCame;
		std::deque<TUniqueFunction<void()>> Waiting;
		std::vector<std::thread> Threads;
		int32 NumRunning = 0;
		bool bStopping = false;
	};

	FThreadPool& GetPool()
	{
		// Never destroyed: its threads may still work while the program ends.
		static FThreadPool& Pool = *new FThreadPool;
		return Pool;
	}
}

void AsyncTask(ENamedThreads::Type Thread, TUniqueFunction<void()> Function)
{
	if (Thread == ENamedThreads::GameThread)
	{
		Host::FGameThreadQueue::Post(MoveTemp(Function));
		return;
	}
	check(Thread == ENamedThreads::AnyBackgroundThreadNormalTask);
	GetPool().Add(MoveTemp(Function));
}

void Host::FBackgroundThreads::Stop()
{
	GetPool().Stop();
}

int32 Host::FBackgroundThreads::GetNumPending()
{
	return GetPool().GetNumPending();
}
