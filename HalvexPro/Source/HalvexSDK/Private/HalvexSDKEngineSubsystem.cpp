#include "HalvexSDKEngineSubsystem.h"

#include "Engine/Engine.h"
#include "Service/HalvexProjectRequestManager.h"

UHalvexSDKEngineSubsystem* UHalvexSDKEngineSubsystem::Get()
{
	return GEngine ? GEngine->GetEngineSubsystem<UHalvexSDKEngineSubsystem>() : nullptr;
}

void UHalvexSDKEngineSubsystem::Initialize(FSubsystemCollectionBase& Collection)
{
	Super::Initialize(Collection);
	RequestManager = NewObject<UHalvexProjectRequestManager>(this);
}
