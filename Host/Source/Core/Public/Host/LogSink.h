#pragma once

#include "Logging/LogVerbosity.h"

class FName;
class FString;

namespace Host
{
	/** Receives every log line that its category lets through. */
	class FLogSink
	{
	public:
		virtual ~FLogSink() = default;

		/**
		 * Called once a line, on the thread that wrote it, one line at a time.
		 * A line that the sink itself writes reaches the other sinks, not this one.
		 * @param File source file, relative to the repository; never null
		 * @param Line counted from 1
		 */
		virtual void Write(const FName& Category, ELogVerbosity::Type Verbosity, const FString& Message, const char* File, int32 Line) = 0;
	};

	/** Where log lines go. */
	class FLogSinks
	{
	public:
		/** Adds a sink, called after those already there. It must stay alive until removed. */
		CORE_API static void Add(FLogSink& Sink);
		/** Removes a sink; nothing happens when it was not added. */
		CORE_API static void Remove(FLogSink& Sink);

		/**
		 * The least important verbosity printed to standard error as "Category: Verbosity: text"; Display at the start.
		 * NoLogging prints nothing but Fatal, which is always printed.
		 */
		CORE_API static void SetStandardErrorVerbosity(ELogVerbosity::Type Verbosity);
		CORE_API static ELogVerbosity::Type GetStandardErrorVerbosity();
	};
}
