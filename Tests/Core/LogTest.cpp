#include "Logging/LogMacros.h"

#include "CoreMinimal.h"
#include "Host/LogSink.h"
#include "TestText.h"
#include "gtest/gtest.h"

#include <vector>

DEFINE_LOG_CATEGORY_STATIC(LogCoreTest, Log, All);
DEFINE_LOG_CATEGORY_STATIC(LogCoreTestQuiet, Warning, Warning);

namespace
{
	struct FLine
	{
		std::string Category;
		ELogVerbosity::Type Verbosity;
		std::string Message;
		std::string File;
		int32 Line;
	};

	class FRecordingSink final : public Host::FLogSink
	{
	public:
		FRecordingSink() { Host::FLogSinks::Add(*this); }
		~FRecordingSink() override { Host::FLogSinks::Remove(*this); }

		virtual void Write(const FName& Category, ELogVerbosity::Type Verbosity, const FString& Message, const char* File, int32 Line) override
		{
			Lines.push_back(FLine{ToUtf8(Category.ToString()), Verbosity, ToUtf8(Message), File, Line});
			if (bEcho)
			{
				UE_LOG(LogCoreTest, Display, TEXT("echo"));
			}
		}

		std::vector<FLine> Lines;
		bool bEcho = false;
	};

	/** Keeps the lines of a test off the screen, and categories as they were. */
	class LogTest : public ::testing::Test
	{
	protected:
		void SetUp() override
		{
			Host::FLogSinks::SetStandardErrorVerbosity(ELogVerbosity::NoLogging);
		}

		void TearDown() override
		{
			Host::FLogSinks::SetStandardErrorVerbosity(ScreenVerbosity);
			LogCoreTest.SetVerbosity(LogCoreTest.GetDefaultVerbosity());
		}

		const ELogVerbosity::Type ScreenVerbosity = Host::FLogSinks::GetStandardErrorVerbosity();
	};

	int32 CountedCalls = 0;
	int32 CountCall()
	{
		return ++CountedCalls;
	}
}

TEST_F(LogTest, ASinkGetsCategoryVerbosityTextAndPlace)
{
	FRecordingSink Sink;
	UE_LOG(LogCoreTest, Display, TEXT("%d units from %s"), 3, TEXT("here"));
	ASSERT_EQ(1u, Sink.Lines.size());
	EXPECT_EQ("LogCoreTest", Sink.Lines[0].Category);
	EXPECT_EQ(ELogVerbosity::Display, Sink.Lines[0].Verbosity);
	EXPECT_EQ("3 units from here", Sink.Lines[0].Message);
	EXPECT_TRUE(Sink.Lines[0].File.ends_with("LogTest.cpp")) << Sink.Lines[0].File;
	EXPECT_EQ(__LINE__ - 6, Sink.Lines[0].Line);
}

TEST_F(LogTest, ARemovedSinkGetsNothing)
{
	FRecordingSink Sink;
	Host::FLogSinks::Remove(Sink);
	UE_LOG(LogCoreTest, Display, TEXT("unheard"));
	EXPECT_TRUE(Sink.Lines.empty());
}

TEST_F(LogTest, LinesBeyondTheVerbosityAreNotFormatted)
{
	FRecordingSink Sink;
	CountedCalls = 0;
	UE_LOG(LogCoreTest, Verbose, TEXT("%d"), CountCall());
	EXPECT_EQ(0, CountedCalls);
	EXPECT_TRUE(Sink.Lines.empty());
}

TEST_F(LogTest, VerbosityChangesAtRunTime)
{
	FRecordingSink Sink;
	LogCoreTest.SetVerbosity(ELogVerbosity::VeryVerbose);
	UE_LOG(LogCoreTest, VeryVerbose, TEXT("heard"));
	LogCoreTest.SetVerbosity(ELogVerbosity::NoLogging);
	UE_LOG(LogCoreTest, Display, TEXT("unheard"));
	ASSERT_EQ(1u, Sink.Lines.size());
	EXPECT_EQ("heard", Sink.Lines[0].Message);
}

TEST_F(LogTest, VerbosityStaysWithinTheCompiledOne)
{
	LogCoreTestQuiet.SetVerbosity(ELogVerbosity::All);
	EXPECT_EQ(ELogVerbosity::Warning, LogCoreTestQuiet.GetVerbosity());
	EXPECT_FALSE(UE_LOG_ACTIVE(LogCoreTestQuiet, Log));
	EXPECT_TRUE(UE_LOG_ACTIVE(LogCoreTest, Log));
}

TEST_F(LogTest, AConditionalLineIsWrittenOnlyWhenItHolds)
{
	FRecordingSink Sink;
	UE_CLOG(false, LogCoreTest, Display, TEXT("not this"));
	UE_CLOG(true, LogCoreTest, Display, TEXT("this"));
	ASSERT_EQ(1u, Sink.Lines.size());
	EXPECT_EQ("this", Sink.Lines[0].Message);
}

TEST_F(LogTest, CategoriesAreFoundInAnyCase)
{
	EXPECT_EQ(&LogCoreTest, FLogCategoryBase::Find(TEXT("logcoretest")));
	EXPECT_EQ(nullptr, FLogCategoryBase::Find(TEXT("LogNothing")));
}

TEST_F(LogTest, ALineWrittenByASinkDoesNotComeBackToIt)
{
	FRecordingSink Listener;
	FRecordingSink Echo;
	Echo.bEcho = true;
	UE_LOG(LogCoreTest, Display, TEXT("call"));
	ASSERT_EQ(1u, Echo.Lines.size());
	ASSERT_EQ(2u, Listener.Lines.size());
	EXPECT_EQ("echo", Listener.Lines[1].Message);
}

TEST_F(LogTest, StandardErrorGetsCategoryVerbosityAndText)
{
	Host::FLogSinks::SetStandardErrorVerbosity(ELogVerbosity::Log);
	::testing::internal::CaptureStderr();
	UE_LOG(LogCoreTest, Display, TEXT("Gr\u00fc\u00dfe"));
	UE_LOG(LogCoreTest, Log, TEXT("plain"));
	EXPECT_EQ("LogCoreTest: Display: Gr\xC3\xBC\xC3\x9F" "e\nLogCoreTest: plain\n", ::testing::internal::GetCapturedStderr());
}

TEST_F(LogTest, StandardErrorCanBeSwitchedOff)
{
	::testing::internal::CaptureStderr();
	UE_LOG(LogCoreTest, Display, TEXT("unseen"));
	EXPECT_EQ("", ::testing::internal::GetCapturedStderr());
}

TEST_F(LogTest, VerbositiesAreReadByName)
{
	ELogVerbosity::Type Verbosity = ELogVerbosity::Log;
	EXPECT_TRUE(ParseLogVerbosityFromString(TEXT("veryverbose"), ELogVerbosity::Log, Verbosity));
	EXPECT_EQ(ELogVerbosity::VeryVerbose, Verbosity);
	EXPECT_TRUE(ParseLogVerbosityFromString(TEXT("Default"), ELogVerbosity::Warning, Verbosity));
	EXPECT_EQ(ELogVerbosity::Warning, Verbosity);
	EXPECT_FALSE(ParseLogVerbosityFromString(TEXT("Loud"), ELogVerbosity::Log, Verbosity));
	EXPECT_EQ(ELogVerbosity::Warning, Verbosity);
}

TEST(LogDeathTest, AFatalLineEndsTheProgram)
{
	::testing::FLAGS_gtest_death_test_style = "threadsafe";
	EXPECT_DEATH(UE_LOG(LogCoreTest, Fatal, TEXT("the end of %d"), 7), "LogCoreTest: Fatal: the end of 7");
}
