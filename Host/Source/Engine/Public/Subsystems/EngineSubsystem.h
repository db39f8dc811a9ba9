#pragma once

#include "CoreMinimal.h"
#include "Subsystems/Subsystem.h"
#include "EngineSubsystem.generated.h"

/** A subsystem that lives as long as the engine. Reached with GEngine->GetEngineSubsystem<T>(). */
UCLASS(Abstract)
class ENGINE_API UEngineSubsystem : public UDynamicSubsystem
{
	GENERATED_BODY()
};
