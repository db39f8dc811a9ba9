#include "UserWidget/Settings/HalvexSettingDropdown.h"

#include "Components/ComboBoxString.h"
#include "GameFramework/GameUserSettings.h"
#include "Kismet/KismetSystemLibrary.h"

#define LOCTEXT_NAMESPACE "HalvexSettings"

namespace
{
	/** How the user settings read and write one level. */
	struct FLevelAccess
	{
		int32 (UGameUserSettings::*Get)() const;
		void (UGameUserSettings::*Set)(int32);
	};

	FLevelAccess GetLevelAccess(const ESettingTypeDropdown SettingType)
	{
		switch (SettingType)
		{
		case ESettingTypeDropdown::ESTD_Shadow:
			return { &UGameUserSettings::GetShadowQuality, &UGameUserSettings::SetShadowQuality };
		case ESettingTypeDropdown::ESTD_Shading:
			return { &UGameUserSettings::GetShadingQuality, &UGameUserSettings::SetShadingQuality };
		case ESettingTypeDropdown::ESTD_Foliage:
			return { &UGameUserSettings::GetFoliageQuality, &UGameUserSettings::SetFoliageQuality };
		case ESettingTypeDropdown::ESTD_Texture:
			return { &UGameUserSettings::GetTextureQuality, &UGameUserSettings::SetTextureQuality };
		case ESettingTypeDropdown::ESTD_Reflection:
			return { &UGameUserSettings::GetReflectionQuality, &UGameUserSettings::SetReflectionQuality };
		case ESettingTypeDropdown::ESTD_AA:
			return { &UGameUserSettings::GetAntiAliasingQuality, &UGameUserSettings::SetAntiAliasingQuality };
		case ESettingTypeDropdown::ESTD_Audio:
			return { &UGameUserSettings::GetAudioQualityLevel, &UGameUserSettings::SetAudioQualityLevel };
		case ESettingTypeDropdown::ESTD_VFX:
			return { &UGameUserSettings::GetVisualEffectQuality, &UGameUserSettings::SetVisualEffectQuality };
		case ESettingTypeDropdown::ESTD_GIllumination:
			return { &UGameUserSettings::GetGlobalIlluminationQuality, &UGameUserSettings::SetGlobalIlluminationQuality };
		case ESettingTypeDropdown::ESTD_PostProcess:
			return { &UGameUserSettings::GetPostProcessingQuality, &UGameUserSettings::SetPostProcessingQuality };
		case ESettingTypeDropdown::ESTD_ViewDistance:
			return { &UGameUserSettings::GetViewDistanceQuality, &UGameUserSettings::SetViewDistanceQuality };
		case ESettingTypeDropdown::ESTD_General:
		case ESettingTypeDropdown::ESTD_Resolution:
			break;
		}
		return { &UGameUserSettings::GetOverallScalabilityLevel, &UGameUserSettings::SetOverallScalabilityLevel };
	}
}

UHalvexSettingDropdown::UHalvexSettingDropdown()
{
	OptionsToDisplay.Add(0, LOCTEXT("Low", "Low"));
	OptionsToDisplay.Add(1, LOCTEXT("Medium", "Medium"));
	OptionsToDisplay.Add(2, LOCTEXT("High", "High"));
	OptionsToDisplay.Add(3, LOCTEXT("Epic", "Epic"));
	OptionsToDisplay.Add(4, LOCTEXT("Cinematic", "Cinematic"));
}

FString UHalvexSettingDropdown::GetResolutionFormatString_Implementation(FIntPoint InValueRes)
{
	return FString::Printf(TEXT("%dx%d"), InValueRes.X, InValueRes.Y);
}

void UHalvexSettingDropdown::FillUpOptions()
{
	SupportedResolutions.Empty();
	SettingWidget->ClearOptions();
	if (SettingType == ESettingTypeDropdown::ESTD_Resolution)
	{
		UKismetSystemLibrary::GetSupportedFullscreenResolutions(SupportedResolutions);
		for (const FIntPoint& Resolution : SupportedResolutions)
		{
			SettingWidget->AddOption(GetResolutionFormatString(Resolution));
		}
		return;
	}
	for (const TPair<int32, FText>& Option : OptionsToDisplay)
	{
		SettingWidget->AddOption(Option.Value.ToString());
	}
}

void UHalvexSettingDropdown::LoadSetting_Implementation()
{
	Super::LoadSetting_Implementation();
	FillUpOptions();
	RefreshSetting();
}

void UHalvexSettingDropdown::SetSetting_Implementation()
{
	UGameUserSettings* UserSettings = GetGameUserSetting();
	if (SettingType == ESettingTypeDropdown::ESTD_Resolution)
	{
		UserSettings->SetScreenResolution(GetResolutionFromSelection());
	}
	else
	{
		(UserSettings->*GetLevelAccess(SettingType).Set)(GetValueFromSetting(SettingWidget->GetSelectedOption()));
	}
	Super::SetSetting_Implementation();
}

void UHalvexSettingDropdown::ApplySetting_Implementation()
{
	GetGameUserSetting()->ApplySettings(false);
	SaveSetting();
}

void UHalvexSettingDropdown::RefreshSetting_Implementation()
{
	const UGameUserSettings* UserSettings = GetGameUserSetting();
	if (SettingType == ESettingTypeDropdown::ESTD_Resolution)
	{
		const int32 Index = SupportedResolutions.Find(UserSettings->GetScreenResolution());
		if (Index != INDEX_NONE)
		{
			SettingWidget->SetSelectedIndex(Index);
		}
	}
	else
	{
		// The level is the place in the combo box, whatever level the label there stands for: screens rely on lists without gaps.
		SettingWidget->SetSelectedIndex((UserSettings->*GetLevelAccess(SettingType).Get)());
	}
	Super::RefreshSetting_Implementation();
}

void UHalvexSettingDropdown::NativeOnInitialized()
{
	Super::NativeOnInitialized();
	LoadSetting();
}

void UHalvexSettingDropdown::NativeConstruct()
{
	Super::NativeConstruct();
	if (SettingWidget)
	{
		SettingWidget->OnSelectionChanged.AddUniqueDynamic(this, &UHalvexSettingDropdown::ReceivedSettingChange);
	}
}

int32 UHalvexSettingDropdown::GetValueFromSetting(const FString& Option) const
{
	for (const TPair<int32, FText>& Candidate : OptionsToDisplay)
	{
		if (Candidate.Value.ToString().Equals(Option, ESearchCase::IgnoreCase))
		{
			return Candidate.Key;
		}
	}
	return INDEX_NONE;
}

FIntPoint UHalvexSettingDropdown::GetResolutionFromSelection()
{
	// The combo box tells of its emptying too, when nothing is selected.
	const int32 Index = SettingWidget->GetSelectedIndex();
	return SupportedResolutions.IsValidIndex(Index) ? SupportedResolutions[Index] : GetGameUserSetting()->GetScreenResolution();
}

void UHalvexSettingDropdown::ReceivedSettingChange(FString, ESelectInfo::Type)
{
	SetSetting();
}

#undef LOCTEXT_NAMESPACE
