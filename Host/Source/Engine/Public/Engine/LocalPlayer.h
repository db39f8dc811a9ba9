#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "LocalPlayer.generated.h"

class APlayerController;
class UGameViewportClient;

/** A person at this machine. */
UCLASS()
class ENGINE_API ULocalPlayer : public UObject
{
	GENERATED_BODY()

public:
	/** What the player controls the world with. */
	UPROPERTY(Transient)
	TObjectPtr<APlayerController> PlayerController;

	/** Where the player looks. */
	UPROPERTY(Transient)
	TObjectPtr<UGameViewportClient> ViewportClient;

	/** Index of the player as input events carry it. */
	int32 GetControllerId() const { return 0; }
};
