#pragma once

#include "CoreMinimal.h"
#include "Types/SlateEnums.h"
#include "UserWidget/Settings/HalvexSettingItem.h"
#include "HalvexSettingDropdown.generated.h"

class UComboBoxString;

/** The user setting that a drop-down row edits. */
UENUM(BlueprintType)
enum class ESettingTypeDropdown : uint8
{
	ESTD_General = 0 UMETA(DisplayName = "General"),
	ESTD_Resolution = 1 UMETA(DisplayName = "Resolution"),
	ESTD_Shadow = 2 UMETA(DisplayName = "Shadow"),
	ESTD_Shading = 3 UMETA(DisplayName = "Shading"),
	ESTD_Foliage = 4 UMETA(DisplayName = "Foliage"),
	ESTD_Texture = 5 UMETA(DisplayName = "Texture"),
	ESTD_Reflection = 6 UMETA(DisplayName = "Reflection"),
	ESTD_AA = 7 UMETA(DisplayName = "Anti Aliasing"),
	ESTD_Audio = 8 UMETA(DisplayName = "Audio"),
	ESTD_VFX = 9 UMETA(DisplayName = "Visual Effect"),
	ESTD_GIllumination = 10 UMETA(DisplayName = "Global Ilumination"),
	ESTD_PostProcess = 11 UMETA(DisplayName = "Post Process"),
	ESTD_ViewDistance = 12 UMETA(DisplayName = "View Distance")
};

/** A setting row with a combo box: the resolution, the overall quality, or the quality of one group. */
UCLASS()
class HALVEXPROUI_API UHalvexSettingDropdown : public UHalvexSettingItem
{
	GENERATED_BODY()

public:
	UHalvexSettingDropdown();

	/** The user setting that the row edits. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexSettingDropdown", meta = (ExposeOnSpawn = "true"))
	ESettingTypeDropdown SettingType = ESettingTypeDropdown::ESTD_General;

	/** The combo box. */
	UPROPERTY(BlueprintReadOnly, Category = "HalvexSettingDropdown", meta = (BindWidget))
	TObjectPtr<UComboBoxString> SettingWidget;

	/** Label of each quality level; list the levels from 0 upwards without gaps. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HalvexSettingDropdown", meta = (EditCondition = "SettingType!=ESettingTypeDropdown::ESTD_Resolution", EditConditionHides))
	TMap<int32, FText> OptionsToDisplay;

	/** The label of a resolution, such as 1920x1080. */
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable, Category = "HalvexSettingDropdown")
	FString GetResolutionFormatString(FIntPoint InValueRes);

	/** Fills the combo box anew. */
	void FillUpOptions();

	virtual void LoadSetting_Implementation() override;
	virtual void SetSetting_Implementation() override;
	virtual void ApplySetting_Implementation() override;
	virtual void RefreshSetting_Implementation() override;

protected:
	virtual void NativeOnInitialized() override;
	virtual void NativeConstruct() override;

	/** The level of a label, without regard to case; -1 for a label that is not there. */
	int32 GetValueFromSetting(const FString& Option) const;

	/** The resolution that is selected; that of the user settings when none is. */
	FIntPoint GetResolutionFromSelection();

	/** Bound to the combo box. Takes every change of its selection, also those that the row makes itself. */
	UFUNCTION()
	void ReceivedSettingChange(FString SelectedItem, ESelectInfo::Type SelectionType);

private:
	/** The resolutions offered, in the order of the combo box. */
	TArray<FIntPoint> SupportedResolutions;
};
