#pragma once

#include "Containers/UnrealString.h"
#include "HAL/Platform.h"

#include <compare>

namespace ETimespan
{
	/** Ticks of 100 nanoseconds in greater units. */
	inline constexpr int64 TicksPerMicrosecond = 10;
	inline constexpr int64 TicksPerMillisecond = 10000;
	inline constexpr int64 TicksPerSecond = 10000000;
	inline constexpr int64 TicksPerMinute = 600000000;
	inline constexpr int64 TicksPerHour = 36000000000;
	inline constexpr int64 TicksPerDay = 864000000000;
}

/** A length of time in ticks of 100 nanoseconds; may be negative. */
struct FTimespan
{
	constexpr FTimespan() = default;
	constexpr explicit FTimespan(int64 InTicks) : Ticks(InTicks) {}
	constexpr FTimespan(int32 Hours, int32 Minutes, int32 Seconds) : FTimespan(0, Hours, Minutes, Seconds) {}
	constexpr FTimespan(int32 Days, int32 Hours, int32 Minutes, int32 Seconds)
		: Ticks(Days * ETimespan::TicksPerDay + Hours * ETimespan::TicksPerHour + Minutes * ETimespan::TicksPerMinute + Seconds * ETimespan::TicksPerSecond)
	{
	}

	constexpr auto operator<=>(const FTimespan&) const = default;
	constexpr FTimespan operator+(const FTimespan& Other) const { return FTimespan(Ticks + Other.Ticks); }
	constexpr FTimespan operator-(const FTimespan& Other) const { return FTimespan(Ticks - Other.Ticks); }
	constexpr FTimespan operator-() const { return FTimespan(-Ticks); }
	constexpr FTimespan operator*(double Scalar) const { return FTimespan(int64(double(Ticks) * Scalar)); }
	constexpr FTimespan& operator+=(const FTimespan& Other) { return *this = *this + Other; }
	constexpr FTimespan& operator-=(const FTimespan& Other) { return *this = *this - Other; }

	constexpr int64 GetTicks() const { return Ticks; }
	/** The whole days; the parts below are what remains beyond the greater unit. */
	constexpr int32 GetDays() const { return int32(Ticks / ETimespan::TicksPerDay); }
	constexpr int32 GetHours() const { return int32(Ticks / ETimespan::TicksPerHour % 24); }
	constexpr int32 GetMinutes() const { return int32(Ticks / ETimespan::TicksPerMinute % 60); }
	constexpr int32 GetSeconds() const { return int32(Ticks / ETimespan::TicksPerSecond % 60); }
	constexpr double GetTotalDays() const { return double(Ticks) / ETimespan::TicksPerDay; }
	constexpr double GetTotalHours() const { return double(Ticks) / ETimespan::TicksPerHour; }
	constexpr double GetTotalMinutes() const { return double(Ticks) / ETimespan::TicksPerMinute; }
	constexpr double GetTotalSeconds() const { return double(Ticks) / ETimespan::TicksPerSecond; }
	constexpr double GetTotalMilliseconds() const { return double(Ticks) / ETimespan::TicksPerMillisecond; }
	constexpr bool IsZero() const { return Ticks == 0; }

	static constexpr FTimespan Zero() { return FTimespan(0); }
	static constexpr FTimespan FromDays(double Days) { return FTimespan(int64(Days * ETimespan::TicksPerDay)); }
	static constexpr FTimespan FromHours(double Hours) { return FTimespan(int64(Hours * ETimespan::TicksPerHour)); }
	static constexpr FTimespan FromMinutes(double Minutes) { return FTimespan(int64(Minutes * ETimespan::TicksPerMinute)); }
	static constexpr FTimespan FromSeconds(double Seconds) { return FTimespan(int64(Seconds * ETimespan::TicksPerSecond)); }
	static constexpr FTimespan FromMilliseconds(double Milliseconds) { return FTimespan(int64(Milliseconds * ETimespan::TicksPerMillisecond)); }

	/** "+01.02:03:04.567", the days only when there are any. */
	CORE_API FString ToString() const;

private:
	int64 Ticks = 0;
};

inline uint32 GetTypeHash(const FTimespan& Timespan)
{
	return uint32(Timespan.GetTicks()) ^ uint32(Timespan.GetTicks() >> 32);
}
