#pragma once

#include "CoreMinimal.h"
#include "Blueprint/UserWidget.h"
#include "InteractiveSpot/HxISPWidgetInterface.h"
#include "SpotWidget.generated.h"

/** Remembers the spot that made it. */
UCLASS()
class USpotWidget : public UUserWidget, public IHxISPWidgetInterface
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TObjectPtr<AHxInteractiveSpot> Spot;

	virtual void OnISPConstruct_Implementation(AHxInteractiveSpot* InSpot) override;
};

/** Does not ask for its spot. */
UCLASS()
class UPlainSpotWidget : public UUserWidget
{
	GENERATED_BODY()
};
