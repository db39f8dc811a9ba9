#pragma once

#include "CoreMinimal.h"
#include "Engine/TimerHandle.h"

DECLARE_DELEGATE(FTimerDelegate);

/** How a timer runs. */
struct FTimerManagerTimerParameters
{
	/** Starts over after each call. */
	bool bLoop = false;
	/** A looping timer that is due several times in one tick is called once only. */
	bool bMaxOncePerFrame = false;
	/** Seconds until the first call; below 0 means the rate. */
	float FirstDelay = -1.0f;
};

/**
 * Calls back after a time, once or again and again. Advanced by the world's tick, on the game thread.
 * A looping timer whose rate is below the frame time is called several times in one tick, to catch up.
 * Timers may be set and cleared inside callbacks. A callback bound to an object that is gone ends its timer silently.
 */
class ENGINE_API FTimerManager
{
public:
	FTimerManager();
	~FTimerManager();
	FTimerManager(const FTimerManager&) = delete;
	FTimerManager& operator=(const FTimerManager&) = delete;

	/**
	 * Sets a timer. A handle that names a timer has that timer replaced; a rate of 0 or below only clears it.
	 * @param InRate		seconds between calls
	 * @param InFirstDelay	seconds until the first call; below 0 means the rate
	 */
	template <typename UserClass>
	void SetTimer(FTimerHandle& InOutHandle, UserClass* InObj, void (UserClass::*InTimerMethod)(), float InRate, bool InbLoop = false, float InFirstDelay = -1.0f)
	{
		SetTimer(InOutHandle, FTimerDelegate::CreateUObject(InObj, InTimerMethod), InRate, InbLoop, InFirstDelay);
	}

	template <typename UserClass>
	void SetTimer(FTimerHandle& InOutHandle, UserClass* InObj, void (UserClass::*InTimerMethod)() const, float InRate, bool InbLoop = false, float InFirstDelay = -1.0f)
	{
		SetTimer(InOutHandle, FTimerDelegate::CreateUObject(InObj, InTimerMethod), InRate, InbLoop, InFirstDelay);
	}

	void SetTimer(FTimerHandle& InOutHandle, const FTimerDelegate& InDelegate, float InRate, bool InbLoop = false, float InFirstDelay = -1.0f);
	void SetTimer(FTimerHandle& InOutHandle, const FTimerDynamicDelegate& InDynDelegate, float InRate, bool InbLoop = false, float InFirstDelay = -1.0f);
	void SetTimer(FTimerHandle& InOutHandle, TFunction<void()>&& Callback, float InRate, bool InbLoop = false, float InFirstDelay = -1.0f);

	/** Sets a timer that calls nobody: its handle tells the time. */
	void SetTimer(FTimerHandle& InOutHandle, float InRate, bool InbLoop = false, float InFirstDelay = -1.0f);

	void SetTimer(FTimerHandle& InOutHandle, const FTimerDelegate& InDelegate, float InRate, const FTimerManagerTimerParameters& Parameters);

	/** Calls back on the next tick. */
	FTimerHandle SetTimerForNextTick(const FTimerDelegate& InDelegate);
	FTimerHandle SetTimerForNextTick(TFunction<void()>&& Callback);

	template <typename UserClass>
	FTimerHandle SetTimerForNextTick(UserClass* InObj, void (UserClass::*InTimerMethod)())
	{
		return SetTimerForNextTick(FTimerDelegate::CreateUObject(InObj, InTimerMethod));
	}

	/** Ends the timer and invalidates the handle. */
	void ClearTimer(FTimerHandle& InHandle);

	/** Ends every timer whose callback is bound to the object. */
	void ClearAllTimersForObject(const void* Object);

	void PauseTimer(FTimerHandle InHandle);
	void UnPauseTimer(FTimerHandle InHandle);

	/** True when the timer exists and is not paused. */
	bool IsTimerActive(FTimerHandle InHandle) const;
	bool IsTimerPaused(FTimerHandle InHandle) const;
	bool TimerExists(FTimerHandle InHandle) const;

	/** Seconds between calls; -1 for no timer. */
	float GetTimerRate(FTimerHandle InHandle) const;
	/** Seconds since the timer was set or called last; -1 for no timer. */
	float GetTimerElapsed(FTimerHandle InHandle) const;
	/** Seconds until the next call; -1 for no timer. */
	float GetTimerRemaining(FTimerHandle InHandle) const;

	/** Advances the time and calls what is due, earliest first. */
	void Tick(float DeltaTime);

	/** Seconds until the earliest active timer is due, for a loop that wants to sleep; negative when nothing is waiting. */
	double GetSecondsUntilNextTimer() const;

	int32 GetNumTimers() const;

private:
	struct FTimer;

	FTimer* FindTimer(FTimerHandle Handle) const;
	FTimer& AddTimer(FTimerHandle& InOutHandle, float Rate, const FTimerManagerTimerParameters& Parameters);
	void SetOrClearTimer(FTimerHandle& InOutHandle, float Rate, const FTimerManagerTimerParameters& Parameters, TFunctionRef<void(FTimer&)> Bind);
	void RemoveTimer(FTimer& Timer);
	void CallDueTimer(uint64 Id);

	/** Seconds advanced since the manager was made. */
	double Now = 0.0;
	uint64 NextId = 1;
	TMap<uint64, TUniquePtr<FTimer>> Timers;
	/** Identifiers of the active timers as a heap, the earliest due at the top; entries whose timer has gone or moved are stale. */
	struct FDue
	{
		double Time;
		uint64 Id;
	};
	mutable TArray<FDue> Due;

	static bool IsEarlier(const FDue& A, const FDue& B);
	void PushDue(const FTimer& Timer);
	bool IsStale(const FDue& Entry) const;
};
