#include "Service/ProjectWrapper.h"

#include "Service/ConfiguratorWrapper.h"
#include "Service/UnitGroupWrapper.h"

void UProjectWrapper::Initialize(FProjectData InProject)
{
	Project = MoveTemp(InProject);
	TMap<FName, UUnitGroupWrapper*> GroupOfId;
	for (const FProjectGroup& Group : Project.Groups)
	{
		UUnitGroupWrapper* const UnitGroup = NewObject<UUnitGroupWrapper>(this);
		UnitGroup->Initialize(Group);
		UnitGroups.Add(UnitGroup);
		GroupOfId.Add(Group.GroupId, UnitGroup);
	}
	UUnitGroupWrapper* Rest = nullptr;
	for (int32 Index = 0; Index < Project.Units.Num(); ++Index)
	{
		UUnitGroupWrapper* const* const Found = GroupOfId.Find(Project.Units[Index].Data.Building);
		if (!Found && !Rest)
		{
			Rest = NewObject<UUnitGroupWrapper>(this);
			Rest->Initialize(FProjectGroup());
		}
		(Found ? *Found : Rest)->AddUnit(Index);
	}
	if (Rest)
	{
		UnitGroups.Add(Rest);
	}
}

UUnitGroupWrapper* UProjectWrapper::FindUnitGroup(FName GroupId) const
{
	for (UUnitGroupWrapper* const UnitGroup : UnitGroups)
	{
		if (UnitGroup->GetGroup().GroupId == GroupId)
		{
			return UnitGroup;
		}
	}
	return nullptr;
}

bool UProjectWrapper::SetUnitGroupTarget(FName GroupId)
{
	UUnitGroupWrapper* const UnitGroup = FindUnitGroup(GroupId);
	if (UnitGroup)
	{
		ExchangeUnitGroupTarget(UnitGroup);
	}
	return UnitGroup != nullptr;
}

void UProjectWrapper::ClearUnitGroupTarget()
{
	ExchangeUnitGroupTarget(nullptr);
}

bool UProjectWrapper::HasConfiguratorTarget() const
{
	return UnitGroupTarget && UnitGroupTarget->GetConfiguratorWrapper()->HasUnitTarget();
}

bool UProjectWrapper::SetConfiguratorTarget(FName UnitId)
{
	for (UUnitGroupWrapper* const UnitGroup : UnitGroups)
	{
		if (UnitGroup->HasUnit(UnitId))
		{
			UnitGroup->GetConfiguratorWrapper()->SetUnitTarget(UnitId);
			ExchangeUnitGroupTarget(UnitGroup);
			return true;
		}
	}
	return false;
}

bool UProjectWrapper::CanConfigureTarget() const
{
	return HasCatalogue() && FindTargetInterior();
}

bool UProjectWrapper::OpenConfigurator()
{
	if (!CanConfigureTarget())
	{
		return false;
	}
	if (!bConfiguratorOpen)
	{
		bConfiguratorOpen = true;
		OnUpdated.Broadcast(EUpdateRequestDataType::OpenConfigurator, EUpdateRequestType::Added);
	}
	return true;
}

void UProjectWrapper::CloseConfigurator()
{
	if (bConfiguratorOpen)
	{
		bConfiguratorOpen = false;
		OnUpdated.Broadcast(EUpdateRequestDataType::OpenConfigurator, EUpdateRequestType::Removed);
	}
}

const FProjectInterior* UProjectWrapper::FindTargetInterior() const
{
	if (!HasConfiguratorTarget())
	{
		return nullptr;
	}
	const FName Interior = UnitGroupTarget->GetConfiguratorWrapper()->GetConfiguratorUnitTarget().Interior;
	return Interior.IsNone() ? nullptr : Project.Interiors.FindByPredicate([Interior](const FProjectInterior& Other) { return Other.InteriorId == Interior; });
}

void UProjectWrapper::ReceivedConfiguratorTarget(const UUnitGroupWrapper& UnitGroup, bool bWasThere)
{
	// Those of other groups are told when their group becomes the target.
	if (&UnitGroup == UnitGroupTarget)
	{
		AnnounceConfiguratorTarget(bWasThere);
	}
}

EUpdateRequestType UProjectWrapper::GetUpdateType(bool bWasThere, bool bIsThere)
{
	if (!bIsThere)
	{
		return EUpdateRequestType::Removed;
	}
	return bWasThere ? EUpdateRequestType::Changed : EUpdateRequestType::Added;
}

void UProjectWrapper::ExchangeUnitGroupTarget(UUnitGroupWrapper* UnitGroup)
{
	if (UnitGroupTarget == UnitGroup)
	{
		return;
	}
	const bool bHadGroup = HasUnitGroupTarget();
	const bool bHadUnit = HasConfiguratorTarget();
	UnitGroupTarget = UnitGroup;
	OnUpdated.Broadcast(EUpdateRequestDataType::UnitGroupTarget, GetUpdateType(bHadGroup, UnitGroup != nullptr));
	if (bHadUnit || HasConfiguratorTarget())
	{
		AnnounceConfiguratorTarget(bHadUnit);
	}
}

void UProjectWrapper::AnnounceConfiguratorTarget(bool bWasThere)
{
	if (!CanConfigureTarget())
	{
		CloseConfigurator();
	}
	OnUpdated.Broadcast(EUpdateRequestDataType::ConfiguratorTarget, GetUpdateType(bWasThere, HasConfiguratorTarget()));
}
