#include "Engine/World.h"

#include "Engine/GameInstance.h"
#include "Engine/LocalPlayer.h"
#include "GameFramework/PlayerController.h"
#include "UObject/ReferenceCollector.h"

UWorld::UWorld(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, TimerManager(MakeUnique<FTimerManager>())
{
}

UWorld* UWorld::GetWorld() const
{
	return const_cast<UWorld*>(this);
}

void UWorld::SetGameInstance(UGameInstance* NewGameInstance)
{
	OwningGameInstance = NewGameInstance;
}

APlayerController* UWorld::GetFirstPlayerController() const
{
	return OwningGameInstance ? OwningGameInstance->GetFirstLocalPlayerController(this) : nullptr;
}

AActor* UWorld::SpawnActor(UClass* Class, const FTransform* Transform, const FActorSpawnParameters& SpawnParameters)
{
	if (!Class || !Class->IsChildOf(AActor::StaticClass()) || Class->HasAnyClassFlags(CLASS_Abstract))
	{
		UE_LOG(LogCore, Warning, TEXT("SpawnActor: %s is no class that actors can be made of"), Class ? *Class->GetName() : TEXT("null"));
		return nullptr;
	}
	AActor* const Actor = NewObject<AActor>(this, Class, SpawnParameters.Name);
	ActorsByClass.FindOrAdd(Class).Add(Actor);
	const FTransform Place = Transform ? *Transform : FTransform::Identity;
	if (SpawnParameters.bDeferConstruction)
	{
		Actor->SetActorTransform(Place);
	}
	else
	{
		Actor->FinishSpawning(Place);
	}
	return Actor;
}

bool UWorld::DestroyActor(AActor* Actor)
{
	if (!Actor || Actor->bIsBeingDestroyed)
	{
		return false;
	}
	TSet<AActor*>* Actors = ActorsByClass.Find(Actor->GetClass());
	if (!Actors || !Actors->Contains(Actor))
	{
		return false;
	}
	Actor->bIsBeingDestroyed = true;
	Actor->Destroyed();
	// Looked up anew: its end may have changed the map.
	Actors = ActorsByClass.Find(Actor->GetClass());
	Actors->Remove(Actor);
	if (Actors->IsEmpty())
	{
		// A class without actors may go.
		ActorsByClass.Remove(Actor->GetClass());
	}
	Actor->MarkAsGarbage();
	return true;
}

void UWorld::BeginPlay()
{
	if (bBegunPlay)
	{
		return;
	}
	bBegunPlay = true;
	TArray<AActor*> Actors;
	GetActorsOfClass(AActor::StaticClass(), Actors);
	for (AActor* Actor : Actors)
	{
		if (Actor->bHasFinishedSpawning)
		{
			Actor->DispatchBeginPlay();
		}
	}
}

void UWorld::EndPlay(const EEndPlayReason::Type EndPlayReason)
{
	if (!bBegunPlay)
	{
		return;
	}
	bBegunPlay = false;
	TArray<AActor*> Actors;
	GetActorsOfClass(AActor::StaticClass(), Actors);
	for (AActor* Actor : Actors)
	{
		Actor->RouteEndPlay(EndPlayReason);
	}
}

void UWorld::GetActorsOfClass(const UClass* Class, TArray<AActor*>& OutActors) const
{
	for (const TPair<const UClass*, TSet<AActor*>>& Pair : ActorsByClass)
	{
		if (!Pair.Key->IsChildOf(Class))
		{
			continue;
		}
		OutActors.Reserve(OutActors.Num() + Pair.Value.Num());
		for (AActor* Actor : Pair.Value)
		{
			if (!Actor->bIsBeingDestroyed)
			{
				OutActors.Add(Actor);
			}
		}
	}
}

AActor* UWorld::FindActorOfClass(const UClass* Class) const
{
	for (const TPair<const UClass*, TSet<AActor*>>& Pair : ActorsByClass)
	{
		if (!Pair.Key->IsChildOf(Class))
		{
			continue;
		}
		for (AActor* Actor : Pair.Value)
		{
			if (!Actor->bIsBeingDestroyed)
			{
				return Actor;
			}
		}
	}
	return nullptr;
}

void UWorld::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	UWorld* const This = static_cast<UWorld*>(InThis);
	for (auto Class = This->ActorsByClass.CreateIterator(); Class; ++Class)
	{
		// An actor that was declared dead behind the world's back would be gone after this collection.
		for (auto Actor = Class->Value.CreateIterator(); Actor; ++Actor)
		{
			if (!IsValid(*Actor))
			{
				Actor.RemoveCurrent();
			}
		}
		Collector.AddReferencedObjects(Class->Value, This);
		if (Class->Value.IsEmpty())
		{
			Class.RemoveCurrent();
		}
	}
	Super::AddReferencedObjects(InThis, Collector);
}

void UWorld::Tick(float DeltaSeconds)
{
	if (bPaused)
	{
		return;
	}
	DeltaTimeSeconds = DeltaSeconds;
	TimeSeconds += DeltaSeconds;
	TimerManager->Tick(DeltaSeconds);
}
