#include "Host/ProjectScene.h"

#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "Engine/GameViewportClient.h"
#include "Engine/World.h"
#include "Host/ProjectSurroundings.h"
#include "Host/UnitSceneBinding.h"
#include "Project/ProjectReader.h"
#include "UnitVolumes/UnitVolumesManager.h"

DEFINE_LOG_CATEGORY_STATIC(LogProjectScene, Log, All);

namespace Host
{
	bool FProjectScene::Load(const FString& Folder, FProjectData& OutProject)
	{
		const bool bRead = FProjectReader::LoadFolder(Folder, OutProject);
		if (bRead && OutProject.Units.IsEmpty())
		{
			UE_LOG(LogProjectScene, Warning, TEXT("The project in %s has no units: there is nothing to show."), *Folder);
		}
		// Of a text that ended early, what came before is shown.
		return !OutProject.Units.IsEmpty();
	}

	FProjectScene::FProjectScene(const FProjectData& Project, FSlateRenderer* WindowRenderer, double AspectRatio)
	{
		Manager.Reset(GEngine->GetGameInstance()->GetWorld()->SpawnActor<AUnitVolumesManager>());
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
	}

	FProjectScene::~FProjectScene()
	{
		GEngine->GameViewport->RemoveViewportWidgetContent(Viewport.ToSharedRef());
		Binding->Unbind();
		Manager->SpawnUnits(TArray<FProjectUnit>());
		Manager->Destroy();
	}

	void FProjectScene::AnnounceUnits()
	{
		Manager->AnnounceUnitData();
	}

	void FProjectScene::RefreshColours()
	{
		Binding->RefreshColours();
	}
}
