#include "Lua/LuaMachine.h"

#include "Host/BlueprintReport.h"
#include "Host/WidgetBlueprint.h"
#include "Lua/LuaApi.h"
#include "Lua/LuaDelegate.h"
#include "Lua/LuaLibrary.h"
#include "Lua/LuaObject.h"

namespace Host
{
	namespace
	{
		TUniquePtr<FLuaMachine> Machine;

		/** What scripts get of the language's own functions. Nothing that reaches files, code or the machine itself. */
		const char* const ForbiddenGlobals[] = { "collectgarbage", "dofile", "load", "loadfile", "require", "getmetatable", "setmetatable", "rawset", "rawget", "rawequal", "rawlen" };

		/** Turns what went wrong into text; the place is in front of it already. */
		int DescribeError(lua_State* State)
		{
			if (!lua_isstring(State, 1))
			{
				luaL_tolstring(State, 1, nullptr);
			}
			return 1;
		}

		int Print(lua_State* State)
		{
			FString Line;
			for (int Index = 1; Index <= lua_gettop(State); ++Index)
			{
				Line += (Index > 1 ? TEXT("\t") : TEXT(""));
				Line += UTF8_TO_TCHAR(luaL_tolstring(State, Index, nullptr));
				lua_pop(State, 1);
			}
			UE_LOG(LogBlueprint, Display, TEXT("%s"), *Line);
			return 0;
		}
	}

	FLuaReference::FLuaReference(lua_State* State)
		: Key(luaL_ref(State, LUA_REGISTRYINDEX))
	{
	}

	FLuaReference::FLuaReference(FLuaReference&& Other) noexcept
		: Key(Other.Key)
	{
		Other.Key = LUA_NOREF;
	}

	FLuaReference& FLuaReference::operator=(FLuaReference&& Other) noexcept
	{
		::Swap(Key, Other.Key);
		return *this;
	}

	FLuaReference::~FLuaReference()
	{
		if (FLuaMachine* Running = IsSet() ? FLuaMachine::GetIfRunning() : nullptr)
		{
			luaL_unref(Running->GetState(), LUA_REGISTRYINDEX, Key);
		}
	}

	bool FLuaReference::IsSet() const
	{
		return Key != LUA_NOREF;
	}

	void FLuaReference::Push(lua_State* State) const
	{
		lua_rawgeti(State, LUA_REGISTRYINDEX, Key);
	}

	FLuaMachine::FPause::FPause()
		: Depth(Get().Watchdog->Suspend())
	{
	}

	FLuaMachine::FPause::~FPause()
	{
		Get().Watchdog->Resume(Depth);
	}

	FLuaMachine::FWatch::FWatch()
	{
		Get().Watchdog->BeginCall();
	}

	FLuaMachine::FWatch::~FWatch()
	{
		Get().Watchdog->EndCall();
	}

	FLuaMachine& FLuaMachine::Get()
	{
		if (!Machine)
		{
			Machine = MakeUnique<FLuaMachine>();
		}
		return *Machine;
	}

	FLuaMachine* FLuaMachine::GetIfRunning()
	{
		return Machine.Get();
	}

	void FLuaMachine::Stop()
	{
		Machine.Reset();
	}

	FLuaMachine::FLuaMachine()
	{
		State = lua_newstate(&FLuaMachine::Allocate, this);
		check(State);
		Watchdog = MakeUnique<FLuaWatchdog>(State);
		OpenLibraries();
	}

	FLuaMachine::~FLuaMachine()
	{
		Watchdog.Reset();
		lua_close(State);
	}

	void FLuaMachine::OpenLibraries()
	{
		const luaL_Reg Libraries[] = { { LUA_GNAME, &luaopen_base }, { LUA_TABLIBNAME, &luaopen_table }, { LUA_STRLIBNAME, &luaopen_string }, { LUA_MATHLIBNAME, &luaopen_math }, { LUA_UTF8LIBNAME, &luaopen_utf8 } };
		for (const luaL_Reg& Library : Libraries)
		{
			luaL_requiref(State, Library.name, Library.func, 1);
			lua_pop(State, 1);
		}
		for (const char* Name : ForbiddenGlobals)
		{
			lua_pushnil(State);
			lua_setglobal(State, Name);
		}
		// A dumped function is code that is no text.
		lua_getglobal(State, LUA_STRLIBNAME);
		lua_pushnil(State);
		lua_setfield(State, -2, "dump");
		lua_pop(State, 1);
		lua_pushcfunction(State, &Print);
		lua_setglobal(State, "print");
		RegisterLuaObjects(State);
		RegisterLuaDelegates(State);
		RegisterLuaLibrary(State);
	}

	void* FLuaMachine::Allocate(void* User, void* Pointer, std::size_t OldSize, std::size_t NewSize)
	{
		FLuaMachine& Self = *static_cast<FLuaMachine*>(User);
		// Without a pointer the old size tells a kind of object instead.
		const int64 Freed = Pointer ? static_cast<int64>(OldSize) : 0;
		if (NewSize == 0)
		{
			FMemory::Free(Pointer);
			Self.UsedBytes -= Freed;
			return nullptr;
		}
		if (Self.UsedBytes - Freed + static_cast<int64>(NewSize) > MaxBytes)
		{
			return nullptr;
		}
		void* Result = FMemory::Realloc(Pointer, NewSize);
		Self.UsedBytes += static_cast<int64>(NewSize) - Freed;
		return Result;
	}

	bool FLuaMachine::RunChunk(const FString& Text, const FString& Name)
	{
		const FTCHARToUTF8 Utf8(*Text, Text.Len());
		const FString ChunkName = TEXT("@") + Name;
		if (luaL_loadbufferx(State, reinterpret_cast<const char*>(Utf8.Get()), static_cast<std::size_t>(Utf8.Length()), TCHAR_TO_UTF8(*ChunkName), "t") != LUA_OK)
		{
			ReportBlueprintError(UTF8_TO_TCHAR(lua_tostring(State, -1)));
			lua_pop(State, 1);
			return false;
		}
		// The environment: what the chunk defines, and behind it what all scripts have.
		lua_newtable(State);
		lua_newtable(State);
		lua_pushglobaltable(State);
		lua_setfield(State, -2, "__index");
		lua_setmetatable(State, -2);
		lua_pushvalue(State, -1);
		lua_setupvalue(State, -3, 1);
		lua_insert(State, -2);
		if (!Call(0, 0))
		{
			lua_pop(State, 1);
			return false;
		}
		return true;
	}

	void FLuaMachine::ForgetImports()
	{
		lua_pushnil(State);
		lua_setfield(State, LUA_REGISTRYINDEX, ImportTableName);
	}

	bool FLuaMachine::Call(int32 NumArguments, int32 NumResults)
	{
		const int Handler = lua_gettop(State) - NumArguments;
		lua_pushcfunction(State, &DescribeError);
		lua_insert(State, Handler);
		Watchdog->BeginCall();
		const int Status = lua_pcall(State, NumArguments, NumResults, Handler);
		Watchdog->EndCall();
		lua_remove(State, Handler);
		if (Status == LUA_OK)
		{
			return true;
		}
		const char* Message = lua_tostring(State, -1);
		ReportBlueprintError(Message ? FString(UTF8_TO_TCHAR(Message)) : FString(TEXT("a script ran out of memory.")));
		lua_pop(State, 1);
		return false;
	}
}
