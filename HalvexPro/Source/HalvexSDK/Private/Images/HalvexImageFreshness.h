#pragma once

#include "CoreMinimal.h"
#include "Misc/DateTime.h"
#include "Interfaces/IHttpResponse.h"

/** For how long a server's picture may be used without asking, and how to ask whether it has changed. */
struct FHalvexImageFreshness
{
	/** The server's mark of this version; empty for none. */
	FString ETag;
	/** When the server last changed it, in its own words; empty when unknown. */
	FString LastModified;
	/** In UTC. */
	FDateTime FreshUntil = FDateTime::MinValue();
	/** False where the server forbids to keep it. */
	bool bMayStore = true;

	bool IsFresh() const { return FDateTime::UtcNow() < FreshUntil; }
	bool CanAsk() const { return !ETag.IsEmpty() || !LastModified.IsEmpty(); }

	/** From what a server says; any text is taken, and what makes no sense counts as not said. DefaultMaxAge: seconds. */
	static FHalvexImageFreshness Parse(const FString& CacheControl, const FString& Age, const FString& ETag, const FString& LastModified, int32 DefaultMaxAge);
	static FHalvexImageFreshness Parse(const IHttpResponse& Response);

	/** Seconds of a Retry-After header; 0 for a date or nonsense. */
	static double ParseRetryAfter(const FString& RetryAfter);
};
