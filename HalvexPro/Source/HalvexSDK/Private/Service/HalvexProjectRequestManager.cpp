#include "Service/HalvexProjectRequestManager.h"

#include "Service/ProjectWrapper.h"

void UHalvexProjectRequestManager::PostInitProperties()
{
	Super::PostInitProperties();
	if (!HasAnyFlags(RF_ClassDefaultObject))
	{
		ProjectWrapper = NewObject<UProjectWrapper>(this);
	}
}

void UHalvexProjectRequestManager::NotifyLoading()
{
	SetState(EPMS_Loading);
}

void UHalvexProjectRequestManager::NotifyFailed()
{
	SetState(EPMS_Failed);
}

void UHalvexProjectRequestManager::ReceiveProject(FProjectData Project)
{
	UProjectWrapper* const NewWrapper = NewObject<UProjectWrapper>(this);
	NewWrapper->Initialize(MoveTemp(Project));
	NewWrapper->OnUpdated.AddUObject(this, &UHalvexProjectRequestManager::ReceivedProjectUpdate);
	Exchange(*NewWrapper, true);
}

void UHalvexProjectRequestManager::ClearProject()
{
	Exchange(*NewObject<UProjectWrapper>(this), false);
}

void UHalvexProjectRequestManager::SetState(EProjectManagerState NewState)
{
	if (State != NewState)
	{
		State = NewState;
		OnManagerDataUpdated.Broadcast(EUpdateRequestDataType::State, EUpdateRequestType::Changed);
	}
}

void UHalvexProjectRequestManager::Exchange(UProjectWrapper& NewWrapper, bool bIsThere)
{
	UProjectWrapper* const Before = ProjectWrapper;
	const bool bWasThere = bHasProject;
	Before->OnUpdated.RemoveAll(this);
	ProjectWrapper = &NewWrapper;
	bHasProject = bIsThere;
	SetState(bIsThere ? EPMS_Loaded : EPMS_Idle);
	const auto Announce = [this](EUpdateRequestDataType DataType, bool bWas, bool bIs)
	{
		if (bWas || bIs)
		{
			OnManagerDataUpdated.Broadcast(DataType, UProjectWrapper::GetUpdateType(bWas, bIs));
		}
	};
	Announce(EUpdateRequestDataType::Project, bWasThere, bIsThere);
	Announce(EUpdateRequestDataType::Catalogue, Before->HasCatalogue(), NewWrapper.HasCatalogue());
	Announce(EUpdateRequestDataType::UnitGroupTarget, Before->HasUnitGroupTarget(), false);
	Announce(EUpdateRequestDataType::ConfiguratorTarget, Before->HasConfiguratorTarget(), false);
	Announce(EUpdateRequestDataType::OpenConfigurator, Before->IsConfiguratorOpen(), false);
}

void UHalvexProjectRequestManager::ReceivedProjectUpdate(EUpdateRequestDataType DataType, EUpdateRequestType UpdateRequestType)
{
	OnManagerDataUpdated.Broadcast(DataType, UpdateRequestType);
}
