#include "Misc/AssertionMacros.h"

#include "Containers/StringConv.h"
#include "Containers/UnrealString.h"
#include "Logging/LogMacros.h"

#include <cstdlib>
#include <execinfo.h>

namespace
{
	FString Describe(const TCHAR* What, const char* Expression, const char* File, int32 Line, const FString& Message)
	{
		FString Text = FString::Printf(TEXT("%s: %s [File:%s] [Line: %d]"), What, UTF8_TO_TCHAR(Expression), UTF8_TO_TCHAR(File), Line);
		if (!Message.IsEmpty())
		{
			Text += TEXT(" ");
			Text += Message;
		}
		return Text;
	}

	/** One line a frame, the caller's first, as "program(function+0x12) [0x...]": readable by addr2line where the function has no name. */
	FString DescribeCallStack()
	{
		constexpr int32 MaxFrames = 24;
		// This function, and the one of the macro.
		constexpr int32 SkippedFrames = 2;
		void* Frames[MaxFrames];
		const int32 Count = backtrace(Frames, MaxFrames);
		char** const Symbols = backtrace_symbols(Frames, Count);
		FString Text;
		for (int32 Index = SkippedFrames; Symbols != nullptr && Index < Count; ++Index)
		{
			Text += TEXT("\n  ");
			Text += UTF8_TO_TCHAR(Symbols[Index]);
		}
		std::free(Symbols);
		return Text;
	}
}

void Host::CheckFailed(const char* Expression, const char* File, int32 Line)
{
	CheckFailedWithMessage(Expression, File, Line, FString());
}

void Host::CheckFailedWithMessage(const char* Expression, const char* File, int32 Line, const FString& Message)
{
	WriteLog(LogCore, ELogVerbosity::Fatal, File, Line, Describe(TEXT("Assertion failed"), Expression, File, Line, Message));
	std::abort();
}

bool Host::EnsureFailed(const char* Expression, const char* File, int32 Line)
{
	return EnsureFailedWithMessage(Expression, File, Line, FString());
}

bool Host::EnsureFailedWithMessage(const char* Expression, const char* File, int32 Line, const FString& Message)
{
	const FString Text = Describe(TEXT("Ensure condition failed"), Expression, File, Line, Message) + DescribeCallStack();
	WriteLog(LogCore, ELogVerbosity::Error, File, Line, Text);
	return false;
}
