#include "Host/ConfiguratorSceneBinding.h"

#include "Configurator/HalvexConfiguratorDataAsset.h"
#include "Configurator/HalvexLevelVariantSetsActor.h"
#include "Configurator/HalvexVariantHandler.h"
#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "Engine/GameViewportClient.h"
#include "Engine/World.h"
#include "HalvexSDKEngineSubsystem.h"
#include "Project/ProjectImages.h"
#include "Service/ConfiguratorWrapper.h"
#include "Service/HalvexProjectRequestManager.h"
#include "Service/ProjectWrapper.h"
#include "Service/UnitGroupWrapper.h"
#include "UnitVolumes/UnitVolumeActor.h"
#include "UnitVolumes/UnitVolumesManager.h"

using namespace Host;

namespace
{
	/** From where the camera comes when rooms appear: a little farther away, and from aside. */
	constexpr double ApproachDistance = 1.35;
	constexpr double ApproachYaw = -16.0;

	/** Of the picture, until it is laid out. */
	constexpr double UsualAspectRatio = 1.6;

	UHalvexProjectRequestManager& GetRequestManager()
	{
		return *UHalvexSDKEngineSubsystem::Get()->GetUserRequestManager();
	}
}

void UConfiguratorSceneBinding::Bind(const FProjectData& Project, AUnitVolumesManager& InManager, FSlateRenderer* InWindowRenderer)
{
	Manager = &InManager;
	WindowRenderer = InWindowRenderer;
	if (!Project.Catalogue.Categories.IsEmpty())
	{
		AddCatalogue(Project);
	}
	InManager.OnUnitVolumeSelectionChanged.AddDynamic(this, &UConfiguratorSceneBinding::ReceivedSelection);
	InManager.OnUnitVolumeSelectionCleared.AddDynamic(this, &UConfiguratorSceneBinding::ReceivedSelectionCleared);
	GetRequestManager().OnManagerDataUpdated.AddDynamic(this, &UConfiguratorSceneBinding::ReceivedUpdate);
	GetRequestManager().ReceiveProject(Project);
}

void UConfiguratorSceneBinding::Unbind()
{
	GetRequestManager().OnManagerDataUpdated.RemoveAll(this);
	GetRequestManager().ClearProject();
	if (AUnitVolumesManager* const Bound = Manager.Get())
	{
		Bound->OnUnitVolumeSelectionChanged.RemoveAll(this);
		Bound->OnUnitVolumeSelectionCleared.RemoveAll(this);
	}
	HideRooms();
	if (VariantSets)
	{
		VariantSets->GetVariantHandler()->OnSurfaceLooksChange.RemoveAll(this);
		VariantSets->Destroy();
		VariantSets = nullptr;
	}
}

void UConfiguratorSceneBinding::AddCatalogue(const FProjectData& Project)
{
	UHalvexConfiguratorDataAsset* const Catalogue = UHalvexConfiguratorDataAsset::CreateFromCatalogue(Project.Catalogue, TArray<FProjectImage>());
	for (const FProjectImage& Image : Project.Images)
	{
		Catalogue->Images.Add(Image.ImageId, FProjectImages::Find(Project, Image.ImageId));
	}
	VariantSets = GEngine->GetGameInstance()->GetWorld()->SpawnActor<AHalvexLevelVariantSetsActor>();
	VariantSets->SetCatalogue(Catalogue);
	VariantSets->GetVariantHandler()->OnSurfaceLooksChange.AddDynamic(this, &UConfiguratorSceneBinding::ReceivedSurfaceLooks);
}

void UConfiguratorSceneBinding::FrameRooms()
{
	const FSceneCamera::FPose Pose = Interior->GetPose(Viewport->GetAspectRatio());
	Viewport->MoveCamera([&Pose](FSceneCamera& Camera)
	{
		FSceneCamera::FPose Start = Pose;
		Start.Yaw += ApproachYaw;
		Start.Distance *= ApproachDistance;
		Camera.JumpTo(Start);
		Camera.Orbit(-ApproachYaw, 0.0);
	});
	if (!Interior->HasDistance())
	{
		Viewport->FrameAll();
	}
}

void UConfiguratorSceneBinding::ReceivedSelection(const TArray<AUnitVolumeActor*>& UnitVolumes)
{
	GetProject().SetConfiguratorTarget(UnitVolumes.Last()->GetUnitData().UnitId);
}

void UConfiguratorSceneBinding::ReceivedSelectionCleared()
{
	if (GetProject().HasUnitGroupTarget())
	{
		GetProject().GetUnitGroupTarget()->GetConfiguratorWrapper()->ClearUnitTarget();
	}
}

void UConfiguratorSceneBinding::ReceivedUpdate(EUpdateRequestDataType DataType, EUpdateRequestType)
{
	const bool bOpen = GetProject().IsConfiguratorOpen();
	if (DataType == EUpdateRequestDataType::ConfiguratorTarget)
	{
		ExchangeConfiguration();
		if (bOpen)
		{
			ShowRooms();
		}
	}
	else if (DataType == EUpdateRequestDataType::OpenConfigurator)
	{
		if (bOpen)
		{
			ShowRooms();
		}
		else
		{
			HideRooms();
		}
		OnRoomsShown.Broadcast(bOpen);
	}
}

void UConfiguratorSceneBinding::ReceivedSurfaceLooks(const TArray<FVariantSurfaceLook>& SurfaceLooks)
{
	if (Interior && Interior->ShowLooks(SurfaceLooks))
	{
		Viewport->ContentChanged();
	}
}

void UConfiguratorSceneBinding::ExchangeConfiguration()
{
	if (VariantSets && GetProject().HasConfiguratorTarget())
	{
		VariantSets->GetVariantHandler()->SetConfiguredUnit(GetProject().GetUnitGroupTarget()->GetConfiguratorWrapper()->GetConfiguratorUnitTarget().UnitId);
	}
}

void UConfiguratorSceneBinding::ShowRooms()
{
	HideRooms();
	Interior = MakeUnique<FInteriorContent>(*GetProject().FindTargetInterior());
	Interior->ShowLooks(VariantSets->GetVariantHandler()->GetSurfaceLooks());
	Viewport = SNew(SSceneViewport)
		.Content(Interior->GetContent())
		.WindowRenderer(WindowRenderer);
	Viewport->SetSubject(Interior->GetBounds());
	Viewport->MoveCamera([this](FSceneCamera& Camera) { Camera.JumpTo(Interior->GetPose(UsualAspectRatio)); });
	GEngine->GameViewport->AddViewportWidgetContent(Viewport.ToSharedRef(), SSceneViewport::ViewportOrder);
}

void UConfiguratorSceneBinding::HideRooms()
{
	if (Viewport)
	{
		GEngine->GameViewport->RemoveViewportWidgetContent(Viewport.ToSharedRef());
		Viewport.Reset();
		Interior.Reset();
	}
}

UProjectWrapper& UConfiguratorSceneBinding::GetProject() const
{
	return *GetRequestManager().GetProjectWrapper();
}
