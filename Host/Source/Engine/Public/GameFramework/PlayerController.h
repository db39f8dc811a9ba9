#pragma once

#include "CoreMinimal.h"
#include "GameFramework/Actor.h"
#include "PlayerController.generated.h"

class ULocalPlayer;

/** What a player controls the world with; owner of the player's widgets. */
UCLASS()
class ENGINE_API APlayerController : public AActor
{
	GENERATED_BODY()

public:
	APlayerController(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	ULocalPlayer* GetLocalPlayer() const { return Player; }

	/** Ties the controller and the player to each other. */
	void SetPlayer(ULocalPlayer* InPlayer);

private:
	UPROPERTY(Transient)
	TObjectPtr<ULocalPlayer> Player;
};
