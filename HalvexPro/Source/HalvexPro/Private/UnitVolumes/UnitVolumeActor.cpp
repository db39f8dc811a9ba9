#include "UnitVolumes/UnitVolumeActor.h"

#include "UnitVolumes/UnitVolumesManager.h"

void AUnitVolumeActor::SetUnitVolumeSceneData(const FUnitData& InUnitData)
{
	const FName UnitIdBefore = UnitData.UnitId;
	UnitData = InUnitData;
	if (AUnitVolumesManager* const OwnManager = Manager.Get())
	{
		OwnManager->ReceivedUnitDataChange(*this, UnitIdBefore);
	}
	OnUnitVolumeStateChange.Broadcast(this);
}

FBox AUnitVolumeActor::GetVolumeBounds() const
{
	return Volume.GetBounds().TransformBy(GetActorTransform());
}

void AUnitVolumeActor::SelectUnitVolume(bool bAddToSelection)
{
	if (AUnitVolumesManager* const OwnManager = Manager.Get())
	{
		OwnManager->SelectUnitVolume(this, bAddToSelection);
	}
}

void AUnitVolumeActor::UnselectUnitVolume()
{
	if (AUnitVolumesManager* const OwnManager = Manager.Get())
	{
		OwnManager->UnselectUnitVolume(this);
	}
}

void AUnitVolumeActor::SetSelected(bool bInSelected)
{
	SetState(bSelected, bInSelected);
}

void AUnitVolumeActor::SetHighlighted(bool bInHighlighted)
{
	SetState(bHighlighted, bInHighlighted);
}

void AUnitVolumeActor::SetFilteredOut(bool bInFilteredOut)
{
	SetState(bFilteredOut, bInFilteredOut);
}

void AUnitVolumeActor::BeginPlay()
{
	Super::BeginPlay();
	if (!Manager.IsValid())
	{
		if (AUnitVolumesManager* const Found = AUnitVolumesManager::GetUnitVolumesManager(this))
		{
			Found->RegisterUnitVolume(this);
		}
	}
}

void AUnitVolumeActor::Destroyed()
{
	if (AUnitVolumesManager* const OwnManager = Manager.Get())
	{
		OwnManager->UnregisterUnitVolume(this);
	}
	Super::Destroyed();
}

void AUnitVolumeActor::SetState(bool& State, bool bValue)
{
	if (State != bValue)
	{
		State = bValue;
		OnUnitVolumeStateChange.Broadcast(this);
	}
}
