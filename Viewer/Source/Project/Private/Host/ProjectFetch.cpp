#include "Host/ProjectFetch.h"

#include "Host/HttpLimits.h"
#include "HttpModule.h"
#include "Project/ProjectAddress.h"
#include "Project/ProjectReader.h"

DEFINE_LOG_CATEGORY_STATIC(LogProjectFetch, Log, All);

namespace Host
{
	FProjectFetch::FProjectFetch(const FString& InAddress, FSimpleDelegate InOnChanged)
		: Address(FProjectAddress::GetFile(InAddress))
		, Name(FProjectAddress::ForPeople(Address))
		, OnChanged(MoveTemp(InOnChanged))
	{
	}

	FProjectFetch::~FProjectFetch()
	{
		if (Running)
		{
			Running->OnProcessRequestComplete().Unbind();
			Running->OnRequestProgress64().Unbind();
			Running->CancelRequest();
		}
	}

	void FProjectFetch::Start()
	{
		if (State == EState::Fetching)
		{
			return;
		}
		State = EState::Fetching;
		bCancelled = false;
		NumBytes = 0;
		Error.Empty();
		Project = FProjectData();
		Running = FHttpModule::Get().CreateRequest();
		Running->SetURL(Address);
		Running->SetHeader(TEXT("Accept"), TEXT("application/json"));
		Running->OnProcessRequestComplete().BindRaw(this, &FProjectFetch::Complete);
		Running->OnRequestProgress64().BindRaw(this, &FProjectFetch::Progress);
		Running->ProcessRequest();
		OnChanged.ExecuteIfBound();
	}

	void FProjectFetch::Cancel()
	{
		if (Running)
		{
			bCancelled = true;
			Running->CancelRequest();
		}
	}

	void FProjectFetch::Progress(FHttpRequestPtr, uint64, uint64 BytesReceived)
	{
		if (NumBytes != BytesReceived)
		{
			NumBytes = BytesReceived;
			OnChanged.ExecuteIfBound();
		}
	}

	void FProjectFetch::Complete(FHttpRequestPtr Request, FHttpResponsePtr Response, bool bConnected)
	{
		Running.Reset();
		if (!bConnected || !Response)
		{
			Fail(DescribeFailure(Request->GetFailureReason()));
		}
		else if (const int32 Code = Response->GetResponseCode(); Code == EHttpResponseCodes::NotFound)
		{
			Fail(TEXT("There is no project at this address (404)."));
		}
		else if (!EHttpResponseCodes::IsOk(Code))
		{
			Fail(FString::Printf(TEXT("The server answered with an error (%d)."), Code));
		}
		else
		{
			Read(*Response);
		}
		// Whoever is told may throw this away, so nothing follows.
		OnChanged.ExecuteIfBound();
	}

	void FProjectFetch::Read(const IHttpResponse& Response)
	{
		FReadProblems Problems(Name);
		FProjectReader::ReadBytes(Response.GetContent(), Project, Problems);
		// After redirects that is where the file really is.
		Project.Source = FProjectAddress::GetFolder(Response.GetEffectiveURL());
		if (!Project.Units.IsEmpty())
		{
			// Of a text that ended early, what came before is shown.
			Problems.Log();
			State = EState::Done;
		}
		else
		{
			Fail(Problems.IsEmpty() ? FString(TEXT("The project has no units: there is nothing to show.")) : TEXT("What came is no project. ") + Problems.GetMessages()[0].Mid(Name.Len() + 1));
		}
	}

	FString FProjectFetch::DescribeFailure(EHttpFailureReason Reason) const
	{
		if (bCancelled)
		{
			return TEXT("Loading was cancelled.");
		}
		switch (Reason)
		{
		case EHttpFailureReason::ConnectionError:
			return TEXT("The server does not answer, or the connection was lost.");
		case EHttpFailureReason::TimedOut:
			return TEXT("The server took too long.");
		case EHttpFailureReason::Cancelled:
			return TEXT("Loading was cancelled.");
		default:
			return FString::Printf(TEXT("The answer is not accepted: it is larger than %lld MiB, or leads on and on."), FHttpLimits::MaxContentBytes / (1024 * 1024));
		}
	}

	void FProjectFetch::Fail(const FString& InError)
	{
		State = EState::Failed;
		Error = InError;
		UE_LOG(LogProjectFetch, Warning, TEXT("%s: %s"), *Name, *Error);
	}
}
