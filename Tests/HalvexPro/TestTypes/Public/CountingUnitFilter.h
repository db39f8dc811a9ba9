#pragma once

#include "CoreMinimal.h"
#include "Filters/UnitFilter.h"
#include "CountingUnitFilter.generated.h"

/** Lets units of even levels pass, and counts how often it was asked: in columns, unit by unit. */
UCLASS()
class UCountingUnitFilter : public UUnitFilter
{
	GENERATED_BODY()

public:
	/** Empty for a filter whose answers are not kept. */
	FString Condition;
	mutable int32 NumEvaluations = 0;
	mutable int32 NumUnitsAsked = 0;

	virtual void FilterUnits(const FUnitColumns& Units, FUnitMask& Passing) const override;
	virtual FString GetConditionText() const override { return Condition; }

protected:
	virtual bool DoesUnitPass_Implementation(const FUnitData& UnitData) const override;
};
