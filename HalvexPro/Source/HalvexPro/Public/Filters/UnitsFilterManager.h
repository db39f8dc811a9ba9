#pragma once

#include "CoreMinimal.h"
#include "Filters/UnitColumns.h"
#include "Filters/UnitMask.h"
#include "Filters/UnitFilterSet.h"
#include "Filters/UnitsFilterResult.h"
#include "UObject/Object.h"
#include "UnitsFilterManager.generated.h"

class AUnitVolumeActor;
class UUnitFilter;
class UUnitFilterCollection;

/** How many units have a value. */
USTRUCT(BlueprintType)
struct HALVEXPRO_API FUnitChoiceCount
{
	GENERATED_BODY()

	UPROPERTY(BlueprintReadOnly, Category = "UnitChoiceCount")
	FName Value;

	/** Of all units of the scene. */
	UPROPERTY(BlueprintReadOnly, Category = "UnitChoiceCount")
	int32 TotalNum = 0;

	/** Of the units that pass every filter that does not choose among values of this very property. */
	UPROPERTY(BlueprintReadOnly, Category = "UnitChoiceCount")
	int32 PassingNum = 0;
};

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

	/**
	 * The least and the greatest number that the units have.
	 * @param bWithoutZeros	leaves out the units where it is 0: a price that is told on request
	 * @return false, with zeros, when there are none
	 */
	UFUNCTION(BlueprintCallable, Category = "UnitsFilterManager")
	bool GetNumberLimits(EUnitNumberField Field, bool bWithoutZeros, double& OutMinimum, double& OutMaximum);

	/** The values that the units have: orientations and states in the order of their enumerators, others as the units come. */
	UFUNCTION(BlueprintCallable, Category = "UnitsFilterManager")
	TArray<FUnitChoiceCount> CountChoices(EUnitChoiceField Field);

	/** What a set of filters asks for that no unit has, a line for each value: "building: tower". */
	UFUNCTION(BlueprintCallable, Category = "UnitsFilterManager")
	TArray<FString> FindMissingValues(const FUnitFilterSet& Set);

	/** Writes the units that pass as a table (see FUnitTableWriter). A path without an extension gets ".csv". */
	UFUNCTION(BlueprintCallable, Category = "UnitsFilterManager")
	bool SavePassingUnits(const FString& Filename);

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
	/** Has the units' manager hand over what came and went. */
	void TakeOverUnits();
	void RaiseResults();
	void Evaluate();
	void ApplyFilter(const UUnitFilter& Filter, FUnitMask& InOutPassing);
	/** Calls Visit(Filter) for each filter that counts. */
	template <typename VisitType>
	void ForEachFilter(VisitType Visit) const;
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
