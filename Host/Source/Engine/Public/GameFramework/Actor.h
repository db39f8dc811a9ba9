#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "Actor.generated.h"

/** Base of what stands in a world. */
UCLASS(BlueprintType, Blueprintable)
class ENGINE_API AActor : public UObject
{
	GENERATED_BODY()

public:
	AActor(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());
};
