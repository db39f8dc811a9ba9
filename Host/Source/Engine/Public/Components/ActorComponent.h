#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "ActorComponent.generated.h"

class AActor;

/** A part of an actor, which owns it. */
UCLASS(BlueprintType, Blueprintable, Abstract, DefaultToInstanced)
class ENGINE_API UActorComponent : public UObject
{
	GENERATED_BODY()

public:
	UActorComponent(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** The actor that this is inside of; null when it is inside of none. */
	AActor* GetOwner() const;
};
