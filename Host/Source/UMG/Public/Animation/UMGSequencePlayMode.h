#pragma once

#include "CoreMinimal.h"
#include "UMGSequencePlayMode.generated.h"

/** How an animation plays. */
UENUM(BlueprintType)
namespace EUMGSequencePlayMode
{
	enum Type : int
	{
		/** From the beginning to the end, again and again. */
		Forward,
		/** From the end to the beginning, again and again. */
		Reverse,
		/** From the beginning to the end, then from the end to the beginning; each way counts as one loop. */
		PingPong,
	};
}
