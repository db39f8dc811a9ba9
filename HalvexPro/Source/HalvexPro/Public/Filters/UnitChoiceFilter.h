#pragma once

#include "CoreMinimal.h"
#include "Filters/UnitColumns.h"
#include "Filters/UnitFilter.h"
#include "UnitChoiceFilter.generated.h"

/** Lets units pass whose property is one of a set of values. */
UCLASS()
class HALVEXPRO_API UUnitChoiceFilter : public UUnitFilter
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitChoiceFilter")
	EUnitChoiceField Field = EUnitChoiceField::Building;

	/** The values that pass; an empty set stops nothing. Orientations and states go by the names of their enumerators. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitChoiceFilter")
	TSet<FName> Values;

	UFUNCTION(BlueprintCallable, Category = "UnitChoiceFilter")
	static UUnitChoiceFilter* CreateChoiceFilter(EUnitChoiceField InField, const TArray<FName>& InValues);

	virtual void FilterUnits(const FUnitColumns& Units, FUnitMask& Passing) const override;
	virtual FString GetConditionText() const override;

protected:
	virtual bool DoesUnitPass_Implementation(const FUnitData& UnitData) const override;
};
