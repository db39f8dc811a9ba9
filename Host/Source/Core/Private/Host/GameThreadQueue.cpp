#include "Host/GameThreadQueue.h"

#include "Containers/Array.h"
#include "CoreGlobals.h"
#include "Misc/AssertionMacros.h"

#include <mutex>

namespace
{
	struct FQueue
	{
		std::mutex Mutex;
		TArray<TUniqueFunction<void()>> Functions;
		TFunction<void()> WakeUp;
	};

	FQueue& GetQueue()
	{
		// Never destroyed: other threads may still post while the program ends.
		static FQueue& Queue = *new FQueue;
		return Queue;
	}
}

void Host::FGameThreadQueue::Post(TUniqueFunction<void()> Function)
{
	FQueue& Queue = GetQueue();
	TFunction<void()> WakeUp;
	{
		const std::scoped_lock Lock(Queue.Mutex);
		if (Queue.Functions.IsEmpty())
		{
			WakeUp = Queue.WakeUp;
		}
		Queue.Functions.Add(MoveTemp(Function));
	}
	if (WakeUp)
	{
		WakeUp();
	}
}

int32 Host::FGameThreadQueue::Run()
{
	check(IsInGameThread());
	FQueue& Queue = GetQueue();
	TArray<TUniqueFunction<void()>> Functions;
	{
		const std::scoped_lock Lock(Queue.Mutex);
		Functions = MoveTemp(Queue.Functions);
		Queue.Functions.Reset();
	}
	for (const TUniqueFunction<void()>& Function : Functions)
	{
		Function();
	}
	return Functions.Num();
}

bool Host::FGameThreadQueue::IsEmpty()
{
	const std::scoped_lock Lock(GetQueue().Mutex);
	return GetQueue().Functions.IsEmpty();
}

void Host::FGameThreadQueue::SetWakeUp(TFunction<void()> WakeUp)
{
	const std::scoped_lock Lock(GetQueue().Mutex);
	GetQueue().WakeUp = MoveTemp(WakeUp);
}
