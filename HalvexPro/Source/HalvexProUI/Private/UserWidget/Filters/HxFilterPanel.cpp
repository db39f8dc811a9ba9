#include "UserWidget/Filters/HxFilterPanel.h"

#include "Engine/World.h"
#include "Filters/UnitFilterCollection.h"
#include "Filters/UnitsFilterManager.h"
#include "UnitVolumes/UnitVolumesManager.h"
#include "UserWidget/Filters/HxFilterComponent.h"

void UHxFilterPanel::SetFiltersWidgets(TArray<UHxFilterComponent*> InFiltersWidgets)
{
	FiltersWidgets = ObjectPtrWrap(InFiltersWidgets);
	for (UHxFilterComponent* Component : FiltersWidgets)
	{
		// Once more for a component that is listened to already: its changes then commit twice, and blueprints rely on it.
		Component->OnFiltersChanged.AddDynamic(this, &UHxFilterPanel::Received_OnFilterChange);
	}
}

TArray<UUnitFilter*> UHxFilterPanel::GatherUnitFilters()
{
	TArray<UUnitFilter*> Filters;
	Filters.Reserve(FiltersWidgets.Num());
	for (UHxFilterComponent* Component : FiltersWidgets)
	{
		Filters.Add(Component->GetBuildUnitFilter());
	}
	return Filters;
}

void UHxFilterPanel::CommitFilters(TArray<UUnitFilter*> InFilters)
{
	if (FilterCollection && !InFilters.IsEmpty())
	{
		FilterCollection->ReplaceFilters(InFilters);
	}
}

TArray<AUnitVolumeActor*> UHxFilterPanel::GetUnitVolumeActorsFromFilters()
{
	return FilterManager ? ObjectPtrDecay(FilterManager->GetCurrentFilterResult().UnitVolumes) : TArray<AUnitVolumeActor*>();
}

void UHxFilterPanel::ResetFilters()
{
	for (UHxFilterComponent* Component : FiltersWidgets)
	{
		Component->OnFilterReset();
	}
}

void UHxFilterPanel::SetUnitData(const TArray<FUnitData>& InUnitData, bool bRefreshPanel)
{
	if (&InUnitData != &UnitDataList)
	{
		UnitDataList = InUnitData;
	}
	if (bRefreshPanel)
	{
		RefreshFilters();
	}
}

void UHxFilterPanel::SetReactivityFilters(bool)
{
}

void UHxFilterPanel::Received_OnUnitManagerData(const TArray<FUnitData>& InUnitData)
{
	SetUnitData(InUnitData, true);
	OnUnitDataUpdated();
	if (!FilterCollection)
	{
		return;
	}
	// Unlike a commit this also passes on that there are no filters.
	FilterCollection->ReplaceFilters(GatherUnitFilters());
	if (FilterCollection->IsOnInitialization())
	{
		FilterCollection->FinishInitialization();
	}
}

void UHxFilterPanel::Received_OnFilterResult(const FUnitsFilterResult& FilterResult)
{
	OnFilterDataUpdated(FilterResult.SelectionNum, FilterResult.TotalNum);
}

void UHxFilterPanel::Received_OnClearAllFilters()
{
	ResetFilters();
}

void UHxFilterPanel::Received_OnFilterChange()
{
	CommitFilters(GatherUnitFilters());
}

void UHxFilterPanel::FindUVManagerFromScene()
{
	UnitVolumesManager = AUnitVolumesManager::GetUnitVolumesManager(GetWorld());
	if (!UnitVolumesManager)
	{
		return;
	}
	UnitVolumesManager->OnUnitDataUpdated.AddDynamic(this, &UHxFilterPanel::Received_OnUnitManagerData);
	FilterManager = UnitVolumesManager->GetUnitFilterManager();
	if (!FilterManager)
	{
		return;
	}
	if (!FilterCollection)
	{
		FilterCollection = UUnitFilterCollection::CreateUnitFilterCollection(TArray<UUnitFilter*>(), true);
	}
	FilterManager->RegisterFilterCollection(FilterCollection);
	FilterManager->OnFilterResult.AddDynamic(this, &UHxFilterPanel::Received_OnFilterResult);
	FilterManager->OnClearAllFilters.AddDynamic(this, &UHxFilterPanel::Received_OnClearAllFilters);
}

void UHxFilterPanel::ScanForFilters()
{
}

void UHxFilterPanel::RefreshFilters()
{
	for (UHxFilterComponent* Component : FiltersWidgets)
	{
		Component->OnFilterUnitData(UnitDataList);
	}
}

void UHxFilterPanel::NativeOnInitialized()
{
	Super::NativeOnInitialized();
	FindUVManagerFromScene();
}
