#include "Service/HalvexServiceSettings.h"

UHalvexServiceSettings::UHalvexServiceSettings()
{
	CategoryName = TEXT("Plugins");
}
