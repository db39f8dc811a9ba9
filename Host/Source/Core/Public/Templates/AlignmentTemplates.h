#pragma once

#include "CoreTypes.h"

#include <type_traits>

/** The value rounded up to a multiple of the alignment, which is a power of two. */
template <typename T>
	requires(std::is_integral_v<T> || std::is_pointer_v<T>)
constexpr T Align(T Value, uint64 Alignment)
{
	return (T)(((uint64)Value + Alignment - 1) & ~(Alignment - 1));
}

/** Whether the value is a multiple of the alignment, which is a power of two. */
template <typename T>
	requires(std::is_integral_v<T> || std::is_pointer_v<T>)
constexpr bool IsAligned(T Value, uint64 Alignment)
{
	return ((uint64)Value & (Alignment - 1)) == 0;
}
