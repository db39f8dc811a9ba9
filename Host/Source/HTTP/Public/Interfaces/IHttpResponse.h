#pragma once

#include "CoreMinimal.h"
#include "Interfaces/IHttpBase.h"

/** Codes of responses that the code asks for. */
namespace EHttpResponseCodes
{
	enum Type
	{
		Unknown = 0,
		Ok = 200,
		PartialContent = 206,
		NotModified = 304,
		NotFound = 404,
		RequestTimeout = 408,
		TooManyRequests = 429,
		ServerError = 500,
	};

	/** True for 200 to 206. */
	inline bool IsOk(int32 StatusCode)
	{
		return StatusCode >= Ok && StatusCode <= PartialContent;
	}
}

/** What a server answered. */
class IHttpResponse : public IHttpBase
{
public:
	virtual int32 GetResponseCode() const = 0;

	/** The content as UTF-8 text. */
	virtual FString GetContentAsString() const = 0;
	virtual FUtf8StringView GetContentAsUtf8StringView() const = 0;
};

typedef TSharedPtr<IHttpResponse, ESPMode::ThreadSafe> FHttpResponsePtr;
