#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "DataAsset.generated.h"

/** Base of assets that only hold data: instances of native subclasses, with the defaults of the class's constructor. */
UCLASS(Abstract, BlueprintType)
class ENGINE_API UDataAsset : public UObject
{
	GENERATED_BODY()

public:
	UDataAsset(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());
};
