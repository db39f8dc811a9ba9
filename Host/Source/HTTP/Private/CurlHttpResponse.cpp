#include "CurlHttpResponse.h"

#include "HttpMessage.h"

namespace Host
{
	FCurlHttpResponse::FCurlHttpResponse(FString InUrl, FCurlTransfer& Transfer)
		: Url(MoveTemp(InUrl))
		, EffectiveUrl(MoveTemp(Transfer.EffectiveUrl))
		, Code(Transfer.Code)
		, Headers(MoveTemp(Transfer.ResponseHeaders))
		, Content(MoveTemp(Transfer.Content))
	{
	}

	FString FCurlHttpResponse::GetHeader(const FString& HeaderName) const
	{
		return FindHeader(Headers, HeaderName);
	}

	TArray<FString> FCurlHttpResponse::GetAllHeaders() const
	{
		return ListHeaders(Headers);
	}

	FString FCurlHttpResponse::GetContentType() const
	{
		return FindHeader(Headers, TEXT("Content-Type"));
	}

	FString FCurlHttpResponse::GetContentAsString() const
	{
		return FString(GetContentAsUtf8StringView());
	}

	FUtf8StringView FCurlHttpResponse::GetContentAsUtf8StringView() const
	{
		return FUtf8StringView(reinterpret_cast<const UTF8CHAR*>(Content.GetData()), Content.Num());
	}
}
