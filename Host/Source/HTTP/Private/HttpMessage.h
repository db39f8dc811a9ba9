#pragma once

#include "CoreMinimal.h"

namespace Host
{
	using FHttpHeaders = TArray<TPair<FString, FString>>;

	/** Values of a header, joined by ", "; empty when there is none. */
	FString FindHeader(const FHttpHeaders& Headers, const FString& Name);

	/** "Name: Value" of each. */
	TArray<FString> ListHeaders(const FHttpHeaders& Headers);

	/** "http://Host:Port" of an address in lower case; empty for one that is neither http nor https. */
	FString FindServer(const FString& Url);
}
