#pragma once

#include "Delegates/Delegate.h"
#include "Misc/Optional.h"

/** A value, or a function that gives one when asked. */
template <typename ObjectType>
class TAttribute
{
public:
	using FGetter = TDelegate<ObjectType()>;

	/** Unset; Get() gives a default value. */
	TAttribute() = default;

	template <typename OtherType>
		requires(std::is_convertible_v<OtherType, ObjectType> && !std::is_same_v<std::remove_cvref_t<OtherType>, TAttribute>)
	TAttribute(OtherType&& InInitialValue)
		: Value(static_cast<OtherType&&>(InInitialValue))
		, bIsSet(true)
	{
	}

	template <typename SourceType>
	TAttribute(const TSharedRef<SourceType>& Object, typename FGetter::template TConstMethodPtr<SourceType> Method)
		: TAttribute(Create(FGetter::CreateSP(Object, Method)))
	{
	}

	template <typename SourceType>
	TAttribute(SourceType* Object, typename FGetter::template TConstMethodPtr<SourceType> Method)
		: TAttribute(Create(FGetter::CreateSP(Object, Method)))
	{
	}

	// Makers of bound attributes

	[[nodiscard]] static TAttribute Create(FGetter InGetter)
	{
		TAttribute Attribute;
		Attribute.Bind(MoveTemp(InGetter));
		return Attribute;
	}

	[[nodiscard]] static TAttribute CreateStatic(typename FGetter::template TFunctionPtr<> Function) { return Create(FGetter::CreateStatic(Function)); }
	template <typename FunctorType>
	[[nodiscard]] static TAttribute CreateLambda(FunctorType&& Functor) { return Create(FGetter::CreateLambda(static_cast<FunctorType&&>(Functor))); }
	template <typename SourceType, typename MethodType>
	[[nodiscard]] static TAttribute CreateSP(SourceType&& Object, MethodType Method) { return Create(FGetter::CreateSP(static_cast<SourceType&&>(Object), Method)); }
	template <typename SourceType, typename MethodType>
	[[nodiscard]] static TAttribute CreateRaw(SourceType* Object, MethodType Method) { return Create(FGetter::CreateRaw(Object, Method)); }
	template <typename SourceType, typename MethodType>
	[[nodiscard]] static TAttribute CreateUObject(SourceType* Object, MethodType Method) { return Create(FGetter::CreateUObject(Object, Method)); }
	template <typename SourceType, typename NameType>
	[[nodiscard]] static TAttribute CreateUFunction(SourceType* Object, const NameType& FunctionName) { return Create(FGetter::CreateUFunction(Object, FunctionName)); }

	/** Sets a value and unbinds. */
	template <typename OtherType>
	void Set(OtherType&& InNewValue)
	{
		Getter.Unbind();
		Value = static_cast<OtherType&&>(InNewValue);
		bIsSet = true;
	}

	void Bind(FGetter InGetter)
	{
		bIsSet = true;
		Getter = MoveTemp(InGetter);
	}

	void BindStatic(typename FGetter::template TFunctionPtr<> Function) { Bind(FGetter::CreateStatic(Function)); }
	template <typename FunctorType>
	void BindLambda(FunctorType&& Functor) { Bind(FGetter::CreateLambda(static_cast<FunctorType&&>(Functor))); }
	template <typename SourceType, typename MethodType>
	void BindSP(SourceType&& Object, MethodType Method) { Bind(FGetter::CreateSP(static_cast<SourceType&&>(Object), Method)); }
	template <typename SourceType, typename MethodType>
	void BindRaw(SourceType* Object, MethodType Method) { Bind(FGetter::CreateRaw(Object, Method)); }
	template <typename SourceType, typename MethodType>
	void BindUObject(SourceType* Object, MethodType Method) { Bind(FGetter::CreateUObject(Object, Method)); }
	template <typename SourceType, typename NameType>
	void BindUFunction(SourceType* Object, const NameType& FunctionName) { Bind(FGetter::CreateUFunction(Object, FunctionName)); }

	/** Back to unset. */
	void Reset() { *this = TAttribute(); }

	/** Whether there is a value or a getter. */
	bool IsSet() const { return bIsSet; }
	/** Whether there is a getter whose object lives. */
	bool IsBound() const { return Getter.IsBound(); }
	const FGetter& GetBinding() const { return Getter; }

	/** The value: what the getter gives, else what it gave last or what was set. */
	const ObjectType& Get() const
	{
		if (auto* Instance = Getter.Instance)
		{
			Instance->ExecuteIfSafe(&Value);
		}
		return Value;
	}

	/** As Get(), or the given value when the attribute is not set: that must outlive the result. */
	const ObjectType& Get(const ObjectType& DefaultValue) const { return bIsSet ? Get() : DefaultValue; }

	/** Whether both have the same value, or the same binding. */
	bool IdenticalTo(const TAttribute& Other) const
	{
		const bool bBound = IsBound();
		if (bBound != Other.IsBound())
		{
			return false;
		}
		if (bBound)
		{
			return Getter.GetHandle() == Other.Getter.GetHandle();
		}
		return bIsSet == Other.bIsSet && (!bIsSet || Value == Other.Value);
	}

private:
	mutable ObjectType Value{};
	bool bIsSet = false;
	FGetter Getter;
};

/** An attribute that asks a lambda. */
template <typename LambdaType>
[[nodiscard]] auto MakeAttributeLambda(LambdaType&& Callable) -> TAttribute<std::decay_t<decltype(Callable())>>
{
	return TAttribute<std::decay_t<decltype(Callable())>>::CreateLambda(static_cast<LambdaType&&>(Callable));
}

/** An attribute that asks a lambda as long as the reflected object lives. */
template <typename UserClass, typename LambdaType>
[[nodiscard]] auto MakeAttributeWeakLambda(const UserClass* Object, LambdaType&& Callable) -> TAttribute<std::decay_t<decltype(Callable())>>
{
	using FAttribute = TAttribute<std::decay_t<decltype(Callable())>>;
	return FAttribute::Create(FAttribute::FGetter::CreateWeakLambda(Object, static_cast<LambdaType&&>(Callable)));
}

/** An attribute that asks a method of a shared object. */
template <typename Ret, typename SourceType, typename MethodClass>
[[nodiscard]] TAttribute<std::decay_t<Ret>> MakeAttributeSP(SourceType&& Object, Ret (MethodClass::*Method)() const)
{
	return TAttribute<std::decay_t<Ret>>::CreateSP(static_cast<SourceType&&>(Object), Method);
}

/** An attribute that asks a method of an object which whoever binds it keeps alive. */
template <typename Ret, typename SourceType, typename MethodClass>
[[nodiscard]] TAttribute<std::decay_t<Ret>> MakeAttributeRaw(const SourceType* Object, Ret (MethodClass::*Method)() const)
{
	return TAttribute<std::decay_t<Ret>>::CreateRaw(Object, Method);
}

/** An attribute that asks a method of a reflected object. */
template <typename Ret, typename SourceType, typename MethodClass>
[[nodiscard]] TAttribute<std::decay_t<Ret>> MakeAttributeUObject(const SourceType* Object, Ret (MethodClass::*Method)() const)
{
	return TAttribute<std::decay_t<Ret>>::CreateUObject(Object, Method);
}
