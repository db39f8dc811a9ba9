#pragma once

#include "Containers/UnrealString.h"

/*
 * LexToString and LexFromString: values as text and back, with one name for all types. LexFromString leaves 0 where the
 * text is no number; LexTryParseString tells.
 */

CORE_API FString LexToString(int64 Value);
CORE_API FString LexToString(uint64 Value);
CORE_API FString LexToString(double Value);
CORE_API FString LexToString(float Value);
CORE_API FString LexToString(bool bValue);

template <typename T>
	requires(std::is_integral_v<T> && !std::is_same_v<T, bool> && !TIsCharType<T>::Value)
FString LexToString(T Value)
{
	if constexpr (std::is_signed_v<T>)
	{
		return LexToString((int64)Value);
	}
	else
	{
		return LexToString((uint64)Value);
	}
}

inline FString LexToString(const FString& Value)
{
	return Value;
}

inline FString LexToString(FString&& Value)
{
	return static_cast<FString&&>(Value);
}

inline FString LexToString(const TCHAR* Value)
{
	return Value;
}

inline FString LexToString(const ANSICHAR* Value)
{
	return FString(Value);
}

inline FString LexToString(FStringView Value)
{
	return FString(Value);
}

template <typename T>
	requires(std::is_integral_v<T> && !std::is_same_v<T, bool>)
void LexFromString(T& OutValue, const TCHAR* Text)
{
	if constexpr (std::is_signed_v<T>)
	{
		OutValue = (T)FCString::Strtoi64(Text, nullptr, 10);
	}
	else
	{
		OutValue = (T)FCString::Strtoui64(Text, nullptr, 10);
	}
}

inline void LexFromString(float& OutValue, const TCHAR* Text)
{
	OutValue = FCString::Atof(Text);
}

inline void LexFromString(double& OutValue, const TCHAR* Text)
{
	OutValue = FCString::Atod(Text);
}

inline void LexFromString(bool& bOutValue, const TCHAR* Text)
{
	bOutValue = FCString::ToBool(Text);
}

inline void LexFromString(FString& OutValue, const TCHAR* Text)
{
	OutValue = Text;
}

/** Reads a number if the text is one, and tells whether it was. */
template <typename T>
bool LexTryParseString(T& OutValue, const TCHAR* Text)
{
	LexFromString(OutValue, Text);
	return OutValue != T(0) || FCString::IsNumeric(Text);
}
