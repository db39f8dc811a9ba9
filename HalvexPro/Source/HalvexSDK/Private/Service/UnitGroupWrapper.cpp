#include "Service/UnitGroupWrapper.h"

#include "Service/ConfiguratorWrapper.h"
#include "Service/ProjectWrapper.h"

void UUnitGroupWrapper::Initialize(const FProjectGroup& InGroup)
{
	Group = InGroup;
	ConfiguratorWrapper = NewObject<UConfiguratorWrapper>(this);
}

TArray<FUnitData> UUnitGroupWrapper::GetUnits() const
{
	const TArray<FProjectUnit>& ProjectUnits = GetProjectUnits();
	TArray<FUnitData> Units;
	Units.Reserve(UnitIndices.Num());
	for (const int32 Index : UnitIndices)
	{
		Units.Add(ProjectUnits[Index].Data);
	}
	return Units;
}

const FUnitData* UUnitGroupWrapper::FindUnit(FName UnitId) const
{
	const TArray<FProjectUnit>& ProjectUnits = GetProjectUnits();
	for (const int32 Index : UnitIndices)
	{
		if (ProjectUnits[Index].Data.UnitId == UnitId)
		{
			return &ProjectUnits[Index].Data;
		}
	}
	return nullptr;
}

const TArray<FProjectUnit>& UUnitGroupWrapper::GetProjectUnits() const
{
	return GetTypedOuter<UProjectWrapper>()->GetProject().Units;
}
