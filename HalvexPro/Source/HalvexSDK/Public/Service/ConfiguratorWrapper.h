#pragma once

#include "CoreMinimal.h"
#include "Records/UnitData.h"
#include "UObject/Object.h"
#include "ConfiguratorWrapper.generated.h"

/** The configurator of a group of units, which is its outer: which of the units it is about. */
UCLASS(BlueprintType)
class HALVEXSDK_API UConfiguratorWrapper : public UObject
{
	GENERATED_BODY()

public:
	UFUNCTION(BlueprintCallable, Category = "ConfiguratorWrapper")
	bool HasUnitTarget() const { return !UnitTarget.UnitId.IsNone(); }

	/** The unit that the configurator is about; one without a key when there is none. */
	UFUNCTION(BlueprintCallable, Category = "ConfiguratorWrapper")
	FUnitData GetConfiguratorUnitTarget() const { return UnitTarget; }

	/** Makes a unit of the group the target. @return false, with nothing changed, when the group has no such unit */
	UFUNCTION(BlueprintCallable, Category = "ConfiguratorWrapper")
	bool SetUnitTarget(FName UnitId);

	UFUNCTION(BlueprintCallable, Category = "ConfiguratorWrapper")
	void ClearUnitTarget();

private:
	void Exchange(const FUnitData& NewTarget);

	UPROPERTY()
	FUnitData UnitTarget;
};
