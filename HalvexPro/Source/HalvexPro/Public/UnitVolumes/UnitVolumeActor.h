#pragma once

#include "CoreMinimal.h"
#include "GameFramework/Actor.h"
#include "Records/UnitData.h"
#include "Records/UnitVolumeShape.h"
#include "UnitVolumeActor.generated.h"

class AUnitVolumeActor;
class AUnitVolumesManager;

DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnUnitVolumeStateChange, AUnitVolumeActor*, UnitVolume);

/**
 * One unit in the scene: its data, the space it takes, and whether it is selected, highlighted or filtered out. It joins the
 * scene's unit volumes manager when it begins to play.
 */
UCLASS()
class HALVEXPRO_API AUnitVolumeActor : public AActor
{
	GENERATED_BODY()

public:
	/** Raised after the unit was selected, unselected, highlighted, filtered out or in, or got other data. */
	UPROPERTY(BlueprintAssignable, Category = "UnitVolumeActor")
	FOnUnitVolumeStateChange OnUnitVolumeStateChange;

	UFUNCTION(BlueprintCallable, Category = "UnitVolumeActor")
	FUnitData GetUnitVolumeSceneData() const { return UnitData; }

	/** The same without a copy. */
	const FUnitData& GetUnitData() const { return UnitData; }

	/** Takes other data; the filters are evaluated anew. */
	UFUNCTION(BlueprintCallable, Category = "UnitVolumeActor")
	void SetUnitVolumeSceneData(const FUnitData& InUnitData);

	/** In the space of the actor: where the actor has no root component, that of the scene. */
	const FUnitVolumeShape& GetVolume() const { return Volume; }
	void SetVolume(FUnitVolumeShape InVolume) { Volume = MoveTemp(InVolume); }

	/** Bounds of the volume in the scene, in centimetres. */
	FBox GetVolumeBounds() const;

	/** Selects the unit; bAddToSelection keeps the other selected units. Nothing happens without a manager. */
	UFUNCTION(BlueprintCallable, Category = "UnitVolumeActor")
	void SelectUnitVolume(bool bAddToSelection);

	UFUNCTION(BlueprintCallable, Category = "UnitVolumeActor")
	void UnselectUnitVolume();

	UFUNCTION(BlueprintCallable, Category = "UnitVolumeActor")
	bool IsSelected() const { return bSelected; }

	/** Highlighted is the unit that the pointer is over. */
	UFUNCTION(BlueprintCallable, Category = "UnitVolumeActor")
	bool IsHighlighted() const { return bHighlighted; }

	/** Whether the scene's filters stop the unit. */
	UFUNCTION(BlueprintCallable, Category = "UnitVolumeActor")
	bool IsFilteredOut() const { return bFilteredOut; }

	/** The manager that it is registered with; null before that. */
	AUnitVolumesManager* GetManager() const { return Manager.Get(); }

	virtual void Destroyed() override;

	/** For the manager and its filters. Each raises the event when the state changes. */
	void SetSelected(bool bInSelected);
	void SetHighlighted(bool bInHighlighted);
	void SetFilteredOut(bool bInFilteredOut);

protected:
	virtual void BeginPlay() override;

private:
	friend class AUnitVolumesManager;

	void SetState(bool& State, bool bValue);

	UPROPERTY(EditAnywhere, Category = "UnitVolumeActor")
	FUnitData UnitData;

	UPROPERTY(EditAnywhere, Category = "UnitVolumeActor")
	FUnitVolumeShape Volume;

	TWeakObjectPtr<AUnitVolumesManager> Manager;
	/** Place among the manager's units. */
	int32 UnitIndex = INDEX_NONE;

	bool bSelected = false;
	bool bHighlighted = false;
	bool bFilteredOut = false;
};
