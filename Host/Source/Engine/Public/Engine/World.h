#pragma once

#include "CoreMinimal.h"
#include "GameFramework/Actor.h"
#include "Templates/SubclassOf.h"
#include "TimerManager.h"
#include "UObject/Object.h"
#include "World.generated.h"

class APlayerController;
class FReferenceCollector;
class UGameInstance;

/** How UWorld::SpawnActor goes about it. */
struct FActorSpawnParameters
{
	/** None for a unique name made from the class's. */
	FName Name;
	/** The actor waits for FinishSpawning: its members can be set before it begins to play. */
	bool bDeferConstruction = false;
};

/** Where play happens: the game's time, its timers, its players, and the actors, which live until they are destroyed. */
UCLASS()
class ENGINE_API UWorld : public UObject
{
	GENERATED_BODY()

public:
	/** Seconds since play began, without pauses. */
	double TimeSeconds = 0.0;

	/** Length of the current frame in seconds. */
	float DeltaTimeSeconds = 0.0f;

	UWorld(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	virtual UWorld* GetWorld() const override;

	/** The world's timers; they stand still while the game is paused. */
	FTimerManager& GetTimerManager() const { return *TimerManager; }

	UGameInstance* GetGameInstance() const { return OwningGameInstance; }
	void SetGameInstance(UGameInstance* NewGameInstance);

	/** The first player's controller; null before there is a player. */
	APlayerController* GetFirstPlayerController() const;

	double GetTimeSeconds() const { return TimeSeconds; }
	float GetDeltaSeconds() const { return DeltaTimeSeconds; }

	bool IsPaused() const { return bPaused; }
	void SetPaused(bool bInPaused) { bPaused = bInPaused; }

	/**
	 * Makes an actor and puts it into the world. It begins to play at once when the world plays already.
	 * @return null, with one log line, when the class is null, abstract or no class of actors
	 */
	AActor* SpawnActor(UClass* Class, const FTransform* Transform = nullptr, const FActorSpawnParameters& SpawnParameters = FActorSpawnParameters());

	template <class T>
	T* SpawnActor(const FActorSpawnParameters& SpawnParameters = FActorSpawnParameters())
	{
		return static_cast<T*>(SpawnActor(T::StaticClass(), nullptr, SpawnParameters));
	}

	template <class T>
	T* SpawnActor(UClass* Class, const FTransform& Transform = FTransform::Identity, const FActorSpawnParameters& SpawnParameters = FActorSpawnParameters())
	{
		return Cast<T>(SpawnActor(Class, &Transform, SpawnParameters));
	}

	/** As SpawnActor with bDeferConstruction: the caller ends it with AActor::FinishSpawning. */
	template <class T>
	T* SpawnActorDeferred(UClass* Class, const FTransform& Transform)
	{
		FActorSpawnParameters SpawnParameters;
		SpawnParameters.bDeferConstruction = true;
		return Cast<T>(SpawnActor(Class, &Transform, SpawnParameters));
	}

	/** See AActor::Destroy. */
	bool DestroyActor(AActor* Actor);

	/** Lets the actors play; those spawned later begin with their spawning. */
	void BeginPlay();
	bool HasBegunPlay() const { return bBegunPlay; }

	/** Ends the play of all actors. */
	void EndPlay(const EEndPlayReason::Type EndPlayReason);

	/** Appends the actors of the class and of those derived from it, each class's in the order of spawning while none was destroyed. */
	void GetActorsOfClass(const UClass* Class, TArray<AActor*>& OutActors) const;

	/** One of them; null when there is none. */
	AActor* FindActorOfClass(const UClass* Class) const;

	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);

	/** Advances the world by a frame. Nothing moves while it is paused. */
	void Tick(float DeltaSeconds);

private:
	UPROPERTY(Transient)
	TObjectPtr<UGameInstance> OwningGameInstance;

	TUniquePtr<FTimerManager> TimerManager;
	bool bPaused = false;
	bool bBegunPlay = false;

	/** By exact class, so that a class's actors are found without a look at all others. */
	TMap<const UClass*, TSet<AActor*>> ActorsByClass;
};
