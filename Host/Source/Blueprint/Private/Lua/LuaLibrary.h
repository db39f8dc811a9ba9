#pragma once

struct lua_State;

namespace Host
{
	/**
	 * What scripts can use besides the language:
	 *
	 *   Class(path)                   the class of that path, to call its static functions on: Class("/Script/..."):Function(...)
	 *   Default(path)                 the default object of that class
	 *   Subsystem(path)               the engine subsystem of that class
	 *   Import(path)                  what another script under a mount defines, as a table; it runs once
	 *   Load(path)                    the asset of that path; nil when it cannot be loaded
	 *   CreateWidget(owner, path)     a new widget of that class in the owner's tree
	 *   Delay(owner, seconds, f)      calls f once after the seconds, as long as the owner lives
	 *   Keys(object, property)        the keys of a map, in its order; the property may be a path of members
	 *   RowNames(table)               the names of the rows of a data table, in its order
	 *   Row(table, name)              a row of a data table; nil when there is none
	 *   print(...)                    a line in the log
	 */
	void RegisterLuaLibrary(lua_State* State);
}
