#include "Images/HalvexImageTransfer.h"

#include "Async/Async.h"
#include "HAL/FileManager.h"
#include "HttpModule.h"
#include "IImageWrapperModule.h"
#include "Images/HalvexImageAddress.h"
#include "Images/HalvexImageSettings.h"
#include "Misc/FileHelper.h"
#include "Modules/ModuleManager.h"

namespace
{
	using FDecodedPtr = TSharedPtr<FHalvexDecodedImage>;

	/** What decoding needs, gathered on the game thread. */
	struct FDecoding
	{
		IImageWrapperModule& Codecs = FModuleManager::LoadModuleChecked<IImageWrapperModule>(TEXT("ImageWrapper"));
		FString LogName;
		int64 MaxPixels = GetDefault<UHalvexImageSettings>()->MaxImagePixels;
		int64 MaxBytes = GetDefault<UHalvexImageSettings>()->MaxImageBytes;

		FDecodedPtr Decode(const TArray<uint8>& Content) const
		{
			return MakeShared<FHalvexDecodedImage>(HalvexImageDecoder::Decode(Codecs, Content, LogName, MaxPixels));
		}
	};

	FDecodedPtr MakeFailure(const FString& Error)
	{
		const FDecodedPtr Failure = MakeShared<FHalvexDecodedImage>();
		Failure->Error = Error;
		return Failure;
	}

	FString DescribeTooLarge(const int64 MaxBytes)
	{
		return FString::Printf(TEXT("the file is larger than the %lld bytes that are accepted"), static_cast<long long>(MaxBytes));
	}

	FDecodedPtr DecodeFile(const FDecoding& Decoding, const FString& Filename)
	{
		const int64 Size = IFileManager::Get().FileSize(*Filename);
		if (Size < 0)
		{
			return MakeFailure(TEXT("there is no such file"));
		}
		if (Size > Decoding.MaxBytes)
		{
			return MakeFailure(DescribeTooLarge(Decoding.MaxBytes));
		}
		TArray<uint8> Content;
		return FFileHelper::LoadFileToArray(Content, *Filename, FILEREAD_Silent) ? Decoding.Decode(Content) : MakeFailure(TEXT("the file cannot be read"));
	}

	bool IsPassingFault(const int32 Code)
	{
		return Code == 408 || Code == 429 || (Code >= 500 && Code < 600);
	}

	/** What a server said when it confirmed a picture, completed by what it said before. */
	FHalvexImageFreshness Confirm(const FHalvexImageFreshness& Before, const IHttpResponse& Response)
	{
		FHalvexImageFreshness Result = FHalvexImageFreshness::Parse(Response);
		if (!Result.CanAsk())
		{
			Result.ETag = Before.ETag;
			Result.LastModified = Before.LastModified;
		}
		return Result;
	}
}

FHalvexImageTransfer::FHalvexImageTransfer(const FString& InKey, const FString& InAddress, const TSharedPtr<FHalvexImageDiskCache>& InDisk)
	: Key(InKey)
	, Address(InAddress)
	, LogName(HalvexImageAddress::ForLog(InAddress))
	, Disk(InDisk)
{
}

void FHalvexImageTransfer::SetInMemory(const FHalvexImageFreshness& InFreshness)
{
	Freshness = InFreshness;
	bInMemory = true;
}

void FHalvexImageTransfer::Start()
{
	++NumTries;
	++CurrentTry;
	if (HalvexImageAddress::IsFile(Address))
	{
		ReadFile();
	}
	else if (Disk.IsValid() && !bInMemory && !bLookedOnDisk)
	{
		LookOnDisk();
	}
	else
	{
		AskServer();
	}
}

void FHalvexImageTransfer::Cancel()
{
	++CurrentTry;
	StopRequest();
}

void FHalvexImageTransfer::StopRequest()
{
	if (Request.IsValid())
	{
		// What it still tells is not listened to.
		const FHttpRequestPtr Stopped = MoveTemp(Request);
		Request.Reset();
		Stopped->CancelRequest();
	}
}

template <typename ResultType>
void FHalvexImageTransfer::InBackground(TUniqueFunction<ResultType()> Work, void (FHalvexImageTransfer::*Then)(ResultType))
{
	const TWeakPtr<FHalvexImageTransfer> WeakSelf = AsShared();
	AsyncTask(ENamedThreads::AnyBackgroundThreadNormalTask, [WeakSelf, Then, Work = MoveTemp(Work), Try = CurrentTry]
	{
		ResultType Result = Work();
		AsyncTask(ENamedThreads::GameThread, [WeakSelf, Then, Result = MoveTemp(Result), Try]
		{
			const TSharedPtr<FHalvexImageTransfer> This = WeakSelf.Pin();
			if (This.IsValid() && This->CurrentTry == Try)
			{
				(This.Get()->*Then)(Result);
			}
		});
	});
}

void FHalvexImageTransfer::ReadFile()
{
	FString Filename;
	FString Reason;
	const bool bResolved = HalvexImageAddress::ResolveFile(Address, Filename, Reason);
	FDecoding Decoding;
	Decoding.LogName = LogName;
	InBackground<FDecodedPtr>([Decoding, Filename, Reason, bResolved]
	{
		return bResolved ? DecodeFile(Decoding, Filename) : MakeFailure(Reason);
	}, &FHalvexImageTransfer::ReceiveDecoded);
}

void FHalvexImageTransfer::LookOnDisk()
{
	bLookedOnDisk = true;
	FDecoding Decoding;
	Decoding.LogName = LogName;
	const TWeakPtr<FHalvexImageTransfer> WeakSelf = AsShared();
	AsyncTask(ENamedThreads::AnyBackgroundThreadNormalTask, [WeakSelf, Decoding, Cache = Disk, ItsKey = Key, Try = CurrentTry]
	{
		TSharedPtr<FHalvexStoredImage> Found = MakeShared<FHalvexStoredImage>();
		FDecodedPtr Decoded;
		if (!Cache->Read(ItsKey, *Found))
		{
			Found.Reset();
		}
		else if (Found->Freshness.IsFresh())
		{
			Decoded = Decoding.Decode(Found->Content);
		}
		AsyncTask(ENamedThreads::GameThread, [WeakSelf, Found, Decoded, Try]
		{
			const TSharedPtr<FHalvexImageTransfer> This = WeakSelf.Pin();
			if (This.IsValid() && This->CurrentTry == Try)
			{
				This->ReceiveStored(Found, Decoded);
			}
		});
	});
}

void FHalvexImageTransfer::ReceiveStored(const TSharedPtr<FHalvexStoredImage>& Found, const FDecodedPtr& Decoded)
{
	if (Found.IsValid())
	{
		Freshness = Found->Freshness;
	}
	if (Decoded.IsValid() && Decoded->Error.IsEmpty())
	{
		ReceiveDecoded(Decoded);
		return;
	}
	// What was stored and cannot be read any more, since it is beyond limits that were lowered, is asked for anew.
	Stored = Found.IsValid() && !Decoded.IsValid() && Found->Freshness.CanAsk() ? Found : nullptr;
	AskServer();
}

void FHalvexImageTransfer::AskServer()
{
	const UHalvexImageSettings* Settings = GetDefault<UHalvexImageSettings>();
	Request = FHttpModule::Get().CreateRequest();
	Request->SetURL(Address);
	Request->SetTimeout(Settings->RequestTimeout);
	Request->SetActivityTimeout(Settings->ActivityTimeout);
	Request->SetHeader(TEXT("Accept"), TEXT("image/png,image/jpeg,image/webp;q=0.9,*/*;q=0.1"));
	if ((bInMemory || Stored.IsValid()) && !Freshness.ETag.IsEmpty())
	{
		Request->SetHeader(TEXT("If-None-Match"), Freshness.ETag);
	}
	else if ((bInMemory || Stored.IsValid()) && !Freshness.LastModified.IsEmpty())
	{
		Request->SetHeader(TEXT("If-Modified-Since"), Freshness.LastModified);
	}
	Request->OnProcessRequestComplete().BindSP(this, &FHalvexImageTransfer::ReceiveResponse);
	Request->OnRequestProgress64().BindSP(this, &FHalvexImageTransfer::ReceiveProgress);
	// A request that cannot be started calls back as well.
	Request->ProcessRequest();
}

void FHalvexImageTransfer::ReceiveProgress(const FHttpRequestPtr InRequest, uint64, const uint64 BytesReceived)
{
	const int64 MaxBytes = GetDefault<UHalvexImageSettings>()->MaxImageBytes;
	if (InRequest == Request && static_cast<int64>(BytesReceived) > MaxBytes)
	{
		StopRequest();
		Fail(DescribeTooLarge(MaxBytes));
	}
}

void FHalvexImageTransfer::ReceiveResponse(const FHttpRequestPtr InRequest, const FHttpResponsePtr Response, const bool bConnected)
{
	if (InRequest != Request)
	{
		return;
	}
	Request.Reset();
	if (!bConnected || !Response.IsValid())
	{
		const EHttpFailureReason Reason = InRequest->GetFailureReason();
		if (Reason == EHttpFailureReason::ConnectionError)
		{
			Postpone(TEXT("the connection failed or was lost"), 0.0);
		}
		else if (Reason == EHttpFailureReason::TimedOut)
		{
			Postpone(TEXT("the server took too long"), 0.0);
		}
		else
		{
			Fail(TEXT("the request failed: its address, its redirects or the size of the answer are not accepted"));
		}
		return;
	}
	const int32 Code = Response->GetResponseCode();
	if (Code == EHttpResponseCodes::NotModified && (bInMemory || Stored.IsValid()))
	{
		ReceiveUnchanged(*Response);
	}
	else if (EHttpResponseCodes::IsOk(Code))
	{
		ReceiveContent(Response);
	}
	else if (IsPassingFault(Code))
	{
		Postpone(FString::Printf(TEXT("the server answered %d"), Code), FHalvexImageFreshness::ParseRetryAfter(Response->GetHeader(TEXT("Retry-After"))));
	}
	else
	{
		Fail(FString::Printf(TEXT("the server answered %d"), Code));
	}
}

void FHalvexImageTransfer::ReceiveContent(const FHttpResponsePtr& Response)
{
	FDecoding Decoding;
	Decoding.LogName = LogName;
	if (Response->GetContent().Num() > Decoding.MaxBytes)
	{
		Fail(DescribeTooLarge(Decoding.MaxBytes));
		return;
	}
	Freshness = FHalvexImageFreshness::Parse(*Response);
	const TSharedPtr<FHalvexImageDiskCache> Cache = Freshness.bMayStore ? Disk : nullptr;
	InBackground<FDecodedPtr>([Decoding, Response, Cache, Said = Freshness, ItsKey = Key]
	{
		const FDecodedPtr Decoded = Decoding.Decode(Response->GetContent());
		if (Cache.IsValid() && Decoded->Error.IsEmpty())
		{
			FHalvexStoredImage Kept;
			Kept.Freshness = Said;
			Kept.Content = Response->GetContent();
			// By itself, so that nobody waits for the disk.
			AsyncTask(ENamedThreads::AnyBackgroundThreadNormalTask, [Cache, ItsKey, Kept = MoveTemp(Kept)] { Cache->Write(ItsKey, Kept); });
		}
		return Decoded;
	}, &FHalvexImageTransfer::ReceiveDecoded);
}

void FHalvexImageTransfer::ReceiveUnchanged(const IHttpResponse& Response)
{
	Freshness = Confirm(Freshness, Response);
	FDecoding Decoding;
	Decoding.LogName = LogName;
	const bool bDecode = !bInMemory;
	if (!bDecode && !Disk.IsValid())
	{
		ReceiveDecoded(nullptr);
		return;
	}
	InBackground<FDecodedPtr>([Decoding, bDecode, Cache = Disk, Said = Freshness, Known = Stored, ItsKey = Key]
	{
		FHalvexStoredImage Kept;
		const bool bStored = Known.IsValid() || Cache->Read(ItsKey, Kept);
		if (Known.IsValid())
		{
			Kept.Content = Known->Content;
		}
		if (bStored)
		{
			Kept.Freshness = Said;
			Cache->Write(ItsKey, Kept);
		}
		return bDecode ? Decoding.Decode(Kept.Content) : FDecodedPtr();
	}, &FHalvexImageTransfer::ReceiveDecoded);
}

void FHalvexImageTransfer::ReceiveDecoded(const FDecodedPtr Decoded)
{
	FHalvexImageOutcome Outcome;
	Outcome.Kind = FHalvexImageOutcome::EKind::Unchanged;
	if (Decoded.IsValid())
	{
		Outcome.Kind = Decoded->Error.IsEmpty() ? FHalvexImageOutcome::EKind::Picture : FHalvexImageOutcome::EKind::Failed;
		Outcome.Error = Decoded->Error;
		Outcome.bErrorTold = Decoded->bErrorTold;
		Outcome.Image = Decoded;
	}
	End(Outcome);
}

void FHalvexImageTransfer::End(const FHalvexImageOutcome Outcome)
{
	++CurrentTry;
	OnOutcome(Outcome);
}

void FHalvexImageTransfer::Fail(const FString& Error)
{
	FHalvexImageOutcome Outcome;
	Outcome.Error = Error;
	End(Outcome);
}

void FHalvexImageTransfer::Postpone(const FString& Error, const double Delay)
{
	FHalvexImageOutcome Outcome;
	Outcome.Kind = FHalvexImageOutcome::EKind::Postponed;
	Outcome.Error = Error;
	Outcome.RetryDelay = Delay;
	End(Outcome);
}
