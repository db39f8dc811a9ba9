#pragma once

#include "HAL/Platform.h"

#include <limits>

inline constexpr uint8 MIN_uint8 = 0;
inline constexpr uint16 MIN_uint16 = 0;
inline constexpr uint32 MIN_uint32 = 0;
inline constexpr uint64 MIN_uint64 = 0;
inline constexpr int8 MIN_int8 = std::numeric_limits<int8>::min();
inline constexpr int16 MIN_int16 = std::numeric_limits<int16>::min();
inline constexpr int32 MIN_int32 = std::numeric_limits<int32>::min();
inline constexpr int64 MIN_int64 = std::numeric_limits<int64>::min();

inline constexpr uint8 MAX_uint8 = std::numeric_limits<uint8>::max();
inline constexpr uint16 MAX_uint16 = std::numeric_limits<uint16>::max();
inline constexpr uint32 MAX_uint32 = std::numeric_limits<uint32>::max();
inline constexpr uint64 MAX_uint64 = std::numeric_limits<uint64>::max();
inline constexpr int8 MAX_int8 = std::numeric_limits<int8>::max();
inline constexpr int16 MAX_int16 = std::numeric_limits<int16>::max();
inline constexpr int32 MAX_int32 = std::numeric_limits<int32>::max();
inline constexpr int64 MAX_int64 = std::numeric_limits<int64>::max();

/** Smallest positive normal value, not the lowest one. */
inline constexpr float MIN_flt = std::numeric_limits<float>::min();
inline constexpr float MAX_flt = std::numeric_limits<float>::max();
inline constexpr double MIN_dbl = std::numeric_limits<double>::min();
inline constexpr double MAX_dbl = std::numeric_limits<double>::max();

/** Bounds of an arithmetic type. */
template <typename Type>
struct TNumericLimits
{
	/** For floating point types the smallest positive normal value; see Lowest(). */
	static constexpr Type Min()
	{
		return std::numeric_limits<Type>::min();
	}

	static constexpr Type Max()
	{
		return std::numeric_limits<Type>::max();
	}

	/** The most negative value. */
	static constexpr Type Lowest()
	{
		return std::numeric_limits<Type>::lowest();
	}
};
