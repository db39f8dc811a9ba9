#pragma once

#include "CoreTypes.h"

#include <type_traits>

template <typename A, typename B>
struct TIsSame
{
	static constexpr bool Value = std::is_same_v<A, B>;
};

template <typename DerivedType, typename BaseType>
struct TIsDerivedFrom
{
	static constexpr bool Value = std::is_base_of_v<BaseType, DerivedType>;
	static constexpr bool IsDerived = Value;
};

template <typename From, typename To>
struct TPointerIsConvertibleFromTo
{
	static constexpr bool Value = std::is_convertible_v<From*, To*>;
};

template <typename T>
struct TIsPointer
{
	static constexpr bool Value = std::is_pointer_v<T>;
};

template <typename T>
struct TIsEnum
{
	static constexpr bool Value = std::is_enum_v<T>;
};

template <typename T>
struct TIsArithmetic
{
	static constexpr bool Value = std::is_arithmetic_v<T>;
};

template <bool bCondition, typename Result = void>
struct TEnableIf;

template <typename Result>
struct TEnableIf<true, Result>
{
	using Type = Result;
};

template <bool bCondition, typename TrueType, typename FalseType>
struct TChooseClass
{
	using Result = std::conditional_t<bCondition, TrueType, FalseType>;
};

template <typename T>
struct TRemoveReference
{
	using Type = std::remove_reference_t<T>;
};

template <typename T>
struct TRemoveConst
{
	using Type = std::remove_const_t<T>;
};

template <typename T>
struct TRemovePointer
{
	using Type = std::remove_pointer_t<T>;
};

template <typename T>
struct TDecay
{
	using Type = std::decay_t<T>;
};

/** Stops deduction from an argument: the caller names the type or another argument gives it. */
template <typename T>
struct TIdentity
{
	using Type = T;
};

template <typename T>
using TIdentity_T = typename TIdentity<T>::Type;

/** How a value of T is best passed on: small plain types by value, others by constant reference. */
template <typename T>
struct TCallTraits
{
	static constexpr bool bByValue = std::is_scalar_v<T>;
	using ValueType = T;
	using Reference = T&;
	using ConstReference = const T&;
	using ParamType = std::conditional_t<bByValue, const T, const T&>;
	using ConstPointerType = const T*;
};

template <typename T>
struct TIsCharType
{
	static constexpr bool Value = std::is_same_v<T, ANSICHAR> || std::is_same_v<T, UTF8CHAR> || std::is_same_v<T, TCHAR> || std::is_same_v<T, UTF32CHAR>;
};
