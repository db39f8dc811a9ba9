#pragma once

#include "CoreMinimal.h"
#include "CurlTransfer.h"
#include "Interfaces/IHttpResponse.h"

namespace Host
{
	/** What a transfer brought. */
	class FCurlHttpResponse final : public IHttpResponse
	{
	public:
		FCurlHttpResponse(FString InUrl, FCurlTransfer& Transfer);

		virtual FString GetURL() const override { return Url; }
		virtual const FString& GetEffectiveURL() const override { return EffectiveUrl; }
		virtual EHttpRequestStatus::Type GetStatus() const override { return EHttpRequestStatus::Succeeded; }
		virtual EHttpFailureReason GetFailureReason() const override { return EHttpFailureReason::None; }
		virtual FString GetHeader(const FString& HeaderName) const override;
		virtual TArray<FString> GetAllHeaders() const override;
		virtual FString GetContentType() const override;
		virtual uint64 GetContentLength() const override { return static_cast<uint64>(Content.Num()); }
		virtual const TArray<uint8>& GetContent() const override { return Content; }
		virtual int32 GetResponseCode() const override { return Code; }
		virtual FString GetContentAsString() const override;
		virtual FUtf8StringView GetContentAsUtf8StringView() const override;

	private:
		FString Url;
		FString EffectiveUrl;
		int32 Code;
		TArray<TPair<FString, FString>> Headers;
		TArray<uint8> Content;
	};
}
