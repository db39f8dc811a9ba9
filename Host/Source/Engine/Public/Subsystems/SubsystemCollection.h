#pragma once

#include "CoreMinimal.h"
#include "Subsystems/Subsystem.h"
#include "Templates/SubclassOf.h"
#include "UObject/GCObject.h"

/** The subsystems of one owner. */
class ENGINE_API FSubsystemCollectionBase : public FGCObject
{
public:
	virtual ~FSubsystemCollectionBase() override = default;

	/** Creates and initialises every concrete subsystem class that derives from the collection's base, in no promised order. */
	void Initialize(UObject* InOuter);

	/** Deinitialises the subsystems, last initialised first, and lets them go. */
	void Deinitialize();

	/**
	 * Makes sure that another subsystem of this collection is initialised, for use in USubsystem::Initialize.
	 * @return null when the class is abstract, of another collection, or does not want to be created
	 */
	USubsystem* InitializeDependency(TSubclassOf<USubsystem> SubsystemClass);

	template <typename SubsystemType>
	SubsystemType* InitializeDependency()
	{
		return static_cast<SubsystemType*>(InitializeDependency(SubsystemType::StaticClass()));
	}

	virtual void AddReferencedObjects(FReferenceCollector& Collector) override;
	virtual FString GetReferencerName() const override;

protected:
	explicit FSubsystemCollectionBase(UClass* InBaseType)
		: BaseType(InBaseType)
	{
	}

	/** The subsystem of exactly this class, or the first initialised one that derives from it; null when there is none. */
	USubsystem* FindSubsystem(UClass* SubsystemClass) const;

private:
	UClass* BaseType;
	UObject* Outer = nullptr;
	/** In order of initialisation. */
	TArray<TObjectPtr<USubsystem>> Subsystems;
	/** What each class asked for was answered with. */
	mutable TMap<UClass*, USubsystem*> Answers;
};

template <typename BaseSubsystemType>
class FObjectSubsystemCollection : public FSubsystemCollectionBase
{
public:
	FObjectSubsystemCollection()
		: FSubsystemCollectionBase(BaseSubsystemType::StaticClass())
	{
	}

	template <typename SubsystemType>
	SubsystemType* GetSubsystem(const TSubclassOf<SubsystemType>& SubsystemClass) const
	{
		return static_cast<SubsystemType*>(FindSubsystem(SubsystemClass));
	}
};
