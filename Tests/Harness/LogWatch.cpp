#include "LogWatch.h"

#include "ExpectedLog.h"
#include "gtest/gtest.h"

namespace Host
{
	FTestLogWatch& FTestLogWatch::Get()
	{
		static FTestLogWatch Watch;
		return Watch;
	}

	void FTestLogWatch::Write(const FName& Category, ELogVerbosity::Type Verbosity, const FString& Message, const char* File, int32 Line)
	{
		if (Verbosity > ELogVerbosity::Warning)
		{
			return;
		}
		// The latest announcement is asked first, so that an inner scope can be stricter than an outer one.
		for (int32 Index = Announced.Num() - 1; Index >= 0; --Index)
		{
			FExpectedLog& Expected = *Announced[Index];
			if (Message.Contains(Expected.Part, ESearchCase::CaseSensitive))
			{
				++Expected.Count;
				Expected.LastLine = Message;
				return;
			}
		}
		ADD_FAILURE() << "Unannounced log line: " << TCHAR_TO_UTF8(*Category.ToString()) << ": " << TCHAR_TO_UTF8(*Message) << " (" << File << ":" << Line << ")";
	}

	void FTestLogWatch::Announce(FExpectedLog& Expected)
	{
		Announced.Add(&Expected);
	}

	void FTestLogWatch::Withdraw(FExpectedLog& Expected)
	{
		Announced.Remove(&Expected);
	}

	FExpectedLog::FExpectedLog(const TCHAR* InPart, int32 InCount)
		: Part(InPart)
		, ExpectedCount(InCount)
	{
		FTestLogWatch::Get().Announce(*this);
	}

	FExpectedLog::~FExpectedLog()
	{
		FTestLogWatch::Get().Withdraw(*this);
		EXPECT_TRUE(Count == ExpectedCount || ExpectedCount == AnyCount) << Count << " instead of " << ExpectedCount << " times: announced log line: " << TCHAR_TO_UTF8(*Part);
	}
}
