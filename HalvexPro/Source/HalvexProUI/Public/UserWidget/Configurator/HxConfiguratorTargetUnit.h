#pragma once

#include "CoreMinimal.h"
#include "Blueprint/UserWidget.h"
#include "Records/UnitData.h"
#include "Service/ProjectRequestModels.h"
#include "HxConfiguratorTargetUnit.generated.h"

/** Displays the target unit, which was selected for use in the configurator. */
UCLASS()
class HALVEXPROUI_API UHxConfiguratorTargetUnit : public UUserWidget
{
	GENERATED_BODY()

public:
	/** Called with the unit when there is one, or another. Nothing is told when there is none any longer: the unit from before stays. */
	UFUNCTION(BlueprintImplementableEvent, Category = "HxConfiguratorTargetUnit")
	void OnConfiguratorUnitTarget(const FUnitData& UnitTargetData);

	/** Bound to the updates of the user's project. */
	UFUNCTION(BlueprintCallable, Category = "HxConfiguratorTargetUnit")
	void Received_ManagerDataUpdated(EUpdateRequestDataType DataType, EUpdateRequestType UpdateRequestType);

protected:
	/** Looks up the target unit of the user's project, and tells of it. */
	void GetConfigTarget();

	virtual void NativeOnInitialized() override;
};
