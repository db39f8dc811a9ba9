#pragma once

#include "UObject/Object.h"

namespace Host
{
	/** Zeroed memory for an object of the class, with its properties beyond the compiled part constructed. */
	UObject* AllocateObject(UClass* Class);

	/**
	 * Ends the object's life and leaves its memory as AllocateObject makes it, for an object of the same class, name and
	 * outer. What referred to it weakly is null.
	 */
	void RecycleObject(UObject* Object);

	/** Runs the destructors of the properties beyond the compiled part, then the compiled one, and frees the memory. */
	void DeleteObject(UObject* Object);
}
