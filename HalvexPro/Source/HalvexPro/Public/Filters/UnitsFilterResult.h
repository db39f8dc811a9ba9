#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectPtr.h"
#include "UnitsFilterResult.generated.h"

class AUnitVolumeActor;

/** What an evaluation of the filters found. */
USTRUCT(BlueprintType)
struct HALVEXPRO_API FUnitsFilterResult
{
	GENERATED_BODY()

	/** How many units pass. */
	UPROPERTY(BlueprintReadOnly, Category = "UnitsFilterResult")
	int32 SelectionNum = 0;

	/** How many units there are. */
	UPROPERTY(BlueprintReadOnly, Category = "UnitsFilterResult")
	int32 TotalNum = 0;

	/** The units that pass, in the order of the scene's units. */
	UPROPERTY(BlueprintReadOnly, Category = "UnitsFilterResult")
	TArray<TObjectPtr<AUnitVolumeActor>> UnitVolumes;
};
