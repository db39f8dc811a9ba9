#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "BlueprintFunctionLibrary.generated.h"

/** Base of classes that only hold static functions for graphs. */
UCLASS(Abstract)
class ENGINE_API UBlueprintFunctionLibrary : public UObject
{
	GENERATED_BODY()

public:
	UBlueprintFunctionLibrary(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());
};
