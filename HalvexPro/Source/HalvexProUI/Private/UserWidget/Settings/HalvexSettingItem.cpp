#include "UserWidget/Settings/HalvexSettingItem.h"

#include "GameFramework/GameUserSettings.h"

namespace
{
	/** Whether a row has loaded the user settings. One for all rows of the program: what waits in them is not to be lost. */
	bool bUserSettingsLoaded = false;
}

void UHalvexSettingItem::LoadSetting_Implementation()
{
	if (bUseLoadSetting && !bUserSettingsLoaded)
	{
		GetGameUserSetting()->LoadSettings();
		bUserSettingsLoaded = true;
	}
}

void UHalvexSettingItem::SetSetting_Implementation()
{
	bSettingMarkDirty = true;
	if (bAutoApplyOnChange)
	{
		ApplySetting();
	}
	else if (OnSettingItemDirty.IsBound())
	{
		OnSettingItemDirty.Broadcast(this);
	}
}

void UHalvexSettingItem::ApplySetting_Implementation()
{
	SaveSetting();
}

void UHalvexSettingItem::RefreshSetting_Implementation()
{
	bSettingMarkDirty = false;
}

void UHalvexSettingItem::SaveSetting_Implementation()
{
	GetGameUserSetting()->SaveSettings();
}

UGameUserSettings* UHalvexSettingItem::GetGameUserSetting()
{
	return UGameUserSettings::GetGameUserSettings();
}

void UHalvexSettingItem::NativeOnInitialized()
{
	Super::NativeOnInitialized();
	LoadSetting();
}
