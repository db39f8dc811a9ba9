#include "Images/HalvexImageSubsystem.h"

#include "Engine/Engine.h"
#include "Images/HalvexImageService.h"

UHalvexImageSubsystem* UHalvexImageSubsystem::Get()
{
	UHalvexImageSubsystem* Subsystem = GEngine ? GEngine->GetEngineSubsystem<UHalvexImageSubsystem>() : nullptr;
	return Subsystem && Subsystem->Service.IsValid() ? Subsystem : nullptr;
}

void UHalvexImageSubsystem::Initialize(FSubsystemCollectionBase& Collection)
{
	Super::Initialize(Collection);
	Service = MakeShared<FHalvexImageService>();
	Service->Start();
}

void UHalvexImageSubsystem::Deinitialize()
{
	Service->Stop();
	Service.Reset();
	Super::Deinitialize();
}

void UHalvexImageSubsystem::ClearMemoryCache()
{
	Service->GetMemory().Clear();
}

void UHalvexImageSubsystem::ClearDiskCache()
{
	Service->ClearDisk();
}

int64 UHalvexImageSubsystem::GetMemoryCacheBytes() const
{
	return Service->GetMemory().GetBytes();
}

int32 UHalvexImageSubsystem::GetNumTransfers() const
{
	return Service->GetNumTransfers();
}
