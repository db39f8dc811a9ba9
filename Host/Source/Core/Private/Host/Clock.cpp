#include "Host/Clock.h"

#include "HAL/PlatformTime.h"
#include "Misc/AssertionMacros.h"

namespace
{
	struct FClockState
	{
		double Now = 0.0;
		double DeltaTime = 0.0;
		/** Real time at the last move that followed it; negative when there was none. */
		double RealTime = -1.0;
	};

	constinit FClockState Clock;
}

double Host::FClock::Now()
{
	return Clock.Now;
}

double Host::FClock::DeltaTime()
{
	return Clock.DeltaTime;
}

void Host::FClock::Advance(double Seconds)
{
	check(Seconds >= 0.0);
	Clock.DeltaTime = Seconds;
	Clock.Now += Seconds;
}

void Host::FClock::FollowRealTime()
{
	const double RealTime = FPlatformTime::Seconds();
	Advance(Clock.RealTime < 0.0 ? 0.0 : RealTime - Clock.RealTime);
	Clock.RealTime = RealTime;
}

void Host::FClock::Set(double Seconds)
{
	Clock = FClockState();
	Clock.Now = Seconds;
}
