#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"

/** The command line of the program, without its name. */
struct FCommandLine
{
	CORE_API static const TCHAR* Get();
	CORE_API static void Set(const TCHAR* NewCommandLine);
	/** Adds text at the end; it should start with a space. */
	CORE_API static void Append(const TCHAR* AppendString);

	/** Splits into words; those that start with '-' are switches as well, there without it. */
	CORE_API static void Parse(const TCHAR* CmdLine, TArray<FString>& Tokens, TArray<FString>& Switches);

	/** One line of the arguments of main, those with spaces in quotes. */
	CORE_API static FString BuildFromArgV(int32 ArgC, const char* const* ArgV);
};
