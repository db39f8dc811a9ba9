#pragma once

#include "CoreMinimal.h"
#include "Filters/UnitColumns.h"
#include "Filters/UnitMask.h"
#include "Filters/UnitsFilterResult.h"
#include "UObject/Object.h"
#include "UnitsFilterManager.generated.h"

class AUnitVolumeActor;
class UUnitFilter;
class UUnitFilterCollection;

DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnUnitsFilterResult, const FUnitsFilterResult&, FilterResult);
DECLARE_DYNAMIC_MULTICAST_DELEGATE(FOnClearAllUnitFilters);

/**
 * Decides which units of the scene are shown: those that every registered collection lets pass. Each change of a collection,
 * and of the units, ends in one filter result. What a filter said of the units is kept while its condition stays the same, so
 * that a change of one among many filters costs that one.
 */
UCLASS(BlueprintType)
class HALVEXPRO_API UUnitsFilterManager : public UObject
{
	GENERATED_BODY()

public:
	/** Raised after each evaluation. A change that a handler makes is evaluated when all have been called. */
	UPROPERTY(BlueprintAssignable, Category = "UnitsFilterManager")
	FOnUnitsFilterResult OnFilterResult;

	/** Raised when all filters are cleared: filter widgets return to their neutral values. */
	UPROPERTY(BlueprintAssignable, Category = "UnitsFilterManager")
	FOnClearAllUnitFilters OnClearAllFilters;

	/** Adds a collection to those that are evaluated; null ones and those that are registered already are left alone. */
	UFUNCTION(BlueprintCallable, Category = "UnitsFilterManager")
	void RegisterFilterCollection(UUnitFilterCollection* Collection);

	UFUNCTION(BlueprintCallable, Category = "UnitsFilterManager")
	void UnregisterFilterCollection(UUnitFilterCollection* Collection);

	/** The units that pass now. */
	UFUNCTION(BlueprintCallable, Category = "UnitsFilterManager")
	const FUnitsFilterResult& GetCurrentFilterResult();

	/** Takes all filters out of all collections and raises OnClearAllFilters; one filter result follows, whatever its handlers change. */
	UFUNCTION(BlueprintCallable, Category = "UnitsFilterManager")
	void ClearAllFilters();

	/** Evaluates and raises the result, for filters whose conditions were edited in place. */
	UFUNCTION(BlueprintCallable, Category = "UnitsFilterManager")
	void RefreshFilterResult();

	/** For the units' manager: takes these units in place of those so far; nothing is raised. */
	void SetUnits(const TArray<TObjectPtr<AUnitVolumeActor>>& InUnits);

	/** For the units' manager: reads the data of one unit anew; nothing is raised. */
	void RefreshUnit(int32 Index);

	/** While one lives, changes raise no result; one follows when the last one goes, if there were changes. */
	class HALVEXPRO_API FHoldResults
	{
	public:
		explicit FHoldResults(UUnitsFilterManager& InManager);
		~FHoldResults();
		FHoldResults(const FHoldResults&) = delete;
		FHoldResults& operator=(const FHoldResults&) = delete;

	private:
		UUnitsFilterManager& Manager;
	};

private:
	/** What one condition said of all units. */
	struct FKeptAnswer
	{
		TWeakObjectPtr<const UUnitFilter> Filter;
		FUnitMask Passing;
		bool bUsed = false;
	};

	void ReceivedCollectionChange();
	void RaiseResults();
	void Evaluate();
	void ApplyFilter(const UUnitFilter& Filter);
	void DropUnusedAnswers();
	void BuildResult();
	/** Tells the units whose state changed. */
	void ShowPassing();

	UPROPERTY()
	TArray<TObjectPtr<UUnitFilterCollection>> Collections;

	UPROPERTY()
	TArray<TObjectPtr<AUnitVolumeActor>> Units;

	UPROPERTY()
	FUnitsFilterResult CurrentResult;

	FUnitColumns Columns;
	FUnitMask Passing;
	/** What the units were told last. */
	FUnitMask Shown;
	TMap<FString, FKeptAnswer> KeptAnswers;

	int32 NumHolds = 0;
	bool bEvaluationDue = false;
	bool bResultDue = false;
	bool bRaisingResults = false;
};
