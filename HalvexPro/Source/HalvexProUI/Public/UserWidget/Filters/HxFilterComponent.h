#pragma once

#include "CoreMinimal.h"
#include "Blueprint/UserWidget.h"
#include "Records/UnitData.h"
#include "HxFilterComponent.generated.h"

class UUnitFilter;

DECLARE_DYNAMIC_MULTICAST_DELEGATE(FOnFiltersChanged);

/** Base of widget blueprints that let people choose one filter of the units: a range, a choice, a text. */
UCLASS()
class HALVEXPROUI_API UHxFilterComponent : public UUserWidget
{
	GENERATED_BODY()

public:
	/** HalvexFilterPanelUW will bind this event to knows when need to refresh the filters */
	UPROPERTY(BlueprintAssignable, Category = "HalvexFilterUW")
	FOnFiltersChanged OnFiltersChanged;

	/** Call this method when the filter has changed. The value should be set by GetBuildUnitFilter() to build the filter */
	UFUNCTION(BlueprintCallable, Category = "HalvexFilterUW")
	void FilterValueHasChange();

	/** Return a Unit filter to be applied into the Filter Manager */
	UFUNCTION(BlueprintImplementableEvent, Category = "HalvexFilterUW")
	UUnitFilter* GetBuildUnitFilter();

	/** This is called when the filter should be reset */
	UFUNCTION(BlueprintImplementableEvent, Category = "HalvexFilterUW")
	void OnFilterReset();

	/** When the data is updated return the new list in case this filter need to get values like min and max for slider */
	UFUNCTION(BlueprintImplementableEvent, Category = "HalvexFilterUW")
	void OnFilterUnitData(const TArray<FUnitData>& UpdateData);
};
