#include "Misc/Parse.h"

#include "CoreMinimal.h"
#include "Misc/CommandLine.h"
#include "TestText.h"
#include "gtest/gtest.h"

namespace
{
	std::string GetText(const TCHAR* Stream, const TCHAR* Match)
	{
		FString Value = TEXT("(none)");
		FParse::Value(Stream, Match, Value);
		return ToUtf8(Value);
	}
}

TEST(ParseTest, AValueFollowsItsWord)
{
	EXPECT_EQ("abc", GetText(TEXT("-A=1 -Name=abc -B=2"), TEXT("Name=")));
	EXPECT_EQ("abc", GetText(TEXT("-name=abc"), TEXT("NAME=")));
	EXPECT_EQ("(none)", GetText(TEXT("-Other=abc"), TEXT("Name=")));
}

TEST(ParseTest, AWordInsideAnotherIsNotMeant)
{
	int32 Value = 0;
	EXPECT_TRUE(FParse::Value(TEXT("MaxX=1 X=2"), TEXT("X="), Value));
	EXPECT_EQ(2, Value);
}

TEST(ParseTest, TextEndsAtASeparatorOrItsQuote)
{
	EXPECT_EQ("a", GetText(TEXT("(N=a,M=b)"), TEXT("N=")));
	EXPECT_EQ("b", GetText(TEXT("(N=a,M=b)"), TEXT("M=")));
	EXPECT_EQ("two, words", GetText(TEXT("N=\"two, words\" M=b"), TEXT("N=")));
	FString Rest;
	EXPECT_TRUE(FParse::Value(TEXT("N=a, b c"), TEXT("N="), Rest, false));
	EXPECT_EQ("a, b c", ToUtf8(Rest));
}

TEST(ParseTest, NumbersAreRead)
{
	int32 Integer = 0;
	EXPECT_TRUE(FParse::Value(TEXT("I=-12"), TEXT("I="), Integer));
	EXPECT_EQ(-12, Integer);
	double Double = 0.0;
	EXPECT_TRUE(FParse::Value(TEXT("D=.5"), TEXT("D="), Double));
	EXPECT_EQ(0.5, Double);
	bool bValue = false;
	EXPECT_TRUE(FParse::Bool(TEXT("B=True"), TEXT("B="), bValue));
	EXPECT_TRUE(bValue);
	FName Name;
	EXPECT_TRUE(FParse::Value(TEXT("N=Some"), TEXT("N="), Name));
	EXPECT_EQ(FName(TEXT("Some")), Name);
}

TEST(ParseTest, WhatIsNoNumberChangesNothing)
{
	int32 Integer = 5;
	EXPECT_FALSE(FParse::Value(TEXT("I=abc"), TEXT("I="), Integer));
	float Float = 5.0f;
	EXPECT_FALSE(FParse::Value(TEXT("F="), TEXT("F="), Float));
	EXPECT_EQ(5, Integer);
	EXPECT_EQ(5.0f, Float);
}

TEST(ParseTest, ASwitchIsAWordOfItsOwn)
{
	EXPECT_TRUE(FParse::Param(TEXT("map -Windowed"), TEXT("windowed")));
	EXPECT_TRUE(FParse::Param(TEXT("/log"), TEXT("log")));
	EXPECT_FALSE(FParse::Param(TEXT("-WindowedMode"), TEXT("windowed")));
	EXPECT_FALSE(FParse::Param(TEXT("windowed"), TEXT("windowed")));
}

TEST(ParseTest, ACommandMovesBehindItself)
{
	const TCHAR* Stream = TEXT("  Open  the door");
	EXPECT_TRUE(FParse::Command(&Stream, TEXT("open")));
	EXPECT_EQ("the door", ToUtf8(Stream));
	EXPECT_FALSE(FParse::Command(&Stream, TEXT("th")));
	EXPECT_EQ("the door", ToUtf8(Stream));
}

TEST(ParseTest, QuotedTextHasEscapes)
{
	FString Value;
	int32 Read = 0;
	EXPECT_TRUE(FParse::QuotedString(TEXT("\"a\\n\\t\\\"\\\\\\u00e4\" rest"), Value, &Read));
	EXPECT_EQ("a\n\t\"\\\xC3\xA4", ToUtf8(Value));
	EXPECT_EQ(17, Read);
}

TEST(ParseTest, TextWithoutItsClosingQuoteChangesNothing)
{
	FString Value = TEXT("before");
	EXPECT_FALSE(FParse::QuotedString(TEXT("\"open"), Value));
	EXPECT_FALSE(FParse::QuotedString(TEXT("\"open\\"), Value));
	EXPECT_FALSE(FParse::QuotedString(TEXT("plain"), Value));
	EXPECT_EQ("before", ToUtf8(Value));
}

TEST(CommandLineTest, WordsAndSwitchesAreSplit)
{
	TArray<FString> Tokens;
	TArray<FString> Switches;
	FCommandLine::Parse(TEXT("Map -log -title=\"Two words\""), Tokens, Switches);
	EXPECT_EQ("Map|-log|-title=Two words", ToUtf8(FString::Join(Tokens, TEXT("|"))));
	EXPECT_EQ("log|title=Two words", ToUtf8(FString::Join(Switches, TEXT("|"))));
}

TEST(CommandLineTest, ArgumentsWithSpacesAreQuoted)
{
	const char* const Arguments[] = {"program", "Map", "two words"};
	EXPECT_EQ("Map \"two words\"", ToUtf8(FCommandLine::BuildFromArgV(3, Arguments)));
}
