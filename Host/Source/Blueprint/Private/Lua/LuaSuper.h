#pragma once

#include "CoreMinimal.h"

struct lua_State;
class UClass;

namespace Host
{
	/**
	 * Puts on the stack what a graph calls its parent's functions by:
	 *
	 *   Super.Function(self, ...)    calls the function as the parent class has it, without the graph's own
	 */
	void PushLuaSuper(lua_State* State, const UClass& SuperClass);
}
