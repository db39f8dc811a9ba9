#pragma once

#include "CoreMinimal.h"
#include "Filters/UnitFilter.h"
#include "UnitAvailabilityFilter.generated.h"

/** Lets units pass that can still be had. */
UCLASS()
class HALVEXPRO_API UUnitAvailabilityFilter : public UUnitFilter
{
	GENERATED_BODY()

public:
	/** Lets reserved units pass too. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitAvailabilityFilter")
	bool bIncludeReserved = false;

	UFUNCTION(BlueprintCallable, Category = "UnitAvailabilityFilter")
	static UUnitAvailabilityFilter* CreateAvailabilityFilter(bool bInIncludeReserved);

	virtual void FilterUnits(const FUnitColumns& Units, FUnitMask& Passing) const override;
	virtual FString GetConditionText() const override;

protected:
	virtual bool DoesUnitPass_Implementation(const FUnitData& UnitData) const override;
};
