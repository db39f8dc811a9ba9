#pragma once

#include "CoreMinimal.h"
#include "Blueprint/UserWidget.h"
#include "HalvexSettingItem.generated.h"

class UGameUserSettings;
class UHalvexSettingItem;

DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnSettingItemDirty, UHalvexSettingItem*, ItemReference);

/** A row of a settings screen. It keeps no value of its own: it reads and writes the engine's user settings. */
UCLASS()
class HALVEXPROUI_API UHalvexSettingItem : public UUserWidget
{
	GENERATED_BODY()

public:
	/** True from a change until the row shows the engine's value again. */
	UPROPERTY(BlueprintReadOnly, Category = "HalvexSettingItem")
	bool bSettingMarkDirty = false;

	/** Called when a change waits to be applied. */
	UPROPERTY(BlueprintAssignable, Category = "HalvexSettingItem")
	FOnSettingItemDirty OnSettingItemDirty;

	/** Apply changes when the value of the item. Warning: if it's enabled could have a high cost. Recommended use a general apply */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexSettingItem")
	bool bAutoApplyOnChange = false;

	/** Call the load settings from GameUserSettings on NativeOnInitialized process. Recommended use a general apply */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexSettingItem")
	bool bUseLoadSetting = false;

	/** Loads the user settings when the row asks for it and no row of the program has loaded them yet. */
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable, Category = "HalvexSettingItem")
	void LoadSetting();

	/** Takes the row's value into the user settings, and applies it or tells that it waits. */
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable, Category = "HalvexSettingItem")
	void SetSetting();

	/** Makes the engine use the row's value, and saves it. */
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable, Category = "HalvexSettingItem")
	void ApplySetting();

	/** Shows the value of the user settings. */
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable, Category = "HalvexSettingItem")
	void RefreshSetting();

	/** Saves all user settings. */
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable, Category = "HalvexSettingItem")
	void SaveSetting();

	/** The engine's user settings. */
	UFUNCTION(BlueprintCallable, Category = "HalvexSettingItem")
	static UGameUserSettings* GetGameUserSetting();

protected:
	virtual void NativeOnInitialized() override;
};
