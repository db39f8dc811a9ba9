#pragma once

#include "CoreMinimal.h"
#include "Images/HalvexImageDecoder.h"
#include "Images/HalvexImageDiskCache.h"
#include "Images/HalvexImageFreshness.h"
#include "Interfaces/IHttpRequest.h"

/** How a try to fetch a picture ended. */
struct FHalvexImageOutcome
{
	enum class EKind : uint8
	{
		/** Image has the pixels. */
		Picture,
		/** The picture that is in memory is still the server's. */
		Unchanged,
		/** Error says why. */
		Failed,
		/** As Failed, but worth another try after RetryDelay. */
		Postponed,
	};

	EKind Kind = EKind::Failed;
	TSharedPtr<FHalvexDecodedImage> Image;
	FString Error;
	/** The log has the error already. */
	bool bErrorTold = false;
	/** Seconds that the server asks to wait; 0 for any. */
	double RetryDelay = 0.0;
};

/**
 * Fetches one picture: from a file, from the disk cache, or from its server, which is asked whether a stored picture is still
 * good. Files and pixels are worked on in the background; everything else, and the outcome, is on the game thread.
 */
class FHalvexImageTransfer : public TSharedFromThis<FHalvexImageTransfer>
{
public:
	/** @param InDisk may be null */
	FHalvexImageTransfer(const FString& InKey, const FString& InAddress, const TSharedPtr<FHalvexImageDiskCache>& InDisk);

	const FString& GetKey() const { return Key; }
	const FString& GetAddress() const { return Address; }

	/** What the server said of the picture. */
	const FHalvexImageFreshness& GetFreshness() const { return Freshness; }

	/** There is a picture in memory, of which the server is only asked whether it has changed. */
	void SetInMemory(const FHalvexImageFreshness& InFreshness);

	/** Begins a try, which ends in one call of OnOutcome, never during this. */
	void Start();

	/** Ends the try without an outcome. */
	void Cancel();

	TFunction<void(const FHalvexImageOutcome&)> OnOutcome;

	/** Tries that were begun. */
	int32 GetNumTries() const { return NumTries; }

private:
	void ReadFile();
	void LookOnDisk();
	void ReceiveStored(const TSharedPtr<FHalvexStoredImage>& Found, const TSharedPtr<FHalvexDecodedImage>& Decoded);
	void AskServer();
	void ReceiveProgress(FHttpRequestPtr InRequest, uint64 BytesSent, uint64 BytesReceived);
	void ReceiveResponse(FHttpRequestPtr InRequest, FHttpResponsePtr Response, bool bConnected);
	void ReceiveContent(const FHttpResponsePtr& Response);
	void ReceiveUnchanged(const IHttpResponse& Response);
	void StopRequest();

	/** Does work in the background, and then something with what it made on the game thread, unless the try was given up. */
	template <typename ResultType>
	void InBackground(TUniqueFunction<ResultType()> Work, void (FHalvexImageTransfer::*Then)(ResultType));

	void ReceiveDecoded(TSharedPtr<FHalvexDecodedImage> Decoded);
	void End(FHalvexImageOutcome Outcome);
	void Fail(const FString& Error);
	void Postpone(const FString& Error, double Delay);

	FString Key;
	FString Address;
	FString LogName;
	TSharedPtr<FHalvexImageDiskCache> Disk;
	FHalvexImageFreshness Freshness;
	/** A stored picture that the server has to confirm. */
	TSharedPtr<FHalvexStoredImage> Stored;
	FHttpRequestPtr Request;
	int32 NumTries = 0;
	/** What an earlier try still hands over does not count. */
	int32 CurrentTry = 0;
	bool bInMemory = false;
	bool bLookedOnDisk = false;
};
