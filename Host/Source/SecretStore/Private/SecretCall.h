#pragma once

#include "Host/StoredValues.h"

#include <condition_variable>
#include <mutex>

typedef struct _GCancellable GCancellable;

namespace Host
{
	enum class ESecretCall : uint8
	{
		Set,
		Get,
		Delete,
	};

	/** What is asked of the service, and what it answered. It outlives both the one who asks and the thread that does it. */
	struct FSecretCall
	{
		FSecretCall(ESecretCall InKind, const FStoredValueName& InName, const FString& InValue);
		~FSecretCall();
		FSecretCall(const FSecretCall&) = delete;
		FSecretCall& operator=(const FSecretCall&) = delete;

		/** Does it, however long that takes; on any thread. */
		ESecretAnswer Run();
		/** Makes Run() end early; on any thread. */
		void Cancel();

		const ESecretCall Kind;
		const FStoredValueName Name;
		/** Of a Get, set by Run(). */
		FString Value;

		std::mutex Mutex;
		std::condition_variable Ended;
		bool bEnded = false;
		ESecretAnswer Answer = ESecretAnswer::Unavailable;

	private:
		/** Null when there is no library to ask with. */
		GCancellable* Cancellable = nullptr;
	};
}
