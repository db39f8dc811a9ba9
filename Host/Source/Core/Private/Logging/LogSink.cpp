#include "Host/LogSink.h"

#include "Containers/StringConv.h"
#include "Containers/UnrealString.h"
#include "Logging/LogMacros.h"
#include "UObject/NameTypes.h"

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <vector>

namespace
{
	std::atomic<ELogVerbosity::Type> StandardErrorVerbosity = ELogVerbosity::Display;

	struct FSinkList
	{
		// Recursive: a sink may write lines of its own.
		std::recursive_mutex Mutex;
		std::vector<Host::FLogSink*> Sinks;
		// The sinks that are being called, innermost last.
		std::vector<Host::FLogSink*> Busy;
	};

	FSinkList& GetSinkList()
	{
		// Never destroyed: globals may write lines while they are.
		static FSinkList& List = *new FSinkList;
		return List;
	}

	void PrintToStandardError(const FLogCategoryBase& Category, ELogVerbosity::Type Verbosity, const FString& Message)
	{
		if (Verbosity > StandardErrorVerbosity.load(std::memory_order_relaxed) && Verbosity != ELogVerbosity::Fatal)
		{
			return;
		}
		const FTCHARToUTF8 CategoryText(Category.GetName());
		const FTCHARToUTF8 MessageText(*Message);
		if (Verbosity == ELogVerbosity::Log)
		{
			std::fprintf(stderr, "%s: %s\n", CategoryText.Get(), MessageText.Get());
		}
		else
		{
			const FTCHARToUTF8 VerbosityText(ToString(Verbosity));
			std::fprintf(stderr, "%s: %s: %s\n", CategoryText.Get(), VerbosityText.Get(), MessageText.Get());
		}
	}

	void CallSinks(const FName& Category, ELogVerbosity::Type Verbosity, const FString& Message, const char* File, int32 Line)
	{
		FSinkList& List = GetSinkList();
		const std::vector<Host::FLogSink*> Called = List.Sinks;
		for (Host::FLogSink* Sink : Called)
		{
			const bool bStillThere = std::ranges::find(List.Sinks, Sink) != List.Sinks.end();
			const bool bBusy = std::ranges::find(List.Busy, Sink) != List.Busy.end();
			if (bStillThere && !bBusy)
			{
				List.Busy.push_back(Sink);
				Sink->Write(Category, Verbosity, Message, File, Line);
				List.Busy.pop_back();
			}
		}
	}
}

void Host::FLogSinks::Add(FLogSink& Sink)
{
	FSinkList& List = GetSinkList();
	const std::scoped_lock Lock(List.Mutex);
	List.Sinks.push_back(&Sink);
}

void Host::FLogSinks::Remove(FLogSink& Sink)
{
	FSinkList& List = GetSinkList();
	const std::scoped_lock Lock(List.Mutex);
	std::erase(List.Sinks, &Sink);
}

void Host::FLogSinks::SetStandardErrorVerbosity(ELogVerbosity::Type Verbosity)
{
	StandardErrorVerbosity = Verbosity;
}

ELogVerbosity::Type Host::FLogSinks::GetStandardErrorVerbosity()
{
	return StandardErrorVerbosity;
}

void Host::WriteLog(const FLogCategoryBase& Category, ELogVerbosity::Type Verbosity, const char* File, int32 Line, const FString& Message)
{
	{
		const std::scoped_lock Lock(GetSinkList().Mutex);
		PrintToStandardError(Category, Verbosity, Message);
		CallSinks(Category.GetCategoryName(), Verbosity, Message, File, Line);
	}
	if (Verbosity == ELogVerbosity::Fatal)
	{
		std::fflush(nullptr);
		std::abort();
	}
}
