#pragma once

#include "CoreMinimal.h"
#include "Interfaces/IHttpBase.h"

#include <atomic>
#include <string>
#include <vector>

namespace Host
{
	/**
	 * One exchange with a server. The game thread fills in what is asked for and gives the transfer away; the worker's thread
	 * fills in what came and gives it back. In between only what is atomic may be touched by the game thread.
	 */
	struct FCurlTransfer
	{
		// What is asked for

		std::string Url;
		/** Scheme, host and port, by which connections are counted. */
		std::string Server;
		std::string Verb;
		/** "Name: Value" */
		std::vector<std::string> Headers;
		TArray<uint8> Body;
		/** Seconds; 0 for any time. */
		float TotalTimeout = 0.0f;
		float ConnectionTimeout = 0.0f;
		float ActivityTimeout = 0.0f;
		/** Calls whoever waits, on the worker's thread; may be empty. */
		TFunction<void()> OnProgress;
		TFunction<void()> OnDone;

		// What came

		int32 Code = 0;
		TArray<TPair<FString, FString>> ResponseHeaders;
		TArray<uint8> Content;
		FString EffectiveUrl;
		EHttpFailureReason FailureReason = EHttpFailureReason::None;
		/** Why it failed, in words. */
		FString Error;

		// While it runs

		std::atomic<bool> bCancelled = false;
		std::atomic<uint64> BytesSent = 0;
		std::atomic<uint64> BytesReceived = 0;
		/** The game thread has been told of progress and has not looked yet. */
		std::atomic<bool> bProgressTold = false;
	};
}
