#include "ProjectUpdateListener.h"

#include "Service/ConfiguratorWrapper.h"
#include "Service/HalvexProjectRequestManager.h"
#include "Service/ProjectWrapper.h"
#include "Service/UnitGroupWrapper.h"
#include "UObject/Class.h"

void UProjectUpdateListener::ListenTo(UHalvexProjectRequestManager& InManager)
{
	Manager = &InManager;
	Manager->OnManagerDataUpdated.AddDynamic(this, &UProjectUpdateListener::ReceiveUpdate);
}

FString UProjectUpdateListener::TakeUpdates()
{
	const FString Taken = FString::Join(Updates, TEXT(", "));
	Updates.Reset();
	return Taken;
}

void UProjectUpdateListener::ReceiveUpdate(EUpdateRequestDataType DataType, EUpdateRequestType UpdateRequestType)
{
	FString Update = StaticEnum<EUpdateRequestDataType>()->GetNameStringByValue(static_cast<int64>(DataType)) + TEXT(" ")
		+ StaticEnum<EUpdateRequestType>()->GetNameStringByValue(static_cast<int64>(UpdateRequestType));
	if (Manager->GetProjectWrapper()->HasConfiguratorTarget())
	{
		Update += TEXT(" [") + Manager->GetProjectWrapper()->GetUnitGroupTarget()->GetConfiguratorWrapper()->GetConfiguratorUnitTarget().UnitId.ToString() + TEXT("]");
	}
	Updates.Add(Update);
}
