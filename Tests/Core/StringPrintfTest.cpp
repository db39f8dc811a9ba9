#include "Containers/UnrealString.h"

#include "TestText.h"
#include "gtest/gtest.h"

#include <cfloat>
#include <cstdio>

namespace
{
	template <typename FmtType, typename... ArgTypes>
	std::string Print(const FmtType& Format, const ArgTypes&... Args)
	{
		return ToUtf8(FString::Printf(Format, Args...));
	}
}

TEST(StringPrintfTest, WritesTexts)
{
	const FString Name = TEXT("Name");
	EXPECT_EQ("<Name>", Print(TEXT("<%s>"), *Name));
	EXPECT_EQ("<  Name>", Print(TEXT("<%6s>"), *Name));
	EXPECT_EQ("<Name  >", Print(TEXT("<%-6s>"), *Name));
	EXPECT_EQ("<Na>", Print(TEXT("<%.2s>"), *Name));
	EXPECT_EQ("<   Na>", Print(TEXT("<%*.*s>"), 5, 2, *Name));
	EXPECT_EQ("<narrow wide>", Print(TEXT("<%hs %ls>"), "narrow", TEXT("wide")));
	EXPECT_EQ("(null)", Print(TEXT("%s"), static_cast<const TCHAR*>(nullptr)));
	EXPECT_EQ("\xE2\x82\xAC", Print(TEXT("%s"), TEXT("\u20ac")));
	EXPECT_EQ("100%", Print(TEXT("%d%%"), 100));
}

TEST(StringPrintfTest, WritesIntegersOfEverySize)
{
	EXPECT_EQ("-5 5", Print(TEXT("%d %u"), -5, 5u));
	EXPECT_EQ("-9223372036854775808", Print(TEXT("%lld"), MIN_int64));
	EXPECT_EQ("18446744073709551615", Print(TEXT("%llu"), MAX_uint64));
	EXPECT_EQ("4294967295", Print(TEXT("%u"), MAX_uint32));
	EXPECT_EQ("ffffffff FF", Print(TEXT("%x %X"), -1, 255));
	EXPECT_EQ("0x00ff", Print(TEXT("0x%04x"), 255));
	EXPECT_EQ("+7|  7|007|7  |", Print(TEXT("%+d|%3d|%03d|%-3d|"), 7, 7, 7, 7));
	EXPECT_EQ("200 1", Print(TEXT("%d %d"), (uint8)200, true));
	EXPECT_EQ("A", Print(TEXT("%c"), TEXT('A')));
	EXPECT_EQ("42", Print(TEXT("%zu"), (SIZE_T)42));
}

TEST(StringPrintfTest, WritesFloatsAsTheLibraryDoes)
{
	for (const double Value : { 0.0, -0.0, 1.5, 3.14159265358979, 1e-7, 1e20, -12345.678, DBL_MAX, DBL_MIN })
	{
		char Expected[2048];
		std::snprintf(Expected, sizeof(Expected), "%f %.2f %10.3f %g %e %+.0f", Value, Value, Value, Value, Value, Value);
		EXPECT_EQ(Expected, Print(TEXT("%f %.2f %10.3f %g %e %+.0f"), Value, Value, Value, Value, Value, Value));
	}
	EXPECT_EQ("2.5", Print(TEXT("%.1f"), 2.5f));
}

TEST(StringPrintfTest, AppendfAddsToTheEnd)
{
	FString Text = TEXT("a");
	Text.Appendf(TEXT("%d"), 1).Appendf(TEXT("%s"), TEXT("b"));
	EXPECT_EQ("a1b", ToUtf8(Text));
}

TEST(StringPrintfDeathTest, AnArgumentThatDoesNotFitHalts)
{
	::testing::FLAGS_gtest_death_test_style = "threadsafe";
	EXPECT_DEATH(Print(TEXT("%s"), 1), "arguments do not fit the format \"%s\"");
	EXPECT_DEATH(Print(TEXT("%d"), TEXT("text")), "arguments do not fit");
	EXPECT_DEATH(Print(TEXT("%f"), 1), "arguments do not fit");
	EXPECT_DEATH(Print(TEXT("%d %d"), 1), "arguments do not fit");
	EXPECT_DEATH(Print(TEXT("%s"), "narrow"), "arguments do not fit");
	EXPECT_DEATH(Print(TEXT("%")), "arguments do not fit");
}
