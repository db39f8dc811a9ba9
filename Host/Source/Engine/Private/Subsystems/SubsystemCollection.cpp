#include "Subsystems/SubsystemCollection.h"

#include "UObject/UObjectIterator.h"

void FSubsystemCollectionBase::Initialize(UObject* InOuter)
{
	Outer = InOuter;
	// Initialising may load assets and with them classes: walk a list that holds still.
	TArray<UClass*> Classes;
	for (TObjectIterator<UClass> It; It; ++It)
	{
		if (It->IsChildOf(BaseType))
		{
			Classes.Add(*It);
		}
	}
	for (UClass* Class : Classes)
	{
		InitializeDependency(Class);
	}
}

void FSubsystemCollectionBase::Deinitialize()
{
	while (!Subsystems.IsEmpty())
	{
		Subsystems.Last()->Deinitialize();
		Subsystems.Pop();
		Answers.Reset();
	}
}

USubsystem* FSubsystemCollectionBase::InitializeDependency(TSubclassOf<USubsystem> SubsystemClass)
{
	UClass* Class = SubsystemClass;
	if (!Class || !Class->IsChildOf(BaseType) || Class->HasAnyClassFlags(CLASS_Abstract))
	{
		return nullptr;
	}
	for (USubsystem* Subsystem : Subsystems)
	{
		if (Subsystem->GetClass() == Class)
		{
			return Subsystem;
		}
	}
	if (!Class->GetDefaultObject<USubsystem>()->ShouldCreateSubsystem(Outer))
	{
		return nullptr;
	}
	USubsystem* Subsystem = NewObject<USubsystem>(Outer, Class);
	Subsystems.Add(Subsystem);
	Answers.Reset();
	Subsystem->Initialize(*this);
	return Subsystem;
}

void FSubsystemCollectionBase::AddReferencedObjects(FReferenceCollector& Collector)
{
	Collector.AddReferencedObjects(Subsystems);
}

FString FSubsystemCollectionBase::GetReferencerName() const
{
	return TEXT("FSubsystemCollectionBase");
}

USubsystem* FSubsystemCollectionBase::FindSubsystem(UClass* SubsystemClass) const
{
	if (USubsystem* const* Answer = Answers.Find(SubsystemClass))
	{
		return *Answer;
	}
	for (USubsystem* Subsystem : Subsystems)
	{
		if (Subsystem->IsA(SubsystemClass))
		{
			Answers.Add(SubsystemClass, Subsystem);
			return Subsystem;
		}
	}
	return nullptr;
}
