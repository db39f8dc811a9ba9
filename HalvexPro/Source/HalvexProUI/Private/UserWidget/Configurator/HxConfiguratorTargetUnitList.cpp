#include "UserWidget/Configurator/HxConfiguratorTargetUnitList.h"

TArray<FUnitData> UHxConfiguratorTargetUnitList::GetAvailableUserUnits() const
{
	return TArray<FUnitData>();
}
