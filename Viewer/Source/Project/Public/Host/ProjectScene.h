#pragma once

#include "CoreMinimal.h"
#include "Engine/TimerHandle.h"
#include "Host/SSceneViewport.h"
#include "Host/SceneCamera.h"
#include "Project/ProjectData.h"
#include "UObject/StrongObjectPtr.h"

class AUnitVolumesManager;
class UConfiguratorSceneBinding;
class USpotSceneBinding;
class UUnitSceneBinding;

namespace Host
{
	/** A building project in the world of the running game, with a 3D view of its units and spots, or of rooms, under all screens. */
	class FProjectScene
	{
	public:
		/**
		 * Reads the project of a folder, or the units of a sales list (.csv). What is wrong is logged.
		 * @param UnitsMap	file that maps the columns of the list; empty for the one beside it, "list.map.json" for "list.csv", and
		 *					without that for headers that are the names of fields
		 * @return false when there are no units; that is one line in the log
		 */
		static bool Load(const FString& Source, FProjectData& OutProject, const FString& UnitsMap = FString());

		/**
		 * Puts the project's units and spots into the world and shows them. Pictures may come from the project's folder from now on.
		 * @param WindowRenderer	as for SSceneViewport
		 * @param AspectRatio	width of the window for a height of 1: the camera starts where it sees all units
		 */
		FProjectScene(const FProjectData& Project, FSlateRenderer* WindowRenderer, double AspectRatio);

		/** Takes everything out of the world again. */
		~FProjectScene();
		FProjectScene(const FProjectScene&) = delete;
		FProjectScene& operator=(const FProjectScene&) = delete;

		/** Tells screens that came after the units of them. */
		void AnnounceUnits();

		/**
		 * Shows all units, or all of the rooms, in what the screens over the scene leave free at its sides, as they were painted last.
		 * When a panel comes or goes later, the camera over the units follows by itself, unless it was moved in the meantime.
		 */
		void FrameBesideScreens();

		/** To be called when the style was changed; it is when another one was chosen. */
		void RefreshStyle();

		AUnitVolumesManager& GetManager() const { return *Manager; }
		SSceneViewport& GetViewport() const { return *Viewport; }
		const UUnitSceneBinding& GetBinding() const { return *Binding; }
		USpotSceneBinding& GetSpots() const { return *Spots; }
		UConfiguratorSceneBinding& GetConfigurator() const { return *Configurator; }

	private:
		void ReceivedRooms(bool bShown);
		void FrameAll();
		void ReceivedPanelChange();
		void FollowPanels();

		TStrongObjectPtr<AUnitVolumesManager> Manager;
		TStrongObjectPtr<UUnitSceneBinding> Binding;
		TStrongObjectPtr<USpotSceneBinding> Spots;
		TStrongObjectPtr<UConfiguratorSceneBinding> Configurator;
		/** Empty when the project was not read from a folder. */
		FString ImageFolder;
		FDelegateHandle StyleHandle;
		TSharedPtr<SSceneViewport> Viewport;
		/** Where the camera was sent when all units were framed last. */
		FSceneCamera::FPose Framed;
		FTimerHandle PanelTimer;
	};
}
