#include "InteractiveSpot/HxInteractiveSpot.h"

#include "Blueprint/UserWidget.h"
#include "EngineUtils.h"
#include "InteractiveSpot/HxISPWidgetInterface.h"

AHxInteractiveSpot::AHxInteractiveSpot()
{
	RootComponent = CreateDefaultSubobject<USceneComponent>(TEXT("Root"));
}

void AHxInteractiveSpot::SelectISP()
{
	if (bSelected)
	{
		return;
	}
	for (TActorIterator<AHxInteractiveSpot> Spot(GetWorld()); Spot; ++Spot)
	{
		Spot->UnSelectISP();
	}
	SetSelected(true);
}

void AHxInteractiveSpot::UnSelectISP()
{
	SetSelected(false);
}

UUserWidget* AHxInteractiveSpot::GetISPWidget()
{
	if (!Widget && WidgetClass && GetWorld())
	{
		Widget = CreateWidget<UUserWidget>(GetWorld(), WidgetClass);
		if (Widget && Widget->Implements<UHxISPWidgetInterface>())
		{
			IHxISPWidgetInterface::Execute_OnISPConstruct(Widget, this);
		}
	}
	return Widget;
}

void AHxInteractiveSpot::ReleaseISPWidget()
{
	if (Widget)
	{
		Widget->RemoveFromParent();
		Widget = nullptr;
	}
}

void AHxInteractiveSpot::Destroyed()
{
	ReleaseISPWidget();
	Super::Destroyed();
}

void AHxInteractiveSpot::SetSelected(bool bInSelected)
{
	if (bSelected != bInSelected)
	{
		bSelected = bInSelected;
		OnISPSelectionChange.Broadcast(this, bInSelected);
	}
}
