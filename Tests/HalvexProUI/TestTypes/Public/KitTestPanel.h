#pragma once

#include "CoreMinimal.h"
#include "Blueprint/UserWidget.h"
#include "HxPanelInterface.h"
#include "KitTestPanel.generated.h"

/** A panel that leaves all to the interface. */
UCLASS()
class UKitTestPanel : public UUserWidget, public IHxPanelInterface
{
	GENERATED_BODY()
};
