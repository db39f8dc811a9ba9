#include "UserWidget/Settings/HalvexSettingGeneral.h"

#include "Blueprint/WidgetTree.h"
#include "GameFramework/GameUserSettings.h"
#include "UserWidget/Settings/HalvexSettingItem.h"
#include "Widgets/HxButton.h"

void UHalvexSettingGeneral::ApplySettings()
{
	UGameUserSettings* UserSettings = UHalvexSettingItem::GetGameUserSetting();
	UserSettings->ApplySettings(false);
	UserSettings->SaveSettings();
	bSettingsDirty = false;
	RefreshChildrenSettingsItems();
}

bool UHalvexSettingGeneral::ApplySettingsIfMarkedAsDirty()
{
	if (!bSettingsDirty)
	{
		return false;
	}
	ApplySettings();
	return true;
}

bool UHalvexSettingGeneral::IsSettingsMarkAsDirty() const
{
	return bSettingsDirty;
}

void UHalvexSettingGeneral::MarkSettingsAsDirty()
{
	bSettingsDirty = true;
}

void UHalvexSettingGeneral::RefreshChildrenSettingsItems()
{
	for (UHalvexSettingItem* Item : SettingsItems)
	{
		Item->RefreshSetting();
	}
}

void UHalvexSettingGeneral::ReceivedApplyConfirmation(FName)
{
	ApplySettingsIfMarkedAsDirty();
}

void UHalvexSettingGeneral::ReceivedSettingItemDirty(UHalvexSettingItem*)
{
	MarkSettingsAsDirty();
}

void UHalvexSettingGeneral::NativeOnInitialized()
{
	Super::NativeOnInitialized();
	SettingsItems.Empty();
	WidgetTree->ForEachWidget([this](UWidget* Widget)
	{
		if (UHalvexSettingItem* Item = Cast<UHalvexSettingItem>(Widget))
		{
			SettingsItems.Add(Item);
		}
	});
	for (UHalvexSettingItem* Item : SettingsItems)
	{
		if (SettingsApplyType != ESettingApplyType::ESAT_Custom)
		{
			Item->bAutoApplyOnChange = SettingsApplyType == ESettingApplyType::ESAT_AutoApply;
		}
		Item->OnSettingItemDirty.AddUniqueDynamic(this, &UHalvexSettingGeneral::ReceivedSettingItemDirty);
	}
}

void UHalvexSettingGeneral::NativeConstruct()
{
	Super::NativeConstruct();
	if (Btn_ApplyConfirmation)
	{
		Btn_ApplyConfirmation->OnClickWithID.AddUniqueDynamic(this, &UHalvexSettingGeneral::ReceivedApplyConfirmation);
	}
}
