#pragma once

#include "CoreMinimal.h"
#include "Components/ActorComponent.h"
#include "SceneComponent.generated.h"

/** A part of an actor that stands somewhere. */
UCLASS(BlueprintType, Blueprintable)
class ENGINE_API USceneComponent : public UActorComponent
{
	GENERATED_BODY()

public:
	USceneComponent(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	const FTransform& GetComponentTransform() const { return ComponentToWorld; }
	/** In centimetres. */
	FVector GetComponentLocation() const { return ComponentToWorld.GetLocation(); }
	FRotator GetComponentRotation() const { return ComponentToWorld.Rotator(); }
	FVector GetComponentScale() const { return ComponentToWorld.GetScale3D(); }

	void SetWorldTransform(const FTransform& NewTransform) { ComponentToWorld = NewTransform; }
	void SetWorldLocation(const FVector& NewLocation) { ComponentToWorld.SetLocation(NewLocation); }

private:
	FTransform ComponentToWorld;
};
