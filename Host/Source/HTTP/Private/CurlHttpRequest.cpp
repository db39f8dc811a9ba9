#include "CurlHttpRequest.h"

#include "CoreGlobals.h"
#include "CurlHttpResponse.h"
#include "CurlWorker.h"
#include "Host/GameThreadQueue.h"
#include "HttpLog.h"
#include "HttpMessage.h"
#include "HttpModule.h"

namespace Host
{
	namespace
	{
		/** What is processed is kept alive until its delegate was called. */
		TArray<TSharedRef<FCurlHttpRequest>>& GetActiveRequests()
		{
			static TArray<TSharedRef<FCurlHttpRequest>> Requests;
			return Requests;
		}

		/** Everything is coming to its end: nothing begins any more. */
		bool bCancellingAll = false;

		bool HasLineBreak(const FString& Text)
		{
			return Text.Contains(TEXT("\r")) || Text.Contains(TEXT("\n"));
		}

		std::string ToStd(const FString& Text)
		{
			return std::string(TCHAR_TO_UTF8(*Text));
		}
	}

	FString FCurlHttpRequest::GetHeader(const FString& HeaderName) const
	{
		return FindHeader(Headers, HeaderName);
	}

	TArray<FString> FCurlHttpRequest::GetAllHeaders() const
	{
		return ListHeaders(Headers);
	}

	FString FCurlHttpRequest::GetContentType() const
	{
		return FindHeader(Headers, TEXT("Content-Type"));
	}

	void FCurlHttpRequest::SetVerb(const FString& InVerb)
	{
		check(Status != EHttpRequestStatus::Processing);
		Verb = InVerb.ToUpper();
	}

	void FCurlHttpRequest::SetURL(const FString& InURL)
	{
		check(Status != EHttpRequestStatus::Processing);
		Url = InURL;
	}

	void FCurlHttpRequest::SetContent(const TArray<uint8>& ContentPayload)
	{
		check(Status != EHttpRequestStatus::Processing);
		Content = ContentPayload;
	}

	void FCurlHttpRequest::SetContent(TArray<uint8>&& ContentPayload)
	{
		check(Status != EHttpRequestStatus::Processing);
		Content = MoveTemp(ContentPayload);
	}

	void FCurlHttpRequest::SetContentAsString(const FString& ContentString)
	{
		const FTCHARToUTF8 Text(*ContentString);
		SetContent(TArray<uint8>(reinterpret_cast<const uint8*>(Text.Get()), Text.Length()));
	}

	void FCurlHttpRequest::SetHeader(const FString& HeaderName, const FString& HeaderValue)
	{
		check(Status != EHttpRequestStatus::Processing);
		if (HeaderName.IsEmpty() || HasLineBreak(HeaderName) || HasLineBreak(HeaderValue))
		{
			UE_LOG(LogHttp, Warning, TEXT("A header of a request is left out: its name is empty, or it holds a line break."));
			return;
		}
		Headers.RemoveAll([&](const TPair<FString, FString>& Header) { return Header.Key.Equals(HeaderName, ESearchCase::IgnoreCase); });
		Headers.Emplace(HeaderName, HeaderValue);
	}

	TSharedRef<FCurlHttpRequest> FCurlHttpRequest::AsSharedRequest()
	{
		return StaticCastSharedRef<FCurlHttpRequest>(AsShared());
	}

	bool FCurlHttpRequest::ProcessRequest()
	{
		check(IsInGameThread());
		if (Status == EHttpRequestStatus::Processing)
		{
			UE_LOG(LogHttp, Warning, TEXT("A request that is being processed cannot be processed again."));
			return false;
		}
		++Run;
		Status = EHttpRequestStatus::Processing;
		FailureReason = EHttpFailureReason::None;
		EffectiveUrl = Url;
		Response.Reset();
		Transfer.Reset();
		GetActiveRequests().Add(AsSharedRequest());
		const FString Server = FindServer(Url);
		if (Server.IsEmpty() || bCancellingAll)
		{
			FailLater(EHttpFailureReason::Other);
			return false;
		}
		Transfer = MakeTransfer(Server);
		FCurlWorker::Get().Begin(Transfer.ToSharedRef(), FHttpModule::Get().GetHttpMaxConnectionsPerServer());
		return true;
	}

	TSharedRef<FCurlTransfer> FCurlHttpRequest::MakeTransfer(const FString& Server)
	{
		const FHttpModule& Module = FHttpModule::Get();
		const TSharedRef<FCurlTransfer> Result = MakeShared<FCurlTransfer>();
		Result->Url = ToStd(Url);
		Result->Server = ToStd(Server);
		Result->Verb = ToStd(Verb);
		for (const TPair<FString, FString>& Header : Headers)
		{
			Result->Headers.push_back(ToStd(Header.Key) + ": " + ToStd(Header.Value));
		}
		Result->Body = Content;
		Result->TotalTimeout = FMath::Max(Timeout.Get(Module.GetHttpTotalTimeout()), 0.0f);
		Result->ConnectionTimeout = FMath::Max(Module.GetHttpConnectionTimeout(), 0.0f);
		Result->ActivityTimeout = FMath::Max(ActivityTimeout.Get(Module.GetHttpActivityTimeout()), 0.0f);
		// Both are called on the worker's thread, where the request must not be touched, nor the transfer held by itself.
		const TWeakPtr<IHttpRequest> WeakThis = AsShared();
		const TWeakPtr<FCurlTransfer> WeakTransfer = Result;
		Result->OnDone = [WeakThis, WeakTransfer, ThisRun = Run]
		{
			FGameThreadQueue::Post([WeakThis, Ended = WeakTransfer.Pin(), ThisRun]
			{
				if (const TSharedPtr<IHttpRequest> Request = WeakThis.Pin())
				{
					static_cast<FCurlHttpRequest&>(*Request).Complete(ThisRun, Ended.Get(), Ended->FailureReason);
				}
			});
		};
		if (ProgressDelegate.IsBound())
		{
			Result->OnProgress = [WeakThis, ThisRun = Run]
			{
				FGameThreadQueue::Post([WeakThis, ThisRun]
				{
					if (const TSharedPtr<IHttpRequest> Request = WeakThis.Pin())
					{
						static_cast<FCurlHttpRequest&>(*Request).ReportProgress(ThisRun);
					}
				});
			};
		}
		return Result;
	}

	void FCurlHttpRequest::CancelRequest()
	{
		check(IsInGameThread());
		if (Status != EHttpRequestStatus::Processing)
		{
			return;
		}
		if (Transfer)
		{
			FCurlWorker::Get().Cancel(*Transfer);
			Transfer.Reset();
			FailLater(EHttpFailureReason::Cancelled);
		}
	}

	void FCurlHttpRequest::FailLater(EHttpFailureReason Reason)
	{
		FGameThreadQueue::Post([This = AsSharedRequest(), ThisRun = Run, Reason] { This->Complete(ThisRun, nullptr, Reason); });
	}

	void FCurlHttpRequest::ReportProgress(uint32 ForRun)
	{
		if (ForRun != Run || !Transfer)
		{
			return;
		}
		Transfer->bProgressTold = false;
		const TSharedRef<FCurlHttpRequest> This = AsSharedRequest();
		// A copy, as whoever is called may bind anew.
		const FHttpRequestProgressDelegate64 Delegate = ProgressDelegate;
		Delegate.ExecuteIfBound(This, Transfer->BytesSent, Transfer->BytesReceived);
	}

	void FCurlHttpRequest::Complete(uint32 ForRun, FCurlTransfer* Ended, EHttpFailureReason Reason)
	{
		if (ForRun != Run || Status != EHttpRequestStatus::Processing)
		{
			return;
		}
		const TSharedRef<FCurlHttpRequest> This = AsSharedRequest();
		GetActiveRequests().Remove(This);
		Transfer.Reset();
		FailureReason = Reason;
		const bool bSucceeded = Reason == EHttpFailureReason::None;
		Status = bSucceeded ? EHttpRequestStatus::Succeeded : EHttpRequestStatus::Failed;
		if (bSucceeded)
		{
			EffectiveUrl = Ended->EffectiveUrl;
			Response = MakeShared<FCurlHttpResponse>(Url, *Ended);
		}
		else
		{
			// Without the address, which may hold secrets: whoever asked knows what to tell of it.
			UE_LOG(LogHttp, Verbose, TEXT("%s %s failed: %s"), *Verb, *FindServer(Url), Ended ? *Ended->Error : TEXT("cancelled, or no address of http or https"));
		}
		// A copy, as whoever is called may bind anew.
		const FHttpRequestCompleteDelegate Delegate = CompleteDelegate;
		Delegate.ExecuteIfBound(This, Response, bSucceeded);
	}

	void FCurlHttpRequest::CancelAll()
	{
		bCancellingAll = true;
		FCurlWorker::Get().Stop();
		const TArray<TSharedRef<FCurlHttpRequest>> Requests = GetActiveRequests();
		for (const TSharedRef<FCurlHttpRequest>& Request : Requests)
		{
			Request->Complete(Request->Run, nullptr, EHttpFailureReason::Cancelled);
		}
		bCancellingAll = false;
	}

	int32 FCurlHttpRequest::GetNumActive()
	{
		return GetActiveRequests().Num();
	}
}
