#pragma once

#include "CoreMinimal.h"
#include "Style/HalvexStyleModels.h"
#include "UObject/Object.h"
#include "StyleRecordHolder.generated.h"

/** Holds style records, so that they can be edited as in a details panel. */
UCLASS()
class HALVEXPROUITESTTYPES_API UStyleRecordHolder : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, Category = "Test")
	FHalvexColorHandler Color;

	UPROPERTY(EditAnywhere, Category = "Test")
	FHalvexButtonStyle Button;
};
