#include "Images/HalvexImageSettings.h"

UHalvexImageSettings::UHalvexImageSettings()
{
	CategoryName = TEXT("Plugins");
}
