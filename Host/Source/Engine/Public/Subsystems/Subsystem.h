#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "Subsystem.generated.h"

class FSubsystemCollectionBase;

/** An object that its owner creates by itself, one of each concrete class, and that lives as long as the owner. */
UCLASS(Abstract)
class ENGINE_API USubsystem : public UObject
{
	GENERATED_BODY()

public:
	/** Asked of the class default object: false keeps the subsystem from being created. */
	virtual bool ShouldCreateSubsystem(UObject* Outer) const;

	/** Called once after creation. Subsystems that must be ready first are named with Collection.InitializeDependency. */
	virtual void Initialize(FSubsystemCollectionBase& Collection);

	/** Called once before the owner goes. */
	virtual void Deinitialize();
};

/** A subsystem whose class may come with a module that is loaded later. */
UCLASS(Abstract)
class ENGINE_API UDynamicSubsystem : public USubsystem
{
	GENERATED_BODY()
};
