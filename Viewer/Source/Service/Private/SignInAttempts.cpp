#include "SignInAttempts.h"

#include "Math/UnrealMathUtility.h"

namespace
{
	/** Beyond that many, counters that have ended are looked for at each failure. */
	constexpr int32 ManyCounters = 1000;

	/** Names compare as the map does, without case. An address holds no line break. */
	FString MakeUserKey(const FString& UserName, const FString& Address)
	{
		return Address + TEXT("\n") + UserName;
	}
}

Host::FSignInAttempts::FSignInAttempts(int32 InMaxForUser, int32 InMaxFromAddress, int32 InSeconds)
	: MaxForUser(InMaxForUser)
	, MaxFromAddress(InMaxFromAddress)
	, Seconds(InSeconds)
{
}

int32 Host::FSignInAttempts::GetWait(const FString& UserName, const FString& Address, double Now) const
{
	return FMath::Max(GetWaitFor(MakeUserKey(UserName, Address), MaxForUser, Now), GetWaitFor(Address, MaxFromAddress, Now));
}

void Host::FSignInAttempts::CountFailure(const FString& UserName, const FString& Address, double Now)
{
	if (Counters.Num() >= ManyCounters)
	{
		ForgetEnded(Now);
	}
	Count(MakeUserKey(UserName, Address), Now);
	Count(Address, Now);
}

void Host::FSignInAttempts::Forgive(const FString& UserName, const FString& Address)
{
	Counters.Remove(MakeUserKey(UserName, Address));
}

int32 Host::FSignInAttempts::GetWaitFor(const FString& Key, int32 Max, double Now) const
{
	const FCounter* const Counter = Counters.Find(Key);
	return Counter && Counter->Failures >= Max && Now < Counter->End ? FMath::CeilToInt32(Counter->End - Now) : 0;
}

void Host::FSignInAttempts::Count(const FString& Key, double Now)
{
	FCounter& Counter = Counters.FindOrAdd(Key);
	if (Now >= Counter.End)
	{
		Counter = { 0, Now + Seconds };
	}
	++Counter.Failures;
}

void Host::FSignInAttempts::ForgetEnded(double Now)
{
	for (auto It = Counters.CreateIterator(); It; ++It)
	{
		if (Now >= It.Value().End)
		{
			It.RemoveCurrent();
		}
	}
}
