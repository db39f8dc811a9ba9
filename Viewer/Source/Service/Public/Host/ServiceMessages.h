#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"

namespace Host
{
	/** What is asked of a service, as HTTP has it. */
	struct FServiceRequest
	{
		/** In capitals, as "GET". */
		FString Method;
		/** From the service's base address on, as "/api/user": with percent codes, and with a query, which does not count. */
		FString Target;
		/** The headers of these names; empty for none. */
		FString Authorization;
		FString IfNoneMatch;
		/** Who asks, for counting attempts at signing in; no more than a name here. */
		FString ClientAddress;
		TArray<uint8> Body;
	};

	struct FServiceHeader
	{
		FString Name;
		FString Value;
	};

	struct FServiceResponse
	{
		int32 Status = 500;
		/** Without those that follow from the body, as its length. */
		TArray<FServiceHeader> Headers;
		/** For HEAD what it would be for GET; whoever sends the response leaves it out. */
		TArray<uint8> Body;

		/** Empty when there is no such header; the case of the name does not count. */
		PROJECTSERVICE_API FString GetHeader(const FString& Name) const;
	};
}
