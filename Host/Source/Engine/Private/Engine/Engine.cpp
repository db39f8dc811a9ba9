#include "Engine/Engine.h"

#include "Engine/GameInstance.h"
#include "Engine/GameViewportClient.h"
#include "Engine/World.h"

UEngine* GEngine = nullptr;

void UEngine::Init()
{
	EngineSubsystems = MakeUnique<FObjectSubsystemCollection<UEngineSubsystem>>();
	EngineSubsystems->Initialize(this);
	GameInstance = NewObject<UGameInstance>(this);
	GameInstance->Init();
	GameViewport = GameInstance->GetGameViewportClient();
}

void UEngine::PreExit()
{
	if (GameInstance)
	{
		GameInstance->Shutdown();
	}
	GameViewport = nullptr;
	GameInstance = nullptr;
	if (EngineSubsystems)
	{
		EngineSubsystems->Deinitialize();
		EngineSubsystems.Reset();
	}
}

void UEngine::Tick(float DeltaSeconds)
{
	if (UWorld* World = GameInstance ? GameInstance->GetWorld() : nullptr)
	{
		World->Tick(DeltaSeconds);
	}
}
