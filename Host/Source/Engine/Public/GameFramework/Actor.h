#pragma once

#include "CoreMinimal.h"
#include "Components/SceneComponent.h"
#include "Engine/EngineTypes.h"
#include "UObject/Object.h"
#include "Actor.generated.h"

/**
 * Base of what stands in a world. UWorld::SpawnActor makes one; it plays from BeginPlay to EndPlay, and goes with Destroy or
 * with its world. Where it stands is where its root component stands.
 */
UCLASS(BlueprintType, Blueprintable)
class ENGINE_API AActor : public UObject
{
	GENERATED_BODY()

public:
	AActor(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** The component that places the actor; null for an actor without a place. */
	USceneComponent* GetRootComponent() const { return RootComponent; }

	/** @return false when the component is not the actor's own */
	bool SetRootComponent(USceneComponent* NewRootComponent);

	/** Of the root component; the identity without one. */
	const FTransform& GetActorTransform() const;
	FVector GetActorLocation() const { return GetActorTransform().GetLocation(); }
	FRotator GetActorRotation() const { return GetActorTransform().Rotator(); }

	/** Each moves the root component; false when there is none. */
	bool SetActorLocation(const FVector& NewLocation);
	bool SetActorTransform(const FTransform& NewTransform);

	/** Places an actor whose spawning was deferred, and lets it begin to play when its world plays. */
	void FinishSpawning(const FTransform& Transform);

	/**
	 * Ends the actor's play and takes it out of its world; the object goes with the next collection.
	 * @return false when it is on its way out already, or in no world
	 */
	bool Destroy();

	bool HasActorBegunPlay() const { return bHasBegunPlay; }
	bool IsActorBeingDestroyed() const { return bIsBeingDestroyed; }

	/** Called once when the actor is destroyed by name, whether it has played or not; ends its play. Overrides call the base. */
	virtual void Destroyed();

	/** Calls BeginPlay, once. */
	void DispatchBeginPlay();

	/** Calls EndPlay of an actor that has begun to play, once. */
	void RouteEndPlay(const EEndPlayReason::Type EndPlayReason);

protected:
	/** Called once, when the world plays and the actor is in it. Overrides call the base first. */
	virtual void BeginPlay();

	/** Called once, before a playing actor goes. Overrides call the base last. */
	virtual void EndPlay(const EEndPlayReason::Type EndPlayReason);

	UPROPERTY(BlueprintReadOnly, Category = "Transformation")
	TObjectPtr<USceneComponent> RootComponent;

private:
	friend class UWorld;

	bool bHasBegunPlay = false;
	bool bIsBeingDestroyed = false;
	bool bHasFinishedSpawning = false;
};
