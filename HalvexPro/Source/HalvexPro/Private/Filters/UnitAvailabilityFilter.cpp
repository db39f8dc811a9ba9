#include "Filters/UnitAvailabilityFilter.h"

#include "Filters/UnitColumns.h"
#include "Filters/UnitMask.h"

UUnitAvailabilityFilter* UUnitAvailabilityFilter::CreateAvailabilityFilter(bool bInIncludeReserved)
{
	UUnitAvailabilityFilter* const Filter = NewObject<UUnitAvailabilityFilter>();
	Filter->bIncludeReserved = bInIncludeReserved;
	return Filter;
}

bool UUnitAvailabilityFilter::DoesUnitPass_Implementation(const FUnitData& UnitData) const
{
	return UnitData.Status == EUnitStatus::Available || (bIncludeReserved && UnitData.Status == EUnitStatus::Reserved);
}

void UUnitAvailabilityFilter::FilterUnits(const FUnitColumns& Units, FUnitMask& Passing) const
{
	const int32* const Codes = Units.GetChoiceCodes(EUnitChoiceField::Status).GetData();
	const TArray<FName>& Names = Units.GetChoiceNames(EUnitChoiceField::Status);
	const int32 Available = Names.Find(FName(TEXT("Available")));
	const int32 Reserved = bIncludeReserved ? Names.Find(FName(TEXT("Reserved"))) : INDEX_NONE;
	Passing.Restrict([Codes, Available, Reserved](int32 Index) { return int32(Codes[Index] == Available) | int32(Codes[Index] == Reserved); });
}

FString UUnitAvailabilityFilter::GetConditionText() const
{
	return bIncludeReserved ? TEXT("available or reserved") : TEXT("available");
}
