#include "HalvexUISubsystem.h"

#include "Components/Widget.h"
#include "Engine/DataTable.h"
#include "Engine/Engine.h"
#include "HalvexProUISettings.h"
#include "Style/HalvexUIStyleConfiguration.h"

namespace
{
	template<typename ValueType>
	TArray<FName> GetMapKeys(const TMap<FName, ValueType>& Map)
	{
		TArray<FName> Keys;
		Map.GenerateKeyArray(Keys);
		return Keys;
	}
}

UHalvexUISubsystem* UHalvexUISubsystem::Get()
{
	return GEngine ? GEngine->GetEngineSubsystem<UHalvexUISubsystem>() : nullptr;
}

void UHalvexUISubsystem::Initialize(FSubsystemCollectionBase& Collection)
{
	Super::Initialize(Collection);
	RefreshSettingsReferences();
}

void UHalvexUISubsystem::Deinitialize()
{
	Super::Deinitialize();
}

void UHalvexUISubsystem::RefreshSettingsReferences()
{
	const UHalvexProUISettings* HalvexProSettings = GetDefault<UHalvexProUISettings>();
	verify(HalvexProSettings);
	UIConfig = Cast<UHalvexUIStyleConfiguration>(HalvexProSettings->ProjectUIConfiguration.LoadSynchronous());
	SettingsRefreshed.Broadcast();
}

FLinearColor UHalvexUISubsystem::GetHalvexColorByID(FName ColorID, bool bContrast) const
{
	if (UIConfig)
	{
		if (const FColorKeyValues* StyleColor = UIConfig->ColorStyleMap.Find(ColorID))
		{
			return bContrast ? StyleColor->ContrastColor : StyleColor->RegularColor;
		}
		if (const FLinearColor* SimpleColor = UIConfig->ColorSimpleMap.Find(ColorID))
		{
			return *SimpleColor;
		}
	}
	return FLinearColor::Transparent;
}

FHalvexFontStyle UHalvexUISubsystem::GetHalvexFontStyle() const
{
	return UIConfig ? UIConfig->FontStyle : FHalvexFontStyle();
}

const FFontIconData& UHalvexUISubsystem::GetFontIconDataByID(FName FontIconID) const
{
	static const FFontIconData Empty;
	const FFontIconData* IconData = UIConfig ? UIConfig->FontIconMap.Find(FontIconID) : nullptr;
	return IconData ? *IconData : Empty;
}

void UHalvexUISubsystem::CollapseWidget(UWidget* Widget)
{
	if (Widget)
	{
		Widget->SetVisibility(ESlateVisibility::Collapsed);
	}
}

void UHalvexUISubsystem::HiddeWidget(UWidget* Widget)
{
	if (Widget)
	{
		Widget->SetVisibility(ESlateVisibility::Hidden);
	}
}

void UHalvexUISubsystem::ShowsWidget(UWidget* Widget, bool bHitTest)
{
	if (Widget)
	{
		Widget->SetVisibility(bHitTest ? ESlateVisibility::SelfHitTestInvisible : ESlateVisibility::Visible);
	}
}

TArray<FName> UHalvexUISubsystem::GetAllColorStyleOptions() const
{
	return UIConfig ? GetMapKeys(UIConfig->ColorStyleMap) : TArray<FName>();
}

TArray<FName> UHalvexUISubsystem::GetAllColorSimpleOptions() const
{
	return UIConfig ? GetMapKeys(UIConfig->ColorSimpleMap) : TArray<FName>();
}

TArray<FName> UHalvexUISubsystem::GetAllFontIconOptions() const
{
	return UIConfig ? GetMapKeys(UIConfig->FontIconMap) : TArray<FName>();
}

TArray<FName> UHalvexUISubsystem::GetAllFontIconsStylesNames(const FName StyleName) const
{
	return GetFontIconDataByID(StyleName).GetFontTypeface();
}

TArray<FName> UHalvexUISubsystem::GetAllIconsNames(const FName StyleName) const
{
	const UDataTable* IconTable = GetFontIconDataByID(StyleName).FontIconList;
	return IconTable ? IconTable->GetRowNames() : TArray<FName>();
}
