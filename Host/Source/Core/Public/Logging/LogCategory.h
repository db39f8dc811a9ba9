#pragma once

#include "HAL/Platform.h"
#include "Logging/LogVerbosity.h"

class FName;

/**
 * A named family of log lines with a verbosity that can be changed at run time.
 * Lines less important than the verbosity are not formatted at all.
 */
struct FLogCategoryBase
{
	/** The name must be a literal: it is kept by address, so that categories may be made before anything else is. */
	CORE_API FLogCategoryBase(const TCHAR* InName, ELogVerbosity::Type InDefaultVerbosity, ELogVerbosity::Type InCompileTimeVerbosity);
	CORE_API ~FLogCategoryBase();
	FLogCategoryBase(const FLogCategoryBase&) = delete;
	FLogCategoryBase& operator=(const FLogCategoryBase&) = delete;

	/** True when a line of this verbosity would not be written. Fatal is never suppressed. */
	bool IsSuppressed(ELogVerbosity::Type Level) const
	{
		return Level > Verbosity && Level != ELogVerbosity::Fatal;
	}

	ELogVerbosity::Type GetVerbosity() const
	{
		return Verbosity;
	}

	/** Takes effect at once. Limited by the verbosity that the category was compiled with. */
	CORE_API void SetVerbosity(ELogVerbosity::Type NewVerbosity);

	ELogVerbosity::Type GetCompileTimeVerbosity() const
	{
		return CompileTimeVerbosity;
	}

	ELogVerbosity::Type GetDefaultVerbosity() const
	{
		return DefaultVerbosity;
	}

	CORE_API FName GetCategoryName() const;

	/** The name as written in the definition. */
	const TCHAR* GetName() const
	{
		return Name;
	}

	/** The category of that name in any case; null when there is none. */
	CORE_API static FLogCategoryBase* Find(const TCHAR* InName);

	/** The category made before this one; null for the first. Together with GetLast() this visits all of them. */
	FLogCategoryBase* GetPrevious() const
	{
		return Previous;
	}
	CORE_API static FLogCategoryBase* GetLast();

private:
	const TCHAR* Name;
	FLogCategoryBase* Previous;
	ELogVerbosity::Type Verbosity;
	const ELogVerbosity::Type DefaultVerbosity;
	const ELogVerbosity::Type CompileTimeVerbosity;
};

/** A category whose lines beyond a verbosity are not even compiled. */
template <ELogVerbosity::Type InDefaultVerbosity, ELogVerbosity::Type InCompileTimeVerbosity>
struct FLogCategory : public FLogCategoryBase
{
	static_assert(InDefaultVerbosity < ELogVerbosity::NumVerbosity, "Unknown default verbosity");
	static_assert(InCompileTimeVerbosity < ELogVerbosity::NumVerbosity, "Unknown compile time verbosity");

	static constexpr ELogVerbosity::Type CompileTimeVerbosity = InCompileTimeVerbosity;

	explicit FLogCategory(const TCHAR* InName)
		: FLogCategoryBase(InName, InDefaultVerbosity, InCompileTimeVerbosity)
	{
	}
};
