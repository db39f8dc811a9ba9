#pragma once

#include "CoreMinimal.h"

struct lua_State;
class FMulticastDelegateProperty;
class UObject;

namespace Host
{
	/**
	 * What a script gets for a multicast delegate of an object:
	 *
	 *   Delegate:Add(function)    binds a function, which gets the delegate's parameters; gives a token
	 *   Delegate:Remove(token)    takes that binding away
	 *   Delegate:Clear()          takes all bindings away
	 */
	void RegisterLuaDelegates(lua_State* State);

	void PushLuaDelegate(lua_State* State, UObject& Owner, const FMulticastDelegateProperty& Property);
}
