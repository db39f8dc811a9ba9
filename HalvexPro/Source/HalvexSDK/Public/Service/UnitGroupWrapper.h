#pragma once

#include "CoreMinimal.h"
#include "Project/ProjectData.h"
#include "UObject/Object.h"
#include "UnitGroupWrapper.generated.h"

class UConfiguratorWrapper;

/** A group of units of a project, most often a building, and its configurator. Its outer is the project. */
UCLASS(BlueprintType)
class HALVEXSDK_API UUnitGroupWrapper : public UObject
{
	GENERATED_BODY()

public:
	/** For the project: takes over what is known of the group, which has no units yet. */
	void Initialize(const FProjectGroup& InGroup);

	/** For the project: the unit at that place of its units belongs to the group. */
	void AddUnit(int32 Index) { UnitIndices.Add(Index); }

	/** Without a key for the units that belong to no group of the project. */
	UFUNCTION(BlueprintCallable, Category = "UnitGroupWrapper")
	const FProjectGroup& GetGroup() const { return Group; }

	/** In the order of the project. */
	UFUNCTION(BlueprintCallable, Category = "UnitGroupWrapper")
	TArray<FUnitData> GetUnits() const;

	UFUNCTION(BlueprintCallable, Category = "UnitGroupWrapper")
	bool HasUnit(FName UnitId) const { return FindUnit(UnitId) != nullptr; }

	/** Null when the group has no such unit. */
	const FUnitData* FindUnit(FName UnitId) const;

	/** The configurator for the units of the group; never null. */
	UFUNCTION(BlueprintCallable, Category = "UnitGroupWrapper")
	UConfiguratorWrapper* GetConfiguratorWrapper() const { return ConfiguratorWrapper; }

private:
	const TArray<FProjectUnit>& GetProjectUnits() const;

	UPROPERTY()
	FProjectGroup Group;

	UPROPERTY()
	TObjectPtr<UConfiguratorWrapper> ConfiguratorWrapper;

	TArray<int32> UnitIndices;
};
