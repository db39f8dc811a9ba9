#pragma once

#include "Containers/Map.h"
#include "Containers/UnrealString.h"

namespace Host
{
	/** Counts wrong passwords, so that nobody can try out many. */
	class FSignInAttempts
	{
	public:
		FSignInAttempts(int32 InMaxForUser, int32 InMaxFromAddress, int32 InSeconds);

		/** Seconds until this user may be tried from this address; 0 for now. */
		int32 GetWait(const FString& UserName, const FString& Address, double Now) const;
		void CountFailure(const FString& UserName, const FString& Address, double Now);
		/** The right password makes up for wrong ones before. */
		void Forgive(const FString& UserName, const FString& Address);

	private:
		struct FCounter
		{
			int32 Failures = 0;
			/** When it is counted anew. */
			double End = 0.0;
		};

		int32 GetWaitFor(const FString& Key, int32 Max, double Now) const;
		void Count(const FString& Key, double Now);
		void ForgetEnded(double Now);

		const int32 MaxForUser;
		const int32 MaxFromAddress;
		const int32 Seconds;
		TMap<FString, FCounter> Counters;
	};
}
