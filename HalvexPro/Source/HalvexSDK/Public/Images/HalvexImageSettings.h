#pragma once

#include "CoreMinimal.h"
#include "Engine/DeveloperSettings.h"
#include "UObject/Class.h"
#include "HalvexImageSettings.generated.h"

/** Where pictures come from, how long is waited for them, and how much of them is kept. */
UCLASS(Config = Halvex, DefaultConfig, meta = (DisplayName = "Halvex Images"))
class HALVEXSDK_API UHalvexImageSettings : public UDeveloperSettings
{
	GENERATED_BODY()

public:
	UHalvexImageSettings();

	/**
	 * The folder of the project that file addresses stand for; none leads out of it. A content path such as /HalvexPro/, or a
	 * folder, which starts from the project's when it is relative.
	 */
	UPROPERTY(EditAnywhere, Config, Category = "Files")
	FString ImageFolder = TEXT("/HalvexPro/");

	/** Further folders, by full paths, for as long as the program runs: file addresses with a full path may lead into them too. */
	UPROPERTY(Transient)
	TArray<FString> FurtherImageFolders;

	/** Pictures that are fetched at the same time; others wait for their turn. */
	UPROPERTY(EditAnywhere, Config, Category = "Downloads", meta = (ClampMin = "1"))
	int32 ParallelDownloads = 6;

	/** Seconds that a download may take as a whole. */
	UPROPERTY(EditAnywhere, Config, Category = "Downloads", meta = (ClampMin = "1"))
	float RequestTimeout = 60.0f;

	/** Seconds of silence after which a download is given up. */
	UPROPERTY(EditAnywhere, Config, Category = "Downloads", meta = (ClampMin = "1"))
	float ActivityTimeout = 20.0f;

	/** How often a download is tried again after a fault that may pass: a lost connection, a server that is busy or failing. */
	UPROPERTY(EditAnywhere, Config, Category = "Downloads", meta = (ClampMin = "0"))
	int32 Retries = 3;

	/** Seconds before the first new try; each further one waits twice as long. */
	UPROPERTY(EditAnywhere, Config, Category = "Downloads", meta = (ClampMin = "0.01"))
	float RetryDelay = 0.5f;

	/** Longest wait in seconds before a new try, whatever the server asks for. */
	UPROPERTY(EditAnywhere, Config, Category = "Downloads", meta = (ClampMin = "0.01"))
	float MaxRetryDelay = 60.0f;

	/** Bytes of the largest file that is accepted. */
	UPROPERTY(EditAnywhere, Config, Category = "Limits", meta = (ClampMin = "1"))
	int32 MaxImageBytes = 16 * 1024 * 1024;

	/** Pixels of the largest picture that is accepted; each takes four bytes of memory. */
	UPROPERTY(EditAnywhere, Config, Category = "Limits", meta = (ClampMin = "1"))
	int32 MaxImagePixels = 16 * 1024 * 1024;

	/** Bytes of pixels that become a texture in one frame. */
	UPROPERTY(EditAnywhere, Config, Category = "Limits", meta = (ClampMin = "1"))
	int32 UploadBytesPerFrame = 2 * 1024 * 1024;

	/** Bytes of textures that are kept for the next request; the ones not asked for longest go first. */
	UPROPERTY(EditAnywhere, Config, Category = "Cache", meta = (ClampMin = "0"))
	int64 MemoryCacheBytes = 128 * 1024 * 1024;

	/** Keeps downloaded files in the user's folder, across starts. */
	UPROPERTY(EditAnywhere, Config, Category = "Cache")
	bool bUseDiskCache = true;

	/** Bytes of files that are kept; the ones stored or confirmed longest ago go first. */
	UPROPERTY(EditAnywhere, Config, Category = "Cache", meta = (ClampMin = "0", EditCondition = "bUseDiskCache"))
	int64 DiskCacheBytes = 256 * 1024 * 1024;

	/** Seconds for which a picture counts as fresh when its server says nothing about that; then the server is asked whether it has changed. */
	UPROPERTY(EditAnywhere, Config, Category = "Cache", meta = (ClampMin = "0"))
	int32 DefaultMaxAge = 0;
};
