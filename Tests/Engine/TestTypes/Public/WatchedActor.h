#pragma once

#include "CoreMinimal.h"
#include "GameFramework/Actor.h"
#include "WatchedActor.generated.h"

/** Writes down what becomes of it. */
UCLASS()
class AWatchedActor : public AActor
{
	GENERATED_BODY()

public:
	AWatchedActor();

	/** Shared by all of them: "begin Name ", "destroyed Name ", "end Name reason ". */
	static FString Story;

	/** Set before a deferred spawning is finished. */
	FString Label;

	virtual void Destroyed() override;

protected:
	virtual void BeginPlay() override;
	virtual void EndPlay(const EEndPlayReason::Type EndPlayReason) override;
};

UCLASS()
class ADerivedWatchedActor : public AWatchedActor
{
	GENERATED_BODY()
};

/** Has no root component. */
UCLASS()
class APlacelessActor : public AActor
{
	GENERATED_BODY()
};

UCLASS(Abstract)
class AAbstractActor : public AActor
{
	GENERATED_BODY()
};
