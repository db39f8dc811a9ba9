#include "SpotWidget.h"

#include "InteractiveSpot/HxInteractiveSpot.h"

void USpotWidget::OnISPConstruct_Implementation(AHxInteractiveSpot* InSpot)
{
	Spot = InSpot;
}
