#pragma once

#include "Host/ServiceMessages.h"
#include "Templates/Function.h"

#include <memory>

namespace Host
{
	struct FProjectServiceSettings
	{
		/** The project's folder. */
		FString Folder;
		/** How long a token is good for. */
		int32 TokenSeconds = 3600;
		/** How long a remembered sign-in is good for, counted from when it was last used. */
		int32 RefreshSeconds = 30 * 24 * 3600;
		/** Wrong passwords for one user from one address, and from one address for all users, until attempts have to wait. */
		int32 MaxAttemptsForUser = 5;
		int32 MaxAttemptsFromAddress = 50;
		/** From the first wrong one until attempts are counted anew. */
		int32 AttemptSeconds = 60;
		/** Whether remembered sign-ins last beyond the end of the program, as hashes among the stored values of its user. */
		bool bKeepSessions = false;
		/** Seconds since 1970, UTC; may be called on any thread. The system's clock when it is not set. */
		TFunction<double()> Clock;
	};

	/**
	 * Answers requests to a project from its folder: sign-in, the signed-in user, and files. It knows nothing of connections, so
	 * the same answers come over HTTP and inside a program. May be called on any thread, by several at once; checking a password
	 * takes about 0.1 seconds. It logs neither names nor passwords nor tokens.
	 */
	class FProjectService
	{
	public:
		/** Larger bodies are answered with 413. */
		static constexpr int32 MaxBodyBytes = 64 * 1024;

		PROJECTSERVICE_API explicit FProjectService(const FProjectServiceSettings& Settings);
		PROJECTSERVICE_API ~FProjectService();
		FProjectService(const FProjectService&) = delete;
		FProjectService& operator=(const FProjectService&) = delete;

		PROJECTSERVICE_API FServiceResponse Handle(const FServiceRequest& Request);

	private:
		struct FImplementation;
		std::unique_ptr<FImplementation> Implementation;
	};
}
