#include "Misc/DateTime.h"

#include "CoreMinimal.h"
#include "TestText.h"
#include "gtest/gtest.h"

namespace
{
	std::string ParseIso(const TCHAR* Text)
	{
		FDateTime Read;
		return FDateTime::ParseIso8601(Text, Read) ? ToUtf8(Read.ToIso8601()) : "refused";
	}
}

TEST(DateTimeTest, PartsOfADate)
{
	const FDateTime Date(2024, 2, 29, 23, 59, 58, 123);
	EXPECT_EQ(2024, Date.GetYear());
	EXPECT_EQ(2, Date.GetMonth());
	EXPECT_EQ(29, Date.GetDay());
	EXPECT_EQ(23, Date.GetHour());
	EXPECT_EQ(59, Date.GetMinute());
	EXPECT_EQ(58, Date.GetSecond());
	EXPECT_EQ(123, Date.GetMillisecond());
	EXPECT_EQ("2024.02.29-23.59.58", ToUtf8(Date.ToString()));
}

TEST(DateTimeTest, TicksCountFromTheYearOne)
{
	EXPECT_EQ(0, FDateTime(1, 1, 1).GetTicks());
	EXPECT_EQ(0, FDateTime(1970, 1, 1).ToUnixTimestamp());
	EXPECT_EQ(1709251198, FDateTime(2024, 2, 29, 23, 59, 58).ToUnixTimestamp());
	EXPECT_EQ(FDateTime(2024, 2, 29, 23, 59, 58), FDateTime::FromUnixTimestamp(1709251198));
}

TEST(DateTimeTest, DifferencesAreSpans)
{
	const FTimespan Span = FDateTime(2024, 3, 1) - FDateTime(2024, 2, 28, 12);
	EXPECT_EQ(36.0, Span.GetTotalHours());
	EXPECT_EQ("+1.12:00:00.000", ToUtf8(Span.ToString()));
	EXPECT_EQ("-00:00:01.500", ToUtf8(FTimespan::FromSeconds(-1.5).ToString()));
}

TEST(DateTimeTest, DatesAreValidated)
{
	EXPECT_TRUE(FDateTime::Validate(2024, 2, 29, 0, 0, 0, 0));
	EXPECT_FALSE(FDateTime::Validate(2023, 2, 29, 0, 0, 0, 0));
	EXPECT_FALSE(FDateTime::Validate(2024, 13, 1, 0, 0, 0, 0));
	EXPECT_FALSE(FDateTime::Validate(2024, 1, 1, 24, 0, 0, 0));
	EXPECT_TRUE(FDateTime::IsLeapYear(2000));
	EXPECT_FALSE(FDateTime::IsLeapYear(1900));
}

TEST(DateTimeTest, IsoTextIsRead)
{
	EXPECT_EQ("2024-05-31T00:00:00.000Z", ParseIso(TEXT("2024-05-31")));
	EXPECT_EQ("2024-05-31T23:59:58.123Z", ParseIso(TEXT("2024-05-31T23:59:58.1234Z")));
	EXPECT_EQ("2024-05-31T21:59:00.000Z", ParseIso(TEXT("2024-05-31T23:59+02:00")));
	EXPECT_EQ("2024-06-01T01:30:00.000Z", ParseIso(TEXT("2024-05-31T23:00:00-0230")));
}

TEST(DateTimeTest, OtherTextIsRefused)
{
	for (const TCHAR* const Text : {TEXT(""), TEXT("2024"), TEXT("2024-5-31"), TEXT("2024-02-30"), TEXT("2024-05-31T"), TEXT("2024-05-31T25:00"), TEXT("2024-05-31T10:00x"), TEXT("2024-05-31 10:00")})
	{
		EXPECT_EQ("refused", ParseIso(Text)) << TCHAR_TO_UTF8(Text);
	}
}
