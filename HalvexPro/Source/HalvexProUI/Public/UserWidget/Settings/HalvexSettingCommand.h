#pragma once

#include "CoreMinimal.h"
#include "UserWidget/Settings/HalvexSettingItem.h"
#include "HalvexSettingCommand.generated.h"

/** A setting row for the screen percentage, which is a console variable and no user setting. */
UCLASS()
class HALVEXPROUI_API UHalvexSettingCommand : public UHalvexSettingItem
{
	GENERATED_BODY()

public:
	/** The value of "r.ScreenPercentage"; 0 until something sets it, -1 when there is no such variable. */
	UFUNCTION(BlueprintPure, Category = "HalvexSettingCommand")
	float GetScreenPercentageValue() const;

	/** Sets "r.ScreenPercentage" to the whole part of the value, until the program ends. */
	UFUNCTION(BlueprintCallable, Category = "HalvexSettingCommand")
	void SetScreenPercentageValue(float InValue);
};
