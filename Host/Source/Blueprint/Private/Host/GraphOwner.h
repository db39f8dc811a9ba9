#pragma once

#include "CoreMinimal.h"

class UClass;
class UObject;

namespace Host
{
	/** Adds the hidden variable to a blueprint's class in which its instances keep what scripts make for them. */
	void AddKeptObjectsVariable(UClass& Class);

	/** Keeps the object alive as long as its owner, or as long as the nearest object around it that can keep something. */
	void KeepWithOwner(UObject& Owner, UObject& Kept);
}
