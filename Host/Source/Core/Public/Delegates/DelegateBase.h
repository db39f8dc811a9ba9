#pragma once

#include "Host/DelegateInstance.h"
#include "Host/FunctionCall.h"

template <typename FuncType>
class TDelegate;
template <typename FuncType>
class TMulticastDelegate;
template <typename ObjectType>
class TAttribute;

/**
 * A call that can be bound later: to a function, a lambda, or a method of an object. Further arguments given when binding
 * are handed on behind the delegate's own. A binding may be replaced, and its delegate destroyed, during its call.
 */
template <typename Ret, typename... ParamTypes>
class TDelegate<Ret(ParamTypes...)>
{
	using FInstance = Host::TDelegateInstance<Ret(ParamTypes...)>;

public:
	using RetValType = Ret;
	using TFuncType = Ret(ParamTypes...);

	template <typename... VarTypes>
	using TFunctionPtr = std::type_identity_t<Ret (*)(ParamTypes..., std::decay_t<VarTypes>...)>;
	template <typename UserClass, typename... VarTypes>
	using TMethodPtr = std::type_identity_t<Ret (UserClass::*)(ParamTypes..., std::decay_t<VarTypes>...)>;
	template <typename UserClass, typename... VarTypes>
	using TConstMethodPtr = std::type_identity_t<Ret (UserClass::*)(ParamTypes..., std::decay_t<VarTypes>...) const>;

	TDelegate(TYPE_OF_NULLPTR = nullptr) {}
	/** A copy has the same handle and a state of its own. */
	TDelegate(const TDelegate& Other) : Instance(Other.Instance != nullptr ? Other.Instance->Clone() : nullptr) {}
	TDelegate(TDelegate&& Other) : Instance(Other.Instance) { Other.Instance = nullptr; }
	~TDelegate() { Unbind(); }

	TDelegate& operator=(TDelegate Other)
	{
		Swap(Instance, Other.Instance);
		return *this;
	}

	// Makers

	/** Calls a function. */
	template <typename... VarTypes>
	[[nodiscard]] static TDelegate CreateStatic(TFunctionPtr<VarTypes...> Function, VarTypes&&... Vars)
	{
		return Make(Host::FNoGuard(), Function, static_cast<VarTypes&&>(Vars)...);
	}

	/** Calls a lambda, which must not outlive what it refers to. */
	template <typename FunctorType, typename... VarTypes>
	[[nodiscard]] static TDelegate CreateLambda(FunctorType&& Functor, VarTypes&&... Vars)
	{
		return Make(Host::FNoGuard(), static_cast<FunctorType&&>(Functor), static_cast<VarTypes&&>(Vars)...);
	}

	/** Calls a lambda as long as the reflected object lives. */
	template <typename UserClass, typename FunctorType, typename... VarTypes>
	[[nodiscard]] static TDelegate CreateWeakLambda(const UserClass* Object, FunctorType&& Functor, VarTypes&&... Vars)
	{
		return Make(Host::TObjectGuard<UserClass>{ Object }, static_cast<FunctorType&&>(Functor), static_cast<VarTypes&&>(Vars)...);
	}

	/** Calls a method of a reflected object as long as that lives. */
	template <typename UserClass, typename... VarTypes>
	[[nodiscard]] static TDelegate CreateUObject(UserClass* Object, TMethodPtr<UserClass, VarTypes...> Method, VarTypes&&... Vars)
	{
		return MakeForObject(Object, Method, static_cast<VarTypes&&>(Vars)...);
	}
	template <typename UserClass, typename... VarTypes>
	[[nodiscard]] static TDelegate CreateUObject(const UserClass* Object, TConstMethodPtr<UserClass, VarTypes...> Method, VarTypes&&... Vars)
	{
		return MakeForObject(Object, Method, static_cast<VarTypes&&>(Vars)...);
	}

	/** Calls a reflected function by its name, as long as the object lives; a failed check when it has no such function. */
	template <typename UserClass, typename NameType>
	[[nodiscard]] static TDelegate CreateUFunction(UserClass* Object, const NameType& FunctionName)
	{
		check(Object != nullptr);
		return Make(Host::TObjectGuard<UserClass>{ Object }, Host::TReflectedCall<UserClass, Ret, ParamTypes...>{ Object, Object->FindFunctionChecked(FunctionName) });
	}

	/** Calls a method of an object which whoever binds it keeps alive. */
	template <typename UserClass, typename... VarTypes>
	[[nodiscard]] static TDelegate CreateRaw(UserClass* Object, TMethodPtr<UserClass, VarTypes...> Method, VarTypes&&... Vars)
	{
		return MakeForRaw(Object, Method, static_cast<VarTypes&&>(Vars)...);
	}
	template <typename UserClass, typename... VarTypes>
	[[nodiscard]] static TDelegate CreateRaw(const UserClass* Object, TConstMethodPtr<UserClass, VarTypes...> Method, VarTypes&&... Vars)
	{
		return MakeForRaw(Object, Method, static_cast<VarTypes&&>(Vars)...);
	}

	/** Calls a method of a shared object as long as that lives. */
	template <typename UserClass, ESPMode Mode, typename... VarTypes>
	[[nodiscard]] static TDelegate CreateSP(const TSharedRef<UserClass, Mode>& Object, TMethodPtr<UserClass, VarTypes...> Method, VarTypes&&... Vars)
	{
		return MakeForShared(Object, Method, static_cast<VarTypes&&>(Vars)...);
	}
	template <typename UserClass, ESPMode Mode, typename... VarTypes>
	[[nodiscard]] static TDelegate CreateSP(const TSharedRef<UserClass, Mode>& Object, TConstMethodPtr<UserClass, VarTypes...> Method, VarTypes&&... Vars)
	{
		return MakeForShared(Object, Method, static_cast<VarTypes&&>(Vars)...);
	}
	template <typename UserClass, typename... VarTypes>
	[[nodiscard]] static TDelegate CreateSP(UserClass* Object, TMethodPtr<UserClass, VarTypes...> Method, VarTypes&&... Vars)
	{
		return MakeForShared(StaticCastSharedRef<UserClass>(Object->AsShared()), Method, static_cast<VarTypes&&>(Vars)...);
	}
	template <typename UserClass, typename... VarTypes>
	[[nodiscard]] static TDelegate CreateSP(const UserClass* Object, TConstMethodPtr<UserClass, VarTypes...> Method, VarTypes&&... Vars)
	{
		return MakeForShared(StaticCastSharedRef<const UserClass>(Object->AsShared()), Method, static_cast<VarTypes&&>(Vars)...);
	}

	/** Calls a lambda as long as the shared object lives. */
	template <typename UserClass, typename FunctorType, typename... VarTypes>
	[[nodiscard]] static TDelegate CreateSPLambda(const UserClass* Object, FunctorType&& Functor, VarTypes&&... Vars)
	{
		return Make(SharedGuard(StaticCastSharedRef<const UserClass>(Object->AsShared())), static_cast<FunctorType&&>(Functor), static_cast<VarTypes&&>(Vars)...);
	}
	template <typename UserClass, ESPMode Mode, typename FunctorType, typename... VarTypes>
	[[nodiscard]] static TDelegate CreateSPLambda(const TSharedRef<UserClass, Mode>& Object, FunctorType&& Functor, VarTypes&&... Vars)
	{
		return Make(SharedGuard(Object), static_cast<FunctorType&&>(Functor), static_cast<VarTypes&&>(Vars)...);
	}

	// Binding replaces what was bound

	template <typename... VarTypes>
	void BindStatic(TFunctionPtr<VarTypes...> Function, VarTypes&&... Vars) { *this = CreateStatic(Function, static_cast<VarTypes&&>(Vars)...); }
	template <typename FunctorType, typename... VarTypes>
	void BindLambda(FunctorType&& Functor, VarTypes&&... Vars) { *this = CreateLambda(static_cast<FunctorType&&>(Functor), static_cast<VarTypes&&>(Vars)...); }
	template <typename UserClass, typename FunctorType, typename... VarTypes>
	void BindWeakLambda(const UserClass* Object, FunctorType&& Functor, VarTypes&&... Vars) { *this = CreateWeakLambda(Object, static_cast<FunctorType&&>(Functor), static_cast<VarTypes&&>(Vars)...); }
	template <typename UserClass, typename... VarTypes>
	void BindUObject(UserClass* Object, TMethodPtr<UserClass, VarTypes...> Method, VarTypes&&... Vars) { *this = CreateUObject(Object, Method, static_cast<VarTypes&&>(Vars)...); }
	template <typename UserClass, typename... VarTypes>
	void BindUObject(const UserClass* Object, TConstMethodPtr<UserClass, VarTypes...> Method, VarTypes&&... Vars) { *this = CreateUObject(Object, Method, static_cast<VarTypes&&>(Vars)...); }
	template <typename UserClass, typename NameType>
	void BindUFunction(UserClass* Object, const NameType& FunctionName) { *this = CreateUFunction(Object, FunctionName); }
	template <typename UserClass, typename... VarTypes>
	void BindRaw(UserClass* Object, TMethodPtr<UserClass, VarTypes...> Method, VarTypes&&... Vars) { *this = CreateRaw(Object, Method, static_cast<VarTypes&&>(Vars)...); }
	template <typename UserClass, typename... VarTypes>
	void BindRaw(const UserClass* Object, TConstMethodPtr<UserClass, VarTypes...> Method, VarTypes&&... Vars) { *this = CreateRaw(Object, Method, static_cast<VarTypes&&>(Vars)...); }
	template <typename UserClass, ESPMode Mode, typename... VarTypes>
	void BindSP(const TSharedRef<UserClass, Mode>& Object, TMethodPtr<UserClass, VarTypes...> Method, VarTypes&&... Vars) { *this = CreateSP(Object, Method, static_cast<VarTypes&&>(Vars)...); }
	template <typename UserClass, ESPMode Mode, typename... VarTypes>
	void BindSP(const TSharedRef<UserClass, Mode>& Object, TConstMethodPtr<UserClass, VarTypes...> Method, VarTypes&&... Vars) { *this = CreateSP(Object, Method, static_cast<VarTypes&&>(Vars)...); }
	template <typename UserClass, typename... VarTypes>
	void BindSP(UserClass* Object, TMethodPtr<UserClass, VarTypes...> Method, VarTypes&&... Vars) { *this = CreateSP(Object, Method, static_cast<VarTypes&&>(Vars)...); }
	template <typename UserClass, typename... VarTypes>
	void BindSP(const UserClass* Object, TConstMethodPtr<UserClass, VarTypes...> Method, VarTypes&&... Vars) { *this = CreateSP(Object, Method, static_cast<VarTypes&&>(Vars)...); }
	template <typename ObjectType, typename FunctorType, typename... VarTypes>
	void BindSPLambda(ObjectType&& Object, FunctorType&& Functor, VarTypes&&... Vars) { *this = CreateSPLambda(static_cast<ObjectType&&>(Object), static_cast<FunctorType&&>(Functor), static_cast<VarTypes&&>(Vars)...); }

	void Unbind()
	{
		if (FInstance* Old = Instance)
		{
			Instance = nullptr;
			Old->Release();
		}
	}

	// Use

	/** Whether something is bound and its object lives. */
	bool IsBound() const { return Instance != nullptr && Instance->IsSafeToExecute(); }
	/** Whether the binding belongs to that object. */
	bool IsBoundToObject(const void* Object) const { return Object != nullptr && Instance != nullptr && Instance->GetBoundObject() == Object; }

	/** Calls; a failed check when nothing is bound. */
	Ret Execute(ParamTypes... Params) const
	{
		check(Instance != nullptr);
		return Instance->Execute(static_cast<ParamTypes&&>(Params)...);
	}

	/** Calls if something is bound and alive, and says whether it was. Of delegates without a result only. */
	bool ExecuteIfBound(ParamTypes... Params) const
		requires(std::is_void_v<Ret>)
	{
		return Instance != nullptr && Instance->ExecuteIfSafe(nullptr, static_cast<ParamTypes&&>(Params)...);
	}

	FDelegateHandle GetHandle() const { return Instance != nullptr ? Instance->GetHandle() : FDelegateHandle(); }

private:
	template <typename OtherFuncType>
	friend class TMulticastDelegate;
	template <typename ObjectType>
	friend class TAttribute;

	template <typename GuardType, typename CallableType, typename... VarTypes>
	static TDelegate Make(const GuardType& Guard, CallableType&& Callable, VarTypes&&... Vars)
	{
		using FType = Host::TGuardedInstance<Ret(ParamTypes...), GuardType, std::decay_t<CallableType>, std::decay_t<VarTypes>...>;
		TDelegate Result;
		Result.Instance = new FType(FDelegateHandle(FDelegateHandle::GenerateNewHandle), Guard, static_cast<CallableType&&>(Callable), static_cast<VarTypes&&>(Vars)...);
		return Result;
	}

	template <typename UserClass, typename MethodType, typename... VarTypes>
	static TDelegate MakeForObject(UserClass* Object, MethodType Method, VarTypes&&... Vars)
	{
		return Make(Host::TObjectGuard<UserClass>{ Object }, Host::TBoundMethod<UserClass, MethodType>{ Object, Method }, static_cast<VarTypes&&>(Vars)...);
	}

	template <typename UserClass, typename MethodType, typename... VarTypes>
	static TDelegate MakeForRaw(UserClass* Object, MethodType Method, VarTypes&&... Vars)
	{
		return Make(Host::FRawGuard{ Object }, Host::TBoundMethod<UserClass, MethodType>{ Object, Method }, static_cast<VarTypes&&>(Vars)...);
	}

	template <typename UserClass, ESPMode Mode>
	static Host::TSharedGuard<UserClass, Mode> SharedGuard(const TSharedRef<UserClass, Mode>& Object)
	{
		return { Object, &Object.Get() };
	}

	template <typename UserClass, ESPMode Mode, typename MethodType, typename... VarTypes>
	static TDelegate MakeForShared(const TSharedRef<UserClass, Mode>& Object, MethodType Method, VarTypes&&... Vars)
	{
		return Make(SharedGuard(Object), Host::TBoundMethod<UserClass, MethodType>{ &Object.Get(), Method }, static_cast<VarTypes&&>(Vars)...);
	}

	FInstance* Instance = nullptr;
};
