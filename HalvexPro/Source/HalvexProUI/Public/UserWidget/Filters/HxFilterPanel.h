#pragma once

#include "CoreMinimal.h"
#include "Blueprint/UserWidget.h"
#include "Filters/UnitsFilterResult.h"
#include "Records/UnitData.h"
#include "HxFilterPanel.generated.h"

class AUnitVolumeActor;
class AUnitVolumesManager;
class UHxFilterComponent;
class UUnitFilter;
class UUnitFilterCollection;
class UUnitsFilterManager;

/**
 * Brings filter components and the scene together: one filter of each component makes up a collection that the scene's filter
 * manager evaluates, and the components are given the data of the scene's units. Inert in a scene without units.
 */
UCLASS()
class HALVEXPROUI_API UHxFilterPanel : public UUserWidget
{
	GENERATED_BODY()

public:
	/** Without effect; blueprints hand their components to SetFiltersWidgets. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexFiltersPanelUW")
	bool bScanForFilters = false;

	/** The components in the order of their filters. */
	UPROPERTY(Transient, BlueprintReadOnly, Category = "HalvexFiltersPanelUW")
	TArray<TObjectPtr<UHxFilterComponent>> FiltersWidgets;

	/** The scene's units; null when there were none as the panel was initialised. */
	UPROPERTY(Transient, BlueprintReadOnly, Category = "HalvexFiltersPanelUW")
	TObjectPtr<AUnitVolumesManager> UnitVolumesManager;

	/** The data of the units that came last. */
	UPROPERTY(Transient, BlueprintReadOnly, Category = "HalvexFiltersPanelUW")
	TArray<FUnitData> UnitDataList;

	/** What evaluates the filters of the scene. */
	UPROPERTY(Transient, BlueprintReadOnly, Category = "HalvexFiltersPanelUW")
	TObjectPtr<UUnitsFilterManager> FilterManager;

	/** The filters of this panel. */
	UPROPERTY(Transient, BlueprintReadOnly, Category = "HalvexFiltersPanelUW")
	TObjectPtr<UUnitFilterCollection> FilterCollection;

	/** Called when the data of the scene's units has come, before the filters are rebuilt from the components. */
	UFUNCTION(BlueprintImplementableEvent, Category = "HalvexFiltersPanelUW")
	void OnUnitDataUpdated();

	/** Called after each evaluation of the scene's filters with the number of units that pass, and of all. */
	UFUNCTION(BlueprintImplementableEvent, Category = "HalvexFiltersPanelUW")
	void OnFilterDataUpdated(int32 SelectionNum, int32 TotalNum);

	/**
	 * Takes the components in place of those before and listens to them. Those before are still listened to, and one that comes
	 * again is listened to twice.
	 */
	UFUNCTION(BlueprintCallable, Category = "HalvexFiltersPanelUW")
	void SetFiltersWidgets(TArray<UHxFilterComponent*> InFiltersWidgets);

	/** The filter of each component, in their order; null where a component has none. */
	UFUNCTION(BlueprintCallable, Category = "HalvexFiltersPanelUW")
	TArray<UUnitFilter*> GatherUnitFilters();

	/** Gives the collection other filters. Without any it keeps those that it has; callers rely on it. */
	UFUNCTION(BlueprintCallable, Category = "HalvexFiltersPanelUW")
	void CommitFilters(TArray<UUnitFilter*> InFilters);

	/** The units that pass all filters of the scene now. */
	UFUNCTION(BlueprintCallable, Category = "HalvexFiltersPanelUW")
	TArray<AUnitVolumeActor*> GetUnitVolumeActorsFromFilters();

	/** Resets all associated filter components of the filter panel. */
	UFUNCTION(BlueprintCallable, Category = "HalvexFiltersPanelUW")
	void ResetFilters();

	/** Keeps the data of the units; bRefreshPanel hands it to the components. */
	UFUNCTION(BlueprintCallable, Category = "HalvexFiltersPanelUW")
	void SetUnitData(const TArray<FUnitData>& InUnitData, bool bRefreshPanel = true);

	/** Without effect: the panel always reacts at once. */
	UFUNCTION(BlueprintCallable, Category = "HalvexFiltersPanelUW")
	void SetReactivityFilters(bool bReactive);

	/** Bound to the scene's new unit data. */
	UFUNCTION(BlueprintCallable, Category = "HalvexFiltersPanelUW")
	void Received_OnUnitManagerData(const TArray<FUnitData>& InUnitData);

	/** Bound to the filter manager's result. */
	UFUNCTION(BlueprintCallable, Category = "HalvexFiltersPanelUW")
	void Received_OnFilterResult(const FUnitsFilterResult& FilterResult);

	/** Bound to the filter manager's clearing of all filters. */
	UFUNCTION(BlueprintCallable, Category = "HalvexFiltersPanelUW")
	void Received_OnClearAllFilters();

	/** Bound to each component's change. */
	UFUNCTION(BlueprintCallable, Category = "HalvexFiltersPanelUW")
	void Received_OnFilterChange();

protected:
	/** Finds the scene's units and their filters, registers the panel's collection and listens. */
	void FindUVManagerFromScene();

	/** Does nothing, as bScanForFilters says. */
	void ScanForFilters();

	/** Hands the units' data to the components. */
	void RefreshFilters();

	virtual void NativeOnInitialized() override;
};
