#pragma once

#include "HAL/Platform.h"
#include "Logging/LogCategory.h"
#include "Logging/LogVerbosity.h"
#include "Misc/AssertionMacros.h"

/** Declares a log category that one source file of the module defines. */
#define DECLARE_LOG_CATEGORY_EXTERN(CategoryName, DefaultVerbosity, CompileTimeVerbosity) \
	extern struct FLogCategory##CategoryName : public FLogCategory<ELogVerbosity::DefaultVerbosity, ELogVerbosity::CompileTimeVerbosity> \
	{ \
		FLogCategory##CategoryName() : FLogCategory(TEXT(#CategoryName)) {} \
	} CategoryName

/** Defines a category declared with DECLARE_LOG_CATEGORY_EXTERN. */
#define DEFINE_LOG_CATEGORY(CategoryName) FLogCategory##CategoryName CategoryName

/** Declares and defines a category for one source file. */
#define DEFINE_LOG_CATEGORY_STATIC(CategoryName, DefaultVerbosity, CompileTimeVerbosity) \
	static struct FLogCategory##CategoryName : public FLogCategory<ELogVerbosity::DefaultVerbosity, ELogVerbosity::CompileTimeVerbosity> \
	{ \
		FLogCategory##CategoryName() : FLogCategory(TEXT(#CategoryName)) {} \
	} CategoryName

namespace Host
{
	/** Hands a formatted line to the sinks whether or not its category is suppressed; a Fatal one then aborts. */
	CORE_API void WriteLog(const FLogCategoryBase& Category, ELogVerbosity::Type Verbosity, const char* File, int32 Line, const FString& Message);

	template <typename FormatType, typename... ArgumentTypes>
	void WriteLogf(const FLogCategoryBase& Category, ELogVerbosity::Type Verbosity, const char* File, int32 Line, const FormatType& Format, const ArgumentTypes&... Arguments)
	{
		WriteLog(Category, Verbosity, File, Line, TLate<FString, FormatType>::FType::Printf(Format, Arguments...));
	}
}

/**
 * Writes a log line: UE_LOG(LogTemp, Warning, TEXT("Loaded %d units from %s"), Count, *Path).
 * The arguments are not evaluated when the category suppresses the verbosity. Fatal aborts.
 */
#define UE_LOG(CategoryName, Verbosity, Format, ...) \
	do \
	{ \
		if constexpr (ELogVerbosity::Verbosity <= decltype(CategoryName)::CompileTimeVerbosity || ELogVerbosity::Verbosity == ELogVerbosity::Fatal) \
		{ \
			if (!CategoryName.IsSuppressed(ELogVerbosity::Verbosity)) \
			{ \
				::Host::WriteLogf(CategoryName, ELogVerbosity::Verbosity, __FILE__, __LINE__, Format __VA_OPT__(,) __VA_ARGS__); \
			} \
		} \
	} while (false)

/** As UE_LOG, when the condition holds; the condition is not evaluated when the line is suppressed. */
#define UE_CLOG(Condition, CategoryName, Verbosity, Format, ...) \
	do \
	{ \
		if constexpr (ELogVerbosity::Verbosity <= decltype(CategoryName)::CompileTimeVerbosity || ELogVerbosity::Verbosity == ELogVerbosity::Fatal) \
		{ \
			if (!CategoryName.IsSuppressed(ELogVerbosity::Verbosity) && (Condition)) \
			{ \
				::Host::WriteLogf(CategoryName, ELogVerbosity::Verbosity, __FILE__, __LINE__, Format __VA_OPT__(,) __VA_ARGS__); \
			} \
		} \
	} while (false)

/** True when a line of that category and verbosity would be written: asked before costly preparation of a line. */
#define UE_LOG_ACTIVE(CategoryName, Verbosity) \
	(ELogVerbosity::Verbosity <= decltype(CategoryName)::CompileTimeVerbosity && !CategoryName.IsSuppressed(ELogVerbosity::Verbosity))

/** The scratch category, for lines that have no category of their own yet. */
DECLARE_LOG_CATEGORY_EXTERN(LogTemp, Log, All);

/** Lines of the lowest floor: assertions, files, configuration, console. */
DECLARE_LOG_CATEGORY_EXTERN(LogCore, Log, All);
