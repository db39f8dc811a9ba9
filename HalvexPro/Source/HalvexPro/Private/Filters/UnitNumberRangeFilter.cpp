#include "Filters/UnitNumberRangeFilter.h"

#include "Filters/UnitMask.h"

UUnitNumberRangeFilter* UUnitNumberRangeFilter::CreateNumberRangeFilter(EUnitNumberField InField, double InMinimum, double InMaximum)
{
	UUnitNumberRangeFilter* const Filter = NewObject<UUnitNumberRangeFilter>();
	Filter->Field = InField;
	Filter->Minimum = InMinimum;
	Filter->Maximum = InMaximum;
	return Filter;
}

bool UUnitNumberRangeFilter::DoesUnitPass_Implementation(const FUnitData& UnitData) const
{
	const double Number = FUnitFields::GetNumber(UnitData, Field);
	return Number >= Minimum && Number <= Maximum;
}

void UUnitNumberRangeFilter::FilterUnits(const FUnitColumns& Units, FUnitMask& Passing) const
{
	const double* const Numbers = Units.GetNumbers(Field).GetData();
	// Both are looked at for each unit: without a branch to guess, several units are compared at once.
	Passing.Restrict([Numbers, Low = Minimum, High = Maximum](int32 Index)
	{
		return int32(Numbers[Index] >= Low) & int32(Numbers[Index] <= High);
	});
}

FString UUnitNumberRangeFilter::GetConditionText() const
{
	return FString::Printf(TEXT("number %d %.17g %.17g"), int32(Field), Minimum, Maximum);
}
