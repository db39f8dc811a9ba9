#pragma once

#include "CoreMinimal.h"
#include "Blueprint/UserWidget.h"
#include "Records/UnitData.h"
#include "HxConfiguratorTargetUnitList.generated.h"

/** For choosing the unit that becomes the configurator's target. */
UCLASS()
class HALVEXPROUI_API UHxConfiguratorTargetUnitList : public UUserWidget
{
	GENERATED_BODY()

public:
	/** Always empty, whatever the project holds; screens rely on it and bring units of their own. */
	UFUNCTION(BlueprintCallable, Category = "HxConfiguratorTargetUnitList")
	TArray<FUnitData> GetAvailableUserUnits() const;
};
