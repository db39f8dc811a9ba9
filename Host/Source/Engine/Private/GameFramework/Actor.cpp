#include "GameFramework/Actor.h"

#include "Engine/World.h"

AActor::AActor(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

bool AActor::SetRootComponent(USceneComponent* NewRootComponent)
{
	if (NewRootComponent && NewRootComponent->GetOwner() != this)
	{
		return false;
	}
	RootComponent = NewRootComponent;
	return true;
}

const FTransform& AActor::GetActorTransform() const
{
	return RootComponent ? RootComponent->GetComponentTransform() : FTransform::Identity;
}

bool AActor::SetActorLocation(const FVector& NewLocation)
{
	if (RootComponent)
	{
		RootComponent->SetWorldLocation(NewLocation);
	}
	return RootComponent != nullptr;
}

bool AActor::SetActorTransform(const FTransform& NewTransform)
{
	if (RootComponent)
	{
		RootComponent->SetWorldTransform(NewTransform);
	}
	return RootComponent != nullptr;
}

void AActor::FinishSpawning(const FTransform& Transform)
{
	if (bHasFinishedSpawning)
	{
		return;
	}
	bHasFinishedSpawning = true;
	SetActorTransform(Transform);
	const UWorld* const World = GetWorld();
	if (World && World->HasBegunPlay())
	{
		DispatchBeginPlay();
	}
}

bool AActor::Destroy()
{
	UWorld* const World = GetWorld();
	return World && World->DestroyActor(this);
}

void AActor::Destroyed()
{
	RouteEndPlay(EEndPlayReason::Destroyed);
}

void AActor::DispatchBeginPlay()
{
	if (!bHasBegunPlay && !bIsBeingDestroyed)
	{
		bHasBegunPlay = true;
		BeginPlay();
	}
}

void AActor::RouteEndPlay(const EEndPlayReason::Type EndPlayReason)
{
	if (bHasBegunPlay)
	{
		bHasBegunPlay = false;
		EndPlay(EndPlayReason);
	}
}

void AActor::BeginPlay()
{
}

void AActor::EndPlay(const EEndPlayReason::Type)
{
}
