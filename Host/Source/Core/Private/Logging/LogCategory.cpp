#include "Logging/LogCategory.h"

#include "Logging/LogMacros.h"
#include "Misc/CString.h"
#include "UObject/NameTypes.h"

#include <iterator>

DEFINE_LOG_CATEGORY(LogTemp);
DEFINE_LOG_CATEGORY(LogCore);

namespace
{
	constexpr const TCHAR* VerbosityNames[] = {
		TEXT("NoLogging"), TEXT("Fatal"), TEXT("Error"), TEXT("Warning"), TEXT("Display"), TEXT("Log"), TEXT("Verbose"), TEXT("VeryVerbose")};
	static_assert(std::size(VerbosityNames) == ELogVerbosity::NumVerbosity);

	// Categories are globals of every module: the head of their list must exist before the first of them.
	constinit FLogCategoryBase* LastCategory = nullptr;
}

const TCHAR* ToString(ELogVerbosity::Type Verbosity)
{
	return Verbosity < ELogVerbosity::NumVerbosity ? VerbosityNames[Verbosity] : TEXT("Unknown");
}

bool ParseLogVerbosityFromString(const TCHAR* Name, ELogVerbosity::Type Default, ELogVerbosity::Type& OutVerbosity)
{
	for (int32 Index = 0; Index < ELogVerbosity::NumVerbosity; ++Index)
	{
		if (FCString::Stricmp(Name, VerbosityNames[Index]) == 0)
		{
			OutVerbosity = ELogVerbosity::Type(Index);
			return true;
		}
	}
	if (FCString::Stricmp(Name, TEXT("Off")) == 0)
	{
		OutVerbosity = ELogVerbosity::NoLogging;
		return true;
	}
	if (FCString::Stricmp(Name, TEXT("All")) == 0)
	{
		OutVerbosity = ELogVerbosity::All;
		return true;
	}
	if (FCString::Stricmp(Name, TEXT("Default")) == 0)
	{
		OutVerbosity = Default;
		return true;
	}
	return false;
}

FLogCategoryBase::FLogCategoryBase(const TCHAR* InName, ELogVerbosity::Type InDefaultVerbosity, ELogVerbosity::Type InCompileTimeVerbosity)
	: Name(InName)
	, Previous(LastCategory)
	, Verbosity(InDefaultVerbosity < InCompileTimeVerbosity ? InDefaultVerbosity : InCompileTimeVerbosity)
	, DefaultVerbosity(Verbosity)
	, CompileTimeVerbosity(InCompileTimeVerbosity)
{
	LastCategory = this;
}

FLogCategoryBase::~FLogCategoryBase()
{
	FLogCategoryBase** Link = &LastCategory;
	while (*Link != this)
	{
		Link = &(*Link)->Previous;
	}
	*Link = Previous;
}

void FLogCategoryBase::SetVerbosity(ELogVerbosity::Type NewVerbosity)
{
	Verbosity = NewVerbosity < CompileTimeVerbosity ? NewVerbosity : CompileTimeVerbosity;
}

FName FLogCategoryBase::GetCategoryName() const
{
	return FName(Name);
}

FLogCategoryBase* FLogCategoryBase::Find(const TCHAR* InName)
{
	for (FLogCategoryBase* Category = LastCategory; Category != nullptr; Category = Category->Previous)
	{
		if (FCString::Stricmp(Category->Name, InName) == 0)
		{
			return Category;
		}
	}
	return nullptr;
}

FLogCategoryBase* FLogCategoryBase::GetLast()
{
	return LastCategory;
}
