#pragma once

#include "CoreMinimal.h"
#include "TimerManager.h"
#include "UObject/Object.h"
#include "World.generated.h"

class APlayerController;
class UGameInstance;

/** Where play happens: the game's time, its timers, its players. */
UCLASS()
class ENGINE_API UWorld : public UObject
{
	GENERATED_BODY()

public:
	/** Seconds since play began, without pauses. */
	double TimeSeconds = 0.0;

	/** Length of the current frame in seconds. */
	float DeltaTimeSeconds = 0.0f;

	UWorld(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	virtual UWorld* GetWorld() const override;

	/** The world's timers; they stand still while the game is paused. */
	FTimerManager& GetTimerManager() const { return *TimerManager; }

	UGameInstance* GetGameInstance() const { return OwningGameInstance; }
	void SetGameInstance(UGameInstance* NewGameInstance);

	/** The first player's controller; null before there is a player. */
	APlayerController* GetFirstPlayerController() const;

	double GetTimeSeconds() const { return TimeSeconds; }
	float GetDeltaSeconds() const { return DeltaTimeSeconds; }

	bool IsPaused() const { return bPaused; }
	void SetPaused(bool bInPaused) { bPaused = bInPaused; }

	/** Advances the world by a frame. Nothing moves while it is paused. */
	void Tick(float DeltaSeconds);

private:
	UPROPERTY(Transient)
	TObjectPtr<UGameInstance> OwningGameInstance;

	TUniquePtr<FTimerManager> TimerManager;
	bool bPaused = false;
};
