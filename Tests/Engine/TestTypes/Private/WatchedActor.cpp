#include "WatchedActor.h"

FString AWatchedActor::Story;

AWatchedActor::AWatchedActor()
{
	RootComponent = CreateDefaultSubobject<USceneComponent>(TEXT("Root"));
}

void AWatchedActor::BeginPlay()
{
	Super::BeginPlay();
	Story += TEXT("begin ") + Label + TEXT(" ");
}

void AWatchedActor::EndPlay(const EEndPlayReason::Type EndPlayReason)
{
	Story += FString::Printf(TEXT("end %s %d "), *Label, int32(EndPlayReason));
	Super::EndPlay(EndPlayReason);
}

void AWatchedActor::Destroyed()
{
	Story += TEXT("destroyed ") + Label + TEXT(" ");
	Super::Destroyed();
}
