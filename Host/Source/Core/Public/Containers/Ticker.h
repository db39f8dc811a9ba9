#pragma once

#include "Containers/Array.h"
#include "Delegates/Delegate.h"
#include "Templates/SharedPointer.h"

/** Called with the seconds since the last frame; false ends the calls. */
DECLARE_DELEGATE_RetVal_OneParam(bool, FTickerDelegate, float);

/**
 * Calls back every frame, or after a time, again and again until the callback gives false. Unlike a world's timers it does
 * not stand still while the game is paused. On the game thread.
 */
class FTSTicker
{
private:
	struct FElement;

public:
	using FDelegateHandle = TWeakPtr<FElement>;

	/** The ticker that the loop of the program advances. */
	CORE_API static FTSTicker& GetCoreTicker();

	CORE_API FTSTicker();
	CORE_API ~FTSTicker();
	FTSTicker(const FTSTicker&) = delete;
	FTSTicker& operator=(const FTSTicker&) = delete;

	/**
	 * Adds a callback; one that is added during a tick is called in the next at the earliest.
	 * @param InDelay	seconds before each call; 0 for every frame
	 */
	CORE_API FDelegateHandle AddTicker(const FTickerDelegate& InDelegate, float InDelay = 0.0f);

	/** Ends the calls; nothing happens when they have ended. */
	CORE_API static void RemoveTicker(FDelegateHandle Handle);

	/** Advances the time and calls what is due, in the order of adding. */
	CORE_API void Tick(float DeltaTime);

	/** Seconds until the earliest call, for a loop that wants to sleep; negative when nothing waits. */
	CORE_API double GetSecondsUntilNextCall() const;

private:
	TArray<TSharedRef<FElement>> Elements;
	double Now = 0.0;
};
