#include "Kismet/GameplayStatics.h"

#include "Engine/World.h"
#include "GameFramework/Actor.h"

AActor* UGameplayStatics::GetActorOfClass(const UObject* WorldContextObject, TSubclassOf<AActor> ActorClass)
{
	const UWorld* const World = WorldContextObject ? WorldContextObject->GetWorld() : nullptr;
	return World && ActorClass ? World->FindActorOfClass(ActorClass) : nullptr;
}

void UGameplayStatics::GetAllActorsOfClass(const UObject* WorldContextObject, TSubclassOf<AActor> ActorClass, TArray<AActor*>& OutActors)
{
	OutActors.Reset();
	const UWorld* const World = WorldContextObject ? WorldContextObject->GetWorld() : nullptr;
	if (World && ActorClass)
	{
		World->GetActorsOfClass(ActorClass, OutActors);
	}
}
