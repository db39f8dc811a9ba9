#include "ProjectStyle.h"

#include "HalvexProUISettings.h"
#include "HalvexUISubsystem.h"
#include "Style/HalvexUIStyleConfiguration.h"

void UseProjectStyle(const FString& Path)
{
	GetMutableDefault<UHalvexProUISettings>()->ProjectUIConfiguration = FSoftObjectPath(Path);
	UHalvexUISubsystem::Get()->RefreshSettingsReferences();
}

void UseShippedStyle(const TCHAR* Name)
{
	UseProjectStyle(FString::Printf(TEXT("/HalvexPro/Widgets/%s.%s"), Name, Name));
}
