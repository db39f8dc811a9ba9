#include "UserWidget/Configurator/HxConfiguratorTargetUnit.h"

#include "HalvexSDKEngineSubsystem.h"
#include "Service/ConfiguratorWrapper.h"
#include "Service/HalvexProjectRequestManager.h"
#include "Service/ProjectWrapper.h"
#include "Service/UnitGroupWrapper.h"

namespace
{
	UHalvexProjectRequestManager* FindRequestManager()
	{
		const UHalvexSDKEngineSubsystem* const Subsystem = UHalvexSDKEngineSubsystem::Get();
		return Subsystem ? Subsystem->GetUserRequestManager() : nullptr;
	}
}

void UHxConfiguratorTargetUnit::Received_ManagerDataUpdated(EUpdateRequestDataType DataType, EUpdateRequestType)
{
	if (DataType == EUpdateRequestDataType::ConfiguratorTarget)
	{
		GetConfigTarget();
	}
}

void UHxConfiguratorTargetUnit::GetConfigTarget()
{
	const UHalvexProjectRequestManager* const Manager = FindRequestManager();
	const UProjectWrapper* const Project = Manager ? Manager->GetProjectWrapper() : nullptr;
	if (!Project || !Project->HasUnitGroupTarget())
	{
		return;
	}
	const UConfiguratorWrapper* const Configurator = Project->GetUnitGroupTarget()->GetConfiguratorWrapper();
	if (Configurator->HasUnitTarget())
	{
		OnConfiguratorUnitTarget(Configurator->GetConfiguratorUnitTarget());
	}
}

void UHxConfiguratorTargetUnit::NativeOnInitialized()
{
	Super::NativeOnInitialized();
	UHalvexProjectRequestManager* const Manager = FindRequestManager();
	if (!Manager)
	{
		return;
	}
	Manager->OnManagerDataUpdated.AddDynamic(this, &UHxConfiguratorTargetUnit::Received_ManagerDataUpdated);
	if (Manager->GetStateProcess() == EPMS_Loaded)
	{
		GetConfigTarget();
	}
}
