#include "Images/HalvexImageService.h"

#include "Engine/Texture2D.h"
#include "HAL/FileManager.h"
#include "Images/HalvexImageAddress.h"
#include "Images/HalvexImageDownloader.h"
#include "Images/HalvexImageLog.h"
#include "Images/HalvexImageSettings.h"
#include "Misc/Paths.h"
#include "RHITypes.h"
#include "UObject/UObjectGlobals.h"

DEFINE_LOG_CATEGORY(LogHalvexImages);

namespace
{
	FString GetDiskFolder()
	{
		return FPaths::ProjectSavedDir() / TEXT("HalvexImages");
	}
}

void FHalvexImageService::Start()
{
	CollectHandle = FCoreUObjectDelegates::GetPostGarbageCollect().AddSP(this, &FHalvexImageService::CancelAbandoned);
}

void FHalvexImageService::Stop()
{
	FCoreUObjectDelegates::GetPostGarbageCollect().Remove(CollectHandle);
	FTSTicker::RemoveTicker(Ticker);
	for (const TPair<FString, TSharedRef<FJob>>& Pair : Jobs)
	{
		Pair.Value->Transfer->Cancel();
	}
	Jobs.Empty();
	Waiting.Empty();
	Uploads.Empty();
	Results.Empty();
	Actions.Empty();
	Memory.Clear();
}

FString FHalvexImageService::MakeKey(const FString& Address, const EImageRequestSize Size)
{
	FString Key = FString::Printf(TEXT("%d %s"), static_cast<int32>(Size), *Address);
	FString Filename;
	FString Reason;
	if (HalvexImageAddress::IsFile(Address) && HalvexImageAddress::ResolveFile(Address, Filename, Reason))
	{
		// A file that was written anew is another picture.
		Key += FString::Printf(TEXT(" %lld"), static_cast<long long>(IFileManager::Get().GetTimeStamp(*Filename).GetTicks()));
	}
	return Key;
}

TSharedPtr<FHalvexImageDiskCache> FHalvexImageService::FindDisk()
{
	const UHalvexImageSettings* Settings = GetDefault<UHalvexImageSettings>();
	if (!Settings->bUseDiskCache || Settings->DiskCacheBytes <= 0)
	{
		return nullptr;
	}
	if (!Disk.IsValid())
	{
		Disk = MakeShared<FHalvexImageDiskCache>(GetDiskFolder(), Settings->DiskCacheBytes);
	}
	return Disk;
}

void FHalvexImageService::ClearDisk()
{
	FHalvexImageDiskCache(GetDiskFolder(), 0).Clear();
	// With the settings of then.
	Disk.Reset();
}

void FHalvexImageService::Begin(UHalvexImageDownloader& Downloader)
{
	const FString Address = HalvexImageAddress::Choose(Downloader.GetImageData(), Downloader.GetSize());
	const bool bFile = HalvexImageAddress::IsFile(Address);
	if (!bFile && !HalvexImageAddress::IsHttp(Address))
	{
		const FString Error = Address.IsEmpty() ? TEXT("it has no address") : TEXT("its address is not one of http, https or file");
		UE_LOG(LogHalvexImages, Warning, TEXT("The picture '%s' (%s) is not shown: %s."), *Downloader.GetImageData().ImageName, *HalvexImageAddress::ForLog(Address), *Error);
		DeliverLater(Downloader, nullptr, Error, false);
		return;
	}
	const FString Key = MakeKey(Address, Downloader.GetSize());
	if (const TSharedRef<FJob>* Job = Jobs.Find(Key))
	{
		(*Job)->Downloaders.Add(&Downloader);
		return;
	}
	const FHalvexImageMemoryCache::FEntry* Known = Memory.Find(Key);
	if (Known && (bFile || Known->Freshness.IsFresh()))
	{
		DeliverLater(Downloader, Known->Texture, FString(), false);
		return;
	}
	AddJob(Downloader, Key, Address, Known);
}

void FHalvexImageService::AddJob(UHalvexImageDownloader& Downloader, const FString& Key, const FString& Address, const FHalvexImageMemoryCache::FEntry* Known)
{
	const TSharedRef<FHalvexImageTransfer> Transfer = MakeShared<FHalvexImageTransfer>(Key, Address, FindDisk());
	const TSharedRef<FJob> Job = MakeShared<FJob>(Transfer);
	Job->Downloaders.Add(&Downloader);
	if (Known && Known->Freshness.CanAsk())
	{
		Transfer->SetInMemory(Known->Freshness);
		// Not let go of while the server is asked.
		Job->Texture = Known->Texture;
	}
	Transfer->OnOutcome = [WeakSelf = TWeakPtr<FHalvexImageService>(AsShared()), Key](const FHalvexImageOutcome& Outcome)
	{
		if (const TSharedPtr<FHalvexImageService> This = WeakSelf.Pin())
		{
			This->ReceiveOutcome(Key, Outcome);
		}
	};
	Jobs.Add(Key, Job);
	Waiting.Add(Job);
	RunWaiting();
}

void FHalvexImageService::RunWaiting()
{
	const int32 MaxRunning = FMath::Max(GetDefault<UHalvexImageSettings>()->ParallelDownloads, 1);
	while (NumRunning < MaxRunning && Waiting.Num() > 0)
	{
		const TSharedRef<FJob> Job = Waiting[0];
		Waiting.RemoveAt(0);
		Job->bRunning = true;
		++NumRunning;
		Job->Transfer->Start();
	}
}

void FHalvexImageService::ReceiveOutcome(const FString& Key, const FHalvexImageOutcome& Outcome)
{
	const TSharedRef<FJob>* Found = Jobs.Find(Key);
	if (!Found)
	{
		return;
	}
	const TSharedRef<FJob> Job = *Found;
	Job->bRunning = false;
	--NumRunning;
	switch (Outcome.Kind)
	{
	case FHalvexImageOutcome::EKind::Picture:
		Job->Image = Outcome.Image;
		Job->Texture = nullptr;
		Uploads.Add(Job);
		EnsureTicking();
		break;
	case FHalvexImageOutcome::EKind::Unchanged:
		Finish(Job, Job->Texture, FString());
		break;
	case FHalvexImageOutcome::EKind::Postponed:
		RetryLater(Job, Outcome);
		break;
	case FHalvexImageOutcome::EKind::Failed:
		Fail(Job, Outcome.Error, Outcome.bErrorTold);
		break;
	}
	RunWaiting();
}

void FHalvexImageService::RetryLater(const TSharedRef<FJob>& Job, const FHalvexImageOutcome& Outcome)
{
	const UHalvexImageSettings* Settings = GetDefault<UHalvexImageSettings>();
	const int32 NumTries = Job->Transfer->GetNumTries();
	if (NumTries > Settings->Retries)
	{
		Fail(Job, FString::Printf(TEXT("%s, %d times"), *Outcome.Error, NumTries), false);
		return;
	}
	const double OwnDelay = static_cast<double>(Settings->RetryDelay) * FMath::Pow(2.0, static_cast<double>(NumTries - 1));
	const double Delay = FMath::Min(FMath::Max(OwnDelay, Outcome.RetryDelay), static_cast<double>(Settings->MaxRetryDelay));
	const FTickerDelegate Retry = FTickerDelegate::CreateLambda(
		[WeakSelf = TWeakPtr<FHalvexImageService>(AsShared()), WeakJob = TWeakPtr<FJob>(Job)](float)
		{
			const TSharedPtr<FHalvexImageService> This = WeakSelf.Pin();
			const TSharedPtr<FJob> Postponed = WeakJob.Pin();
			if (This.IsValid() && Postponed.IsValid() && This->Jobs.Contains(Postponed->Transfer->GetKey()))
			{
				This->Waiting.Add(Postponed.ToSharedRef());
				This->RunWaiting();
			}
			return false;
		});
	FTSTicker::GetCoreTicker().AddTicker(Retry, static_cast<float>(Delay));
}

void FHalvexImageService::Fail(const TSharedRef<FJob>& Job, const FString& Error, const bool bTold)
{
	if (!bTold)
	{
		UE_LOG(LogHalvexImages, Warning, TEXT("The picture %s is not shown: %s."), *HalvexImageAddress::ForLog(Job->Transfer->GetAddress()), *Error);
	}
	Finish(Job, nullptr, Error);
}

void FHalvexImageService::Finish(const TSharedRef<FJob>& Job, UTexture2D* Texture, const FString& Error)
{
	if (Texture && Job->Transfer->GetFreshness().bMayStore)
	{
		Memory.Add(Job->Transfer->GetKey(), *Texture, Job->Transfer->GetFreshness(), GetDefault<UHalvexImageSettings>()->MemoryCacheBytes);
	}
	RemoveJob(Job);
	for (const TWeakObjectPtr<UHalvexImageDownloader>& Downloader : Job->Downloaders)
	{
		if (Downloader.IsValid())
		{
			DeliverLater(*Downloader, Texture, Error, false);
		}
	}
}

void FHalvexImageService::RemoveJob(const TSharedRef<FJob>& Job)
{
	Jobs.Remove(Job->Transfer->GetKey());
	Waiting.Remove(Job);
	Uploads.Remove(Job);
	if (Job->bRunning)
	{
		Job->bRunning = false;
		--NumRunning;
	}
}

void FHalvexImageService::GiveUp(UHalvexImageDownloader& Downloader)
{
	Results.RemoveAll([&](const FResult& Result) { return Result.Downloader == &Downloader; });
	for (const TPair<FString, TSharedRef<FJob>>& Pair : Jobs)
	{
		const TSharedRef<FJob> Job = Pair.Value;
		if (Job->Downloaders.Remove(&Downloader) > 0)
		{
			if (Job->Downloaders.IsEmpty())
			{
				Job->Transfer->Cancel();
				RemoveJob(Job);
				RunWaiting();
			}
			break;
		}
	}
	DeliverLater(Downloader, nullptr, TEXT("it was given up"), true);
}

void FHalvexImageService::DeliverLater(UHalvexImageDownloader& Downloader, UTexture2D* Texture, const FString& Error, const bool bCancelled)
{
	FResult& Result = Results.AddDefaulted_GetRef();
	Result.Downloader = &Downloader;
	Result.Texture = Texture;
	Result.Error = Error;
	Result.bCancelled = bCancelled;
	EnsureTicking();
}

void FHalvexImageService::EnsureTicking()
{
	if (!Ticker.IsValid())
	{
		Ticker = FTSTicker::GetCoreTicker().AddTicker(FTickerDelegate::CreateSP(this, &FHalvexImageService::Tick));
	}
}

bool FHalvexImageService::Tick(float)
{
	Upload();
	Deliver();
	const bool bGoesOn = Results.Num() > 0 || Uploads.Num() > 0;
	if (!bGoesOn)
	{
		// What comes next starts the calls again.
		Ticker.Reset();
	}
	return bGoesOn;
}

void FHalvexImageService::Deliver()
{
	// Whoever hears of a result may begin and give up downloads.
	TArray<FResult> Delivered = MoveTemp(Results);
	Results.Reset();
	for (const FResult& Result : Delivered)
	{
		if (Result.Downloader.IsValid())
		{
			Result.Downloader->Receive(Result.Texture, Result.Error, Result.bCancelled);
		}
	}
}

void FHalvexImageService::Upload()
{
	int64 Rest = FMath::Max(GetDefault<UHalvexImageSettings>()->UploadBytesPerFrame, 1);
	while (Rest > 0 && Uploads.Num() > 0)
	{
		const TSharedRef<FJob> Job = Uploads[0];
		if (!Job->Texture)
		{
			Job->Texture = UTexture2D::CreateTransient(Job->Image->Width, Job->Image->Height, PF_B8G8R8A8);
			if (!Job->Texture)
			{
				Fail(Job, TEXT("there can be no texture of its size"), false);
				continue;
			}
			Job->Texture->UpdateResource();
		}
		Rest -= UploadSlice(*Job, Rest);
		if (Job->NextRow == Job->Image->Height)
		{
			Finish(Job, Job->Texture, FString());
		}
	}
}

int64 FHalvexImageService::UploadSlice(FJob& Job, const int64 MaxBytes)
{
	/** What the texture reads from, also after this function has ended. */
	struct FSlice
	{
		TSharedPtr<FHalvexDecodedImage> Image;
		FUpdateTextureRegion2D Region;
	};
	const int64 Pitch = static_cast<int64>(Job.Image->Width) * sizeof(FColor);
	const int32 NumRows = static_cast<int32>(FMath::Clamp<int64>(MaxBytes / Pitch, 1, Job.Image->Height - Job.NextRow));
	const TSharedRef<FSlice> Slice = MakeShared<FSlice>();
	Slice->Image = Job.Image;
	Slice->Region = FUpdateTextureRegion2D(0, static_cast<uint32>(Job.NextRow), 0, Job.NextRow, static_cast<uint32>(Job.Image->Width), static_cast<uint32>(NumRows));
	Job.Texture->UpdateTextureRegions(0, 1, &Slice->Region, static_cast<uint32>(Pitch), sizeof(FColor), Job.Image->Pixels.GetData(),
		[Slice](uint8*, const FUpdateTextureRegion2D*) {});
	Job.NextRow += NumRows;
	return Pitch * NumRows;
}

void FHalvexImageService::Keep(UHalvexImageAction& Action)
{
	Actions.Add(&Action);
}

void FHalvexImageService::LetGo(UHalvexImageAction& Action)
{
	Actions.Remove(&Action);
}

void FHalvexImageService::CancelAbandoned()
{
	const TArray<TObjectPtr<UHalvexImageAction>> Running = Actions;
	for (const TObjectPtr<UHalvexImageAction>& Action : Running)
	{
		Action->CancelIfAbandoned();
	}
}

void FHalvexImageService::AddReferencedObjects(FReferenceCollector& Collector)
{
	Collector.AddReferencedObjects(Actions);
	for (const TPair<FString, TSharedRef<FJob>>& Pair : Jobs)
	{
		Collector.AddReferencedObject(Pair.Value->Texture);
	}
	for (FResult& Result : Results)
	{
		Collector.AddReferencedObject(Result.Texture);
	}
}

FString FHalvexImageService::GetReferencerName() const
{
	return TEXT("FHalvexImageService");
}
