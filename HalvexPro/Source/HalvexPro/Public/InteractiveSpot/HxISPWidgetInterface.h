#pragma once

#include "CoreMinimal.h"
#include "UObject/Interface.h"
#include "HxISPWidgetInterface.generated.h"

class AHxInteractiveSpot;

UINTERFACE(BlueprintType, Blueprintable)
class HALVEXPRO_API UHxISPWidgetInterface : public UInterface
{
	GENERATED_BODY()
};

/** What the widget of an interactive spot implements to learn whose widget it is. */
class HALVEXPRO_API IHxISPWidgetInterface
{
	GENERATED_BODY()

public:
	/** Called by the spot once it has made the widget. */
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable, Category = "HalvexISPWidget")
	void OnISPConstruct(AHxInteractiveSpot* Spot);
};
