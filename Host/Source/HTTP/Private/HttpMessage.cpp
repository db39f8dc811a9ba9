#include "HttpMessage.h"

namespace Host
{
	FString FindHeader(const FHttpHeaders& Headers, const FString& Name)
	{
		FString Result;
		for (const TPair<FString, FString>& Header : Headers)
		{
			if (Header.Key.Equals(Name, ESearchCase::IgnoreCase))
			{
				Result += (Result.IsEmpty() ? TEXT("") : TEXT(", ")) + Header.Value;
			}
		}
		return Result;
	}

	TArray<FString> ListHeaders(const FHttpHeaders& Headers)
	{
		TArray<FString> Lines;
		for (const TPair<FString, FString>& Header : Headers)
		{
			Lines.Add(Header.Key + TEXT(": ") + Header.Value);
		}
		return Lines;
	}

	FString FindServer(const FString& Url)
	{
		const FString Lower = Url.ToLower();
		const FString Scheme = Lower.StartsWith(TEXT("https://")) ? TEXT("https://") : TEXT("http://");
		if (!Lower.StartsWith(Scheme))
		{
			return FString();
		}
		FString Authority = Lower.Mid(Scheme.Len());
		for (const TCHAR End : { TEXT('/'), TEXT('?'), TEXT('#') })
		{
			int32 Index = INDEX_NONE;
			if (Authority.FindChar(End, Index))
			{
				Authority = Authority.Left(Index);
			}
		}
		int32 User = INDEX_NONE;
		if (Authority.FindLastChar(TEXT('@'), User))
		{
			Authority = Authority.Mid(User + 1);
		}
		return Authority.IsEmpty() ? FString() : Scheme + Authority;
	}
}
