#include "HxPanelInterface.h"

void IHxPanelInterface::ActivatePanel_Implementation()
{
	bPanelActive = true;
}

void IHxPanelInterface::DeactivatePanel_Implementation()
{
}

void IHxPanelInterface::RefreshPanel_Implementation()
{
}
