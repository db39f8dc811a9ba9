#pragma once

#include "CoreMinimal.h"

struct lua_State;
class UObject;

namespace Host
{
	/**
	 * Handles of objects. They are weak: no script keeps an object alive, and a handle whose object is gone says so when it is
	 * used. Two handles of one object are equal.
	 *
	 *   Handle.Property              reads a reflected property; a multicast delegate gives something to bind to
	 *   Handle.Property = value      sets it, through its setter where there is one
	 *   Handle:Function(...)         calls a reflected function; results and out parameters are returned
	 *   Handle.WidgetName            the widget of that name, of a user widget
	 */
	void RegisterLuaObjects(lua_State* State);

	/** Puts a handle of the object on the stack, or nil for null. */
	void PushLuaObject(lua_State* State, const UObject* Object);

	/** The object of the handle at the index; false when the value is no handle or its object is gone. */
	bool TryGetLuaObject(lua_State* State, int Index, UObject*& OutObject);

	/** As TryGetLuaObject, but raises an error in the script. */
	UObject& CheckLuaObject(lua_State* State, int Index);
}
