#pragma once

#include "CoreMinimal.h"

/** What is asked of the service. */
struct HALVEXSDK_API FHalvexServiceRequest
{
	/** "GET", "POST" or "DELETE". */
	FString Verb;
	/** From the address of the service, without a slash at the beginning: "api/session". */
	FString Path;
	/** JSON; empty for none. */
	FString Body;
	/** The token of the user; empty for none. */
	FString Bearer;
};

/** How a request of the service ended. */
enum class EHalvexServiceOutcome : uint8
{
	/** The service answered, with whatever status. */
	Answered,
	/** It was not reached, or not in time. */
	NoAnswer,
	/** What came is not accepted: it is too large, or of another server. */
	Refused
};

/** What the service answered. */
struct HALVEXSDK_API FHalvexServiceReply
{
	EHalvexServiceOutcome Outcome = EHalvexServiceOutcome::NoAnswer;
	/** The status of HTTP, where there is an answer. */
	int32 Status = 0;
	FString ContentType;
	FString Body;
	/** Seconds after which the service may be asked again; 0 when it does not tell. */
	int32 RetryAfterSeconds = 0;
	/** Why there is no answer, for the log. */
	FString Reason;
};

/** A request on its way. Letting go of it gives it up: its callback is not called any more. */
class HALVEXSDK_API IHalvexServiceExchange
{
public:
	virtual ~IHalvexServiceExchange() = default;
};

/** The way to the service. On the game thread. */
class HALVEXSDK_API IHalvexServiceConnection
{
public:
	using FCallback = TFunction<void(const FHalvexServiceReply& Reply)>;

	virtual ~IHalvexServiceConnection() = default;

	/**
	 * Sends a request.
	 * @param Callback	called once, later than this call, unless the exchange is let go of before; it may let go of it
	 */
	virtual TSharedRef<IHalvexServiceExchange> Send(const FHalvexServiceRequest& Request, FCallback Callback) = 0;

	/** Tells services apart: what one gave is stored under this name and never sent to another. */
	virtual FString GetServiceName() const = 0;

	/** The whole address, as pictures have it, of what the service calls by an address or a path of its own; empty when it is not acceptable. */
	virtual FString ResolveAddress(const FString& Address) const = 0;
};
