#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "SpotSceneBinding.generated.h"

class AHxInteractiveSpot;
struct FProjectData;

namespace Host
{
	class SSceneSpots;
	class SSceneViewport;
}

/**
 * Puts the interactive spots of a project into the world, and their widgets over a scene view. The widget of a selected spot is
 * the open one; Escape in it unselects its spot.
 */
UCLASS(Transient)
class USpotSceneBinding : public UObject
{
	GENERATED_BODY()

public:
	/** The widget that spots have: a blueprint of UHxISPWidget. */
	static const TCHAR* const WidgetClassPath;

	/** Spawns the spots, in their order, and shows their widgets right above the view. Without the widget's class there are none, after a line in the log. */
	void Bind(const FProjectData& Project, const TSharedRef<Host::SSceneViewport>& InViewport);

	/** Takes spots and widgets away again. */
	void Unbind();

	/** Makes the widgets anew, in the style of now; the selected spot stays selected. */
	void RefreshStyle();

	/** Unselects the spot that is selected. */
	void CloseAll();

	/** Spots that are not shown are closed. */
	void SetShown(bool bShown);

	const TArray<TObjectPtr<AHxInteractiveSpot>>& GetSpots() const { return Spots; }
	/** Null when there are no spots. */
	Host::SSceneSpots* GetPanel() const { return Panel.Get(); }

private:
	UFUNCTION()
	void ReceivedSelection(AHxInteractiveSpot* Spot, bool bSelected);

	/** Shows the widgets of the spots that there are. */
	void ShowWidgets();
	void HideWidgets();

	UPROPERTY(Transient)
	TArray<TObjectPtr<AHxInteractiveSpot>> Spots;

	TSharedPtr<Host::SSceneViewport> Viewport;
	TSharedPtr<Host::SSceneSpots> Panel;
};
