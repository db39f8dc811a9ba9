#include "Lua/LuaDelegate.h"

#include "GraphCallback.h"
#include "Lua/LuaApi.h"
#include "Lua/LuaObject.h"
#include "UObject/UnrealType.h"

namespace Host
{
	namespace
	{
		const char* const DelegateType = "Delegate";

		struct FBoundDelegate
		{
			TWeakObjectPtr<UObject> Owner;
			const FMulticastDelegateProperty* Property;
		};

		/** The handle at the first place; raises an error when it is none or its object is gone. */
		FBoundDelegate& CheckDelegate(lua_State* State)
		{
			FBoundDelegate* Handle = static_cast<FBoundDelegate*>(luaL_checkudata(State, 1, DelegateType));
			if (!Handle->Owner.IsValid())
			{
				luaL_error(State, "the object of the delegate is gone");
			}
			return *Handle;
		}

		FScriptDelegate MakeBinding(UGraphCallback& Callback)
		{
			FScriptDelegate Binding;
			Binding.BindUFunction(&Callback, Callback.GetFunctionName());
			return Binding;
		}

		int Add(lua_State* State)
		{
			const FBoundDelegate& Handle = CheckDelegate(State);
			luaL_checktype(State, 2, LUA_TFUNCTION);
			lua_settop(State, 2);
			UGraphCallback* Callback = UGraphCallback::Make(*Handle.Owner, *Handle.Property->SignatureFunction, State);
			Handle.Property->AddDelegate(MakeBinding(*Callback), Handle.Owner.Get());
			PushLuaObject(State, Callback);
			return 1;
		}

		int Remove(lua_State* State)
		{
			const FBoundDelegate& Handle = CheckDelegate(State);
			if (UGraphCallback* Callback = Cast<UGraphCallback>(&CheckLuaObject(State, 2)))
			{
				Handle.Property->RemoveDelegate(MakeBinding(*Callback), Handle.Owner.Get());
			}
			return 0;
		}

		int Clear(lua_State* State)
		{
			const FBoundDelegate& Handle = CheckDelegate(State);
			Handle.Property->ClearDelegate(Handle.Owner.Get());
			return 0;
		}

		int Collect(lua_State* State)
		{
			static_cast<FBoundDelegate*>(luaL_checkudata(State, 1, DelegateType))->~FBoundDelegate();
			return 0;
		}
	}

	void RegisterLuaDelegates(lua_State* State)
	{
		const luaL_Reg Methods[] = { { "Add", &Add }, { "Remove", &Remove }, { "Clear", &Clear }, { "__gc", &Collect }, { nullptr, nullptr } };
		luaL_newmetatable(State, DelegateType);
		luaL_setfuncs(State, Methods, 0);
		lua_pushvalue(State, -1);
		lua_setfield(State, -2, "__index");
		lua_pop(State, 1);
	}

	void PushLuaDelegate(lua_State* State, UObject& Owner, const FMulticastDelegateProperty& Property)
	{
		new (lua_newuserdatauv(State, sizeof(FBoundDelegate), 0)) FBoundDelegate{ &Owner, &Property };
		luaL_setmetatable(State, DelegateType);
	}
}
