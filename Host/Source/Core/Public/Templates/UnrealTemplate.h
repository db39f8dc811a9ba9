#pragma once

#include "CoreTypes.h"
#include "Templates/UnrealTypeTraits.h"

#include <new>
#include <utility>

/** Marks a named value as one that may be moved from. Refuses constants, which would silently be copied. */
template <typename T>
constexpr std::remove_reference_t<T>&& MoveTemp(T&& Value) noexcept
{
	static_assert(std::is_lvalue_reference_v<T>, "MoveTemp is for named values: a temporary moves by itself");
	static_assert(!std::is_const_v<std::remove_reference_t<T>>, "MoveTemp of a constant would copy");
	return static_cast<std::remove_reference_t<T>&&>(Value);
}

/** As MoveTemp, also for constants and temporaries (generic code). */
template <typename T>
constexpr std::remove_reference_t<T>&& MoveTempIfPossible(T&& Value) noexcept
{
	return static_cast<std::remove_reference_t<T>&&>(Value);
}

/** Passes an argument on with the value category that it came with. */
template <typename T>
constexpr T&& Forward(std::remove_reference_t<T>& Value) noexcept
{
	return static_cast<T&&>(Value);
}

template <typename T>
constexpr T&& Forward(std::remove_reference_t<T>&& Value) noexcept
{
	return static_cast<T&&>(Value);
}

/** A copy of the value, as a temporary. */
template <typename T>
constexpr T CopyTemp(const T& Value)
{
	return Value;
}

/** Exchanges two values. */
template <typename T>
constexpr void Swap(T& A, T& B)
{
	T Temporary = static_cast<T&&>(A);
	A = static_cast<T&&>(B);
	B = static_cast<T&&>(Temporary);
}

/** The address of an object, whatever its operator& says. */
template <typename T>
constexpr T* AddressOf(T& Object)
{
	return __builtin_addressof(Object);
}

/** The reference as one to a constant. */
template <typename T>
constexpr const T& AsConst(T& Value)
{
	return Value;
}

template <typename T>
void AsConst(const T&&) = delete;

template <typename T, std::size_t Num>
constexpr SIZE_T GetNum(const T (&)[Num])
{
	return Num;
}

template <typename T, std::size_t Num>
constexpr T* GetData(T (&Array)[Num])
{
	return Array;
}

/** Elements of a container that knows their address and number. */
template <typename ContainerType>
constexpr auto GetData(ContainerType&& Container) -> decltype(Container.GetData())
{
	return Container.GetData();
}

template <typename ContainerType>
constexpr auto GetNum(const ContainerType& Container) -> decltype(Container.Num())
{
	return Container.Num();
}

/** Base of classes that must not be copied. */
class FNoncopyable
{
protected:
	FNoncopyable() = default;
	~FNoncopyable() = default;

public:
	FNoncopyable(const FNoncopyable&) = delete;
	FNoncopyable& operator=(const FNoncopyable&) = delete;
};

/** Sets a variable for the duration of a scope and gives it its old value at the end. */
template <typename RefType, typename AssignedType = RefType>
struct TGuardValue : private FNoncopyable
{
	[[nodiscard]] TGuardValue(RefType& Reference, const AssignedType& NewValue)
		: RefValue(Reference)
		, OriginalValue(Reference)
	{
		RefValue = NewValue;
	}

	~TGuardValue()
	{
		RefValue = static_cast<AssignedType&&>(OriginalValue);
	}

	/** The value from before this scope. */
	const AssignedType& GetOriginalValue() const
	{
		return OriginalValue;
	}

private:
	RefType& RefValue;
	AssignedType OriginalValue;
};

/** Adds one to a counter for the duration of a scope. */
template <typename Type>
struct TScopeCounter : private FNoncopyable
{
	explicit TScopeCounter(Type& InCounter)
		: Counter(InCounter)
	{
		++Counter;
	}

	~TScopeCounter()
	{
		--Counter;
	}

private:
	Type& Counter;
};
