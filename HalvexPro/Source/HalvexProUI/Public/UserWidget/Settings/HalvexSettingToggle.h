#pragma once

#include "CoreMinimal.h"
#include "UserWidget/Settings/HalvexSettingItem.h"
#include "HalvexSettingToggle.generated.h"

class UCheckBox;

/** The user setting that a toggle row edits. */
UENUM(BlueprintType)
enum class ESettingToggleType : uint8
{
	ESTT_FullScreen = 0 UMETA(DisplayName = "Full Screen"),
	ESTT_VSync = 1 UMETA(DisplayName = "VSync")
};

/** A setting row with a check box. Full screen means a borderless window as large as the desktop. */
UCLASS()
class HALVEXPROUI_API UHalvexSettingToggle : public UHalvexSettingItem
{
	GENERATED_BODY()

public:
	/** The user setting that the row edits. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexSettingToggle", meta = (ExposeOnSpawn = "true"))
	ESettingToggleType SettingType = ESettingToggleType::ESTT_FullScreen;

	/** The check box. */
	UPROPERTY(BlueprintReadOnly, Category = "HalvexSettingToggle", meta = (BindWidget))
	TObjectPtr<UCheckBox> SettingWidget;

	virtual void LoadSetting_Implementation() override;
	virtual void SetSetting_Implementation() override;
	virtual void ApplySetting_Implementation() override;
	virtual void RefreshSetting_Implementation() override;

protected:
	virtual void NativeOnInitialized() override;
	virtual void NativeConstruct() override;

	/** Bound to the check box. */
	UFUNCTION()
	void ReceivedSettingChange(bool bIsChecked);
};
