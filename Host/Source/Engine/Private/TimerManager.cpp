#include "TimerManager.h"

struct FTimerManager::FTimer
{
	uint64 Id = 0;
	float Rate = 0.0f;
	FTimerManagerTimerParameters Parameters;
	bool bPaused = false;
	/** Counted as FTimerManager::Now; while paused, the seconds that remain. */
	double DueTime = 0.0;
	FTimerDelegate Delegate;
	FTimerDynamicDelegate DynamicDelegate;
	TFunction<void()> Callback;
	/** True for a timer that calls nobody. */
	bool bSilent = false;

	bool IsBoundToObject(const void* Object) const
	{
		return Delegate.IsBoundToObject(Object) || (DynamicDelegate.IsBound() && DynamicDelegate.GetUObject() == Object);
	}

	/** False when nobody is left to call. */
	bool Call()
	{
		if (Delegate.IsBound())
		{
			// The callback may clear or replace the timer, and with it the delegate that is running.
			FTimerDelegate Running = Delegate;
			Running.Execute();
			return true;
		}
		if (DynamicDelegate.IsBound())
		{
			FTimerDynamicDelegate Running = DynamicDelegate;
			Running.Execute();
			return true;
		}
		if (Callback)
		{
			TFunction<void()> Running = Callback;
			Running();
			return true;
		}
		return bSilent;
	}
};

FTimerManager::FTimerManager() = default;
FTimerManager::~FTimerManager() = default;

void FTimerManager::SetTimer(FTimerHandle& InOutHandle, const FTimerDelegate& InDelegate, float InRate, bool InbLoop, float InFirstDelay)
{
	SetTimer(InOutHandle, InDelegate, InRate, { .bLoop = InbLoop, .FirstDelay = InFirstDelay });
}

void FTimerManager::SetTimer(FTimerHandle& InOutHandle, const FTimerDelegate& InDelegate, float InRate, const FTimerManagerTimerParameters& Parameters)
{
	SetOrClearTimer(InOutHandle, InRate, Parameters, [&](FTimer& Timer) { Timer.Delegate = InDelegate; });
}

void FTimerManager::SetTimer(FTimerHandle& InOutHandle, const FTimerDynamicDelegate& InDynDelegate, float InRate, bool InbLoop, float InFirstDelay)
{
	SetOrClearTimer(InOutHandle, InRate, { .bLoop = InbLoop, .FirstDelay = InFirstDelay }, [&](FTimer& Timer) { Timer.DynamicDelegate = InDynDelegate; });
}

void FTimerManager::SetTimer(FTimerHandle& InOutHandle, TFunction<void()>&& Callback, float InRate, bool InbLoop, float InFirstDelay)
{
	SetOrClearTimer(InOutHandle, InRate, { .bLoop = InbLoop, .FirstDelay = InFirstDelay }, [&](FTimer& Timer) { Timer.Callback = MoveTemp(Callback); });
}

void FTimerManager::SetTimer(FTimerHandle& InOutHandle, float InRate, bool InbLoop, float InFirstDelay)
{
	SetOrClearTimer(InOutHandle, InRate, { .bLoop = InbLoop, .FirstDelay = InFirstDelay }, [](FTimer& Timer) { Timer.bSilent = true; });
}

FTimerHandle FTimerManager::SetTimerForNextTick(const FTimerDelegate& InDelegate)
{
	FTimerHandle Handle;
	AddTimer(Handle, 0.0f, {}).Delegate = InDelegate;
	return Handle;
}

FTimerHandle FTimerManager::SetTimerForNextTick(TFunction<void()>&& Callback)
{
	FTimerHandle Handle;
	AddTimer(Handle, 0.0f, {}).Callback = MoveTemp(Callback);
	return Handle;
}

void FTimerManager::ClearTimer(FTimerHandle& InHandle)
{
	if (FTimer* Timer = FindTimer(InHandle))
	{
		RemoveTimer(*Timer);
	}
	InHandle.Invalidate();
}

void FTimerManager::ClearAllTimersForObject(const void* Object)
{
	for (auto It = Timers.CreateIterator(); It; ++It)
	{
		if (It.Value()->IsBoundToObject(Object))
		{
			It.RemoveCurrent();
		}
	}
}

void FTimerManager::PauseTimer(FTimerHandle InHandle)
{
	if (FTimer* Timer = FindTimer(InHandle); Timer && !Timer->bPaused)
	{
		Timer->bPaused = true;
		Timer->DueTime -= Now;
	}
}

void FTimerManager::UnPauseTimer(FTimerHandle InHandle)
{
	if (FTimer* Timer = FindTimer(InHandle); Timer && Timer->bPaused)
	{
		Timer->bPaused = false;
		Timer->DueTime += Now;
		PushDue(*Timer);
	}
}

bool FTimerManager::IsTimerActive(FTimerHandle InHandle) const
{
	const FTimer* Timer = FindTimer(InHandle);
	return Timer && !Timer->bPaused;
}

bool FTimerManager::IsTimerPaused(FTimerHandle InHandle) const
{
	const FTimer* Timer = FindTimer(InHandle);
	return Timer && Timer->bPaused;
}

bool FTimerManager::TimerExists(FTimerHandle InHandle) const
{
	return FindTimer(InHandle) != nullptr;
}

float FTimerManager::GetTimerRate(FTimerHandle InHandle) const
{
	const FTimer* Timer = FindTimer(InHandle);
	return Timer ? Timer->Rate : -1.0f;
}

float FTimerManager::GetTimerElapsed(FTimerHandle InHandle) const
{
	const FTimer* Timer = FindTimer(InHandle);
	return Timer ? Timer->Rate - GetTimerRemaining(InHandle) : -1.0f;
}

float FTimerManager::GetTimerRemaining(FTimerHandle InHandle) const
{
	const FTimer* Timer = FindTimer(InHandle);
	return Timer ? static_cast<float>(Timer->bPaused ? Timer->DueTime : Timer->DueTime - Now) : -1.0f;
}

void FTimerManager::Tick(float DeltaTime)
{
	Now += DeltaTime;
	// What callbacks set now waits for the next tick, even when it is due at once.
	const uint64 FirstNewId = NextId;
	TArray<FDue> Waiting;
	while (!Due.IsEmpty() && Due.HeapTop().Time <= Now)
	{
		FDue Entry;
		Due.HeapPop(Entry, IsEarlier);
		if (IsStale(Entry))
		{
			continue;
		}
		if (Entry.Id >= FirstNewId)
		{
			Waiting.Add(Entry);
			continue;
		}
		CallDueTimer(Entry.Id);
	}
	for (const FDue& Entry : Waiting)
	{
		Due.HeapPush(Entry, IsEarlier);
	}
}

double FTimerManager::GetSecondsUntilNextTimer() const
{
	while (!Due.IsEmpty() && IsStale(Due.HeapTop()))
	{
		Due.HeapPopDiscard(IsEarlier);
	}
	return Due.IsEmpty() ? -1.0 : FMath::Max(0.0, Due.HeapTop().Time - Now);
}

int32 FTimerManager::GetNumTimers() const
{
	return Timers.Num();
}

FTimerManager::FTimer* FTimerManager::FindTimer(FTimerHandle Handle) const
{
	const TUniquePtr<FTimer>* Timer = Timers.Find(Handle.Handle);
	return Timer ? Timer->Get() : nullptr;
}

FTimerManager::FTimer& FTimerManager::AddTimer(FTimerHandle& InOutHandle, float Rate, const FTimerManagerTimerParameters& Parameters)
{
	TUniquePtr<FTimer> Timer = MakeUnique<FTimer>();
	Timer->Id = NextId++;
	Timer->Rate = Rate;
	Timer->Parameters = Parameters;
	Timer->DueTime = Now + (Parameters.FirstDelay >= 0.0f ? Parameters.FirstDelay : Rate);
	InOutHandle.Handle = Timer->Id;
	PushDue(*Timer);
	return *Timers.Add(Timer->Id, MoveTemp(Timer));
}

void FTimerManager::SetOrClearTimer(FTimerHandle& InOutHandle, float Rate, const FTimerManagerTimerParameters& Parameters, TFunctionRef<void(FTimer&)> Bind)
{
	ClearTimer(InOutHandle);
	if (Rate > 0.0f)
	{
		Bind(AddTimer(InOutHandle, Rate, Parameters));
	}
}

void FTimerManager::RemoveTimer(FTimer& Timer)
{
	Timers.Remove(Timer.Id);
}

void FTimerManager::CallDueTimer(uint64 Id)
{
	const auto Find = [this, Id]() -> FTimer*
	{
		const TUniquePtr<FTimer>* Timer = Timers.Find(Id);
		return Timer && !(*Timer)->bPaused ? Timer->Get() : nullptr;
	};

	FTimer* Timer = Find();
	if (!Timer->Parameters.bLoop)
	{
		// Gone before the call, so that the callback can tell and can set the handle anew.
		TUniquePtr<FTimer> Ended;
		Timers.RemoveAndCopyValue(Id, Ended);
		Ended->Call();
		return;
	}

	int32 Calls = 1 + static_cast<int32>((Now - Timer->DueTime) / Timer->Rate);
	Timer->DueTime += static_cast<double>(Calls) * Timer->Rate;
	if (Timer->Parameters.bMaxOncePerFrame)
	{
		Calls = 1;
	}
	for (; Calls > 0; --Calls)
	{
		if (!Timer->Call())
		{
			RemoveTimer(*Timer);
			return;
		}
		Timer = Find();
		if (!Timer)
		{
			return;
		}
	}
	PushDue(*Timer);
}

bool FTimerManager::IsEarlier(const FDue& A, const FDue& B)
{
	return A.Time != B.Time ? A.Time < B.Time : A.Id < B.Id;
}

void FTimerManager::PushDue(const FTimer& Timer)
{
	Due.HeapPush({ Timer.DueTime, Timer.Id }, IsEarlier);
}

bool FTimerManager::IsStale(const FDue& Entry) const
{
	const TUniquePtr<FTimer>* Timer = Timers.Find(Entry.Id);
	return !Timer || (*Timer)->bPaused || (*Timer)->DueTime != Entry.Time;
}
