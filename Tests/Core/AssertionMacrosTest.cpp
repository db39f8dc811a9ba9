#include "Misc/AssertionMacros.h"

#include "CoreMinimal.h"
#include "ExpectedLog.h"
#include "TestText.h"
#include "gtest/gtest.h"

namespace
{
	bool EnsureHere(bool bValue)
	{
		return ensure(bValue);
	}
}

TEST(AssertionMacrosDeathTest, AFailedCheckNamesExpressionFileAndLine)
{
	::testing::FLAGS_gtest_death_test_style = "threadsafe";
	const int32 One = 1;
	EXPECT_DEATH(check(One == 2), "Assertion failed: One == 2 \\[File:.*AssertionMacrosTest.cpp\\] \\[Line: [0-9]+\\]");
}

TEST(AssertionMacrosDeathTest, AFailedCheckfAddsItsMessage)
{
	::testing::FLAGS_gtest_death_test_style = "threadsafe";
	EXPECT_DEATH(checkf(false, TEXT("only %d left of %s"), 3, TEXT("many")), "only 3 left of many");
}

TEST(AssertionMacrosDeathTest, AFailedVerifyHalts)
{
	::testing::FLAGS_gtest_death_test_style = "threadsafe";
	EXPECT_DEATH(verify(1 == 2), "Assertion failed: 1 == 2");
}

TEST(AssertionMacrosDeathTest, NoEntryHalts)
{
	::testing::FLAGS_gtest_death_test_style = "threadsafe";
	EXPECT_DEATH(checkNoEntry(), "Assertion failed");
}

TEST(AssertionMacrosTest, VerifyEvaluatesOnce)
{
	int32 Calls = 0;
	verify(++Calls == 1);
	EXPECT_EQ(1, Calls);
}

TEST(AssertionMacrosTest, EnsureReportsOnceAtItsPlaceAndGoesOn)
{
	const Host::FExpectedLog Expected(TEXT("Ensure condition failed: bValue"));
	EXPECT_FALSE(EnsureHere(false));
	EXPECT_FALSE(EnsureHere(false));
	EXPECT_TRUE(EnsureHere(true));
}

TEST(AssertionMacrosTest, EachEnsureReportsForItself)
{
	const Host::FExpectedLog Expected(TEXT("Ensure condition failed"), 2);
	EXPECT_FALSE(ensure(false));
	EXPECT_FALSE(ensure(false));
}

TEST(AssertionMacrosTest, EnsureTellsMessagePlaceAndCallStack)
{
	const Host::FExpectedLog Expected(TEXT("Ensure condition failed"));
	EXPECT_FALSE(ensureMsgf(1 > 2, TEXT("for %s"), TEXT("reasons")));
	const std::string Line = ToUtf8(Expected.GetLastLine());
	EXPECT_NE(std::string::npos, Line.find("Ensure condition failed: 1 > 2 [File:")) << Line;
	EXPECT_NE(std::string::npos, Line.find("AssertionMacrosTest.cpp] [Line: ")) << Line;
	EXPECT_NE(std::string::npos, Line.find("for reasons\n  ")) << Line;
}

TEST(AssertionMacrosTest, EnsureAlwaysReportsEachTime)
{
	const Host::FExpectedLog Expected(TEXT("Ensure condition failed"), 3);
	for (int32 Round = 0; Round < 3; ++Round)
	{
		EXPECT_FALSE(ensureAlways(Round < 0));
	}
}

TEST(AssertionMacrosTest, MessageArgumentsAreEvaluatedOnlyOnFailure)
{
	int32 Calls = 0;
	EXPECT_TRUE(ensureMsgf(true, TEXT("%d"), ++Calls));
	checkf(true, TEXT("%d"), ++Calls);
	EXPECT_EQ(0, Calls);
}
