#pragma once

#include "CoreMinimal.h"

class UObject;

namespace Host
{
	struct FAssetRequest;

	/**
	 * Makes the class of a plain object with variables, such as an item of a list, from its ".object.json" file:
	 *
	 *   {
	 *     "Parent": path of the class that it derives from; "/Script/CoreUObject.Object" when left out
	 *     "Defaults": {property: value}, for the class default object
	 *     "Variables": {name: {"Type": type, "Default": value, "Category": text}}
	 *   }
	 *
	 * What is wrong is one line in the log each; the rest is made all the same.
	 */
	UObject* LoadObjectBlueprint(const FAssetRequest& Request);
}
