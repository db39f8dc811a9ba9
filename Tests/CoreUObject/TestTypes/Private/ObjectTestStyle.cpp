#include "ObjectTestStyle.h"

#include "UObject/ConstructorHelpers.h"
#include "UObject/PropertyChangedEvent.h"

void UObjectTestStyle::PostLoad()
{
	Super::PostLoad();
	++NumPostLoad;
}

#if WITH_EDITOR
void UObjectTestStyle::PreEditChange(FProperty* PropertyAboutToChange)
{
	Super::PreEditChange(PropertyAboutToChange);
	Notifications.Add(TEXT("Pre:") + (PropertyAboutToChange ? PropertyAboutToChange->GetName() : FString(TEXT("all"))));
}

void UObjectTestStyle::PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent)
{
	Super::PostEditChangeProperty(PropertyChangedEvent);
	LastChangeType = PropertyChangedEvent.ChangeType;
	LastNumbersIndex = PropertyChangedEvent.GetArrayIndex(TEXT("Numbers"));
	Notifications.Add(FString::Printf(TEXT("Post:%s.%s"), *PropertyChangedEvent.GetMemberPropertyName().ToString(),
		*PropertyChangedEvent.GetPropertyName().ToString()));
}

void UObjectTestStyle::PostEditChangeChainProperty(FPropertyChangedChainEvent& PropertyChangedEvent)
{
	Notifications.Add(FString::Printf(TEXT("Chain:%s.%s/%d"), *PropertyChangedEvent.GetMemberPropertyName().ToString(),
		*PropertyChangedEvent.GetPropertyName().ToString(), PropertyChangedEvent.PropertyChain.Num()));
	Super::PostEditChangeChainProperty(PropertyChangedEvent);
}
#endif

FString UObjectTestFinder::FoundPath;
FString UObjectTestFinder::MissingPath;
FString UObjectTestFinder::ClassPath;

UObjectTestFinder::UObjectTestFinder()
{
	if (!FoundPath.IsEmpty())
	{
		const ConstructorHelpers::FObjectFinder<UObjectTestStyle> Finder(*FoundPath);
		Found = Finder.Object;
		bFoundSucceeded = Finder.Succeeded();
	}
	if (!MissingPath.IsEmpty())
	{
		const ConstructorHelpers::FObjectFinder<UObjectTestStyle> Finder(*MissingPath);
		Missing = Finder.Object;
		bMissingSucceeded = Finder.Succeeded();
	}
	if (!ClassPath.IsEmpty())
	{
		const ConstructorHelpers::FClassFinder<UObjectTestPart> Finder(*ClassPath);
		FoundClass = Finder.Class;
	}
}
