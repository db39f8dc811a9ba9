#pragma once

#include "Misc/Timespan.h"

/** A moment, as ticks of 100 nanoseconds since the start of the year 1, in the calendar of today. Knows no time zone. */
struct FDateTime
{
	constexpr FDateTime() = default;
	constexpr explicit FDateTime(int64 InTicks) : Ticks(InTicks) {}
	/** The date must be valid: see Validate. */
	CORE_API FDateTime(int32 Year, int32 Month, int32 Day, int32 Hour = 0, int32 Minute = 0, int32 Second = 0, int32 Millisecond = 0);

	constexpr auto operator<=>(const FDateTime&) const = default;
	constexpr FDateTime operator+(const FTimespan& Span) const { return FDateTime(Ticks + Span.GetTicks()); }
	constexpr FDateTime operator-(const FTimespan& Span) const { return FDateTime(Ticks - Span.GetTicks()); }
	constexpr FTimespan operator-(const FDateTime& Other) const { return FTimespan(Ticks - Other.Ticks); }
	constexpr FDateTime& operator+=(const FTimespan& Span) { return *this = *this + Span; }

	constexpr int64 GetTicks() const { return Ticks; }
	CORE_API void GetDate(int32& OutYear, int32& OutMonth, int32& OutDay) const;
	CORE_API int32 GetYear() const;
	CORE_API int32 GetMonth() const;
	CORE_API int32 GetDay() const;
	constexpr int32 GetHour() const { return int32(Ticks / ETimespan::TicksPerHour % 24); }
	constexpr int32 GetMinute() const { return int32(Ticks / ETimespan::TicksPerMinute % 60); }
	constexpr int32 GetSecond() const { return int32(Ticks / ETimespan::TicksPerSecond % 60); }
	constexpr int32 GetMillisecond() const { return int32(Ticks / ETimespan::TicksPerMillisecond % 1000); }
	/** Seconds since the start of 1970. */
	constexpr int64 ToUnixTimestamp() const { return (Ticks - UnixEpochTicks) / ETimespan::TicksPerSecond; }

	CORE_API static FDateTime Now();
	CORE_API static FDateTime UtcNow();
	static constexpr FDateTime FromUnixTimestamp(int64 UnixTime) { return FDateTime(UnixEpochTicks + UnixTime * ETimespan::TicksPerSecond); }
	static constexpr FDateTime MinValue() { return FDateTime(0); }
	CORE_API static int32 DaysInMonth(int32 Year, int32 Month);
	CORE_API static bool IsLeapYear(int32 Year);
	CORE_API static bool Validate(int32 Year, int32 Month, int32 Day, int32 Hour, int32 Minute, int32 Second, int32 Millisecond);

	/** "2024.05.31-23.59.58" */
	CORE_API FString ToString() const;
	/** "2024-05-31T23:59:58.123Z" */
	CORE_API FString ToIso8601() const;
	/** Reads a date, or a date and time with a zone, which is reduced to UTC. Returns false, leaving the output alone, when the text is neither. */
	CORE_API static bool ParseIso8601(const TCHAR* DateTimeString, FDateTime& OutDateTime);

private:
	static constexpr int64 UnixEpochTicks = 621355968000000000;

	int64 Ticks = 0;
};

inline uint32 GetTypeHash(const FDateTime& DateTime)
{
	return uint32(DateTime.GetTicks()) ^ uint32(DateTime.GetTicks() >> 32);
}
