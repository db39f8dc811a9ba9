#pragma once

#include "Host/DynamicParms.h"
#include "UObject/ScriptDelegates.h"

#include <type_traits>

/*
 * Dynamic delegates: bound by object and function name, reflected, and open to scripts.
 *
 * DECLARE_DYNAMIC_DELEGATE[_<N>Param[s]](FName, Type1, Name1, ...)                 one binding
 * DECLARE_DYNAMIC_DELEGATE_RetVal[_<N>Param[s]](Result, FName, Type1, Name1, ...)  one binding with a result
 * DECLARE_DYNAMIC_MULTICAST_DELEGATE[_<N>Param[s]](FName, Type1, Name1, ...)       a list of bindings
 */

namespace Host
{
	/** The type of the member functions of a class that can be bound. */
	template<typename TUserClass, typename TResult, typename... TParms>
	struct TMethodOf
	{
		using FMethod = TResult (TUserClass::*)(TParms...);
	};

	template<typename TUserClass>
	UObject* BoundObjectOf(TUserClass* Object)
	{
		static_assert(std::is_base_of_v<UObject, TUserClass>, "Only reflected functions of objects can be bound to a dynamic delegate");
		return static_cast<UObject*>(const_cast<std::remove_const_t<TUserClass>*>(Object));
	}
}

/** A dynamic delegate with one binding. */
template<typename TWeakPtr, typename RetValType, typename... ParamTypes>
class TBaseDynamicDelegate : public TScriptDelegate<TWeakPtr>
{
public:
	TBaseDynamicDelegate() = default;
	explicit TBaseDynamicDelegate(const TScriptDelegate<TWeakPtr>& InScriptDelegate) : TScriptDelegate<TWeakPtr>(InScriptDelegate) {}

	/** Called by the macro BindDynamic. */
	template<typename UserClass>
	void __Internal_BindDynamic(UserClass* InUserObject, typename Host::TMethodOf<std::type_identity_t<UserClass>, RetValType, ParamTypes...>::FMethod InMethodPtr, const FName& InFunctionName)
	{
		check(InUserObject && InMethodPtr);
		this->BindUFunction(Host::BoundObjectOf(InUserObject), InFunctionName);
		if (!this->IsBound())
		{
			Host::ReportUnboundFunction(InFunctionName);
		}
	}

protected:
	RetValType ExecuteParms(ParamTypes&... Values) const
	{
		if constexpr (std::is_void_v<RetValType>)
		{
			Host::TDynamicParms<ParamTypes...> Parms(Values...);
			this->ProcessDelegate(Parms.GetData());
			Parms.CopyOut(Values...);
		}
		else
		{
			Host::TDynamicParms<ParamTypes..., RetValType> Parms(Values..., Host::TParm<RetValType>{});
			this->ProcessDelegate(Parms.GetData());
			Parms.CopyOut(Values...);
			return Parms.template Get<sizeof...(ParamTypes)>();
		}
	}

	bool ExecuteParmsIfBound(ParamTypes&... Values) const
	{
		if (!this->IsBound())
		{
			return false;
		}
		ExecuteParms(Values...);
		return true;
	}
};

/** A dynamic delegate with a list of bindings. */
template<typename TWeakPtr, typename RetValType, typename... ParamTypes>
class TBaseDynamicMulticastDelegate : public TMulticastScriptDelegate<TWeakPtr>
{
	static_assert(std::is_void_v<RetValType>, "A multicast delegate has no result");

public:
	TBaseDynamicMulticastDelegate() = default;
	explicit TBaseDynamicMulticastDelegate(const TMulticastScriptDelegate<TWeakPtr>& InList) : TMulticastScriptDelegate<TWeakPtr>(InList) {}

	/** Called by the macro AddDynamic. */
	template<typename UserClass>
	void __Internal_AddDynamic(UserClass* InUserObject, typename Host::TMethodOf<std::type_identity_t<UserClass>, RetValType, ParamTypes...>::FMethod InMethodPtr, const FName& InFunctionName)
	{
		this->Add(MakeBinding(InUserObject, InMethodPtr, InFunctionName));
	}

	/** Called by the macro AddUniqueDynamic. */
	template<typename UserClass>
	void __Internal_AddUniqueDynamic(UserClass* InUserObject, typename Host::TMethodOf<std::type_identity_t<UserClass>, RetValType, ParamTypes...>::FMethod InMethodPtr, const FName& InFunctionName)
	{
		this->AddUnique(MakeBinding(InUserObject, InMethodPtr, InFunctionName));
	}

	/** Called by the macro RemoveDynamic. */
	template<typename UserClass>
	void __Internal_RemoveDynamic(UserClass* InUserObject, typename Host::TMethodOf<std::type_identity_t<UserClass>, RetValType, ParamTypes...>::FMethod InMethodPtr, const FName& InFunctionName)
	{
		check(InUserObject && InMethodPtr);
		this->Remove(Host::BoundObjectOf(InUserObject), InFunctionName);
	}

	/** Called by the macro IsAlreadyBound. */
	template<typename UserClass>
	bool __Internal_IsAlreadyBound(UserClass* InUserObject, typename Host::TMethodOf<std::type_identity_t<UserClass>, RetValType, ParamTypes...>::FMethod InMethodPtr, const FName& InFunctionName) const
	{
		check(InUserObject && InMethodPtr);
		return this->Contains(Host::BoundObjectOf(InUserObject), InFunctionName);
	}

protected:
	void BroadcastParms(ParamTypes&... Values) const
	{
		if (this->HasBindings())
		{
			Host::TDynamicParms<ParamTypes...> Parms(Values...);
			this->ProcessMulticastDelegate(Parms.GetData());
			Parms.CopyOut(Values...);
		}
	}

private:
	template<typename UserClass, typename TMethod>
	static TScriptDelegate<TWeakPtr> MakeBinding(UserClass* InUserObject, TMethod InMethodPtr, const FName& InFunctionName)
	{
		check(InUserObject && InMethodPtr);
		TScriptDelegate<TWeakPtr> Binding;
		Binding.BindUFunction(Host::BoundObjectOf(InUserObject), InFunctionName);
		if (!Binding.IsBound())
		{
			Host::ReportUnboundFunction(InFunctionName);
		}
		return Binding;
	}
};

/** Name of the function in "&Class::Function", found once a place. */
#define STATIC_FUNCTION_FNAME(Text) \
	([]() -> const FName& { static const FName FunctionName = ::Host::FunctionNameFromText(Text); return FunctionName; })()

/** Binds a reflected member function: Delegate.BindDynamic(Object, &UClass::Function). */
#define BindDynamic(UserObject, FuncName) __Internal_BindDynamic(UserObject, FuncName, STATIC_FUNCTION_FNAME(TEXT(#FuncName)))
/** Appends a reflected member function; one that is there already is reported as a mistake, and appended all the same. */
#define AddDynamic(UserObject, FuncName) __Internal_AddDynamic(UserObject, FuncName, STATIC_FUNCTION_FNAME(TEXT(#FuncName)))
/** Appends a reflected member function unless it is there. */
#define AddUniqueDynamic(UserObject, FuncName) __Internal_AddUniqueDynamic(UserObject, FuncName, STATIC_FUNCTION_FNAME(TEXT(#FuncName)))
/** Removes one binding of a reflected member function, if there is any. */
#define RemoveDynamic(UserObject, FuncName) __Internal_RemoveDynamic(UserObject, FuncName, STATIC_FUNCTION_FNAME(TEXT(#FuncName)))
/** Asks for a binding of a reflected member function. */
#define IsAlreadyBound(UserObject, FuncName) __Internal_IsAlreadyBound(UserObject, FuncName, STATIC_FUNCTION_FNAME(TEXT(#FuncName)))

#define HOST_DYNAMIC_TYPES(...) __VA_OPT__(,) __VA_ARGS__

// Types, Parameters and Arguments are lists in parentheses. The header tool reads the parameters' names off the functions.
#define HOST_DYNAMIC_DELEGATE(DelegateName, Result, Types, Parameters, Arguments) \
	class DelegateName : public TBaseDynamicDelegate<FWeakObjectPtr, Result HOST_DYNAMIC_TYPES Types> \
	{ \
	public: \
		using TBaseDynamicDelegate::TBaseDynamicDelegate; \
		DelegateName() = default; \
		/** Calls the bound function; asserts that there is one. */ \
		Result Execute Parameters const { return this->ExecuteParms Arguments; } \
		/** As Execute; false when nothing is bound. */ \
		bool ExecuteIfBound Parameters const { return this->ExecuteParmsIfBound Arguments; } \
	}

#define HOST_DYNAMIC_MULTICAST_DELEGATE(DelegateName, Types, Parameters, Arguments) \
	class DelegateName : public TBaseDynamicMulticastDelegate<FWeakObjectPtr, void HOST_DYNAMIC_TYPES Types> \
	{ \
	public: \
		using TBaseDynamicMulticastDelegate::TBaseDynamicMulticastDelegate; \
		DelegateName() = default; \
		/** Calls the bindings that are there now, in order. */ \
		void Broadcast Parameters const { this->BroadcastParms Arguments; } \
	}

#define DECLARE_DYNAMIC_DELEGATE(DelegateName) \
	HOST_DYNAMIC_DELEGATE(DelegateName, void, (), (), ())
#define DECLARE_DYNAMIC_DELEGATE_RetVal(ReturnValueType, DelegateName) \
	HOST_DYNAMIC_DELEGATE(DelegateName, ReturnValueType, (), (), ())
#define DECLARE_DYNAMIC_MULTICAST_DELEGATE(DelegateName) \
	HOST_DYNAMIC_MULTICAST_DELEGATE(DelegateName, (), (), ())

#define DECLARE_DYNAMIC_DELEGATE_OneParam(DelegateName, Param1Type, Param1Name) \
	HOST_DYNAMIC_DELEGATE(DelegateName, void, (Param1Type), (Param1Type Param1Name), (Param1Name))
#define DECLARE_DYNAMIC_DELEGATE_RetVal_OneParam(ReturnValueType, DelegateName, Param1Type, Param1Name) \
	HOST_DYNAMIC_DELEGATE(DelegateName, ReturnValueType, (Param1Type), (Param1Type Param1Name), (Param1Name))
#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(DelegateName, Param1Type, Param1Name) \
	HOST_DYNAMIC_MULTICAST_DELEGATE(DelegateName, (Param1Type), (Param1Type Param1Name), (Param1Name))

#define DECLARE_DYNAMIC_DELEGATE_TwoParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name) \
	HOST_DYNAMIC_DELEGATE(DelegateName, void, (Param1Type, Param2Type), (Param1Type Param1Name, Param2Type Param2Name), (Param1Name, Param2Name))
#define DECLARE_DYNAMIC_DELEGATE_RetVal_TwoParams(ReturnValueType, DelegateName, Param1Type, Param1Name, Param2Type, Param2Name) \
	HOST_DYNAMIC_DELEGATE(DelegateName, ReturnValueType, (Param1Type, Param2Type), (Param1Type Param1Name, Param2Type Param2Name), (Param1Name, Param2Name))
#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name) \
	HOST_DYNAMIC_MULTICAST_DELEGATE(DelegateName, (Param1Type, Param2Type), (Param1Type Param1Name, Param2Type Param2Name), (Param1Name, Param2Name))

#define DECLARE_DYNAMIC_DELEGATE_ThreeParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name) \
	HOST_DYNAMIC_DELEGATE(DelegateName, void, (Param1Type, Param2Type, Param3Type), (Param1Type Param1Name, Param2Type Param2Name, Param3Type Param3Name), (Param1Name, Param2Name, Param3Name))
#define DECLARE_DYNAMIC_DELEGATE_RetVal_ThreeParams(ReturnValueType, DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name) \
	HOST_DYNAMIC_DELEGATE(DelegateName, ReturnValueType, (Param1Type, Param2Type, Param3Type), (Param1Type Param1Name, Param2Type Param2Name, Param3Type Param3Name), (Param1Name, Param2Name, Param3Name))
#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_ThreeParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name) \
	HOST_DYNAMIC_MULTICAST_DELEGATE(DelegateName, (Param1Type, Param2Type, Param3Type), (Param1Type Param1Name, Param2Type Param2Name, Param3Type Param3Name), (Param1Name, Param2Name, Param3Name))

#define DECLARE_DYNAMIC_DELEGATE_FourParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name) \
	HOST_DYNAMIC_DELEGATE(DelegateName, void, (Param1Type, Param2Type, Param3Type, Param4Type), (Param1Type Param1Name, Param2Type Param2Name, Param3Type Param3Name, Param4Type Param4Name), (Param1Name, Param2Name, Param3Name, Param4Name))
#define DECLARE_DYNAMIC_DELEGATE_RetVal_FourParams(ReturnValueType, DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name) \
	HOST_DYNAMIC_DELEGATE(DelegateName, ReturnValueType, (Param1Type, Param2Type, Param3Type, Param4Type), (Param1Type Param1Name, Param2Type Param2Name, Param3Type Param3Name, Param4Type Param4Name), (Param1Name, Param2Name, Param3Name, Param4Name))
#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_FourParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name) \
	HOST_DYNAMIC_MULTICAST_DELEGATE(DelegateName, (Param1Type, Param2Type, Param3Type, Param4Type), (Param1Type Param1Name, Param2Type Param2Name, Param3Type Param3Name, Param4Type Param4Name), (Param1Name, Param2Name, Param3Name, Param4Name))

#define DECLARE_DYNAMIC_DELEGATE_FiveParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name) \
	HOST_DYNAMIC_DELEGATE(DelegateName, void, (Param1Type, Param2Type, Param3Type, Param4Type, Param5Type), (Param1Type Param1Name, Param2Type Param2Name, Param3Type Param3Name, Param4Type Param4Name, Param5Type Param5Name), (Param1Name, Param2Name, Param3Name, Param4Name, Param5Name))
#define DECLARE_DYNAMIC_DELEGATE_RetVal_FiveParams(ReturnValueType, DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name) \
	HOST_DYNAMIC_DELEGATE(DelegateName, ReturnValueType, (Param1Type, Param2Type, Param3Type, Param4Type, Param5Type), (Param1Type Param1Name, Param2Type Param2Name, Param3Type Param3Name, Param4Type Param4Name, Param5Type Param5Name), (Param1Name, Param2Name, Param3Name, Param4Name, Param5Name))
#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_FiveParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name) \
	HOST_DYNAMIC_MULTICAST_DELEGATE(DelegateName, (Param1Type, Param2Type, Param3Type, Param4Type, Param5Type), (Param1Type Param1Name, Param2Type Param2Name, Param3Type Param3Name, Param4Type Param4Name, Param5Type Param5Name), (Param1Name, Param2Name, Param3Name, Param4Name, Param5Name))

#define DECLARE_DYNAMIC_DELEGATE_SixParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name) \
	HOST_DYNAMIC_DELEGATE(DelegateName, void, (Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type), (Param1Type Param1Name, Param2Type Param2Name, Param3Type Param3Name, Param4Type Param4Name, Param5Type Param5Name, Param6Type Param6Name), (Param1Name, Param2Name, Param3Name, Param4Name, Param5Name, Param6Name))
#define DECLARE_DYNAMIC_DELEGATE_RetVal_SixParams(ReturnValueType, DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name) \
	HOST_DYNAMIC_DELEGATE(DelegateName, ReturnValueType, (Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type), (Param1Type Param1Name, Param2Type Param2Name, Param3Type Param3Name, Param4Type Param4Name, Param5Type Param5Name, Param6Type Param6Name), (Param1Name, Param2Name, Param3Name, Param4Name, Param5Name, Param6Name))
#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_SixParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name) \
	HOST_DYNAMIC_MULTICAST_DELEGATE(DelegateName, (Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type), (Param1Type Param1Name, Param2Type Param2Name, Param3Type Param3Name, Param4Type Param4Name, Param5Type Param5Name, Param6Type Param6Name), (Param1Name, Param2Name, Param3Name, Param4Name, Param5Name, Param6Name))

#define DECLARE_DYNAMIC_DELEGATE_SevenParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name, Param7Type, Param7Name) \
	HOST_DYNAMIC_DELEGATE(DelegateName, void, (Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type), (Param1Type Param1Name, Param2Type Param2Name, Param3Type Param3Name, Param4Type Param4Name, Param5Type Param5Name, Param6Type Param6Name, Param7Type Param7Name), (Param1Name, Param2Name, Param3Name, Param4Name, Param5Name, Param6Name, Param7Name))
#define DECLARE_DYNAMIC_DELEGATE_RetVal_SevenParams(ReturnValueType, DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name, Param7Type, Param7Name) \
	HOST_DYNAMIC_DELEGATE(DelegateName, ReturnValueType, (Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type), (Param1Type Param1Name, Param2Type Param2Name, Param3Type Param3Name, Param4Type Param4Name, Param5Type Param5Name, Param6Type Param6Name, Param7Type Param7Name), (Param1Name, Param2Name, Param3Name, Param4Name, Param5Name, Param6Name, Param7Name))
#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_SevenParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name, Param7Type, Param7Name) \
	HOST_DYNAMIC_MULTICAST_DELEGATE(DelegateName, (Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type), (Param1Type Param1Name, Param2Type Param2Name, Param3Type Param3Name, Param4Type Param4Name, Param5Type Param5Name, Param6Type Param6Name, Param7Type Param7Name), (Param1Name, Param2Name, Param3Name, Param4Name, Param5Name, Param6Name, Param7Name))

#define DECLARE_DYNAMIC_DELEGATE_EightParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name, Param7Type, Param7Name, Param8Type, Param8Name) \
	HOST_DYNAMIC_DELEGATE(DelegateName, void, (Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type, Param8Type), (Param1Type Param1Name, Param2Type Param2Name, Param3Type Param3Name, Param4Type Param4Name, Param5Type Param5Name, Param6Type Param6Name, Param7Type Param7Name, Param8Type Param8Name), (Param1Name, Param2Name, Param3Name, Param4Name, Param5Name, Param6Name, Param7Name, Param8Name))
#define DECLARE_DYNAMIC_DELEGATE_RetVal_EightParams(ReturnValueType, DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name, Param7Type, Param7Name, Param8Type, Param8Name) \
	HOST_DYNAMIC_DELEGATE(DelegateName, ReturnValueType, (Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type, Param8Type), (Param1Type Param1Name, Param2Type Param2Name, Param3Type Param3Name, Param4Type Param4Name, Param5Type Param5Name, Param6Type Param6Name, Param7Type Param7Name, Param8Type Param8Name), (Param1Name, Param2Name, Param3Name, Param4Name, Param5Name, Param6Name, Param7Name, Param8Name))
#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_EightParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name, Param7Type, Param7Name, Param8Type, Param8Name) \
	HOST_DYNAMIC_MULTICAST_DELEGATE(DelegateName, (Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type, Param8Type), (Param1Type Param1Name, Param2Type Param2Name, Param3Type Param3Name, Param4Type Param4Name, Param5Type Param5Name, Param6Type Param6Name, Param7Type Param7Name, Param8Type Param8Name), (Param1Name, Param2Name, Param3Name, Param4Name, Param5Name, Param6Name, Param7Name, Param8Name))

#define DECLARE_DYNAMIC_DELEGATE_NineParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name, Param7Type, Param7Name, Param8Type, Param8Name, Param9Type, Param9Name) \
	HOST_DYNAMIC_DELEGATE(DelegateName, void, (Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type, Param8Type, Param9Type), (Param1Type Param1Name, Param2Type Param2Name, Param3Type Param3Name, Param4Type Param4Name, Param5Type Param5Name, Param6Type Param6Name, Param7Type Param7Name, Param8Type Param8Name, Param9Type Param9Name), (Param1Name, Param2Name, Param3Name, Param4Name, Param5Name, Param6Name, Param7Name, Param8Name, Param9Name))
#define DECLARE_DYNAMIC_DELEGATE_RetVal_NineParams(ReturnValueType, DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name, Param7Type, Param7Name, Param8Type, Param8Name, Param9Type, Param9Name) \
	HOST_DYNAMIC_DELEGATE(DelegateName, ReturnValueType, (Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type, Param8Type, Param9Type), (Param1Type Param1Name, Param2Type Param2Name, Param3Type Param3Name, Param4Type Param4Name, Param5Type Param5Name, Param6Type Param6Name, Param7Type Param7Name, Param8Type Param8Name, Param9Type Param9Name), (Param1Name, Param2Name, Param3Name, Param4Name, Param5Name, Param6Name, Param7Name, Param8Name, Param9Name))
#define DECLARE_DYNAMIC_MULTICAST_DELEGATE_NineParams(DelegateName, Param1Type, Param1Name, Param2Type, Param2Name, Param3Type, Param3Name, Param4Type, Param4Name, Param5Type, Param5Name, Param6Type, Param6Name, Param7Type, Param7Name, Param8Type, Param8Name, Param9Type, Param9Name) \
	HOST_DYNAMIC_MULTICAST_DELEGATE(DelegateName, (Param1Type, Param2Type, Param3Type, Param4Type, Param5Type, Param6Type, Param7Type, Param8Type, Param9Type), (Param1Type Param1Name, Param2Type Param2Name, Param3Type Param3Name, Param4Type Param4Name, Param5Type Param5Name, Param6Type Param6Name, Param7Type Param7Name, Param8Type Param8Name, Param9Type Param9Name), (Param1Name, Param2Name, Param3Name, Param4Name, Param5Name, Param6Name, Param7Name, Param8Name, Param9Name))
