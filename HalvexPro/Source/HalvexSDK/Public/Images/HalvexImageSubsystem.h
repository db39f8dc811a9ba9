#pragma once

#include "CoreMinimal.h"
#include "Subsystems/EngineSubsystem.h"
#include "HalvexImageSubsystem.generated.h"

class FHalvexImageService;

/** Fetches and keeps the pictures of the whole program. */
UCLASS()
class HALVEXSDK_API UHalvexImageSubsystem : public UEngineSubsystem
{
	GENERATED_BODY()

public:
	/** The subsystem; null when there is no engine. */
	static UHalvexImageSubsystem* Get();

	virtual void Initialize(FSubsystemCollectionBase& Collection) override;
	virtual void Deinitialize() override;

	/** Lets go of the textures that are kept for later requests. */
	UFUNCTION(BlueprintCallable, Category = "HalvexImage")
	void ClearMemoryCache();

	/** Deletes the downloaded files that are kept in the user's folder. */
	UFUNCTION(BlueprintCallable, Category = "HalvexImage")
	void ClearDiskCache();

	/** Bytes of the textures that are kept for later requests. */
	UFUNCTION(BlueprintPure, Category = "HalvexImage")
	int64 GetMemoryCacheBytes() const;

	/** Pictures that are being fetched, or wait for it. */
	UFUNCTION(BlueprintPure, Category = "HalvexImage")
	int32 GetNumTransfers() const;

	/** What does the work; for the downloads. */
	FHalvexImageService& GetService() const { return *Service; }

private:
	TSharedPtr<FHalvexImageService> Service;
};
