#include "UnitVolumes/UnitVolumesManager.h"

#include "Engine/World.h"
#include "EngineUtils.h"
#include "Filters/UnitsFilterManager.h"
#include "HalvexProLog.h"
#include "Kismet/GameplayStatics.h"
#include "TimerManager.h"
#include "UnitVolumes/UnitVolumeActor.h"

AUnitVolumesManager::AUnitVolumesManager()
{
	FilterManager = CreateDefaultSubobject<UUnitsFilterManager>(TEXT("FilterManager"));
}

AUnitVolumesManager* AUnitVolumesManager::GetUnitVolumesManager(const UObject* WorldContext)
{
	return Cast<AUnitVolumesManager>(UGameplayStatics::GetActorOfClass(WorldContext, StaticClass()));
}

void AUnitVolumesManager::BeginPlay()
{
	Super::BeginPlay();
	for (TActorIterator<AUnitVolumeActor> UnitVolume(GetWorld()); UnitVolume; ++UnitVolume)
	{
		RegisterUnitVolume(*UnitVolume);
	}
}

void AUnitVolumesManager::SpawnUnits(const TArray<FProjectUnit>& Units)
{
	UWorld* const World = GetWorld();
	if (!World)
	{
		return;
	}
	{
		const TGuardValue<bool> Spawning(bSpawningUnits, true);
		DestroySpawnedUnits();
		Spawned.Reserve(Units.Num());
		UnitVolumes.Reserve(UnitVolumes.Num() + Units.Num());
		for (const FProjectUnit& Unit : Units)
		{
			AUnitVolumeActor* const UnitVolume = World->SpawnActorDeferred<AUnitVolumeActor>(AUnitVolumeActor::StaticClass(), FTransform::Identity);
			UnitVolume->UnitData = Unit.Data;
			UnitVolume->Volume = Unit.Volume;
			RegisterUnitVolume(UnitVolume);
			UnitVolume->FinishSpawning(FTransform::Identity);
			Spawned.Add(UnitVolume);
		}
	}
	AnnounceUnitData();
}

void AUnitVolumesManager::DestroySpawnedUnits()
{
	const TArray<TObjectPtr<AUnitVolumeActor>> Gone = MoveTemp(Spawned);
	Spawned.Reset();
	for (AUnitVolumeActor* UnitVolume : Gone)
	{
		if (IsValid(UnitVolume))
		{
			UnitVolume->Destroy();
		}
	}
}

void AUnitVolumesManager::UpdateUnitData(const TArray<FUnitData>& UnitData)
{
	const UUnitsFilterManager::FHoldResults Hold(*FilterManager);
	for (const FUnitData& Data : UnitData)
	{
		if (AUnitVolumeActor* const UnitVolume = FindUnitVolume(Data.UnitId))
		{
			UnitVolume->SetUnitVolumeSceneData(Data);
		}
		else
		{
			UE_LOG(LogHalvexPro, Warning, TEXT("Units: there is no unit '%s' to update"), *Data.UnitId.ToString());
		}
	}
	AnnounceUnitData();
}

void AUnitVolumesManager::AnnounceUnitData()
{
	bAnnouncementDue = false;
	// Listeners of the data may change the filters: one result follows for all.
	const UUnitsFilterManager::FHoldResults Hold(*FilterManager);
	FilterManager->RefreshFilterResult();
	OnUnitDataUpdated.Broadcast(GetUnitData());
}

void AUnitVolumesManager::AnnounceLater()
{
	UWorld* const World = GetWorld();
	if (!bSpawningUnits && !bAnnouncementDue && World)
	{
		bAnnouncementDue = true;
		World->GetTimerManager().SetTimerForNextTick(FTimerDelegate::CreateWeakLambda(this, [this]
		{
			if (bAnnouncementDue)
			{
				AnnounceUnitData();
			}
		}));
	}
}

TArray<AUnitVolumeActor*> AUnitVolumesManager::GetUnitVolumes()
{
	TakeOverUnits();
	return ObjectPtrDecay(UnitVolumes);
}

TArray<FUnitData> AUnitVolumesManager::GetUnitData()
{
	TakeOverUnits();
	TArray<FUnitData> UnitData;
	UnitData.Reserve(UnitVolumes.Num());
	for (const AUnitVolumeActor* UnitVolume : UnitVolumes)
	{
		UnitData.Add(UnitVolume->GetUnitData());
	}
	return UnitData;
}

AUnitVolumeActor* AUnitVolumesManager::FindUnitVolume(FName UnitId)
{
	TakeOverUnits();
	const TWeakObjectPtr<AUnitVolumeActor>* const Found = UnitOfId.Find(UnitId);
	return Found ? Found->Get() : nullptr;
}

void AUnitVolumesManager::RegisterUnitVolume(AUnitVolumeActor* UnitVolume)
{
	if (!IsValid(UnitVolume) || UnitVolume->Manager.IsValid())
	{
		return;
	}
	UnitVolume->Manager = this;
	UnitVolume->UnitIndex = UnitVolumes.Add(UnitVolume);
	bUnitsChanged = true;
	AnnounceLater();
}

void AUnitVolumesManager::UnregisterUnitVolume(AUnitVolumeActor* UnitVolume)
{
	if (!UnitVolume || UnitVolume->Manager.Get() != this)
	{
		return;
	}
	if (Highlighted == UnitVolume)
	{
		SetHighlightedUnitVolume(nullptr);
	}
	UnselectUnitVolume(UnitVolume);
	// The place is closed with all others at the next hand-over.
	UnitVolumes[UnitVolume->UnitIndex] = nullptr;
	UnitVolume->Manager = nullptr;
	UnitVolume->UnitIndex = INDEX_NONE;
	bUnitsChanged = true;
	AnnounceLater();
}

void AUnitVolumesManager::TakeOverUnits()
{
	if (!bUnitsChanged)
	{
		return;
	}
	bUnitsChanged = false;
	UnitVolumes.RemoveAll([](const TObjectPtr<AUnitVolumeActor>& UnitVolume) { return !UnitVolume; });
	UnitOfId.Empty(UnitVolumes.Num());
	for (int32 Index = 0; Index < UnitVolumes.Num(); ++Index)
	{
		UnitVolumes[Index]->UnitIndex = Index;
		TWeakObjectPtr<AUnitVolumeActor>& First = UnitOfId.FindOrAdd(UnitVolumes[Index]->GetUnitData().UnitId);
		if (!First.IsValid())
		{
			First = UnitVolumes[Index];
		}
	}
	FilterManager->SetUnits(UnitVolumes);
}

void AUnitVolumesManager::ReceivedUnitDataChange(AUnitVolumeActor& UnitVolume, FName UnitIdBefore)
{
	bUnitsChanged |= UnitVolume.GetUnitData().UnitId != UnitIdBefore;
	if (!bUnitsChanged)
	{
		FilterManager->RefreshUnit(UnitVolume.UnitIndex);
	}
	AnnounceLater();
	FilterManager->RefreshFilterResult();
}

void AUnitVolumesManager::SelectUnitVolume(AUnitVolumeActor* UnitVolume, bool bAddToSelection)
{
	if (!UnitVolume || UnitVolume->Manager.Get() != this)
	{
		return;
	}
	const bool bAlreadySo = UnitVolume->IsSelected() && (bAddToSelection || Selection.Num() == 1);
	if (bAlreadySo)
	{
		return;
	}
	const TArray<TObjectPtr<AUnitVolumeActor>> Before = Selection;
	if (!bAddToSelection)
	{
		Selection.Reset();
	}
	Selection.AddUnique(UnitVolume);
	for (AUnitVolumeActor* Unselected : Before)
	{
		if (!bAddToSelection && Unselected != UnitVolume)
		{
			Unselected->SetSelected(false);
		}
	}
	UnitVolume->SetSelected(true);
	AnnounceSelection();
}

void AUnitVolumesManager::UnselectUnitVolume(AUnitVolumeActor* UnitVolume)
{
	if (UnitVolume && Selection.Remove(UnitVolume) > 0)
	{
		UnitVolume->SetSelected(false);
		AnnounceSelection();
	}
}

void AUnitVolumesManager::ClearSelection()
{
	if (Selection.IsEmpty())
	{
		return;
	}
	const TArray<TObjectPtr<AUnitVolumeActor>> Before = MoveTemp(Selection);
	Selection.Reset();
	for (AUnitVolumeActor* UnitVolume : Before)
	{
		UnitVolume->SetSelected(false);
	}
	AnnounceSelection();
}

void AUnitVolumesManager::AnnounceSelection()
{
	if (Selection.IsEmpty())
	{
		OnUnitVolumeSelectionCleared.Broadcast();
	}
	else
	{
		OnUnitVolumeSelectionChanged.Broadcast(GetSelectedUnitVolumes());
	}
}

void AUnitVolumesManager::SetUnitGroups(const TArray<FProjectGroup>& Groups)
{
	GroupNames.Reset();
	for (const FProjectGroup& Group : Groups)
	{
		GroupNames.Add(Group.GroupId, Group.Name);
	}
}

FString AUnitVolumesManager::GetUnitGroupName(FName GroupId) const
{
	const FString* const Name = GroupNames.Find(GroupId);
	return Name && !Name->IsEmpty() ? *Name : GroupId.ToString();
}

void AUnitVolumesManager::SetHighlightedUnitVolume(AUnitVolumeActor* UnitVolume)
{
	if (UnitVolume == Highlighted || (UnitVolume && UnitVolume->Manager.Get() != this))
	{
		return;
	}
	AUnitVolumeActor* const Before = Highlighted;
	Highlighted = UnitVolume;
	if (Before)
	{
		Before->SetHighlighted(false);
	}
	if (UnitVolume)
	{
		UnitVolume->SetHighlighted(true);
	}
	OnUnitVolumeHighlightChanged.Broadcast(UnitVolume);
}
