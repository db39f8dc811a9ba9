#include "HAL/StandardCommands.h"

#include "HAL/IConsoleManager.h"
#include "Logging/LogMacros.h"

namespace
{
	void PrintObject(const TCHAR* Name, IConsoleObject* Object, FOutputDevice& Out)
	{
		if (const IConsoleVariable* const Variable = Object->AsVariable())
		{
			Out.Logf(TEXT("%s = \"%s\"  %s"), Name, *Variable->GetString(), Object->GetHelp());
		}
		else
		{
			Out.Logf(TEXT("%s  %s"), Name, Object->GetHelp());
		}
	}

	void DumpCommands(const TArray<FString>& Args, FOutputDevice& Out)
	{
		const FString Start = Args.IsEmpty() ? FString() : Args[0];
		const auto Print = [&Out](const TCHAR* Name, IConsoleObject* Object) { PrintObject(Name, Object, Out); };
		IConsoleManager::Get().ForEachConsoleObjectThatStartsWith(FConsoleObjectVisitor::CreateLambda(Print), *Start);
	}

	void PrintHelp(const TArray<FString>&, FOutputDevice& Out)
	{
		Out.Log(TEXT("Name            shows a variable, or runs a command"));
		Out.Log(TEXT("Name ?          shows what it is for"));
		Out.Log(TEXT("Name Value      sets a variable"));
		Out.Log(TEXT("DumpConsoleCommands [Start]   lists all whose names start so"));
	}

	void ListLogCategories(FOutputDevice& Out)
	{
		for (const FLogCategoryBase* Category = FLogCategoryBase::GetLast(); Category != nullptr; Category = Category->GetPrevious())
		{
			Out.Logf(TEXT("%s %s"), Category->GetName(), ToString(Category->GetVerbosity()));
		}
	}

	void SetLogVerbosity(const TArray<FString>& Args, FOutputDevice& Out)
	{
		if (Args.Num() == 1 && Args[0] == TEXT("list"))
		{
			ListLogCategories(Out);
			return;
		}
		if (Args.Num() != 2)
		{
			Out.Log(TEXT("Log <category> <verbosity>, or Log list"));
			return;
		}
		FLogCategoryBase* const Category = FLogCategoryBase::Find(*Args[0]);
		if (Category == nullptr)
		{
			Out.Logf(TEXT("There is no log category '%s'"), *Args[0]);
			return;
		}
		ELogVerbosity::Type Verbosity = ELogVerbosity::Log;
		if (!ParseLogVerbosityFromString(*Args[1], Category->GetDefaultVerbosity(), Verbosity))
		{
			Out.Logf(TEXT("There is no verbosity '%s': expected Fatal, Error, Warning, Display, Log, Verbose, VeryVerbose, Off or Default"), *Args[1]);
			return;
		}
		Category->SetVerbosity(Verbosity);
		Out.Logf(TEXT("%s %s"), Category->GetName(), ToString(Category->GetVerbosity()));
	}
}

void Host::RegisterStandardCommands(IConsoleManager& Manager)
{
	using FDelegate = FConsoleCommandWithArgsAndOutputDeviceDelegate;
	Manager.RegisterConsoleCommand(TEXT("Help"), TEXT("Tells how to use the console."), FDelegate::CreateStatic(&PrintHelp));
	Manager.RegisterConsoleCommand(TEXT("DumpConsoleCommands"), TEXT("Lists variables and commands, all or those whose names start with the argument."), FDelegate::CreateStatic(&DumpCommands));
	Manager.RegisterConsoleCommand(TEXT("Log"), TEXT("Sets how much a log category writes: Log <category> <verbosity>. Log list shows them all."), FDelegate::CreateStatic(&SetLogVerbosity));
}
