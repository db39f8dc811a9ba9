#include "HalvexProUISettings.h"

#include "HalvexUISubsystem.h"
#include "Style/HalvexUIStyleConfiguration.h"
#include "UObject/ConstructorHelpers.h"

UHalvexProUISettings::UHalvexProUISettings()
{
	CategoryName = TEXT("Plugins");

	static const ConstructorHelpers::FObjectFinder<UHalvexUIStyleConfiguration> LightStyle(TEXT("/HalvexPro/Widgets/UIStyle_Hx_Light.UIStyle_Hx_Light"));
	if (LightStyle.Succeeded())
	{
		ProjectUIConfiguration = LightStyle.Object;
	}
}

#if WITH_EDITOR
void UHalvexProUISettings::PostEditChangeChainProperty(FPropertyChangedChainEvent& PropertyChangedEvent)
{
	Super::PostEditChangeChainProperty(PropertyChangedEvent);

	if (UHalvexUISubsystem* Subsystem = UHalvexUISubsystem::Get())
	{
		Subsystem->RefreshSettingsReferences();
	}
}
#endif
