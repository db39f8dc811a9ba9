#include "Filters/UnitFilter.h"

#include "Filters/UnitColumns.h"
#include "Filters/UnitMask.h"

bool UUnitFilter::DoesUnitPass_Implementation(const FUnitData&) const
{
	return true;
}

void UUnitFilter::FilterUnits(const FUnitColumns& Units, FUnitMask& Passing) const
{
	Passing.RestrictPassing([this, &Units](int32 Index) { return DoesUnitPass(Units.GetUnit(Index)); });
}

FString UUnitFilter::GetConditionText() const
{
	return FString();
}
