#pragma once

#include "CoreMinimal.h"
#include "Delegates/Delegate.h"
#include "Templates/SharedPointer.h"

/** Whether an active timer goes on. */
enum class EActiveTimerReturnType : uint8
{
	Continue,
	Stop,
};

DECLARE_DELEGATE_RetVal_TwoParams(EActiveTimerReturnType, FWidgetActiveTimerDelegate, double /*InCurrentTime*/, float /*InDeltaTime*/);

/** A timer of a widget. Frames are made for it, however little else happens. */
class SLATECORE_API FActiveTimerHandle
{
public:
	FActiveTimerHandle(float InTickPeriod, FWidgetActiveTimerDelegate InFunction, double InNow)
		: Function(MoveTemp(InFunction)), NextTime(InNow + InTickPeriod), LastTime(InNow), Period(InTickPeriod)
	{
	}

	/** True until it said to stop, or was removed. */
	bool IsActive() const { return bActive; }
	/** Seconds when it is due. */
	double GetNextTime() const { return NextTime; }

	/** Runs the function when it is due; one time at most, however late it is. */
	void Execute(double CurrentTime);
	void Stop() { bActive = false; }

private:
	FWidgetActiveTimerDelegate Function;
	double NextTime;
	double LastTime;
	float Period;
	bool bActive = true;
};
