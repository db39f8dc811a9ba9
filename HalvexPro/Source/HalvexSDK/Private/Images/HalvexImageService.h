#pragma once

#include "CoreMinimal.h"
#include "Containers/Ticker.h"
#include "Images/HalvexImageMemoryCache.h"
#include "Images/HalvexImageModels.h"
#include "Images/HalvexImageTransfer.h"
#include "UObject/GCObject.h"
#include "UObject/WeakObjectPtr.h"

class UHalvexImageAction;
class UHalvexImageDownloader;

/**
 * Fetches pictures for the downloads: those who want the same one share a transfer, a few transfers run at a time, faults that
 * pass are tried again, and pixels become textures a slice a frame. On the game thread.
 */
class FHalvexImageService : public FGCObject, public TSharedFromThis<FHalvexImageService>
{
public:
	void Start();
	/** Gives everything up, without telling anyone. */
	void Stop();

	/** Begins a download, whose result is delivered in a later frame. */
	void Begin(UHalvexImageDownloader& Downloader);
	/** Ends a download; it is told in a later frame. */
	void GiveUp(UHalvexImageDownloader& Downloader);

	/** Keeps work alive, until it is let go of. */
	void Keep(UHalvexImageAction& Action);
	void LetGo(UHalvexImageAction& Action);

	FHalvexImageMemoryCache& GetMemory() { return Memory; }
	const FHalvexImageMemoryCache& GetMemory() const { return Memory; }
	void ClearDisk();
	int32 GetNumTransfers() const { return Jobs.Num(); }

	virtual void AddReferencedObjects(FReferenceCollector& Collector) override;
	virtual FString GetReferencerName() const override;

private:
	/** A picture on its way, and who waits for it. */
	struct FJob
	{
		explicit FJob(const TSharedRef<FHalvexImageTransfer>& InTransfer) : Transfer(InTransfer) {}

		TSharedRef<FHalvexImageTransfer> Transfer;
		TArray<TWeakObjectPtr<UHalvexImageDownloader>> Downloaders;
		/** Takes one of the places of those that run at a time. */
		bool bRunning = false;
		/** The pixels, on their way into the texture, and the first row that is not there yet. */
		TSharedPtr<FHalvexDecodedImage> Image;
		TObjectPtr<UTexture2D> Texture;
		int32 NextRow = 0;
	};

	/** A result that is known, to be delivered in the next frame. */
	struct FResult
	{
		TWeakObjectPtr<UHalvexImageDownloader> Downloader;
		TObjectPtr<UTexture2D> Texture;
		FString Error;
		bool bCancelled = false;
	};

	static FString MakeKey(const FString& Address, EImageRequestSize Size);
	TSharedPtr<FHalvexImageDiskCache> FindDisk();
	void AddJob(UHalvexImageDownloader& Downloader, const FString& Key, const FString& Address, const FHalvexImageMemoryCache::FEntry* Known);
	void RunWaiting();
	void ReceiveOutcome(const FString& Key, const FHalvexImageOutcome& Outcome);
	void RetryLater(const TSharedRef<FJob>& Job, const FHalvexImageOutcome& Outcome);
	void Finish(const TSharedRef<FJob>& Job, UTexture2D* Texture, const FString& Error);
	void Fail(const TSharedRef<FJob>& Job, const FString& Error, bool bTold);
	void RemoveJob(const TSharedRef<FJob>& Job);
	void DeliverLater(UHalvexImageDownloader& Downloader, UTexture2D* Texture, const FString& Error, bool bCancelled);

	void EnsureTicking();
	bool Tick(float DeltaSeconds);
	void Deliver();
	void Upload();
	/** Fills in rows of at most so many bytes, at least one row; gives the bytes. */
	int64 UploadSlice(FJob& Job, int64 MaxBytes);
	void CancelAbandoned();

	TMap<FString, TSharedRef<FJob>> Jobs;
	/** Those whose turn has not come, in order. */
	TArray<TSharedRef<FJob>> Waiting;
	/** Those whose pixels become textures, in order. */
	TArray<TSharedRef<FJob>> Uploads;
	TArray<FResult> Results;
	TArray<TObjectPtr<UHalvexImageAction>> Actions;
	FHalvexImageMemoryCache Memory;
	TSharedPtr<FHalvexImageDiskCache> Disk;
	FTSTicker::FDelegateHandle Ticker;
	FDelegateHandle CollectHandle;
	int32 NumRunning = 0;
};
