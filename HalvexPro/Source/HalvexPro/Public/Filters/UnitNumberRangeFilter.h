#pragma once

#include "CoreMinimal.h"
#include "Filters/UnitColumns.h"
#include "Filters/UnitFilter.h"
#include "UnitNumberRangeFilter.generated.h"

/** Lets units pass whose number lies between two limits, which belong to the range. */
UCLASS()
class HALVEXPRO_API UUnitNumberRangeFilter : public UUnitFilter
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitNumberRangeFilter")
	EUnitNumberField Field = EUnitNumberField::Price;

	/** In the unit of measure of the field. Nothing passes when it is above the maximum. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitNumberRangeFilter")
	double Minimum = TNumericLimits<double>::Lowest();

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitNumberRangeFilter")
	double Maximum = TNumericLimits<double>::Max();

	UFUNCTION(BlueprintCallable, Category = "UnitNumberRangeFilter")
	static UUnitNumberRangeFilter* CreateNumberRangeFilter(EUnitNumberField InField, double InMinimum, double InMaximum);

	virtual void FilterUnits(const FUnitColumns& Units, FUnitMask& Passing) const override;
	virtual FString GetConditionText() const override;

protected:
	virtual bool DoesUnitPass_Implementation(const FUnitData& UnitData) const override;
};
