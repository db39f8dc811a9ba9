#pragma once

#include "CoreMinimal.h"
#include "Filters/UnitsFilterResult.h"
#include "Host/SSceneViewport.h"
#include "Host/SceneVolumeStates.h"
#include "Records/UnitData.h"
#include "UObject/Object.h"
#include "UnitSceneBinding.generated.h"

class AUnitVolumeActor;
class AUnitVolumesManager;

/**
 * Keeps a scene view and the units of a manager in step, by events only: a volume for each unit that has one, coloured by its
 * status and its state; what is clicked in the view is selected, what is under the cursor highlighted. Volumes are made anew when
 * the units are others; else only those that look different are changed.
 */
UCLASS(Transient)
class UUnitSceneBinding : public UObject
{
	GENERATED_BODY()

public:
	/** Makes a view of the manager's units and follows them until Unbind(). @param WindowRenderer as for the viewport */
	TSharedRef<Host::SSceneViewport> Bind(AUnitVolumesManager& InManager, FSlateRenderer* WindowRenderer);

	/** Lets go of the manager and the view. */
	void Unbind();

	/** Takes the colours of the style anew. */
	void RefreshColours();

	/** Bounds of all volumes of units; invalid when there are none. */
	const FBox& GetUnitBounds() const { return UnitBounds; }

	/** The volume of a unit in the content; INDEX_NONE when it has none. */
	int32 FindVolume(const AUnitVolumeActor* UnitVolume) const;

	const Host::FSceneContent& GetContent() const { return *Content; }

	/** Called when there was a click into the view, on a unit or beside all of them. */
	FSimpleMulticastDelegate OnClicked;

private:
	UFUNCTION()
	void ReceivedUnitData(const TArray<FUnitData>& UnitData);
	UFUNCTION()
	void ReceivedSelection(const TArray<AUnitVolumeActor*>& UnitVolumes);
	UFUNCTION()
	void ReceivedSelectionCleared();
	UFUNCTION()
	void ReceivedHighlight(AUnitVolumeActor* UnitVolume);
	UFUNCTION()
	void ReceivedFilterResult(const FUnitsFilterResult& FilterResult);

	void Hovered(int32 Volume);
	/** Selects what was clicked in place of the selection; with Ctrl adds it, or takes it out. */
	void Clicked(int32 Volume, const FPointerEvent& MouseEvent);

	/** Makes all volumes anew. */
	void MakeVolumes(const TArray<AUnitVolumeActor*>& UnitVolumes);
	void AddVolume(AUnitVolumeActor& UnitVolume);
	/** Colours a volume as its unit is. */
	void ShowUnit(int32 Volume, const AUnitVolumeActor& UnitVolume);
	void ShowAllUnits();
	/** Has the view drawn anew if anything looks different. */
	void DrawChanges();
	/** Turns to a volume that is beside the picture, and about those that hide it. */
	void BringIntoView(int32 Volume);
	AUnitVolumeActor* GetUnit(int32 Volume) const;

	TWeakObjectPtr<AUnitVolumesManager> Manager;
	TSharedPtr<Host::FSceneContent> Content;
	TUniquePtr<Host::FSceneVolumeStates> States;
	TSharedPtr<Host::SSceneViewport> Viewport;
	/** All units, also those without a volume, as they were when the volumes were made. */
	TArray<TWeakObjectPtr<AUnitVolumeActor>> Units;
	/** By volume, from FirstUnitVolume on. */
	TArray<TWeakObjectPtr<AUnitVolumeActor>> UnitOfVolume;
	/** To be trusted only where UnitOfVolume agrees: a unit may have gone and another have its place in memory. */
	TMap<const AUnitVolumeActor*, int32> VolumeOfUnit;
	TArray<int32> SelectedVolumes;
	int32 HighlightedVolume = INDEX_NONE;
	/** While a click into the view selects. */
	bool bClicking = false;
	/** Volumes before it are surroundings. */
	int32 FirstUnitVolume = 0;
	FBox UnitBounds = FBox(ForceInit);
	uint64 DrawnRevision = 0;
};
