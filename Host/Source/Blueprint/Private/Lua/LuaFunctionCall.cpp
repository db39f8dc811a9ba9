#include "Lua/LuaFunctionCall.h"

#include "GraphCallback.h"
#include "Host/BlueprintReport.h"
#include "Lua/LuaApi.h"
#include "Lua/LuaMachine.h"
#include "Lua/LuaObject.h"
#include "Lua/LuaValue.h"
#include "UObject/UnrealType.h"

namespace Host
{
	namespace
	{
		/** Memory for the parameters of one call, with default values in it. */
		class FParameters
		{
		public:
			explicit FParameters(const UFunction& InFunction)
				: Function(InFunction)
				, Memory(FMemory::Malloc(static_cast<SIZE_T>(FMath::Max<int32>(InFunction.ParmsSize, 1)), 16))
			{
				for (TFieldIterator<FProperty> It(&Function); It; ++It)
				{
					It->InitializeValue_InContainer(Memory);
				}
			}
			~FParameters()
			{
				for (TFieldIterator<FProperty> It(&Function); It; ++It)
				{
					It->DestroyValue_InContainer(Memory);
				}
				FMemory::Free(Memory);
			}
			FParameters(const FParameters&) = delete;
			FParameters& operator=(const FParameters&) = delete;

			void* Get() const { return Memory; }

		private:
			const UFunction& Function;
			void* Memory;
		};

		bool IsReturn(const FProperty& Property)
		{
			return Property.HasAnyPropertyFlags(CPF_ReturnParm);
		}

		/** A parameter by which the function gives something back. */
		bool IsOut(const FProperty& Property)
		{
			return Property.HasAnyPropertyFlags(CPF_OutParm) && !Property.HasAnyPropertyFlags(CPF_ReturnParm | CPF_ConstParm);
		}

		/** Binds a delegate to the function at the index, for as long as the object that is called lives. */
		void ReadDelegate(lua_State* State, int Index, UObject& Self, const FDelegateProperty& Property, void* Value)
		{
			lua_pushvalue(State, Index);
			UGraphCallback* Callback = UGraphCallback::Make(Self, *Property.SignatureFunction, State);
			FScriptDelegate Delegate;
			Delegate.BindUFunction(Callback, Callback->GetFunctionName());
			Property.SetPropertyValue(Value, Delegate);
		}

		/** Reads what the script passed, or the default that the declaration names. */
		bool ReadParameter(lua_State* State, int Index, UObject& Self, const UFunction& Function, const FProperty& Property, void* Parms, FString& OutReason)
		{
			void* Value = Property.ContainerPtrToValuePtr<void>(Parms);
			if (const FDelegateProperty* Delegate = CastField<FDelegateProperty>(&Property); Delegate && lua_isfunction(State, Index))
			{
				ReadDelegate(State, Index, Self, *Delegate, Value);
				return true;
			}
			if (!lua_isnoneornil(State, Index))
			{
				return ReadLuaValue(State, Index, Property, Value, OutReason);
			}
			if (const FString* Default = Function.FindMetaData(*(TEXT("CPP_Default_") + Property.GetName())))
			{
				Property.ImportText_Direct(**Default, Value, nullptr, PPF_None);
			}
			return true;
		}

		int CallFunction(lua_State* State)
		{
			UFunction& Function = *static_cast<UFunction*>(lua_touserdata(State, lua_upvalueindex(1)));
			UObject* Self = &CheckLuaObject(State, 1);
			if (UClass* Class = Cast<UClass>(Self); Class && Class->IsChildOf(Function.GetOuterUClass()))
			{
				Self = Class->GetDefaultObject();
			}
			if (const UClass* Owner = Function.GetOuterUClass(); !Self->IsA(Owner) && !Self->GetClass()->ImplementsInterface(Owner))
			{
				return luaL_error(State, "%s is no function of %s (call it with a colon)", TCHAR_TO_UTF8(*Function.GetName()), TCHAR_TO_UTF8(*Self->GetClass()->GetName()));
			}
			const FParameters Parameters(Function);
			int Argument = 2;
			for (TFieldIterator<FProperty> It(&Function); It; ++It)
			{
				FString Reason;
				if (!IsReturn(**It) && !ReadParameter(State, Argument++, *Self, Function, **It, Parameters.Get(), Reason))
				{
					return luaL_error(State, "%s, parameter %s: %s", TCHAR_TO_UTF8(*Function.GetName()), TCHAR_TO_UTF8(*It->GetName()), TCHAR_TO_UTF8(*Reason));
				}
			}
			Self->ProcessEvent(&Function, Parameters.Get());

			int Results = 0;
			if (const FProperty* Return = Function.GetReturnProperty())
			{
				PushLuaValue(State, *Return, Return->ContainerPtrToValuePtr<void>(Parameters.Get()));
				++Results;
			}
			for (TFieldIterator<FProperty> It(&Function); It; ++It)
			{
				if (IsOut(**It))
				{
					PushLuaValue(State, **It, It->ContainerPtrToValuePtr<void>(Parameters.Get()));
					++Results;
				}
			}
			return Results;
		}

		void TakeResult(lua_State* State, int Index, const UFunction& Signature, const FProperty& Property, void* Parms)
		{
			FString Reason;
			if (!lua_isnil(State, Index) && !ReadLuaValue(State, Index, Property, Property.ContainerPtrToValuePtr<void>(Parms), Reason))
			{
				ReportBlueprintError(FString::Printf(TEXT("%s: the result %s: %s"), *Signature.GetName(), *Property.GetName(), *Reason));
			}
		}
	}

	void PushLuaFunction(lua_State* State, UFunction& Function)
	{
		lua_pushlightuserdata(State, &Function);
		lua_pushcclosure(State, &CallFunction, 1);
	}

	namespace
	{
		/** How many arguments the function on top of the stack has a use for. */
		int32 CountWantedArguments(lua_State* State)
		{
			lua_Debug Info;
			lua_pushvalue(State, -1);
			lua_getinfo(State, ">u", &Info);
			return Info.isvararg ? TNumericLimits<int32>::Max() : int32(Info.nparams);
		}
	}

	void CallScriptedFunction(const FLuaReference& Script, const UObject* Self, const UFunction& Signature, void* Parms)
	{
		FLuaMachine* Machine = FLuaMachine::GetIfRunning();
		if (!Machine || !Script.IsSet())
		{
			return;
		}
		lua_State* State = Machine->GetState();
		luaL_checkstack(State, Signature.NumParms + 8, nullptr);
		const int Base = lua_gettop(State);
		Script.Push(State);
		// What a script has no parameter for is not converted: it may be the data of a whole project.
		const int32 NumWanted = CountWantedArguments(State);
		int32 NumArguments = 0;
		if (Self && NumWanted > 0)
		{
			PushLuaObject(State, Self);
			++NumArguments;
		}
		int32 NumResults = 0;
		const FProperty* Return = Signature.GetReturnProperty();
		NumResults += Return != nullptr;
		for (TFieldIterator<FProperty> It(&Signature); It; ++It)
		{
			if (IsReturn(**It))
			{
				continue;
			}
			NumResults += IsOut(**It);
			if (NumArguments < NumWanted)
			{
				PushLuaValue(State, **It, It->ContainerPtrToValuePtr<void>(Parms));
				++NumArguments;
			}
		}
		if (Machine->Call(NumArguments, NumResults))
		{
			int Index = Base + 1;
			if (Return)
			{
				TakeResult(State, Index++, Signature, *Return, Parms);
			}
			for (TFieldIterator<FProperty> It(&Signature); It; ++It)
			{
				if (IsOut(**It))
				{
					TakeResult(State, Index++, Signature, **It, Parms);
				}
			}
		}
		lua_settop(State, Base);
	}
}
