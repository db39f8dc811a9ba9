#include "Host/ProjectScene.h"

#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "Engine/GameViewportClient.h"
#include "Engine/World.h"
#include "Framework/Application/SlateApplication.h"
#include "HalvexUISubsystem.h"
#include "Host/ConfiguratorSceneBinding.h"
#include "Host/ProjectSurroundings.h"
#include "Host/SpotSceneBinding.h"
#include "Host/UnitSceneBinding.h"
#include "Images/HalvexImageSettings.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "Project/ProjectReader.h"
#include "Project/UnitTableReader.h"
#include "TimerManager.h"
#include "UnitVolumes/UnitVolumesManager.h"
#include "Widgets/SWindow.h"

DEFINE_LOG_CATEGORY_STATIC(LogProjectScene, Log, All);

namespace Host
{
	namespace
	{
		/**
		 * Tells a viewport what covers its sides.
		 * @return false when it is covered wholly, or not laid out
		 */
		bool FindCoveredSides(const TSharedRef<SSceneViewport>& Viewport)
		{
			const FGeometry& Geometry = Viewport->GetCachedGeometry();
			const FVector2D Size(Geometry.GetLocalSize());
			const TSharedPtr<SWindow> Window = FSlateApplication::Get().FindWidgetWindow(Viewport);
			if (!Window || Size.X <= 0.0 || Size.Y <= 0.0)
			{
				return false;
			}
			// Free is where the pointer would reach the scene: between the first and the last such place at half the height.
			const auto IsFree = [&](double X)
			{
				const FVector2D Place(Geometry.LocalToAbsolute(FVector2D(X, 0.5 * Size.Y)));
				const FWidgetPath Path = FSlateApplication::Get().LocateWindowUnderMouse(Place, { Window.ToSharedRef() });
				return Path.IsValid() && Path.GetLastWidget() == Viewport;
			};
			constexpr double Step = 4.0;
			double Left = 0.0;
			while (Left < Size.X && !IsFree(Left + 0.5 * Step))
			{
				Left += Step;
			}
			double Right = 0.0;
			while (Left + Right < Size.X && !IsFree(Size.X - Right - 0.5 * Step))
			{
				Right += Step;
			}
			if (Left + Right >= Size.X)
			{
				return false;
			}
			Viewport->SetCoveredSides(Left, Right);
			return true;
		}

		/** The mapping of a sales list. False, after a line in the log, when a file for it is named or there and cannot be read. */
		bool LoadMapping(const FString& List, const FString& UnitsMap, FUnitTableMapping& OutMapping)
		{
			OutMapping = FUnitTableMapping::MakeDefault();
			const FString Beside = FPaths::ChangeExtension(List, TEXT("map.json"));
			const FString File = !UnitsMap.IsEmpty() ? UnitsMap : FPaths::FileExists(Beside) ? Beside : FString();
			if (File.IsEmpty())
			{
				return true;
			}
			FReadProblems Problems(File);
			FString Text;
			const bool bThere = FFileHelper::LoadFileToString(Text, *File, FFileHelper::EHashOptions::None, FILEREAD_Silent);
			if (!bThere)
			{
				Problems.Add(0, 0, TEXT("the file cannot be read"));
			}
			const bool bRead = bThere && FUnitTableMapping::FromJson(Text, OutMapping, Problems);
			Problems.Log();
			return bRead;
		}

		bool LoadList(const FString& List, const FString& UnitsMap, FProjectData& OutProject)
		{
			OutProject = FProjectData();
			OutProject.Name = FPaths::GetBaseFilename(List);
			OutProject.Source = FPaths::ConvertRelativePathToFull(FPaths::GetPath(List)) / TEXT("");
			FUnitTableMapping Mapping;
			return LoadMapping(List, UnitsMap, Mapping) && FUnitTableReader::LoadFile(List, Mapping, OutProject.Units);
		}
	}

	bool FProjectScene::Load(const FString& Source, FProjectData& OutProject, const FString& UnitsMap)
	{
		const bool bList = FPaths::GetExtension(Source).Equals(TEXT("csv"), ESearchCase::IgnoreCase);
		const bool bRead = bList ? LoadList(Source, UnitsMap, OutProject) : FProjectReader::LoadFolder(Source, OutProject);
		if (bRead && OutProject.Units.IsEmpty())
		{
			UE_LOG(LogProjectScene, Warning, TEXT("%s has no units: there is nothing to show."), *Source);
		}
		// Of a text that ended early, what came before is shown.
		return !OutProject.Units.IsEmpty();
	}

	FProjectScene::FProjectScene(const FProjectData& Project, FSlateRenderer* WindowRenderer, double AspectRatio)
	{
		Manager.Reset(GEngine->GetGameInstance()->GetWorld()->SpawnActor<AUnitVolumesManager>());
		Manager->SetUnitGroups(Project.Groups);
		Manager->SpawnUnits(Project.Units);
		Binding.Reset(NewObject<UUnitSceneBinding>());
		Viewport = Binding->Bind(*Manager, WindowRenderer);
		Viewport->MoveCamera([&](FSceneCamera& Camera)
		{
			Camera.JumpTo(ProjectSurroundings::GetPose());
			Camera.Frame(Binding->GetUnitBounds(), AspectRatio);
			Camera.Finish();
		});
		GEngine->GameViewport->AddViewportWidgetContent(Viewport.ToSharedRef(), SSceneViewport::ViewportOrder);
		if (!Project.Source.IsEmpty() && !Project.Source.Contains(TEXT("://")))
		{
			ImageFolder = Project.Source;
			GetMutableDefault<UHalvexImageSettings>()->FurtherImageFolders.Add(ImageFolder);
		}
		Spots.Reset(NewObject<USpotSceneBinding>());
		Spots->Bind(Project, Viewport.ToSharedRef());
		Binding->OnClicked.AddUObject(Spots.Get(), &USpotSceneBinding::CloseAll);
		Configurator.Reset(NewObject<UConfiguratorSceneBinding>());
		Configurator->OnRoomsShown.AddRaw(this, &FProjectScene::ReceivedRooms);
		Configurator->Bind(Project, *Manager, WindowRenderer);
		StyleHandle = UHalvexUISubsystem::Get()->OnSettingsRefreshed().AddRaw(this, &FProjectScene::RefreshStyle);
		Framed = Viewport->GetCamera().GetGoal();
		Manager->OnPanelsChanged.AddRaw(this, &FProjectScene::ReceivedPanelChange);
	}

	FProjectScene::~FProjectScene()
	{
		if (UHalvexUISubsystem* const Style = UHalvexUISubsystem::Get())
		{
			Style->OnSettingsRefreshed().Remove(StyleHandle);
		}
		Manager->OnPanelsChanged.RemoveAll(this);
		Manager->GetWorld()->GetTimerManager().ClearTimer(PanelTimer);
		GetMutableDefault<UHalvexImageSettings>()->FurtherImageFolders.RemoveSingle(ImageFolder);
		Configurator->Unbind();
		Spots->Unbind();
		GEngine->GameViewport->RemoveViewportWidgetContent(Viewport.ToSharedRef());
		Binding->Unbind();
		Manager->SpawnUnits(TArray<FProjectUnit>());
		Manager->Destroy();
	}

	void FProjectScene::AnnounceUnits()
	{
		Manager->AnnounceUnitData();
	}

	void FProjectScene::FrameBesideScreens()
	{
		if (const TSharedPtr<SSceneViewport> Rooms = Configurator->GetViewport())
		{
			FindCoveredSides(Rooms.ToSharedRef());
			Configurator->FrameRooms();
		}
		else if (FindCoveredSides(Viewport.ToSharedRef()))
		{
			FrameAll();
			Viewport->MoveCamera([](FSceneCamera& Camera) { Camera.Finish(); });
		}
	}

	void FProjectScene::FrameAll()
	{
		Viewport->FrameAll();
		Framed = Viewport->GetCamera().GetGoal();
	}

	void FProjectScene::ReceivedPanelChange()
	{
		// The panel is painted in the frame that comes; what it covers is known in the one after that.
		FTimerManager& Timers = Manager->GetWorld()->GetTimerManager();
		Timers.ClearTimer(PanelTimer);
		PanelTimer = Timers.SetTimerForNextTick(FTimerDelegate::CreateLambda([this, &Timers]
		{
			PanelTimer = Timers.SetTimerForNextTick(FTimerDelegate::CreateLambda([this] { FollowPanels(); }));
		}));
	}

	void FProjectScene::FollowPanels()
	{
		const bool bAsFramed = Viewport->GetCamera().GetGoal() == Framed;
		// Rooms that are shown in place of the units frame themselves.
		if (!Configurator->GetViewport() && FindCoveredSides(Viewport.ToSharedRef()) && bAsFramed)
		{
			FrameAll();
		}
	}

	void FProjectScene::ReceivedRooms(bool bShown)
	{
		Viewport->SetVisibility(bShown ? EVisibility::Collapsed : EVisibility::Visible);
		Spots->SetShown(!bShown);
	}

	void FProjectScene::RefreshStyle()
	{
		Binding->RefreshColours();
		Spots->RefreshStyle();
	}
}
