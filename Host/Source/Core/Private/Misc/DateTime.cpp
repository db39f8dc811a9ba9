#include "Misc/DateTime.h"

#include "Misc/AssertionMacros.h"
#include "Misc/Char.h"

#include <chrono>
#include <ctime>

namespace
{
	using namespace std::chrono;

	/** Days of the first day of the year 1 before the start of 1970. */
	constexpr int64 EpochDays = 719162;

	sys_days ToDays(int64 Ticks)
	{
		return sys_days(days(int64(Ticks / ETimespan::TicksPerDay) - EpochDays));
	}

	/** Reads exactly so many digits and moves behind them. */
	bool ReadDigits(const TCHAR*& Text, int32 Count, int32& OutValue)
	{
		OutValue = 0;
		for (; Count > 0; --Count, ++Text)
		{
			if (!FChar::IsDigit(*Text))
			{
				return false;
			}
			OutValue = OutValue * 10 + (*Text - TEXT('0'));
		}
		return true;
	}

	bool Skip(const TCHAR*& Text, TCHAR Expected)
	{
		if (*Text != Expected)
		{
			return false;
		}
		++Text;
		return true;
	}

	/** Reads digits after a point as milliseconds; further ones are left out. */
	bool ReadFraction(const TCHAR*& Text, int32& OutMilliseconds)
	{
		OutMilliseconds = 0;
		if (!FChar::IsDigit(*Text))
		{
			return false;
		}
		for (int32 Weight = 100; FChar::IsDigit(*Text); ++Text, Weight /= 10)
		{
			OutMilliseconds += Weight * (*Text - TEXT('0'));
		}
		return true;
	}

	/** Reads "Z", "+hh:mm", "-hh:mm" or nothing. */
	bool ReadZone(const TCHAR*& Text, FTimespan& OutOffset)
	{
		OutOffset = FTimespan::Zero();
		if (Skip(Text, TEXT('Z')) || *Text == TEXT('\0'))
		{
			return true;
		}
		const int32 Sign = *Text == TEXT('-') ? -1 : 1;
		if (!Skip(Text, TEXT('+')) && !Skip(Text, TEXT('-')))
		{
			return false;
		}
		int32 Hours = 0;
		int32 Minutes = 0;
		if (!ReadDigits(Text, 2, Hours) || (Skip(Text, TEXT(':')), !ReadDigits(Text, 2, Minutes)))
		{
			return false;
		}
		OutOffset = FTimespan(Sign * Hours, Sign * Minutes, 0);
		return true;
	}
}

FString FTimespan::ToString() const
{
	const int64 Positive = Ticks < 0 ? -Ticks : Ticks;
	const FTimespan Span(Positive);
	FString Text = Ticks < 0 ? TEXT("-") : TEXT("+");
	if (Span.GetDays() != 0)
	{
		Text += FString::Printf(TEXT("%d."), Span.GetDays());
	}
	const int32 Milliseconds = int32(Positive / ETimespan::TicksPerMillisecond % 1000);
	return Text + FString::Printf(TEXT("%02d:%02d:%02d.%03d"), Span.GetHours(), Span.GetMinutes(), Span.GetSeconds(), Milliseconds);
}

FDateTime::FDateTime(int32 Year, int32 Month, int32 Day, int32 Hour, int32 Minute, int32 Second, int32 Millisecond)
{
	check(Validate(Year, Month, Day, Hour, Minute, Second, Millisecond));
	const sys_days Date = year_month_day(year(Year), month(unsigned(Month)), day(unsigned(Day)));
	Ticks = (int64(Date.time_since_epoch().count()) + EpochDays) * ETimespan::TicksPerDay
		+ FTimespan(Hour, Minute, Second).GetTicks() + Millisecond * ETimespan::TicksPerMillisecond;
}

void FDateTime::GetDate(int32& OutYear, int32& OutMonth, int32& OutDay) const
{
	const year_month_day Date(ToDays(Ticks));
	OutYear = int32(Date.year());
	OutMonth = int32(unsigned(Date.month()));
	OutDay = int32(unsigned(Date.day()));
}

int32 FDateTime::GetYear() const
{
	return int32(year_month_day(ToDays(Ticks)).year());
}

int32 FDateTime::GetMonth() const
{
	return int32(unsigned(year_month_day(ToDays(Ticks)).month()));
}

int32 FDateTime::GetDay() const
{
	return int32(unsigned(year_month_day(ToDays(Ticks)).day()));
}

FDateTime FDateTime::UtcNow()
{
	const auto SinceEpoch = duration_cast<duration<int64, std::ratio<1, 10000000>>>(system_clock::now().time_since_epoch());
	return FDateTime(UnixEpochTicks + SinceEpoch.count());
}

FDateTime FDateTime::Now()
{
	const FDateTime Utc = UtcNow();
	const std::time_t Seconds = std::time_t(Utc.ToUnixTimestamp());
	std::tm Local{};
	localtime_r(&Seconds, &Local);
	return Utc + FTimespan(int64(Local.tm_gmtoff) * ETimespan::TicksPerSecond);
}

bool FDateTime::IsLeapYear(int32 Year)
{
	return year(Year).is_leap();
}

int32 FDateTime::DaysInMonth(int32 Year, int32 Month)
{
	check(Month >= 1 && Month <= 12);
	return int32(unsigned(year_month_day_last(year(Year), month_day_last(month(unsigned(Month)))).day()));
}

bool FDateTime::Validate(int32 Year, int32 Month, int32 Day, int32 Hour, int32 Minute, int32 Second, int32 Millisecond)
{
	return Year >= 1 && Year <= 9999 && Month >= 1 && Month <= 12 && Day >= 1 && Day <= DaysInMonth(Year, Month)
		&& Hour >= 0 && Hour <= 23 && Minute >= 0 && Minute <= 59 && Second >= 0 && Second <= 59 && Millisecond >= 0 && Millisecond <= 999;
}

FString FDateTime::ToString() const
{
	int32 Year = 0;
	int32 Month = 0;
	int32 Day = 0;
	GetDate(Year, Month, Day);
	return FString::Printf(TEXT("%04d.%02d.%02d-%02d.%02d.%02d"), Year, Month, Day, GetHour(), GetMinute(), GetSecond());
}

FString FDateTime::ToIso8601() const
{
	int32 Year = 0;
	int32 Month = 0;
	int32 Day = 0;
	GetDate(Year, Month, Day);
	return FString::Printf(TEXT("%04d-%02d-%02dT%02d:%02d:%02d.%03dZ"), Year, Month, Day, GetHour(), GetMinute(), GetSecond(), GetMillisecond());
}

bool FDateTime::ParseIso8601(const TCHAR* DateTimeString, FDateTime& OutDateTime)
{
	const TCHAR* Text = DateTimeString;
	int32 Year = 0;
	int32 Month = 0;
	int32 Day = 0;
	if (!ReadDigits(Text, 4, Year) || !Skip(Text, TEXT('-')) || !ReadDigits(Text, 2, Month) || !Skip(Text, TEXT('-')) || !ReadDigits(Text, 2, Day))
	{
		return false;
	}
	int32 Hour = 0;
	int32 Minute = 0;
	int32 Second = 0;
	int32 Millisecond = 0;
	FTimespan Offset;
	if (Skip(Text, TEXT('T')))
	{
		if (!ReadDigits(Text, 2, Hour) || !Skip(Text, TEXT(':')) || !ReadDigits(Text, 2, Minute))
		{
			return false;
		}
		if (Skip(Text, TEXT(':')) && !ReadDigits(Text, 2, Second))
		{
			return false;
		}
		if (Skip(Text, TEXT('.')) && !ReadFraction(Text, Millisecond))
		{
			return false;
		}
		if (!ReadZone(Text, Offset))
		{
			return false;
		}
	}
	if (*Text != TEXT('\0') || !Validate(Year, Month, Day, Hour, Minute, Second, Millisecond))
	{
		return false;
	}
	OutDateTime = FDateTime(Year, Month, Day, Hour, Minute, Second, Millisecond) - Offset;
	return true;
}
