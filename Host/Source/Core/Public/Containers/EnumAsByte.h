#pragma once

#include "CoreTypes.h"

#include <type_traits>

/** A plain enumeration kept in one byte; an enum class with its own underlying type needs none of this. */
template <typename InEnumType>
class TEnumAsByte
{
	static_assert(std::is_enum_v<InEnumType> && std::is_convertible_v<InEnumType, int>, "TEnumAsByte is for plain enumerations only");

public:
	using EnumType = InEnumType;

	TEnumAsByte() = default;
	constexpr TEnumAsByte(EnumType InValue) : Value((uint8)InValue) {}
	explicit constexpr TEnumAsByte(int32 InValue) : Value((uint8)InValue) {}
	explicit constexpr TEnumAsByte(uint8 InValue) : Value(InValue) {}

	constexpr TEnumAsByte& operator=(EnumType InValue)
	{
		Value = (uint8)InValue;
		return *this;
	}

	constexpr operator EnumType() const { return (EnumType)Value; }
	constexpr EnumType GetValue() const { return (EnumType)Value; }
	constexpr uint8 GetIntValue() const { return Value; }

	friend constexpr bool operator==(TEnumAsByte A, TEnumAsByte B) { return A.Value == B.Value; }
	friend constexpr bool operator==(TEnumAsByte A, EnumType B) { return (EnumType)A.Value == B; }
	friend constexpr uint32 GetTypeHash(TEnumAsByte Enum) { return Enum.Value; }

private:
	uint8 Value;
};
