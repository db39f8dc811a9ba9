#pragma once

#include "Host/JsonDocument.h"

class UClass;

namespace Host
{
	/** Makes a blueprint's class implement the interfaces that the array names by path. Its graph may define their events. */
	void AddBlueprintInterfaces(UClass& Class, const FJsonNode& Interfaces);
}
