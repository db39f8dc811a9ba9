#pragma once

#include "CoreMinimal.h"
#include "Host/InteriorContent.h"
#include "Host/SSceneViewport.h"
#include "Service/ProjectRequestModels.h"
#include "UObject/Object.h"
#include "ConfiguratorSceneBinding.generated.h"

class AHalvexLevelVariantSetsActor;
class AUnitVolumeActor;
class AUnitVolumesManager;
class UProjectWrapper;
class UHalvexVariantHandler;
struct FProjectData;

/** With true when rooms came in the place of the units, with false when the units are back. */
DECLARE_MULTICAST_DELEGATE_OneParam(FOnRoomsShown, bool);

/**
 * Keeps the configurator and the scene in step, by events only: the unit that was selected last is the configurator's target, while
 * the configurator is open its rooms are shown, and they look as the active variants say. What was chosen belongs to the unit.
 */
UCLASS(Transient)
class UConfiguratorSceneBinding : public UObject
{
	GENERATED_BODY()

public:
	FOnRoomsShown OnRoomsShown;

	/** Hands the project to the service side, and its catalogue to the level. @param InWindowRenderer as for the viewport */
	void Bind(const FProjectData& Project, AUnitVolumesManager& InManager, FSlateRenderer* InWindowRenderer);

	/** Takes all of that back. */
	void Unbind();

	/** The rooms that are shown; null while the units are. */
	const TSharedPtr<Host::SSceneViewport>& GetViewport() const { return Viewport; }
	const Host::FInteriorContent* GetInterior() const { return Interior.Get(); }

	/** Shows the rooms in what the viewport's covered sides leave free, easing there. */
	void FrameRooms();

private:
	UFUNCTION()
	void ReceivedSelection(const TArray<AUnitVolumeActor*>& UnitVolumes);
	UFUNCTION()
	void ReceivedSelectionCleared();
	UFUNCTION()
	void ReceivedUpdate(EUpdateRequestDataType DataType, EUpdateRequestType UpdateRequestType);
	UFUNCTION()
	void ReceivedSurfaceLooks(const TArray<FVariantSurfaceLook>& SurfaceLooks);

	void AddCatalogue(const FProjectData& Project);
	/** Goes on with what was configured of the target before. */
	void ExchangeConfiguration();
	void ShowRooms();
	void HideRooms();
	UProjectWrapper& GetProject() const;

	UPROPERTY()
	TObjectPtr<AHalvexLevelVariantSetsActor> VariantSets;

	TWeakObjectPtr<AUnitVolumesManager> Manager;
	FSlateRenderer* WindowRenderer = nullptr;
	TUniquePtr<Host::FInteriorContent> Interior;
	TSharedPtr<Host::SSceneViewport> Viewport;
};
