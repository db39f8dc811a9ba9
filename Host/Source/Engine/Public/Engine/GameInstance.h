#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "GameInstance.generated.h"

class APlayerController;
class UGameViewportClient;
class ULocalPlayer;
class UWorld;

/** One running game: its world, its players, its viewport. */
UCLASS(BlueprintType)
class ENGINE_API UGameInstance : public UObject
{
	GENERATED_BODY()

public:
	/** Makes the world, the viewport and the one local player. */
	void Init();

	/** Lets go of what Init() made. */
	void Shutdown();

	virtual UWorld* GetWorld() const override;

	UGameViewportClient* GetGameViewportClient() const { return ViewportClient; }

	/** The local player; null before Init(). */
	ULocalPlayer* GetFirstGamePlayer() const { return LocalPlayer; }

	/** The local player's controller in the world; null when the player has none there. */
	APlayerController* GetFirstLocalPlayerController(const UWorld* World = nullptr) const;

private:
	UPROPERTY(Transient)
	TObjectPtr<UWorld> World;

	UPROPERTY(Transient)
	TObjectPtr<UGameViewportClient> ViewportClient;

	UPROPERTY(Transient)
	TObjectPtr<ULocalPlayer> LocalPlayer;
};
