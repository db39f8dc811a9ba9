#pragma once

#include "CoreMinimal.h"
#include "Filters/UnitsFilterManager.h"
#include "UnitVolumes/UnitVolumeActor.h"
#include "UnitVolumes/UnitVolumesManager.h"
#include "SceneListener.generated.h"

class AHxInteractiveSpot;

/** Writes down the events of a scene, each as a word or two ended by a semicolon. */
UCLASS()
class USceneListener : public UObject
{
	GENERATED_BODY()

public:
	FString Story;
	/** What OnUnitDataUpdated brought last. */
	TArray<FUnitData> UnitData;
	/** What OnFilterResult brought last. */
	FUnitsFilterResult Result;
	/** Called in each filter result, and in the clearing of all filters; may be empty. */
	TFunction<void()> InResult;
	TFunction<void()> InClear;

	void ListenTo(AUnitVolumesManager& Manager);

	/** The story so far, which begins anew. */
	FString TakeStory();

	UFUNCTION()
	void ReceivedUnitData(const TArray<FUnitData>& InUnitData);
	UFUNCTION()
	void ReceivedSelectionClear();
	UFUNCTION()
	void ReceivedSelection(const TArray<AUnitVolumeActor*>& UnitVolumes);
	UFUNCTION()
	void ReceivedHighlight(AUnitVolumeActor* UnitVolume);
	UFUNCTION()
	void ReceivedResult(const FUnitsFilterResult& FilterResult);
	UFUNCTION()
	void ReceivedClearAll();
	UFUNCTION()
	void ReceivedState(AUnitVolumeActor* UnitVolume);
	UFUNCTION()
	void ReceivedSpot(AHxInteractiveSpot* Spot, bool bSelected);
};
