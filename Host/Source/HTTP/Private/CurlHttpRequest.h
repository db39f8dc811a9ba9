#pragma once

#include "CoreMinimal.h"
#include "CurlTransfer.h"
#include "Interfaces/IHttpRequest.h"

namespace Host
{
	/** A request as the game thread sees it. */
	class FCurlHttpRequest final : public IHttpRequest
	{
	public:
		virtual FString GetURL() const override { return Url; }
		virtual const FString& GetEffectiveURL() const override { return EffectiveUrl; }
		virtual EHttpRequestStatus::Type GetStatus() const override { return Status; }
		virtual EHttpFailureReason GetFailureReason() const override { return FailureReason; }
		virtual FString GetHeader(const FString& HeaderName) const override;
		virtual TArray<FString> GetAllHeaders() const override;
		virtual FString GetContentType() const override;
		virtual uint64 GetContentLength() const override { return static_cast<uint64>(Content.Num()); }
		virtual const TArray<uint8>& GetContent() const override { return Content; }

		virtual FString GetVerb() const override { return Verb; }
		virtual void SetVerb(const FString& InVerb) override;
		virtual void SetURL(const FString& InURL) override;
		virtual void SetContent(const TArray<uint8>& ContentPayload) override;
		virtual void SetContent(TArray<uint8>&& ContentPayload) override;
		virtual void SetContentAsString(const FString& ContentString) override;
		virtual void SetHeader(const FString& HeaderName, const FString& HeaderValue) override;
		virtual void SetTimeout(float InTimeoutSecs) override { Timeout = InTimeoutSecs; }
		virtual void ClearTimeout() override { Timeout.Reset(); }
		virtual TOptional<float> GetTimeout() const override { return Timeout; }
		virtual void SetActivityTimeout(float InTimeoutSecs) override { ActivityTimeout = InTimeoutSecs; }
		virtual bool ProcessRequest() override;
		virtual void CancelRequest() override;
		virtual const FHttpResponsePtr GetResponse() const override { return Response; }
		virtual FHttpRequestCompleteDelegate& OnProcessRequestComplete() override { return CompleteDelegate; }
		virtual FHttpRequestProgressDelegate64& OnRequestProgress64() override { return ProgressDelegate; }

		/** Ends all requests at once, as cancelled, and stops talking to servers. */
		static void CancelAll();

		/** Requests that are processed. */
		static int32 GetNumActive();

	private:
		TSharedRef<FCurlHttpRequest> AsSharedRequest();
		TSharedRef<FCurlTransfer> MakeTransfer(const FString& Server);
		/** Ends the request at the next tick, whatever the worker does. */
		void FailLater(EHttpFailureReason Reason);
		void ReportProgress(uint32 ForRun);
		/** Ends the run, if it is the current one. Transfer: null when there was none, or it is still with the worker. */
		void Complete(uint32 ForRun, FCurlTransfer* Ended, EHttpFailureReason Reason);

		FString Url;
		FString EffectiveUrl;
		FString Verb = TEXT("GET");
		TArray<TPair<FString, FString>> Headers;
		TArray<uint8> Content;
		TOptional<float> Timeout;
		TOptional<float> ActivityTimeout;
		EHttpRequestStatus::Type Status = EHttpRequestStatus::NotStarted;
		EHttpFailureReason FailureReason = EHttpFailureReason::None;
		FHttpResponsePtr Response;
		FHttpRequestCompleteDelegate CompleteDelegate;
		FHttpRequestProgressDelegate64 ProgressDelegate;
		TSharedPtr<FCurlTransfer> Transfer;
		/** Counts the times it was processed: what an earlier one still hands over does not count. */
		uint32 Run = 0;
	};
}
