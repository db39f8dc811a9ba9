#pragma once

#include "Templates/UnrealTemplate.h"

namespace Host
{
	/** The object behind a reference, a pointer or a smart pointer, to apply a member of Class to. */
	template <typename Class, typename TargetType>
	constexpr decltype(auto) MemberTarget(TargetType&& Target)
	{
		if constexpr (std::is_base_of_v<Class, std::remove_cvref_t<TargetType>>)
		{
			return static_cast<TargetType&&>(Target);
		}
		else
		{
			return *Target;
		}
	}
}

/** Calls a callable object or function. */
template <typename FuncType, typename... ArgTypes>
	requires(!std::is_member_pointer_v<std::decay_t<FuncType>>)
FORCEINLINE constexpr decltype(auto) Invoke(FuncType&& Func, ArgTypes&&... Args)
{
	return static_cast<FuncType&&>(Func)(static_cast<ArgTypes&&>(Args)...);
}

/** The member that a pointer to a data member names, of an object, pointer or smart pointer. */
template <typename ReturnType, typename Class, typename TargetType>
	requires(!std::is_function_v<ReturnType>)
constexpr decltype(auto) Invoke(ReturnType Class::*Member, TargetType&& Target)
{
	return (Host::MemberTarget<Class>(static_cast<TargetType&&>(Target)).*Member);
}

/** Calls a method of an object, pointer or smart pointer. */
template <typename FuncType, typename Class, typename TargetType, typename... ArgTypes>
	requires(std::is_function_v<FuncType>)
constexpr decltype(auto) Invoke(FuncType Class::*Member, TargetType&& Target, ArgTypes&&... Args)
{
	return (Host::MemberTarget<Class>(static_cast<TargetType&&>(Target)).*Member)(static_cast<ArgTypes&&>(Args)...);
}

/** Type of what a callable returns for the given arguments. */
template <typename FuncType, typename... ArgTypes>
struct TInvokeResult
{
	using Type = std::invoke_result_t<FuncType, ArgTypes...>;
};
template <typename FuncType, typename... ArgTypes>
using TInvokeResult_T = typename TInvokeResult<FuncType, ArgTypes...>::Type;

/** Makes an object of an overloaded or template function: Algo::Transform(A, B, PROJECTION(LexToString)). */
#define PROJECTION(FuncName) \
	[](auto&&... Args) -> decltype(auto) { return FuncName(static_cast<decltype(Args)&&>(Args)...); }
