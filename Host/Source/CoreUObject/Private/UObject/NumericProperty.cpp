#include "UObject/NumericProperty.h"

#include "PropertyText.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <string>

HOST_IMPLEMENT_FIELD(FNumericProperty, "NumericProperty")
HOST_IMPLEMENT_FIELD(FInt8Property, "Int8Property")
HOST_IMPLEMENT_FIELD(FInt16Property, "Int16Property")
HOST_IMPLEMENT_FIELD(FIntProperty, "IntProperty")
HOST_IMPLEMENT_FIELD(FInt64Property, "Int64Property")
HOST_IMPLEMENT_FIELD(FUInt16Property, "UInt16Property")
HOST_IMPLEMENT_FIELD(FUInt32Property, "UInt32Property")
HOST_IMPLEMENT_FIELD(FUInt64Property, "UInt64Property")
HOST_IMPLEMENT_FIELD(FFloatProperty, "FloatProperty")
HOST_IMPLEMENT_FIELD(FDoubleProperty, "DoubleProperty")
HOST_IMPLEMENT_FIELD(FByteProperty, "ByteProperty")

namespace
{
	template <typename ToType, typename FromType>
	ToType Saturate(FromType Value)
	{
		using FLimits = std::numeric_limits<ToType>;
		if constexpr (std::is_floating_point_v<ToType>)
		{
			return static_cast<ToType>(Value);
		}
		else if constexpr (std::is_floating_point_v<FromType>)
		{
			if (std::isnan(Value))
			{
				return 0;
			}
			// The largest integers round up to the first value out of range.
			if (Value >= static_cast<FromType>(FLimits::max()))
			{
				return FLimits::max();
			}
			return Value <= static_cast<FromType>(FLimits::lowest()) ? FLimits::lowest() : static_cast<ToType>(Value);
		}
		else
		{
			if (std::cmp_less(Value, FLimits::lowest()))
			{
				return FLimits::lowest();
			}
			return std::cmp_greater(Value, FLimits::max()) ? FLimits::max() : static_cast<ToType>(Value);
		}
	}

	/** The number that the text begins with, all of it. */
	template <typename NumberType>
	bool ParseNumber(const FString& Text, NumberType& OutNumber)
	{
		std::string Narrow;
		for (const TCHAR Character : Text)
		{
			if (Character > 0x7f)
			{
				return false;
			}
			Narrow.push_back(static_cast<char>(Character));
		}
		const char* Begin = Narrow.data();
		const char* End = Begin + Narrow.size();
		if (Begin != End && *Begin == '+')
		{
			++Begin;
		}
		const std::from_chars_result Result = std::from_chars(Begin, End, OutNumber);
		if (Result.ec == std::errc() && Result.ptr == End)
		{
			return true;
		}
		if constexpr (std::is_integral_v<NumberType>)
		{
			// "3.0" is a whole number too.
			double Number = 0.0;
			const std::from_chars_result AsDouble = std::from_chars(Begin, End, Number);
			if (AsDouble.ec == std::errc() && AsDouble.ptr == End && Number == std::trunc(Number) && static_cast<double>(Saturate<NumberType>(Number)) == Number)
			{
				OutNumber = static_cast<NumberType>(Number);
				return true;
			}
		}
		return false;
	}

	template <typename NumberType>
	FString NumberToString(NumberType Number)
	{
		char Buffer[64];
		if constexpr (std::is_floating_point_v<NumberType>)
		{
			const std::to_chars_result Result = std::to_chars(Buffer, Buffer + sizeof(Buffer), Number);
			const std::string_view Digits(Buffer, static_cast<std::size_t>(Result.ptr - Buffer));
			FString Text(FAnsiStringView(Digits.data(), static_cast<int32>(Digits.size())));
			const bool bNeedsFraction = Digits.find_first_of(".en") == std::string_view::npos;
			return bNeedsFraction ? Text + TEXT(".0") : Text;
		}
		else
		{
			const std::to_chars_result Result = std::to_chars(Buffer, Buffer + sizeof(Buffer), Number);
			return FString(FAnsiStringView(Buffer, static_cast<int32>(Result.ptr - Buffer)));
		}
	}
}

FString FNumericProperty::GetNumericPropertyValueToString(const void* Data) const
{
	FString Text;
	ExportTextItem_Direct(Text, Data, nullptr, nullptr, PPF_None);
	return Text;
}

template <typename InTCppType>
void TProperty_Numeric<InTCppType>::SetIntPropertyValue(void* Data, int64 Value) const
{
	*static_cast<InTCppType*>(Data) = Saturate<InTCppType>(Value);
}

template <typename InTCppType>
void TProperty_Numeric<InTCppType>::SetFloatingPointPropertyValue(void* Data, double Value) const
{
	*static_cast<InTCppType*>(Data) = Saturate<InTCppType>(Value);
}

template <typename InTCppType>
int64 TProperty_Numeric<InTCppType>::GetSignedIntPropertyValue(const void* Data) const
{
	return Saturate<int64>(*static_cast<const InTCppType*>(Data));
}

template <typename InTCppType>
uint64 TProperty_Numeric<InTCppType>::GetUnsignedIntPropertyValue(const void* Data) const
{
	return static_cast<uint64>(*static_cast<const InTCppType*>(Data));
}

template <typename InTCppType>
double TProperty_Numeric<InTCppType>::GetFloatingPointPropertyValue(const void* Data) const
{
	return static_cast<double>(*static_cast<const InTCppType*>(Data));
}

template <typename InTCppType>
double TProperty_Numeric<InTCppType>::GetMinValue() const
{
	return static_cast<double>(std::numeric_limits<InTCppType>::lowest());
}

template <typename InTCppType>
double TProperty_Numeric<InTCppType>::GetMaxValue() const
{
	return static_cast<double>(std::numeric_limits<InTCppType>::max());
}

template <typename InTCppType>
const TCHAR* TProperty_Numeric<InTCppType>::ImportText_Internal(const TCHAR* Buffer, void* Value, UObject*, int32, FOutputDevice* ErrorText) const
{
	FString Text;
	const TCHAR* Behind = Host::ReadToken(Buffer, Text);
	InTCppType Number{};
	if (!ParseNumber(Text, Number))
	{
		return Host::RefuseText(*this, Text, ErrorText);
	}
	*static_cast<InTCppType*>(Value) = Number;
	return Behind;
}

template <typename InTCppType>
void TProperty_Numeric<InTCppType>::ExportText_Internal(FString& ValueStr, const void* Value, const void*, UObject*, int32, UObject*) const
{
	ValueStr += NumberToString(*static_cast<const InTCppType*>(Value));
}

template class TProperty_Numeric<int8>;
template class TProperty_Numeric<int16>;
template class TProperty_Numeric<int32>;
template class TProperty_Numeric<int64>;
template class TProperty_Numeric<uint8>;
template class TProperty_Numeric<uint16>;
template class TProperty_Numeric<uint32>;
template class TProperty_Numeric<uint64>;
template class TProperty_Numeric<float>;
template class TProperty_Numeric<double>;

#define HOST_NUMERIC_TYPE_NAME(TClass, Name) \
	FString TClass::GetCPPType(FString*, uint32) const \
	{ \
		return TEXT(Name); \
	}
HOST_NUMERIC_TYPE_NAME(FInt8Property, "int8")
HOST_NUMERIC_TYPE_NAME(FInt16Property, "int16")
HOST_NUMERIC_TYPE_NAME(FIntProperty, "int32")
HOST_NUMERIC_TYPE_NAME(FInt64Property, "int64")
HOST_NUMERIC_TYPE_NAME(FUInt16Property, "uint16")
HOST_NUMERIC_TYPE_NAME(FUInt32Property, "uint32")
HOST_NUMERIC_TYPE_NAME(FUInt64Property, "uint64")
HOST_NUMERIC_TYPE_NAME(FFloatProperty, "float")
HOST_NUMERIC_TYPE_NAME(FDoubleProperty, "double")
#undef HOST_NUMERIC_TYPE_NAME
