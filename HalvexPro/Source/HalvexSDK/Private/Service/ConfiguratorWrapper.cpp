#include "Service/ConfiguratorWrapper.h"

#include "Service/ProjectWrapper.h"
#include "Service/UnitGroupWrapper.h"

bool UConfiguratorWrapper::SetUnitTarget(FName UnitId)
{
	const FUnitData* const Unit = GetTypedOuter<UUnitGroupWrapper>()->FindUnit(UnitId);
	if (Unit)
	{
		Exchange(*Unit);
	}
	return Unit != nullptr;
}

void UConfiguratorWrapper::ClearUnitTarget()
{
	Exchange(FUnitData());
}

void UConfiguratorWrapper::Exchange(const FUnitData& NewTarget)
{
	if (UnitTarget.UnitId == NewTarget.UnitId)
	{
		return;
	}
	const bool bWasThere = HasUnitTarget();
	UnitTarget = NewTarget;
	const UUnitGroupWrapper& UnitGroup = *GetTypedOuter<UUnitGroupWrapper>();
	UnitGroup.GetTypedOuter<UProjectWrapper>()->ReceivedConfiguratorTarget(UnitGroup, bWasThere);
}
