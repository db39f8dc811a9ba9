#pragma once

#include "CoreTypes.h"

#include <bit>
#include <type_traits>

/** A hash of two hashes, in which their order counts. */
inline constexpr uint32 HashCombineFast(uint32 A, uint32 B)
{
	// A golden-ratio multiple keeps equal halves from cancelling out.
	uint64 Mixed = ((uint64)A << 32 | B) * 0x9E3779B97F4A7C15ull;
	Mixed ^= Mixed >> 32;
	return (uint32)(Mixed ^ (Mixed >> 15));
}

inline constexpr uint32 HashCombine(uint32 A, uint32 B)
{
	return HashCombineFast(A, B);
}

/** A hash of an address. */
inline uint32 PointerHash(const void* Key)
{
	const uint64 Address = (uint64)(UPTRINT)Key;
	return (uint32)(Address >> 4) ^ (uint32)(Address >> 32);
}

inline uint32 PointerHash(const void* Key, uint32 Seed)
{
	return HashCombineFast(PointerHash(Key), Seed);
}

/**
 * Hash of a number, enumerator or address. Sets and maps spread the bits themselves, so the value of a small integer serves as it is.
 * A type gets its own by an overload found beside it.
 */
template <typename T>
	requires(std::is_integral_v<T> || std::is_enum_v<T>)
constexpr uint32 GetTypeHash(T Value)
{
	if constexpr (sizeof(T) <= 4)
	{
		return (uint32)Value;
	}
	else
	{
		return (uint32)(uint64)Value + (uint32)((uint64)Value >> 32) * 23;
	}
}

inline constexpr uint32 GetTypeHash(float Value)
{
	// Both zeros are equal, so they must have one hash.
	return std::bit_cast<uint32>(Value == 0.0f ? 0.0f : Value);
}

inline constexpr uint32 GetTypeHash(double Value)
{
	return GetTypeHash(std::bit_cast<uint64>(Value == 0.0 ? 0.0 : Value));
}

template <typename T>
uint32 GetTypeHash(T* Value)
{
	return PointerHash(Value);
}

inline uint32 GetTypeHash(TYPE_OF_NULLPTR)
{
	return 0;
}

/** GetTypeHash, where a class has a member of that name. */
template <typename T>
uint32 GetTypeHashHelper(const T& Value)
{
	return GetTypeHash(Value);
}
