#include "CountingUnitFilter.h"

void UCountingUnitFilter::FilterUnits(const FUnitColumns& Units, FUnitMask& Passing) const
{
	++NumEvaluations;
	Super::FilterUnits(Units, Passing);
}

bool UCountingUnitFilter::DoesUnitPass_Implementation(const FUnitData& UnitData) const
{
	++NumUnitsAsked;
	return UnitData.Level % 2 == 0;
}
