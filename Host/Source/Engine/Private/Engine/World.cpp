#include "Engine/World.h"

#include "Engine/GameInstance.h"
#include "Engine/LocalPlayer.h"
#include "GameFramework/PlayerController.h"

UWorld::UWorld(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, TimerManager(MakeUnique<FTimerManager>())
{
}

UWorld* UWorld::GetWorld() const
{
	return const_cast<UWorld*>(this);
}

void UWorld::SetGameInstance(UGameInstance* NewGameInstance)
{
	OwningGameInstance = NewGameInstance;
}

APlayerController* UWorld::GetFirstPlayerController() const
{
	return OwningGameInstance ? OwningGameInstance->GetFirstLocalPlayerController(this) : nullptr;
}

void UWorld::Tick(float DeltaSeconds)
{
	if (bPaused)
	{
		return;
	}
	DeltaTimeSeconds = DeltaSeconds;
	TimeSeconds += DeltaSeconds;
	TimerManager->Tick(DeltaSeconds);
}
