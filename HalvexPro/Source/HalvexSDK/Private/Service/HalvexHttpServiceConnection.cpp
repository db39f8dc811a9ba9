#include "Service/HalvexHttpServiceConnection.h"

#include "Containers/Ticker.h"
#include "HttpModule.h"
#include "Images/HalvexImageAddress.h"
#include "Images/HalvexImageFreshness.h"
#include "Service/HalvexServiceSettings.h"

namespace
{
	/** The address of the settings, without a slash at its end. */
	FString GetBaseAddress()
	{
		FString Address = GetDefault<UHalvexServiceSettings>()->ServiceAddress.TrimStartAndEnd();
		while (Address.EndsWith(TEXT("/")))
		{
			Address.LeftChopInline(1);
		}
		return Address;
	}

	/** Scheme, host and port of an address. */
	FString GetServer(const FString& Address)
	{
		const int32 Scheme = Address.Find(TEXT("://"), ESearchCase::CaseSensitive);
		FString Server = Address.ToLower();
		for (const TCHAR End : { TEXT('/'), TEXT('?'), TEXT('#') })
		{
			const int32 Place = Server.Find(FString::Chr(End), ESearchCase::CaseSensitive, ESearchDir::FromStart, Scheme == INDEX_NONE ? 0 : Scheme + 3);
			if (Place != INDEX_NONE)
			{
				Server.LeftInline(Place);
			}
		}
		return Server;
	}

	class FHalvexHttpServiceExchange final : public IHalvexServiceExchange, public TSharedFromThis<FHalvexHttpServiceExchange>
	{
	public:
		explicit FHalvexHttpServiceExchange(IHalvexServiceConnection::FCallback InCallback)
			: Callback(MoveTemp(InCallback))
		{
		}

		virtual ~FHalvexHttpServiceExchange() override
		{
			StopRequest();
		}

		void Start(const FString& BaseAddress, const FHalvexServiceRequest& What)
		{
			if (!HalvexImageAddress::IsHttp(BaseAddress))
			{
				// As for others, nothing is told during the call.
				FTSTicker::GetCoreTicker().AddTicker(FTickerDelegate::CreateSP(this, &FHalvexHttpServiceExchange::TellThatThereIsNone));
				return;
			}
			Server = GetServer(BaseAddress);
			Request = FHttpModule::Get().CreateRequest();
			Request->SetVerb(What.Verb);
			Request->SetURL(BaseAddress + TEXT("/") + What.Path);
			Request->SetTimeout(GetDefault<UHalvexServiceSettings>()->RequestTimeout);
			Request->SetHeader(TEXT("Accept"), TEXT("application/json"));
			if (!What.Body.IsEmpty())
			{
				Request->SetHeader(TEXT("Content-Type"), TEXT("application/json; charset=utf-8"));
				Request->SetContentAsString(What.Body);
			}
			if (!What.Bearer.IsEmpty())
			{
				Request->SetHeader(TEXT("Authorization"), TEXT("Bearer ") + What.Bearer);
			}
			Request->OnProcessRequestComplete().BindSP(this, &FHalvexHttpServiceExchange::ReceiveResponse);
			Request->OnRequestProgress64().BindSP(this, &FHalvexHttpServiceExchange::ReceiveProgress);
			// A request that cannot be started calls back as well.
			Request->ProcessRequest();
		}

	private:
		bool TellThatThereIsNone(float)
		{
			Tell(EHalvexServiceOutcome::NoAnswer, TEXT("the settings have no address of http or https for it"));
			return false;
		}

		void ReceiveProgress(const FHttpRequestPtr InRequest, uint64, const uint64 BytesReceived)
		{
			if (InRequest == Request && IsTooLarge(BytesReceived))
			{
				StopRequest();
				TellTooLarge();
			}
		}

		void ReceiveResponse(const FHttpRequestPtr InRequest, const FHttpResponsePtr Response, const bool bConnected)
		{
			if (InRequest != Request)
			{
				return;
			}
			Request.Reset();
			if (!bConnected || !Response.IsValid())
			{
				TellFailure(InRequest->GetFailureReason());
			}
			else if (GetServer(Response->GetEffectiveURL()) != Server)
			{
				Tell(EHalvexServiceOutcome::Refused, TEXT("it was redirected to another server"));
			}
			else if (IsTooLarge(static_cast<uint64>(Response->GetContent().Num())))
			{
				TellTooLarge();
			}
			else
			{
				FHalvexServiceReply Reply;
				Reply.Outcome = EHalvexServiceOutcome::Answered;
				Reply.Status = Response->GetResponseCode();
				Reply.ContentType = Response->GetContentType();
				Reply.Body = Response->GetContentAsString();
				constexpr double MaxRetryAfter = 24.0 * 3600.0;
				Reply.RetryAfterSeconds = static_cast<int32>(FMath::Min(FHalvexImageFreshness::ParseRetryAfter(Response->GetHeader(TEXT("Retry-After"))), MaxRetryAfter));
				Tell(Reply);
			}
		}

		void TellFailure(const EHttpFailureReason Reason)
		{
			if (Reason == EHttpFailureReason::TimedOut)
			{
				Tell(EHalvexServiceOutcome::NoAnswer, TEXT("it took too long"));
			}
			else if (Reason == EHttpFailureReason::Other)
			{
				Tell(EHalvexServiceOutcome::Refused, TEXT("its address, its redirects or the size of the answer are not accepted"));
			}
			else
			{
				Tell(EHalvexServiceOutcome::NoAnswer, TEXT("the connection failed or was lost"));
			}
		}

		static bool IsTooLarge(const uint64 Bytes)
		{
			return static_cast<int64>(Bytes) > GetDefault<UHalvexServiceSettings>()->MaxReplyBytes;
		}

		void TellTooLarge()
		{
			Tell(EHalvexServiceOutcome::Refused, FString::Printf(TEXT("the answer is larger than the %d bytes that are accepted"), GetDefault<UHalvexServiceSettings>()->MaxReplyBytes));
		}

		void Tell(const EHalvexServiceOutcome Outcome, const FString& Reason)
		{
			FHalvexServiceReply Reply;
			Reply.Outcome = Outcome;
			Reply.Reason = Reason;
			Tell(Reply);
		}

		void Tell(const FHalvexServiceReply& Reply)
		{
			// Whoever is called may let go of this.
			const TSharedRef<FHalvexHttpServiceExchange> KeptAlive = AsShared();
			const IHalvexServiceConnection::FCallback Called = MoveTemp(Callback);
			Called(Reply);
		}

		void StopRequest()
		{
			if (Request.IsValid())
			{
				// What it still tells is not listened to.
				const FHttpRequestPtr Stopped = MoveTemp(Request);
				Request.Reset();
				Stopped->CancelRequest();
			}
		}

		IHalvexServiceConnection::FCallback Callback;
		FString Server;
		FHttpRequestPtr Request;
	};
}

TSharedRef<IHalvexServiceExchange> FHalvexHttpServiceConnection::Send(const FHalvexServiceRequest& Request, FCallback Callback)
{
	const TSharedRef<FHalvexHttpServiceExchange> Exchange = MakeShared<FHalvexHttpServiceExchange>(MoveTemp(Callback));
	Exchange->Start(GetBaseAddress(), Request);
	return Exchange;
}

FString FHalvexHttpServiceConnection::GetServiceName() const
{
	return GetBaseAddress();
}

FString FHalvexHttpServiceConnection::ResolveAddress(const FString& Address) const
{
	if (HalvexImageAddress::IsHttp(Address))
	{
		return Address;
	}
	// Another scheme would have files of this machine shown, or worse, because a server says so.
	const bool bPath = !Address.IsEmpty() && !Address.Contains(TEXT(":")) && !Address.StartsWith(TEXT("//"));
	return bPath ? GetBaseAddress() + TEXT("/") + (Address.StartsWith(TEXT("/")) ? Address.Mid(1) : Address) : FString();
}
