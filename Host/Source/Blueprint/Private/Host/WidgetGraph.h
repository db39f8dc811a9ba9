#pragma once

#include "CoreMinimal.h"

class UWidgetBlueprintGeneratedClass;

namespace Host
{
	/** Adds the functions of the blueprint's graph, the ".lua" file beside it, to its class; nothing happens when there is none. */
	void LoadWidgetGraph(UWidgetBlueprintGeneratedClass& Class, const FString& BlueprintFile);
}
