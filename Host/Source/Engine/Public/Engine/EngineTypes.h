#pragma once

#include "CoreMinimal.h"
#include "EngineTypes.generated.h"

/** Why an actor's play ends. */
UENUM(BlueprintType)
namespace EEndPlayReason
{
	enum Type : int
	{
		/** The actor was destroyed by name. */
		Destroyed,
		/** Its world goes for another one. */
		LevelTransition,
		EndPlayInEditor,
		RemovedFromWorld,
		/** The program ends. */
		Quit
	};
}
