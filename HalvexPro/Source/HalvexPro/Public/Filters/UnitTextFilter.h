#pragma once

#include "CoreMinimal.h"
#include "Filters/UnitColumns.h"
#include "Filters/UnitFilter.h"
#include "UnitTextFilter.generated.h"

/** Lets units pass whose text contains another, whatever the case and the accents of both: "elan" is in "Élan 3". */
UCLASS()
class HALVEXPRO_API UUnitTextFilter : public UUnitFilter
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitTextFilter")
	EUnitTextField Field = EUnitTextField::Name;

	/** What to look for; an empty text stops nothing. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UnitTextFilter")
	FString Text;

	UFUNCTION(BlueprintCallable, Category = "UnitTextFilter")
	static UUnitTextFilter* CreateTextFilter(EUnitTextField InField, const FString& InText);

	virtual void FilterUnits(const FUnitColumns& Units, FUnitMask& Passing) const override;
	virtual FString GetConditionText() const override;

protected:
	virtual bool DoesUnitPass_Implementation(const FUnitData& UnitData) const override;
};
