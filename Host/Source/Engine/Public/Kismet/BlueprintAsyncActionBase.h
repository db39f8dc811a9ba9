#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "BlueprintAsyncActionBase.generated.h"

/** Base of work that blueprints start and hear of later: a static function makes it, Activate begins it, events tell its end. */
UCLASS(Abstract)
class ENGINE_API UBlueprintAsyncActionBase : public UObject
{
	GENERATED_BODY()

public:
	/** Begins the work. To be called once the events are bound. */
	UFUNCTION(BlueprintCallable, Category = "Blueprint|Async Action")
	virtual void Activate();
};
