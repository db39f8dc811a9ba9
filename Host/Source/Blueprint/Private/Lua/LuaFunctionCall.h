#pragma once

#include "CoreMinimal.h"

struct lua_State;
class UFunction;
class UObject;

namespace Host
{
	class FLuaReference;

	/** Puts a function on the stack that calls the reflected one: the object first, then the parameters. */
	void PushLuaFunction(lua_State* State, UFunction& Function);

	/**
	 * Calls a scripted function in answer to a reflected call: with the object, unless there is none, and the parameters; its
	 * results are taken for the return value and the out parameters, in this order.
	 */
	void CallScriptedFunction(const FLuaReference& Script, const UObject* Self, const UFunction& Signature, void* Parms);
}
