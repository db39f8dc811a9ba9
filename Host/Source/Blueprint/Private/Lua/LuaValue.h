#pragma once

#include "CoreMinimal.h"

struct lua_State;
class FProperty;
class UScriptStruct;

namespace Host
{
	/**
	 * Puts the value of a property on the stack: numbers, booleans and strings as they are, names and texts as strings,
	 * enumerators by short name, structures as tables by member, arrays and sets as sequences, maps as tables, objects as
	 * handles, soft references as paths.
	 */
	void PushLuaValue(lua_State* State, const FProperty& Property, const void* Value);

	/** Puts a structure on the stack as a table by member. */
	void PushLuaStruct(lua_State* State, const UScriptStruct& Struct, const void* Value);

	/**
	 * Reads a property's value from the stack, where it must have the form that PushLuaValue gives it. Structures may leave out
	 * members, and may be given in their text form, colours as "#RRGGBB[AA]"; objects may be given as paths. False, with the
	 * reason and the value in some state, when it does not fit.
	 */
	bool ReadLuaValue(lua_State* State, int Index, const FProperty& Property, void* Value, FString& OutReason);

	/** Text of the value at the index; it must be a string or a number. */
	FString ToFString(lua_State* State, int Index);
	void PushFString(lua_State* State, const FString& Text);
}
