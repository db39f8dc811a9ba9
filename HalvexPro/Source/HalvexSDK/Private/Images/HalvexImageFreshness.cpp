#include "Images/HalvexImageFreshness.h"

#include "Images/HalvexImageSettings.h"

namespace
{
	constexpr int64 LongestAge = 365 * 24 * 3600;

	/** A count of seconds, at most LongestAge; -1 for anything else. */
	int64 ParseSeconds(const FString& Text)
	{
		FString Digits = Text.TrimStartAndEnd();
		Digits.ReplaceInline(TEXT("\""), TEXT(""));
		if (Digits.IsEmpty())
		{
			return -1;
		}
		int64 Seconds = 0;
		for (const TCHAR Unit : Digits)
		{
			if (!FChar::IsDigit(Unit) || Unit > TEXT('9'))
			{
				return -1;
			}
			Seconds = FMath::Min<int64>(Seconds * 10 + (Unit - TEXT('0')), LongestAge);
		}
		return Seconds;
	}

	/** What is sent back to the server must be one short line. */
	FString KeepIfSendable(const FString& Value)
	{
		constexpr int32 MaxLength = 256;
		for (const TCHAR Unit : Value)
		{
			if (Unit < TEXT(' ') || Unit > TEXT('~'))
			{
				return FString();
			}
		}
		return Value.Len() <= MaxLength ? Value : FString();
	}
}

FHalvexImageFreshness FHalvexImageFreshness::Parse(const FString& CacheControl, const FString& Age, const FString& ETag, const FString& LastModified, const int32 DefaultMaxAge)
{
	FHalvexImageFreshness Result;
	Result.ETag = KeepIfSendable(ETag);
	Result.LastModified = KeepIfSendable(LastModified);
	int64 MaxAge = DefaultMaxAge;
	bool bAlwaysAsk = false;
	TArray<FString> Directives;
	CacheControl.ParseIntoArray(Directives, TEXT(","));
	for (const FString& Directive : Directives)
	{
		FString Name = Directive;
		FString Value;
		Directive.Split(TEXT("="), &Name, &Value);
		Name.TrimStartAndEndInline();
		if (Name == TEXT("max-age"))
		{
			// An age that cannot be read is no permission to use the picture unasked.
			MaxAge = FMath::Max<int64>(ParseSeconds(Value), 0);
		}
		Result.bMayStore = Result.bMayStore && Name != TEXT("no-store");
		bAlwaysAsk = bAlwaysAsk || Name == TEXT("no-cache") || Name == TEXT("no-store");
	}
	const int64 Rest = bAlwaysAsk ? 0 : MaxAge - FMath::Max<int64>(ParseSeconds(Age), 0);
	Result.FreshUntil = FDateTime::UtcNow() + FTimespan::FromSeconds(static_cast<double>(FMath::Max<int64>(Rest, 0)));
	return Result;
}

FHalvexImageFreshness FHalvexImageFreshness::Parse(const IHttpResponse& Response)
{
	return Parse(Response.GetHeader(TEXT("Cache-Control")), Response.GetHeader(TEXT("Age")), Response.GetHeader(TEXT("ETag")),
		Response.GetHeader(TEXT("Last-Modified")), GetDefault<UHalvexImageSettings>()->DefaultMaxAge);
}

double FHalvexImageFreshness::ParseRetryAfter(const FString& RetryAfter)
{
	return static_cast<double>(FMath::Max<int64>(ParseSeconds(RetryAfter), 0));
}
