#pragma once

#include "Host/StoredValues.h"

#include <atomic>
#include <memory>

namespace Host
{
	struct FSecretCall;

	/**
	 * The desktop's service for secrets, over the user's message bus. It is asked on a thread of its own for each call, and
	 * waited for no longer than was said; a service that takes longer is not asked again, so that it delays a program once and
	 * no more. What is locked stays locked: a program cannot stand still until somebody has typed a password.
	 */
	class FSecretService final : public ISecretStore
	{
	public:
		SECRETSTORE_API explicit FSecretService(double InMaxSeconds = 3.0);

		SECRETSTORE_API virtual ESecretAnswer Set(const FStoredValueName& Name, const FString& Value) override;
		SECRETSTORE_API virtual ESecretAnswer Get(const FStoredValueName& Name, FString& OutValue) override;
		SECRETSTORE_API virtual ESecretAnswer Delete(const FStoredValueName& Name) override;

	private:
		/** Has the call done on a thread, and waits for it. */
		ESecretAnswer Ask(const std::shared_ptr<FSecretCall>& Call);

		const double MaxSeconds;
		/** Calls may come from several threads. */
		std::atomic<bool> bTooSlow = false;
	};
}
