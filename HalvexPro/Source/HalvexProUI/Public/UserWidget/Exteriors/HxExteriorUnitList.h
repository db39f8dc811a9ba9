#pragma once

#include "CoreMinimal.h"
#include "Blueprint/UserWidget.h"
#include "Filters/UnitsFilterResult.h"
#include "Records/UnitData.h"
#include "HxExteriorUnitList.generated.h"

class AUnitVolumeActor;
class UEditableTextBox;
class UHxExteriorUnitListObject;
class UListView;

/** Widget to display a list of units in the level. It's also integrated with UnitVolumeManager to use as selection. */
UCLASS()
class HALVEXPROUI_API UHxExteriorUnitList : public UUserWidget
{
	GENERATED_BODY()

public:
	/** Where people type what they look for. */
	UPROPERTY(BlueprintReadOnly, Category = "HxExteriorUnitList", meta = (BindWidgetOptional, EditInline = "true"))
	TObjectPtr<UEditableTextBox> SearchBox;

	/** The list; its items are UHxExteriorUnitListObject. */
	UPROPERTY(BlueprintReadOnly, Category = "HxExteriorUnitList", meta = (BindWidget, EditInline = "true"))
	TObjectPtr<UListView> ListViewContainer;

	/** Shows the units that the search text fits, or all for an empty one. */
	UFUNCTION(BlueprintCallable, Category = "HxExteriorUnitList")
	void FilterUnitList(const FText& InSearchText);

	/** Shows all units; the text in the search box stays. */
	UFUNCTION(BlueprintCallable, Category = "HxExteriorUnitList")
	void ClearSearchFilter();

	/** Sorts all units and shows them; the search is dropped. Units that compare equal may come in any order. */
	UFUNCTION(BlueprintCallable, Category = "HxExteriorUnitList")
	void SortUnitList();

	/** Shows all units from last to first. What is kept is not reversed: a second call shows the same; screens rely on it. */
	UFUNCTION(BlueprintCallable, Category = "HxExteriorUnitList")
	void ReverseUnitList();

	/** Whether the search text fits the unit: natively, whether it occurs in the name, in upper or lower case. */
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable, Category = "HxExteriorUnitList")
	bool OnElementFilter(const FText& InSearchText, const FUnitData& UnitData);

	/** Whether the first unit goes before the second: natively, by name in alphabetical order, upper and lower case alike. */
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable, Category = "HxExteriorUnitList")
	bool OnElementSorted(const FUnitData& UnitData1, const FUnitData& UnitData2);

	/** Called after every change of the items that are shown. */
	UFUNCTION(BlueprintImplementableEvent, Category = "HxExteriorUnitList")
	void OnRefreshListViewNum();

	/** Bound to the search box. */
	UFUNCTION(BlueprintCallable, Category = "HxExteriorUnitList")
	void ReceivedSearchBoxChange(const FText& Text);

	/** Bound to the scene's new unit data; whatever the search box holds, all units are shown until its text changes. */
	UFUNCTION(BlueprintCallable, Category = "HxExteriorUnitList")
	void ReceivedUnitVolumeUpdateData(const TArray<FUnitData>& InUnitData);

	/** Bound to the clearing of the scene's selection. */
	UFUNCTION(BlueprintCallable, Category = "HxExteriorUnitList")
	void ReceivedUnitVolumeSelectionClear();

	/** Bound to the scene's selection: selects the first of the units, where the list shows it. */
	UFUNCTION(BlueprintCallable, Category = "HxExteriorUnitList")
	void ReceivedUnitVolumeSelectionChange(const TArray<AUnitVolumeActor*>& UnitVolumes);

	/** Bound to the result of the scene's filters. */
	UFUNCTION(BlueprintCallable, Category = "HxExteriorUnitList")
	void Received_FilterResult(const FUnitsFilterResult& FilterResult);

protected:
	/** Makes an item of each unit that passes the scene's filters, and shows them all. Without a scene's units nothing changes. */
	void FillListItems();

	/** Selects in the scene what was selected in the list. */
	void ReceivedItemSelectedChange(UObject* Item);

	virtual void NativeOnInitialized() override;
	virtual void NativeConstruct() override;
	/** Handles every turn of the wheel, so that what lies behind the list never scrolls or zooms. */
	virtual FReply NativeOnMouseWheel(const FGeometry& InGeometry, const FPointerEvent& InMouseEvent) override;

private:
	void ShowItems(const TArray<TObjectPtr<UHxExteriorUnitListObject>>& Items);

	/** One item for each unit that passes the scene's filters. */
	UPROPERTY()
	TArray<TObjectPtr<UHxExteriorUnitListObject>> StoredList;
};
