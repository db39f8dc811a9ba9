#include "Host/SpotSceneBinding.h"

#include "Blueprint/UserWidget.h"
#include "Engine/Engine.h"
#include "Engine/GameInstance.h"
#include "Engine/GameViewportClient.h"
#include "Engine/World.h"
#include "HalvexUISubsystem.h"
#include "Host/SSceneSpots.h"
#include "Host/SSceneViewport.h"
#include "InteractiveSpot/HxInteractiveSpot.h"
#include "Project/ProjectImages.h"

using namespace Host;

const TCHAR* const USpotSceneBinding::WidgetClassPath = TEXT("/HalvexPro/Spots/Spot.Spot_C");

void USpotSceneBinding::Bind(const FProjectData& Project, const TSharedRef<SSceneViewport>& InViewport)
{
	UClass* const WidgetClass = Project.Spots.IsEmpty() ? nullptr : LoadObject<UClass>(nullptr, WidgetClassPath);
	if (!WidgetClass)
	{
		return;
	}
	Viewport = InViewport;
	UWorld* const World = GEngine->GetGameInstance()->GetWorld();
	for (const FProjectSpot& Data : Project.Spots)
	{
		AHxInteractiveSpot* const Spot = World->SpawnActor<AHxInteractiveSpot>();
		Spot->SpotData = Data;
		Spot->Picture = FProjectImages::Find(Project, Data.Image);
		Spot->WidgetClass = WidgetClass;
		Spot->SetActorLocation(Data.Location);
		Spot->OnISPSelectionChange.AddDynamic(this, &USpotSceneBinding::ReceivedSelection);
		Spots.Add(Spot);
	}
	ShowWidgets();
}

void USpotSceneBinding::Unbind()
{
	HideWidgets();
	for (AHxInteractiveSpot* Spot : Spots)
	{
		Spot->Destroy();
	}
	Spots.Empty();
	Viewport.Reset();
}

void USpotSceneBinding::RefreshStyle()
{
	const bool bShown = Panel.IsValid();
	HideWidgets();
	for (AHxInteractiveSpot* Spot : Spots)
	{
		Spot->ReleaseISPWidget();
	}
	if (bShown)
	{
		ShowWidgets();
	}
}

void USpotSceneBinding::CloseAll()
{
	for (AHxInteractiveSpot* Spot : Spots)
	{
		Spot->UnSelectISP();
	}
}

void USpotSceneBinding::SetShown(bool bShown)
{
	if (bShown == Panel.IsValid() || Spots.IsEmpty())
	{
		return;
	}
	if (bShown)
	{
		ShowWidgets();
	}
	else
	{
		CloseAll();
		HideWidgets();
	}
}

void USpotSceneBinding::ReceivedSelection(AHxInteractiveSpot* Spot, bool bSelected)
{
	const int32 Index = Spots.IndexOfByKey(Spot);
	if (bSelected)
	{
		Panel->SetOpen(Index);
	}
	else if (Panel->GetOpen() == Index)
	{
		Panel->SetOpen(INDEX_NONE);
	}
}

void USpotSceneBinding::ShowWidgets()
{
	Panel = SNew(SSceneSpots)
		.Viewport(Viewport)
		.LineColour(UHalvexUISubsystem::Get()->GetHalvexColorByID(TEXT("Secondary")))
		.OnEscape(FSimpleDelegate::CreateUObject(this, &USpotSceneBinding::CloseAll));
	for (AHxInteractiveSpot* Spot : Spots)
	{
		const int32 Index = Panel->Add(Spot->GetActorLocation(), Spot->GetISPWidget()->TakeWidget());
		if (Spot->IsISPSelected())
		{
			Panel->SetOpen(Index);
		}
	}
	GEngine->GameViewport->AddViewportWidgetContent(Panel.ToSharedRef(), SSceneViewport::ViewportOrder + 1);
}

void USpotSceneBinding::HideWidgets()
{
	if (Panel)
	{
		GEngine->GameViewport->RemoveViewportWidgetContent(Panel.ToSharedRef());
		Panel.Reset();
	}
}
