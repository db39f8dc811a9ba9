#include "HalvexSDKEngineSubsystem.h"

#include "Engine/Engine.h"
#include "Service/HalvexHttpServiceConnection.h"
#include "Service/HalvexProjectRequestManager.h"
#include "User/HalvexUser.h"

UHalvexSDKEngineSubsystem* UHalvexSDKEngineSubsystem::Get()
{
	return GEngine ? GEngine->GetEngineSubsystem<UHalvexSDKEngineSubsystem>() : nullptr;
}

void UHalvexSDKEngineSubsystem::Initialize(FSubsystemCollectionBase& Collection)
{
	Super::Initialize(Collection);
	RequestManager = NewObject<UHalvexProjectRequestManager>(this);
	HalvexUser = NewObject<UHalvexUser>(this);
}

void UHalvexSDKEngineSubsystem::Deinitialize()
{
	SetHalvexUser(nullptr);
	Super::Deinitialize();
}

void UHalvexSDKEngineSubsystem::SetHalvexUser(UHalvexUser* InHalvexUser)
{
	if (HalvexUser && HalvexUser != InHalvexUser)
	{
		HalvexUser->Abandon();
	}
	HalvexUser = InHalvexUser;
}

void UHalvexSDKEngineSubsystem::SetServiceConnection(const TSharedPtr<IHalvexServiceConnection>& InServiceConnection)
{
	ServiceConnection = InServiceConnection.IsValid() ? InServiceConnection.ToSharedRef() : MakeDefaultConnection();
	if (HalvexUser)
	{
		HalvexUser->Abandon();
	}
}

TSharedRef<IHalvexServiceConnection> UHalvexSDKEngineSubsystem::MakeDefaultConnection()
{
	return MakeShared<FHalvexHttpServiceConnection>();
}
