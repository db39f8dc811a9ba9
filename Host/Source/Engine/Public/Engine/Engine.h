#pragma once

#include "CoreMinimal.h"
#include "Subsystems/EngineSubsystem.h"
#include "Subsystems/SubsystemCollection.h"
#include "UObject/Object.h"
#include "UObject/SoftObjectPath.h"
#include "Engine.generated.h"

class UGameInstance;
class UGameUserSettings;
class UGameViewportClient;

/** What lives as long as the program: the engine's subsystems and the running game. */
UCLASS(Config = Engine, Transient)
class ENGINE_API UEngine : public UObject
{
	GENERATED_BODY()

public:
	/** The viewport of the running game; null when there is none. */
	UPROPERTY(Transient)
	TObjectPtr<UGameViewportClient> GameViewport;

	/** The class of the user's settings, for projects that have more of them; none for UGameUserSettings. */
	UPROPERTY(GlobalConfig)
	FSoftClassPath GameUserSettingsClassName;

	/** What the user has chosen; null before it is asked for. */
	UPROPERTY(Transient)
	TObjectPtr<UGameUserSettings> GameUserSettings;

	/** The user's settings, loaded but not applied when they are made for the first question. */
	UGameUserSettings* GetGameUserSettings();

	/** Creates the engine subsystems, then the game. */
	virtual void Init();

	/** Ends the game, then the subsystems. */
	virtual void PreExit();

	/** Advances the running game by a frame. */
	virtual void Tick(float DeltaSeconds);

	/** Frames a second at most; 0 for no limit. The console variable t.MaxFPS, which a setter of a higher rank than game settings keeps. */
	virtual void SetMaxFPS(float MaxFPS);
	float GetMaxFPS() const;

	UGameInstance* GetGameInstance() const { return GameInstance; }

	/** The engine subsystem of the class, or of one that derives from it; null when it was not created. */
	template <typename SubsystemType>
	SubsystemType* GetEngineSubsystem() const
	{
		return EngineSubsystems ? EngineSubsystems->GetSubsystem<SubsystemType>(SubsystemType::StaticClass()) : nullptr;
	}

	UEngineSubsystem* GetEngineSubsystemBase(TSubclassOf<UEngineSubsystem> SubsystemClass) const
	{
		return EngineSubsystems ? EngineSubsystems->GetSubsystem<UEngineSubsystem>(SubsystemClass) : nullptr;
	}

private:
	UPROPERTY(Transient)
	TObjectPtr<UGameInstance> GameInstance;

	TUniquePtr<FObjectSubsystemCollection<UEngineSubsystem>> EngineSubsystems;
};

/** The engine; null early in start-up, late in shut-down and in programs without one. */
extern ENGINE_API UEngine* GEngine;
