#pragma once

#include "CoreMinimal.h"
#include "UObject/Interface.h"
#include "HxPanelInterface.generated.h"

UINTERFACE(BlueprintType, Blueprintable)
class HALVEXPROUI_API UHxPanelInterface : public UInterface
{
	GENERATED_BODY()
};

/** What a screen needs of a panel to switch it on and off and have it shown anew, without knowing its class. */
class HALVEXPROUI_API IHxPanelInterface
{
	GENERATED_BODY()

public:
	/** Called when the panel comes to the front; natively it becomes active. */
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable, Category = "HxPanelInterface")
	void ActivatePanel();

	/** Called when the panel goes; natively nothing happens: bPanelActive stays, and screens rely on it. */
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable, Category = "HxPanelInterface")
	void DeactivatePanel();

	/** Called when the panel is to show its data anew; natively nothing happens. */
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable, Category = "HxPanelInterface")
	void RefreshPanel();

	virtual void ActivatePanel_Implementation();
	virtual void DeactivatePanel_Implementation();
	virtual void RefreshPanel_Implementation();

	/** Whether the panel was ever activated. */
	bool bPanelActive = false;
};
