#include "Components/ActorComponent.h"

#include "GameFramework/Actor.h"

UActorComponent::UActorComponent(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

AActor* UActorComponent::GetOwner() const
{
	return GetTypedOuter<AActor>();
}
