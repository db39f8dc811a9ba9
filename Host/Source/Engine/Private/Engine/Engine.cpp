#include "Engine/Engine.h"

#include "Engine/GameInstance.h"
#include "Engine/GameViewportClient.h"
#include "Engine/World.h"
#include "GameFramework/GameUserSettings.h"
#include "HAL/IConsoleManager.h"
#include "Host/RankedSet.h"

UEngine* GEngine = nullptr;

namespace
{
	TAutoConsoleVariable<float> MaxFramesPerSecond(TEXT("t.MaxFPS"), 0.0f, TEXT("Frames a second at most. 0: no limit."));
}

void UEngine::Init()
{
	EngineSubsystems = MakeUnique<FObjectSubsystemCollection<UEngineSubsystem>>();
	EngineSubsystems->Initialize(this);
	GameInstance = NewObject<UGameInstance>(this);
	GameInstance->Init();
	GameViewport = GameInstance->GetGameViewportClient();
}

UGameUserSettings* UEngine::GetGameUserSettings()
{
	if (!GameUserSettings)
	{
		UClass* Class = GameUserSettingsClassName.IsNull() ? nullptr : GameUserSettingsClassName.TryLoadClass<UGameUserSettings>();
		GameUserSettings = NewObject<UGameUserSettings>(this, Class ? Class : UGameUserSettings::StaticClass());
		GameUserSettings->LoadSettings();
	}
	return GameUserSettings;
}

void UEngine::PreExit()
{
	if (GameInstance)
	{
		GameInstance->Shutdown();
	}
	GameViewport = nullptr;
	GameInstance = nullptr;
	GameUserSettings = nullptr;
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

void UEngine::SetMaxFPS(float MaxFPS)
{
	Host::SetUnlessOutranked(*MaxFramesPerSecond, *FString::SanitizeFloat(FMath::Max(MaxFPS, 0.0f)), ECVF_SetByGameSetting);
}

float UEngine::GetMaxFPS() const
{
	return FMath::Max(MaxFramesPerSecond.GetValueOnGameThread(), 0.0f);
}
