#include "Engine/GameInstance.h"

#include "Engine/GameViewportClient.h"
#include "Engine/LocalPlayer.h"
#include "Engine/World.h"
#include "GameFramework/PlayerController.h"

void UGameInstance::Init()
{
	World = NewObject<UWorld>(this);
	World->SetGameInstance(this);
	ViewportClient = NewObject<UGameViewportClient>(this);
	LocalPlayer = NewObject<ULocalPlayer>(this);
	LocalPlayer->ViewportClient = ViewportClient;
	APlayerController* Controller = World->SpawnActor<APlayerController>();
	Controller->SetPlayer(LocalPlayer);
	World->BeginPlay();
}

void UGameInstance::Shutdown()
{
	if (World)
	{
		World->EndPlay(EEndPlayReason::Quit);
	}
	if (ViewportClient)
	{
		ViewportClient->RemoveAllViewportWidgets();
	}
	LocalPlayer = nullptr;
	ViewportClient = nullptr;
	World = nullptr;
}

UWorld* UGameInstance::GetWorld() const
{
	return World;
}

APlayerController* UGameInstance::GetFirstLocalPlayerController(const UWorld* InWorld) const
{
	APlayerController* Controller = LocalPlayer ? LocalPlayer->PlayerController.Get() : nullptr;
	return Controller && (!InWorld || Controller->GetWorld() == InWorld) ? Controller : nullptr;
}
