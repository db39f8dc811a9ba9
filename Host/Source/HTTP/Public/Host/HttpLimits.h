#pragma once

#include "CoreMinimal.h"

namespace Host
{
	/** What is not accepted of a server, whoever asks: memory stays bounded whatever comes. */
	struct FHttpLimits
	{
		/** Bytes of one content, after decompression. A server that announces more is refused before the first byte. */
		static constexpr int64 MaxContentBytes = 64 * 1024 * 1024;
		/** Bytes of all headers of one request, those of its redirects included. */
		static constexpr int64 MaxHeaderBytes = 256 * 1024;
		/** Redirects in a row. */
		static constexpr int32 MaxRedirects = 10;
	};

	/** What the requests are at, for tests and the account at shutdown. */
	class FHttpActivity
	{
	public:
		/** Requests that are processed and have not called their delegate yet. */
		HTTP_API static int32 GetNumActiveRequests();
	};
}
