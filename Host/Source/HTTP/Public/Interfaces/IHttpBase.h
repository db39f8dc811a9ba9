#pragma once

#include "CoreMinimal.h"

/** How far a request is. */
namespace EHttpRequestStatus
{
	enum Type
	{
		NotStarted,
		Processing,
		/** Ended without a response; see the failure reason. */
		Failed,
		/** Ended with a response, of whatever code. */
		Succeeded,
	};
}

/** Why a request has no response. */
enum class EHttpFailureReason : uint8
{
	None,
	/** The server was not reached, or the connection was lost, went silent or ended too early. */
	ConnectionError,
	Cancelled,
	/** The whole request took longer than it may. */
	TimedOut,
	/** The address, the size or the content is not accepted. */
	Other,
};

/** What requests and responses have in common. */
class IHttpBase
{
public:
	virtual ~IHttpBase() = default;

	/** The address that was asked for. */
	virtual FString GetURL() const = 0;

	/** The address that answered, after all redirects. */
	virtual const FString& GetEffectiveURL() const = 0;

	virtual EHttpRequestStatus::Type GetStatus() const = 0;
	virtual EHttpFailureReason GetFailureReason() const = 0;

	/** The value of a header; empty when there is none. Several of one name are joined by ", ". Names compare without case. */
	virtual FString GetHeader(const FString& HeaderName) const = 0;

	/** All headers as "Name: Value". */
	virtual TArray<FString> GetAllHeaders() const = 0;

	virtual FString GetContentType() const = 0;

	/** Bytes of the content. */
	virtual uint64 GetContentLength() const = 0;

	virtual const TArray<uint8>& GetContent() const = 0;
};
