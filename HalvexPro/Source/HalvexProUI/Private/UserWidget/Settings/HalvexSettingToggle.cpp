#include "UserWidget/Settings/HalvexSettingToggle.h"

#include "Components/CheckBox.h"
#include "GameFramework/GameUserSettings.h"

void UHalvexSettingToggle::LoadSetting_Implementation()
{
	Super::LoadSetting_Implementation();
	RefreshSetting();
}

void UHalvexSettingToggle::SetSetting_Implementation()
{
	UGameUserSettings* UserSettings = GetGameUserSetting();
	switch (SettingType)
	{
	case ESettingToggleType::ESTT_FullScreen:
		// Never exclusive full screen, which takes the display away from other programs.
		UserSettings->SetFullscreenMode(SettingWidget->IsChecked() ? EWindowMode::WindowedFullscreen : EWindowMode::Windowed);
		break;
	case ESettingToggleType::ESTT_VSync:
		UserSettings->SetVSyncEnabled(SettingWidget->IsChecked());
		break;
	}
	Super::SetSetting_Implementation();
}

void UHalvexSettingToggle::ApplySetting_Implementation()
{
	UGameUserSettings* UserSettings = GetGameUserSetting();
	switch (SettingType)
	{
	case ESettingToggleType::ESTT_FullScreen:
		UserSettings->ApplyResolutionSettings(false);
		break;
	case ESettingToggleType::ESTT_VSync:
		UserSettings->ApplyNonResolutionSettings();
		break;
	}
	SaveSetting();
}

void UHalvexSettingToggle::RefreshSetting_Implementation()
{
	const UGameUserSettings* UserSettings = GetGameUserSetting();
	switch (SettingType)
	{
	case ESettingToggleType::ESTT_FullScreen:
		SettingWidget->SetIsChecked(UserSettings->GetFullscreenMode() != EWindowMode::Windowed);
		break;
	case ESettingToggleType::ESTT_VSync:
		SettingWidget->SetIsChecked(UserSettings->IsVSyncEnabled());
		break;
	}
	Super::RefreshSetting_Implementation();
}

void UHalvexSettingToggle::NativeOnInitialized()
{
	Super::NativeOnInitialized();
	LoadSetting();
}

void UHalvexSettingToggle::NativeConstruct()
{
	Super::NativeConstruct();
	if (SettingWidget)
	{
		SettingWidget->OnCheckStateChanged.AddUniqueDynamic(this, &UHalvexSettingToggle::ReceivedSettingChange);
	}
}

void UHalvexSettingToggle::ReceivedSettingChange(bool)
{
	SetSetting();
}
