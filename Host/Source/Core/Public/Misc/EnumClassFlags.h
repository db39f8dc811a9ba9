#pragma once

#include "HAL/Platform.h"

#include <type_traits>

/** Gives an enum class the bit operators, so that its values work as flags. */
#define ENUM_CLASS_FLAGS(Enum) \
	inline constexpr Enum operator|(Enum Lhs, Enum Rhs) { return (Enum)((std::underlying_type_t<Enum>)Lhs | (std::underlying_type_t<Enum>)Rhs); } \
	inline constexpr Enum operator&(Enum Lhs, Enum Rhs) { return (Enum)((std::underlying_type_t<Enum>)Lhs & (std::underlying_type_t<Enum>)Rhs); } \
	inline constexpr Enum operator^(Enum Lhs, Enum Rhs) { return (Enum)((std::underlying_type_t<Enum>)Lhs ^ (std::underlying_type_t<Enum>)Rhs); } \
	inline constexpr bool operator!(Enum Value) { return !(std::underlying_type_t<Enum>)Value; } \
	inline constexpr Enum operator~(Enum Value) { return (Enum) ~(std::underlying_type_t<Enum>)Value; } \
	inline constexpr Enum& operator|=(Enum& Lhs, Enum Rhs) { return Lhs = Lhs | Rhs; } \
	inline constexpr Enum& operator&=(Enum& Lhs, Enum Rhs) { return Lhs = Lhs & Rhs; } \
	inline constexpr Enum& operator^=(Enum& Lhs, Enum Rhs) { return Lhs = Lhs ^ Rhs; }

/** Whether all flags of Contains are set in Flags. */
template <typename EnumType>
constexpr bool EnumHasAllFlags(EnumType Flags, EnumType Contains)
{
	using FBits = std::underlying_type_t<EnumType>;
	return ((FBits)Flags & (FBits)Contains) == (FBits)Contains;
}

/** Whether at least one flag of Contains is set in Flags. */
template <typename EnumType>
constexpr bool EnumHasAnyFlags(EnumType Flags, EnumType Contains)
{
	using FBits = std::underlying_type_t<EnumType>;
	return ((FBits)Flags & (FBits)Contains) != 0;
}

/** Sets the given flags. */
template <typename EnumType>
constexpr void EnumAddFlags(EnumType& Flags, EnumType FlagsToAdd)
{
	using FBits = std::underlying_type_t<EnumType>;
	Flags = (EnumType)((FBits)Flags | (FBits)FlagsToAdd);
}

/** Clears the given flags. */
template <typename EnumType>
constexpr void EnumRemoveFlags(EnumType& Flags, EnumType FlagsToRemove)
{
	using FBits = std::underlying_type_t<EnumType>;
	Flags = (EnumType)((FBits)Flags & ~(FBits)FlagsToRemove);
}
