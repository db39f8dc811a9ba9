#pragma once

#include "Containers/Map.h"
#include "Containers/UnrealString.h"
#include "Misc/Optional.h"
#include "Misc/TVariant.h"

class FText;

/** Gender of a format argument, for {Arg}|gender(masculine, feminine, neuter). */
enum class ETextGender : uint8
{
	Masculine,
	Feminine,
	Neuter
};

enum ERoundingMode : int
{
	/** To the nearest; halves to the even neighbour. */
	HalfToEven,
	HalfFromZero,
	HalfToZero,
	FromZero,
	ToZero,
	ToNegativeInfinity,
	ToPositiveInfinity
};

/** How a number is written. */
struct CORE_API FNumberFormattingOptions
{
	bool AlwaysSign = false;
	/** Whether thousands are set apart. */
	bool UseGrouping = true;
	ERoundingMode RoundingMode = HalfToEven;
	int32 MinimumIntegralDigits = 1;
	int32 MaximumIntegralDigits = 324;
	int32 MinimumFractionalDigits = 0;
	int32 MaximumFractionalDigits = 3;

	FNumberFormattingOptions& SetAlwaysSign(bool bValue) { AlwaysSign = bValue; return *this; }
	FNumberFormattingOptions& SetUseGrouping(bool bValue) { UseGrouping = bValue; return *this; }
	FNumberFormattingOptions& SetRoundingMode(ERoundingMode Value) { RoundingMode = Value; return *this; }
	FNumberFormattingOptions& SetMinimumIntegralDigits(int32 Value) { MinimumIntegralDigits = Value; return *this; }
	FNumberFormattingOptions& SetMaximumIntegralDigits(int32 Value) { MaximumIntegralDigits = Value; return *this; }
	FNumberFormattingOptions& SetMinimumFractionalDigits(int32 Value) { MinimumFractionalDigits = Value; return *this; }
	FNumberFormattingOptions& SetMaximumFractionalDigits(int32 Value) { MaximumFractionalDigits = Value; return *this; }

	bool IsIdentical(const FNumberFormattingOptions& Other) const { return *this == Other; }
	bool operator==(const FNumberFormattingOptions&) const = default;

	static const FNumberFormattingOptions& DefaultWithGrouping();
	static const FNumberFormattingOptions& DefaultNoGrouping();
};
