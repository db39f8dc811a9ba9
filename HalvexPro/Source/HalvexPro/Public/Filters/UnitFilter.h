#pragma once

#include "CoreMinimal.h"
#include "Records/UnitData.h"
#include "UObject/Object.h"
#include "UnitFilter.generated.h"

class FUnitColumns;
class FUnitMask;

/**
 * One condition that units must meet to be shown. A filter may be a blueprint that overrides DoesUnitPass; it is asked unit
 * by unit, so for large projects the ready filters, which read whole columns, are the ones to take.
 */
UCLASS(Abstract, Blueprintable, BlueprintType, EditInlineNew)
class HALVEXPRO_API UUnitFilter : public UObject
{
	GENERATED_BODY()

public:
	/** Whether the unit meets the condition; true here. */
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable, Category = "UnitFilter")
	bool DoesUnitPass(const FUnitData& UnitData) const;

	/** Stops the units that do not meet the condition. Here DoesUnitPass is asked for each that passes so far. */
	virtual void FilterUnits(const FUnitColumns& Units, FUnitMask& Passing) const;

	/**
	 * The condition as text, the same for filters that let the same units pass. What such a filter said of the units is kept
	 * while its text stays; empty for a filter that is asked anew each time.
	 */
	virtual FString GetConditionText() const;

protected:
	virtual bool DoesUnitPass_Implementation(const FUnitData& UnitData) const;
};
