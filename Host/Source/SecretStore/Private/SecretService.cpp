#include "Host/SecretService.h"

#include "SecretCall.h"

#include <chrono>
#include <thread>

namespace Host
{
	FSecretService::FSecretService(double InMaxSeconds)
		: MaxSeconds(InMaxSeconds)
	{
	}

	ESecretAnswer FSecretService::Set(const FStoredValueName& Name, const FString& Value)
	{
		return Ask(std::make_shared<FSecretCall>(ESecretCall::Set, Name, Value));
	}

	ESecretAnswer FSecretService::Get(const FStoredValueName& Name, FString& OutValue)
	{
		const std::shared_ptr<FSecretCall> Call = std::make_shared<FSecretCall>(ESecretCall::Get, Name, FString());
		const ESecretAnswer Answer = Ask(Call);
		if (Answer == ESecretAnswer::Done)
		{
			OutValue = Call->Value;
		}
		return Answer;
	}

	ESecretAnswer FSecretService::Delete(const FStoredValueName& Name)
	{
		return Ask(std::make_shared<FSecretCall>(ESecretCall::Delete, Name, FString()));
	}

	ESecretAnswer FSecretService::Ask(const std::shared_ptr<FSecretCall>& Call)
	{
		if (bTooSlow)
		{
			return ESecretAnswer::Unavailable;
		}
		// A thread that is not waited for any more ends when the service answers or takes note of the cancellation.
		std::thread([Call]
		{
			const ESecretAnswer Answer = Call->Run();
			const std::scoped_lock Lock(Call->Mutex);
			Call->Answer = Answer;
			Call->bEnded = true;
			Call->Ended.notify_all();
		}).detach();
		std::unique_lock Lock(Call->Mutex);
		if (!Call->Ended.wait_for(Lock, std::chrono::duration<double>(MaxSeconds), [&Call] { return Call->bEnded; }))
		{
			Call->Cancel();
			bTooSlow = true;
			return ESecretAnswer::Unavailable;
		}
		return Call->Answer;
	}
}
