#pragma once

#include "CoreMinimal.h"
#include "GameFramework/Actor.h"
#include "Project/ProjectData.h"
#include "UnitVolumesManager.generated.h"

class AUnitVolumeActor;
class UUnitsFilterManager;

DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnUnitDataUpdated, const TArray<FUnitData>&, UnitData);
DECLARE_DYNAMIC_MULTICAST_DELEGATE(FOnUnitVolumeSelectionCleared);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnUnitVolumeSelectionChanged, const TArray<AUnitVolumeActor*>&, UnitVolumes);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnUnitVolumeHighlightChanged, AUnitVolumeActor*, UnitVolume);

/**
 * The units of a scene: knows the unit volumes, keeps the selection, and owns the filters. Unit volumes that stand in the
 * level register themselves; those of a project are spawned here. A scene has one manager.
 */
UCLASS()
class HALVEXPRO_API AUnitVolumesManager : public AActor
{
	GENERATED_BODY()

public:
	/** Raised when the data of the units, or the units themselves, have changed; for units that registered, in the next frame. */
	UPROPERTY(BlueprintAssignable, Category = "UnitVolumesManager")
	FOnUnitDataUpdated OnUnitDataUpdated;

	/** Raised when the selection has become empty. */
	UPROPERTY(BlueprintAssignable, Category = "UnitVolumesManager")
	FOnUnitVolumeSelectionCleared OnUnitVolumeSelectionCleared;

	/** Raised with the selected units, in the order of selection, when the selection has changed and is not empty. */
	UPROPERTY(BlueprintAssignable, Category = "UnitVolumesManager")
	FOnUnitVolumeSelectionChanged OnUnitVolumeSelectionChanged;

	/** Raised with the highlighted unit, or null. */
	UPROPERTY(BlueprintAssignable, Category = "UnitVolumesManager")
	FOnUnitVolumeHighlightChanged OnUnitVolumeHighlightChanged;

	AUnitVolumesManager();

	/** The manager of the context's scene; null when it has none. */
	UFUNCTION(BlueprintCallable, Category = "UnitVolumesManager", meta = (WorldContext = "WorldContext"))
	static AUnitVolumesManager* GetUnitVolumesManager(const UObject* WorldContext);

	UFUNCTION(BlueprintCallable, Category = "UnitVolumesManager")
	UUnitsFilterManager* GetUnitFilterManager() const { return FilterManager; }

	/** Spawns the units of a project, in their order, in place of those spawned before, and raises OnUnitDataUpdated. */
	UFUNCTION(BlueprintCallable, Category = "UnitVolumesManager")
	void SpawnUnits(const TArray<FProjectUnit>& Units);

	/** Gives the units of these ids other data, and raises OnUnitDataUpdated. Ids that the scene does not have are one log line. */
	UFUNCTION(BlueprintCallable, Category = "UnitVolumesManager")
	void UpdateUnitData(const TArray<FUnitData>& UnitData);

	/** Raises OnUnitDataUpdated and a filter result, for listeners that came after the units. */
	UFUNCTION(BlueprintCallable, Category = "UnitVolumesManager")
	void AnnounceUnitData();

	/** In the order in which they registered. */
	UFUNCTION(BlueprintCallable, Category = "UnitVolumesManager")
	TArray<AUnitVolumeActor*> GetUnitVolumes();

	UFUNCTION(BlueprintCallable, Category = "UnitVolumesManager")
	TArray<FUnitData> GetUnitData();

	/** The first unit of that id; null when there is none. */
	UFUNCTION(BlueprintCallable, Category = "UnitVolumesManager")
	AUnitVolumeActor* FindUnitVolume(FName UnitId);

	/** Adds a unit volume; one that is registered already is left alone. */
	UFUNCTION(BlueprintCallable, Category = "UnitVolumesManager")
	void RegisterUnitVolume(AUnitVolumeActor* UnitVolume);

	/** Takes a unit volume out, also out of the selection. */
	UFUNCTION(BlueprintCallable, Category = "UnitVolumesManager")
	void UnregisterUnitVolume(AUnitVolumeActor* UnitVolume);

	/**
	 * Selects a registered unit; bAddToSelection keeps the others. Nothing is raised when that is the selection already. A unit
	 * that is filtered out can be selected and stays so.
	 */
	UFUNCTION(BlueprintCallable, Category = "UnitVolumesManager")
	void SelectUnitVolume(AUnitVolumeActor* UnitVolume, bool bAddToSelection);

	UFUNCTION(BlueprintCallable, Category = "UnitVolumesManager")
	void UnselectUnitVolume(AUnitVolumeActor* UnitVolume);

	UFUNCTION(BlueprintCallable, Category = "UnitVolumesManager")
	void ClearSelection();

	/** In the order of selection. */
	UFUNCTION(BlueprintCallable, Category = "UnitVolumesManager")
	TArray<AUnitVolumeActor*> GetSelectedUnitVolumes() const { return ObjectPtrDecay(Selection); }

	/** For views of the scene: panels over it came or went, so that other parts of it may be seen. */
	FSimpleMulticastDelegate OnPanelsChanged;

	/** For screens over the scene: to be called when one of their panels was opened or closed. */
	UFUNCTION(BlueprintCallable, Category = "UnitVolumesManager")
	void AnnouncePanelChange() { OnPanelsChanged.Broadcast(); }

	/** Tells what the groups are called that units belong to. */
	UFUNCTION(BlueprintCallable, Category = "UnitVolumesManager")
	void SetUnitGroups(const TArray<FProjectGroup>& Groups);

	/** What people call a group; its key when nobody has told. */
	UFUNCTION(BlueprintCallable, Category = "UnitVolumesManager")
	FString GetUnitGroupName(FName GroupId) const;

	/** Highlights a registered unit in place of the one before; null for none. */
	UFUNCTION(BlueprintCallable, Category = "UnitVolumesManager")
	void SetHighlightedUnitVolume(AUnitVolumeActor* UnitVolume);

	UFUNCTION(BlueprintCallable, Category = "UnitVolumesManager")
	AUnitVolumeActor* GetHighlightedUnitVolume() const { return Highlighted; }

	/** For the filters: hands over the units that came and went since the last time. Nothing is raised. */
	void TakeOverUnits();

	/** For unit volumes: their data has changed. */
	void ReceivedUnitDataChange(AUnitVolumeActor& UnitVolume, FName UnitIdBefore);

protected:
	virtual void BeginPlay() override;

private:
	void DestroySpawnedUnits();
	void AnnounceLater();
	void AnnounceSelection();

	UPROPERTY()
	TObjectPtr<UUnitsFilterManager> FilterManager;

	/** Null where a unit has gone, until the next hand-over. */
	UPROPERTY()
	TArray<TObjectPtr<AUnitVolumeActor>> UnitVolumes;

	UPROPERTY()
	TArray<TObjectPtr<AUnitVolumeActor>> Spawned;

	UPROPERTY()
	TArray<TObjectPtr<AUnitVolumeActor>> Selection;

	UPROPERTY()
	TObjectPtr<AUnitVolumeActor> Highlighted;

	TMap<FName, TWeakObjectPtr<AUnitVolumeActor>> UnitOfId;
	TMap<FName, FString> GroupNames;

	bool bUnitsChanged = false;
	bool bAnnouncementDue = false;
	/** While units are spawned and destroyed in numbers, their comings and goings are announced once. */
	bool bSpawningUnits = false;
};
