#include "ObjectTestOwner.h"

UObjectTestOwner::UObjectTestOwner(const FObjectInitializer& ObjectInitializer) : Super(ObjectInitializer)
{
	Part = CreateDefaultSubobject<UObjectTestPart>(TEXT("Part"));
	Part->Amount = 2;
	Optional = CreateOptionalDefaultSubobject<UObjectTestPart>(TEXT("Optional"));
	if (Optional)
	{
		Optional->Peer = Part;
	}
}

void UObjectTestOwner::PostInitProperties()
{
	Super::PostInitProperties();
	NumberAtInit = Number;
	Events.Add(TEXT("PostInitProperties"));
}

void UObjectTestOwner::PostLoad()
{
	Super::PostLoad();
	Events.Add(TEXT("PostLoad"));
}

void UObjectTestOwner::PostDuplicate(bool bDuplicateForPIE)
{
	Super::PostDuplicate(bDuplicateForPIE);
	Events.Add(TEXT("PostDuplicate"));
}

UObjectTestSpecialOwner::UObjectTestSpecialOwner(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer.SetDefaultSubobjectClass<UObjectTestOtherPart>(TEXT("Part")).DoNotCreateDefaultSubobject(TEXT("Optional")))
{
}
