#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"
#include "FlowDirection.generated.h"

/** The direction in which horizontal arrangements run. */
UENUM(BlueprintType)
enum class EFlowDirection : uint8
{
	LeftToRight UMETA(DisplayName = "Left to Right"),
	RightToLeft UMETA(DisplayName = "Right to Left"),
};
