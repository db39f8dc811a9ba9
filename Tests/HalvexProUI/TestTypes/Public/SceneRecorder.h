#pragma once

#include "CoreMinimal.h"
#include "Filters/UnitsFilterResult.h"
#include "UObject/Object.h"
#include "SceneRecorder.generated.h"

class AUnitVolumeActor;
class AUnitVolumesManager;

/** Writes down what the units of a scene tell: "A; " for the selection of A, "2 of 3; " for a result of the filters. */
UCLASS()
class USceneRecorder : public UObject
{
	GENERATED_BODY()

public:
	void ListenTo(AUnitVolumesManager& Manager);

	/** What was told since the last call. */
	FString Take();

	/** Clears the selection as soon as it changes. */
	bool bClearsSelections = false;

	UFUNCTION()
	void ReceivedSelection(const TArray<AUnitVolumeActor*>& UnitVolumes);
	UFUNCTION()
	void ReceivedResult(const FUnitsFilterResult& FilterResult);

private:
	FString Story;
};
