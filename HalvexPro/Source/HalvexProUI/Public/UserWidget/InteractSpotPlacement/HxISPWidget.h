#pragma once

#include "CoreMinimal.h"
#include "Blueprint/UserWidget.h"
#include "InteractiveSpot/HxISPWidgetInterface.h"
#include "HxISPWidget.generated.h"

class AHxInteractiveSpot;

/** Base of the widgets that interactive spots show for themselves. */
UCLASS()
class HALVEXPROUI_API UHxISPWidget : public UUserWidget, public IHxISPWidgetInterface
{
	GENERATED_BODY()

public:
	/** The spot whose widget this is; null until the spot has told. */
	UPROPERTY(Transient, BlueprintReadOnly, Category = "HalvexISPWidget")
	TObjectPtr<AHxInteractiveSpot> OwnISPSpot;

	/** Takes the spot; null leaves the one that there is. */
	virtual void OnISPConstruct_Implementation(AHxInteractiveSpot* Spot) override;

	/** Selects the spot of this widget. */
	UFUNCTION(BlueprintCallable, Category = "HalvexISPWidget")
	void SelectOwnISPSpot();

	/** Unselects the spot of this widget. */
	UFUNCTION(BlueprintCallable, Category = "HalvexISPWidget")
	void UnSelectOwnISPSpot();
};
