#pragma once

#include "HAL/Platform.h"

/** How much a log line matters, most important first. */
namespace ELogVerbosity
{
	enum Type : uint8
	{
		/** Not a verbosity of a line: as a category's verbosity it lets nothing but Fatal through. */
		NoLogging = 0,
		/** Always printed; ends the program. */
		Fatal,
		Error,
		Warning,
		/** For the console and the log file. */
		Display,
		/** For the log file. */
		Log,
		Verbose,
		VeryVerbose,

		All = VeryVerbose,
		NumVerbosity
	};
}

/** The name of the verbosity as written in UE_LOG. */
CORE_API const TCHAR* ToString(ELogVerbosity::Type Verbosity);

/** Reads a verbosity by its name in any case, or "Off", "All", "Default". Returns false, leaving the output alone, when the name is none of them. */
CORE_API bool ParseLogVerbosityFromString(const TCHAR* Name, ELogVerbosity::Type Default, ELogVerbosity::Type& OutVerbosity);
