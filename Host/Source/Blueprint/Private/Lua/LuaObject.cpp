#include "Lua/LuaObject.h"

#include "Blueprint/UserWidget.h"
#include "Lua/LuaApi.h"
#include "Lua/LuaDelegate.h"
#include "Lua/LuaFunctionCall.h"
#include "Lua/LuaValue.h"
#include "UObject/UnrealType.h"

namespace Host
{
	namespace
	{
		const char* const HandleType = "Object";

		struct FHandle
		{
			TWeakObjectPtr<UObject> Object;
		};

		/** The handle at the index; null when the value is none. */
		FHandle* FindHandle(lua_State* State, int Index)
		{
			return static_cast<FHandle*>(luaL_testudata(State, Index, HandleType));
		}

		[[noreturn]] void RaiseError(lua_State* State, const FString& Message)
		{
			luaL_error(State, "%s", TCHAR_TO_UTF8(*Message));
			checkNoEntry();
		}

		int Index(lua_State* State)
		{
			UObject& Object = CheckLuaObject(State, 1);
			const FString Key = ToFString(State, 2);
			const FName Name(*Key);
			if (const FProperty* Property = Object.GetClass()->FindPropertyByName(Name))
			{
				if (const FMulticastDelegateProperty* Delegate = CastField<FMulticastDelegateProperty>(Property))
				{
					PushLuaDelegate(State, Object, *Delegate);
				}
				else
				{
					PushLuaValue(State, *Property, Property->ContainerPtrToValuePtr<void>(&Object));
				}
				return 1;
			}
			// A class stands for its default object too, so that its static functions can be called on it.
			UClass* Class = Cast<UClass>(&Object);
			UFunction* Function = Class ? Class->FindFunctionByName(Name) : nullptr;
			if (!Function)
			{
				Function = Object.FindFunction(Name);
			}
			if (Function)
			{
				PushLuaFunction(State, *Function);
				return 1;
			}
			if (const UUserWidget* UserWidget = Cast<UUserWidget>(&Object))
			{
				if (UWidget* Widget = UserWidget->GetWidgetFromName(Name))
				{
					PushLuaObject(State, Widget);
					return 1;
				}
			}
			RaiseError(State, FString::Printf(TEXT("%s has no property, function or widget '%s'"), *Object.GetClass()->GetName(), *Key));
		}

		/** Sets a property through the function "Set" and its name, which does more than storing the value. */
		bool SetThroughSetter(lua_State* State, UObject& Object, const FString& PropertyName)
		{
			UFunction* Setter = Object.FindFunction(FName(*(TEXT("Set") + PropertyName)));
			if (!Setter || Setter->NumParms != 1 || Setter->GetReturnProperty())
			{
				return false;
			}
			PushLuaFunction(State, *Setter);
			lua_pushvalue(State, 1);
			lua_pushvalue(State, 3);
			lua_call(State, 2, 0);
			return true;
		}

		int NewIndex(lua_State* State)
		{
			UObject& Object = CheckLuaObject(State, 1);
			const FString Key = ToFString(State, 2);
			const FProperty* Property = Object.GetClass()->FindPropertyByName(FName(*Key));
			if (!Property)
			{
				RaiseError(State, FString::Printf(TEXT("%s has no property '%s'; add it to the blueprint's variables"), *Object.GetClass()->GetName(), *Key));
			}
			if (SetThroughSetter(State, Object, Property->GetName()))
			{
				return 0;
			}
			FString Reason;
			if (!ReadLuaValue(State, 3, *Property, Property->ContainerPtrToValuePtr<void>(&Object), Reason))
			{
				RaiseError(State, FString::Printf(TEXT("%s.%s: %s"), *Object.GetClass()->GetName(), *Key, *Reason));
			}
			if (UWidget* Widget = Cast<UWidget>(&Object))
			{
				Widget->SynchronizeProperties();
			}
			return 0;
		}

		int Equal(lua_State* State)
		{
			UObject* A = nullptr;
			UObject* B = nullptr;
			lua_pushboolean(State, TryGetLuaObject(State, 1, A) && TryGetLuaObject(State, 2, B) && A == B);
			return 1;
		}

		int ToString(lua_State* State)
		{
			UObject* Object = nullptr;
			PushFString(State, TryGetLuaObject(State, 1, Object) ? Object->GetName() : FString(TEXT("(gone)")));
			return 1;
		}

		int Collect(lua_State* State)
		{
			FindHandle(State, 1)->~FHandle();
			return 0;
		}
	}

	void RegisterLuaObjects(lua_State* State)
	{
		const luaL_Reg Methods[] = { { "__index", &Index }, { "__newindex", &NewIndex }, { "__eq", &Equal }, { "__tostring", &ToString }, { "__gc", &Collect }, { nullptr, nullptr } };
		luaL_newmetatable(State, HandleType);
		luaL_setfuncs(State, Methods, 0);
		lua_pop(State, 1);
	}

	void PushLuaObject(lua_State* State, const UObject* Object)
	{
		if (!Object)
		{
			lua_pushnil(State);
			return;
		}
		new (lua_newuserdatauv(State, sizeof(FHandle), 0)) FHandle{ const_cast<UObject*>(Object) };
		luaL_setmetatable(State, HandleType);
	}

	bool TryGetLuaObject(lua_State* State, int Index, UObject*& OutObject)
	{
		const FHandle* Handle = FindHandle(State, Index);
		OutObject = Handle ? Handle->Object.Get() : nullptr;
		return OutObject != nullptr;
	}

	UObject& CheckLuaObject(lua_State* State, int Index)
	{
		const FHandle* Handle = FindHandle(State, Index);
		if (!Handle)
		{
			luaL_typeerror(State, Index, HandleType);
		}
		UObject* Object = Handle->Object.Get();
		if (!Object)
		{
			luaL_error(State, "the object is gone");
		}
		return *Object;
	}
}
