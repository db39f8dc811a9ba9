#include "Containers/StringConv.h"

#include "Containers/UnrealString.h"
#include "gtest/gtest.h"

namespace
{
	/** One, two, three and four bytes long in UTF-8. */
	const char* const Utf8Sample = "a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x8F\xA0z";
	const TCHAR* const Utf16Sample = TEXT("a\u00e4\u20ac\U0001F3E0z");
}

TEST(StringConvTest, Utf8AndBack)
{
	EXPECT_STREQ(Utf8Sample, TCHAR_TO_UTF8(Utf16Sample));
	EXPECT_TRUE(FString(UTF8_TO_TCHAR(Utf8Sample)).Equals(Utf16Sample));
	EXPECT_EQ(11, FTCHARToUTF8(Utf16Sample).Length());
	EXPECT_EQ(6, FUTF8ToTCHAR(Utf8Sample).Length());
	EXPECT_TRUE(FString(reinterpret_cast<const UTF8CHAR*>(Utf8Sample)).Equals(Utf16Sample));
}

TEST(StringConvTest, LongTextsConvertToo)
{
	FString Long;
	std::string Expected;
	for (int32 Round = 0; Round < 500; ++Round)
	{
		Long += Utf16Sample;
		Expected += Utf8Sample;
	}
	EXPECT_EQ(Expected, TCHAR_TO_UTF8(*Long));
	EXPECT_TRUE(FString(UTF8_TO_TCHAR(Expected.c_str())).Equals(Long));
}

TEST(StringConvTest, WhatIsMalformedBecomesTheReplacementCharacter)
{
	EXPECT_TRUE(FString(UTF8_TO_TCHAR("a\xFFz")).Equals(TEXT("a\uFFFDz")));
	EXPECT_TRUE(FString(UTF8_TO_TCHAR("\xC3")).Equals(TEXT("\uFFFD")));
	const TCHAR LoneSurrogate[] = { u'a', (TCHAR)0xD800, u'z', 0 };
	EXPECT_STREQ("a\xEF\xBF\xBDz", TCHAR_TO_UTF8(LoneSurrogate));
}

TEST(StringConvTest, NullStaysNull)
{
	EXPECT_EQ(nullptr, TCHAR_TO_UTF8(nullptr));
	EXPECT_EQ(nullptr, UTF8_TO_TCHAR(nullptr));
}

TEST(StringConvTest, AnsiKeepsAsciiOnly)
{
	EXPECT_STREQ("a?z", TCHAR_TO_ANSI(TEXT("a\u00e4z")));
	EXPECT_TRUE(FString(ANSI_TO_TCHAR("abc")).Equals(TEXT("abc")));
	EXPECT_TRUE(FString("\xE4").Equals(TEXT("\u00e4")));
}

TEST(StringConvTest, Utf32BecomesSurrogatePairs)
{
	const UTF32CHAR Source[] = { U'a', 0x1F3E0, 0x110000, 0xD800 };
	TCHAR Dest[8] = {};
	EXPECT_EQ(5, Host::Utf32ToUtf16(Dest, Source, 4));
	EXPECT_TRUE(FString(Dest).Equals(TEXT("a\U0001F3E0\uFFFD\uFFFD")));
}
