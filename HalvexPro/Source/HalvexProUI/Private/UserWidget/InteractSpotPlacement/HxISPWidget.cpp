#include "UserWidget/InteractSpotPlacement/HxISPWidget.h"

#include "InteractiveSpot/HxInteractiveSpot.h"

void UHxISPWidget::OnISPConstruct_Implementation(AHxInteractiveSpot* Spot)
{
	if (Spot)
	{
		OwnISPSpot = Spot;
	}
}

void UHxISPWidget::SelectOwnISPSpot()
{
	if (OwnISPSpot)
	{
		OwnISPSpot->SelectISP();
	}
}

void UHxISPWidget::UnSelectOwnISPSpot()
{
	if (OwnISPSpot)
	{
		OwnISPSpot->UnSelectISP();
	}
}
