#include "ObjectTestSettings.h"

UObjectTestSettings::UObjectTestSettings()
{
	CountInConstructor = Count;
	Asset = FSoftObjectPath(TEXT("/Game/FromConstructor.FromConstructor"));
}

void UObjectTestSettings::PostInitProperties()
{
	Super::PostInitProperties();
	CountAtInit = Count;
}
