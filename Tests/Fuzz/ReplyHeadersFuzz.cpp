#include <cstddef>
#include <cstdint>

#include "CoreMinimal.h"
#include "Images/HalvexImageFreshness.h"

/** Any headers of a server's reply, a line each: whatever they say, a picture is fresh for a year at most, and what is sent back is one short line. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* Data, size_t Size)
{
	const FString Text(FUtf8StringView(reinterpret_cast<const UTF8CHAR*>(Data), static_cast<int32>(Size)));
	TArray<FString> Lines;
	Text.ParseIntoArray(Lines, TEXT("\n"), false);
	Lines.SetNum(5);
	const FHalvexImageFreshness Freshness = FHalvexImageFreshness::Parse(Lines[0], Lines[1], Lines[2], Lines[3], 60);
	check(Freshness.FreshUntil <= FDateTime::UtcNow() + FTimespan::FromDays(366.0));
	for (const FString& Sent : { Freshness.ETag, Freshness.LastModified })
	{
		check(Sent.Len() <= 256 && !Sent.Contains(TEXT("\r")));
	}
	check(FHalvexImageFreshness::ParseRetryAfter(Lines[4]) >= 0.0);
	return 0;
}
