#pragma once

#include "CoreMinimal.h"

class UClass;

namespace Host
{
	/**
	 * The class of widgets that a blueprint names: the plain name of a native class, a script path, or the path of another
	 * widget blueprint with or without "_C". Null, with the reason, when there is none.
	 */
	UClass* FindWidgetClass(const FString& Name, FString& OutReason);
}
