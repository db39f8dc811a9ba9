#include "GameFramework/PlayerController.h"

#include "Engine/LocalPlayer.h"

APlayerController::APlayerController(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

void APlayerController::SetPlayer(ULocalPlayer* InPlayer)
{
	Player = InPlayer;
	if (Player)
	{
		Player->PlayerController = this;
	}
}
