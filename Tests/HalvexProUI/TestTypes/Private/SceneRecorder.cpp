#include "SceneRecorder.h"

#include "Filters/UnitsFilterManager.h"
#include "UnitVolumes/UnitVolumeActor.h"
#include "UnitVolumes/UnitVolumesManager.h"

void USceneRecorder::ListenTo(AUnitVolumesManager& Manager)
{
	Manager.OnUnitVolumeSelectionChanged.AddDynamic(this, &USceneRecorder::ReceivedSelection);
	Manager.GetUnitFilterManager()->OnFilterResult.AddDynamic(this, &USceneRecorder::ReceivedResult);
}

FString USceneRecorder::Take()
{
	FString Taken = MoveTemp(Story);
	Story.Empty();
	return Taken;
}

void USceneRecorder::ReceivedSelection(const TArray<AUnitVolumeActor*>& UnitVolumes)
{
	for (const AUnitVolumeActor* UnitVolume : UnitVolumes)
	{
		Story += UnitVolume->GetUnitData().Name;
	}
	Story += TEXT("; ");
	if (bClearsSelections)
	{
		UnitVolumes[0]->GetManager()->ClearSelection();
	}
}

void USceneRecorder::ReceivedResult(const FUnitsFilterResult& FilterResult)
{
	Story += FString::Printf(TEXT("%d of %d; "), FilterResult.SelectionNum, FilterResult.TotalNum);
}
