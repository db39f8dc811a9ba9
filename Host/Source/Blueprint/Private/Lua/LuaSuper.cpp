#include "Lua/LuaSuper.h"

#include "Lua/LuaApi.h"
#include "Lua/LuaFunctionCall.h"
#include "Lua/LuaObject.h"
#include "Lua/LuaValue.h"
#include "UObject/Class.h"
#include "Templates/Casts.h"

namespace Host
{
	namespace
	{
		/** Finds a function of the class whose handle the closure holds. */
		int FindSuperFunction(lua_State* State)
		{
			UClass& Class = *CastChecked<UClass>(&CheckLuaObject(State, lua_upvalueindex(1)));
			const FString Name = ToFString(State, 2);
			UFunction* Function = Class.FindFunctionByName(FName(*Name));
			if (!Function)
			{
				return luaL_error(State, "the parent %s has no function '%s'", TCHAR_TO_UTF8(*Class.GetName()), TCHAR_TO_UTF8(*Name));
			}
			PushLuaFunction(State, *Function);
			return 1;
		}
	}

	void PushLuaSuper(lua_State* State, const UClass& SuperClass)
	{
		lua_newtable(State);
		lua_createtable(State, 0, 1);
		PushLuaObject(State, &SuperClass);
		lua_pushcclosure(State, &FindSuperFunction, 1);
		lua_setfield(State, -2, "__index");
		lua_setmetatable(State, -2);
	}
}
