#include "Host/ScriptHost.h"

#include "Host/BlueprintReport.h"
#include "Lua/LuaApi.h"
#include "Lua/LuaMachine.h"
#include "Lua/LuaObject.h"
#include "Lua/LuaValue.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"

namespace Host
{
	namespace
	{
		int CallHostFunction(lua_State* State)
		{
			const FScriptFunction& Function = *static_cast<const FScriptFunction*>(lua_touserdata(State, lua_upvalueindex(1)));
			const FLuaMachine::FPause Pause;
			FScriptCall Call(State);
			Function(Call);
			return Call.GetNumResults();
		}
	}

	int32 FScriptCall::NumArguments() const
	{
		return lua_gettop(State) - NumResults;
	}

	FString FScriptCall::GetString(int32 Index) const
	{
		luaL_checkstring(State, Index);
		return ToFString(State, Index);
	}

	double FScriptCall::GetNumber(int32 Index) const
	{
		return luaL_checknumber(State, Index);
	}

	UObject& FScriptCall::GetObject(int32 Index) const
	{
		return CheckLuaObject(State, Index);
	}

	FString FScriptCall::GetString(int32 Index, const FString& Default) const
	{
		return lua_isnoneornil(State, Index) ? Default : GetString(Index);
	}

	double FScriptCall::GetNumber(int32 Index, double Default) const
	{
		return lua_isnoneornil(State, Index) ? Default : GetNumber(Index);
	}

	bool FScriptCall::IsString(int32 Index) const
	{
		return lua_type(State, Index) == LUA_TSTRING;
	}

	bool FScriptCall::IsTrue(int32 Index) const
	{
		return lua_toboolean(State, Index) != 0;
	}

	bool FScriptCall::CallCondition(int32 Index) const
	{
		luaL_checktype(State, Index, LUA_TFUNCTION);
		lua_pushvalue(State, Index);
		const FLuaMachine::FWatch Watch;
		lua_call(State, 0, 1);
		const bool bResult = lua_toboolean(State, -1) != 0;
		lua_pop(State, 1);
		return bResult;
	}

	void FScriptCall::Return(const FString& Value)
	{
		PushFString(State, Value);
		++NumResults;
	}

	void FScriptCall::Return(double Value)
	{
		lua_pushnumber(State, Value);
		++NumResults;
	}

	void FScriptCall::Return(int32 Value)
	{
		lua_pushinteger(State, Value);
		++NumResults;
	}

	void FScriptCall::Return(bool bValue)
	{
		lua_pushboolean(State, bValue);
		++NumResults;
	}

	void FScriptCall::Return(const UObject* Value)
	{
		PushLuaObject(State, Value);
		++NumResults;
	}

	void FScriptCall::Return(const FProperty& Property, const void* Value)
	{
		PushLuaValue(State, Property, Value);
		++NumResults;
	}

	void FScriptCall::Fail(const FString& Message) const
	{
		luaL_error(State, "%s", TCHAR_TO_UTF8(*Message));
		checkNoEntry();
	}

	void FScriptHost::AddFunction(const FString& Name, FScriptFunction Function)
	{
		Functions.Add(Name, MakeShared<FScriptFunction>(MoveTemp(Function)));
	}

	bool FScriptHost::RunFile(const FString& Filename)
	{
		FString Text;
		if (!FFileHelper::LoadFileToString(Text, *Filename))
		{
			ReportBlueprintError(FString::Printf(TEXT("%s: the file cannot be read."), *Filename));
			return false;
		}
		FLuaMachine& Machine = FLuaMachine::Get();
		lua_State* State = Machine.GetState();
		for (const TPair<FString, TSharedPtr<FScriptFunction>>& Function : Functions)
		{
			lua_pushlightuserdata(State, Function.Value.Get());
			lua_pushcclosure(State, &CallHostFunction, 1);
			lua_setglobal(State, TCHAR_TO_UTF8(*Function.Key));
		}
		const bool bDone = Machine.RunChunk(Text, FPaths::GetCleanFilename(Filename));
		if (bDone)
		{
			lua_pop(State, 1);
		}
		for (const TPair<FString, TSharedPtr<FScriptFunction>>& Function : Functions)
		{
			lua_pushnil(State);
			lua_setglobal(State, TCHAR_TO_UTF8(*Function.Key));
		}
		return bDone;
	}
}
