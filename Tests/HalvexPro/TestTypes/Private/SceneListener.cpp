#include "SceneListener.h"

#include "InteractiveSpot/HxInteractiveSpot.h"

void USceneListener::ListenTo(AUnitVolumesManager& Manager)
{
	Manager.OnUnitDataUpdated.AddDynamic(this, &USceneListener::ReceivedUnitData);
	Manager.OnUnitVolumeSelectionCleared.AddDynamic(this, &USceneListener::ReceivedSelectionClear);
	Manager.OnUnitVolumeSelectionChanged.AddDynamic(this, &USceneListener::ReceivedSelection);
	Manager.OnUnitVolumeHighlightChanged.AddDynamic(this, &USceneListener::ReceivedHighlight);
	Manager.GetUnitFilterManager()->OnFilterResult.AddDynamic(this, &USceneListener::ReceivedResult);
	Manager.GetUnitFilterManager()->OnClearAllFilters.AddDynamic(this, &USceneListener::ReceivedClearAll);
}

FString USceneListener::TakeStory()
{
	const FString Told = Story;
	Story.Reset();
	return Told;
}

void USceneListener::ReceivedUnitData(const TArray<FUnitData>& InUnitData)
{
	UnitData = InUnitData;
	Story += FString::Printf(TEXT("data %d; "), UnitData.Num());
}

void USceneListener::ReceivedSelectionClear()
{
	Story += TEXT("cleared; ");
}

void USceneListener::ReceivedSelection(const TArray<AUnitVolumeActor*>& UnitVolumes)
{
	Story += TEXT("selected");
	for (const AUnitVolumeActor* UnitVolume : UnitVolumes)
	{
		Story += TEXT(" ") + UnitVolume->GetUnitData().Name;
	}
	Story += TEXT("; ");
}

void USceneListener::ReceivedHighlight(AUnitVolumeActor* UnitVolume)
{
	Story += TEXT("highlight ") + (UnitVolume ? UnitVolume->GetUnitData().Name : FString(TEXT("none"))) + TEXT("; ");
}

void USceneListener::ReceivedResult(const FUnitsFilterResult& FilterResult)
{
	Result = FilterResult;
	Story += FString::Printf(TEXT("result %d of %d; "), Result.SelectionNum, Result.TotalNum);
	if (InResult)
	{
		InResult();
	}
}

void USceneListener::ReceivedClearAll()
{
	Story += TEXT("clear all; ");
	if (InClear)
	{
		InClear();
	}
}

void USceneListener::ReceivedState(AUnitVolumeActor* UnitVolume)
{
	Story += UnitVolume->GetUnitData().Name + (UnitVolume->IsSelected() ? TEXT(" S") : TEXT(" -")) +
		(UnitVolume->IsHighlighted() ? TEXT("H") : TEXT("-")) + (UnitVolume->IsFilteredOut() ? TEXT("F; ") : TEXT("-; "));
}

void USceneListener::ReceivedSpot(AHxInteractiveSpot* Spot, bool bSelected)
{
	Story += Spot->SpotData.Title + (bSelected ? TEXT(" on; ") : TEXT(" off; "));
}
