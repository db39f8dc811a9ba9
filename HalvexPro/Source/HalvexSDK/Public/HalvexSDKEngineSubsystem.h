#pragma once

#include "CoreMinimal.h"
#include "Subsystems/EngineSubsystem.h"
#include "HalvexSDKEngineSubsystem.generated.h"

class UHalvexProjectRequestManager;

/** The service side of the whole program: what the user has been given of it. */
UCLASS()
class HALVEXSDK_API UHalvexSDKEngineSubsystem : public UEngineSubsystem
{
	GENERATED_BODY()

public:
	/** The subsystem; null when there is no engine. */
	static UHalvexSDKEngineSubsystem* Get();

	virtual void Initialize(FSubsystemCollectionBase& Collection) override;

	/** Keeps the project that the user looks at. */
	UFUNCTION(BlueprintCallable, Category = "HalvexSDK")
	UHalvexProjectRequestManager* GetUserRequestManager() const { return RequestManager; }

private:
	UPROPERTY()
	TObjectPtr<UHalvexProjectRequestManager> RequestManager;
};
