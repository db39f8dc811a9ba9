#pragma once

#include "CoreMinimal.h"
#include "Interfaces/IHttpBase.h"
#include "Interfaces/IHttpResponse.h"

class IHttpRequest;

typedef TSharedRef<IHttpRequest, ESPMode::ThreadSafe> FHttpRequestRef;
typedef TSharedPtr<IHttpRequest, ESPMode::ThreadSafe> FHttpRequestPtr;

/** Called when the request has ended. Without a response bConnectedSuccessfully is false. */
DECLARE_DELEGATE_ThreeParams(FHttpRequestCompleteDelegate, FHttpRequestPtr /*Request*/, FHttpResponsePtr /*Response*/, bool /*bConnectedSuccessfully*/);

/** Called, at most once a tick, when bytes of the contents have moved. */
DECLARE_DELEGATE_ThreeParams(FHttpRequestProgressDelegate64, FHttpRequestPtr /*Request*/, uint64 /*BytesSent*/, uint64 /*BytesReceived*/);

/**
 * One request. Set up, then processed once; setting it up further while it is processed is a mistake. Used on the game
 * thread; the delegates are called there too, at the start of a tick. Only addresses of http and https are processed, and
 * redirects lead to such ones only, from https to https only, and never take content or authorisation to another server.
 */
class IHttpRequest : public IHttpBase, public TSharedFromThis<IHttpRequest, ESPMode::ThreadSafe>
{
public:
	virtual FString GetVerb() const = 0;

	/** "GET" unless set. */
	virtual void SetVerb(const FString& InVerb) = 0;
	virtual void SetURL(const FString& InURL) = 0;
	virtual void SetContent(const TArray<uint8>& ContentPayload) = 0;
	virtual void SetContent(TArray<uint8>&& ContentPayload) = 0;

	/** The content as UTF-8 text. */
	virtual void SetContentAsString(const FString& ContentString) = 0;

	/** Sets a header, replacing one of that name. One that holds a line break is refused with a line in the log. */
	virtual void SetHeader(const FString& HeaderName, const FString& HeaderValue) = 0;

	/** Seconds that the whole request may take; 0 for any time. Unless set, the configuration decides. */
	virtual void SetTimeout(float InTimeoutSecs) = 0;
	virtual void ClearTimeout() = 0;
	virtual TOptional<float> GetTimeout() const = 0;

	/** Seconds, rounded up, without a byte after which the request fails; 0 for any time. Unless set, the configuration decides. */
	virtual void SetActivityTimeout(float InTimeoutSecs) = 0;

	/** Starts. False when the request cannot be started; the completion delegate is called in any case. */
	virtual bool ProcessRequest() = 0;

	/** Ends the request, which then has failed as cancelled; nothing happens when it is not being processed. */
	virtual void CancelRequest() = 0;

	/** The response; null before it came. */
	virtual const FHttpResponsePtr GetResponse() const = 0;

	/** Called exactly once for each ProcessRequest, never during it. */
	virtual FHttpRequestCompleteDelegate& OnProcessRequestComplete() = 0;

	/** To be bound before the request is processed. */
	virtual FHttpRequestProgressDelegate64& OnRequestProgress64() = 0;
};
