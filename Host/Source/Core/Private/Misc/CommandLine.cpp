#include "Misc/CommandLine.h"

#include "Containers/StringConv.h"
#include "Misc/Parse.h"

namespace
{
	FString& GetStoredCommandLine()
	{
		static FString CommandLine;
		return CommandLine;
	}
}

const TCHAR* FCommandLine::Get()
{
	return *GetStoredCommandLine();
}

void FCommandLine::Set(const TCHAR* NewCommandLine)
{
	GetStoredCommandLine() = NewCommandLine;
}

void FCommandLine::Append(const TCHAR* AppendString)
{
	GetStoredCommandLine() += AppendString;
}

void FCommandLine::Parse(const TCHAR* CmdLine, TArray<FString>& Tokens, TArray<FString>& Switches)
{
	FString Word;
	while (FParse::Token(CmdLine, Word, false))
	{
		if (Word.StartsWith(TEXT("-")))
		{
			Switches.Add(Word.Mid(1));
		}
		Tokens.Add(Word);
	}
}

FString FCommandLine::BuildFromArgV(int32 ArgC, const char* const* ArgV)
{
	FString Line;
	for (int32 Index = 1; Index < ArgC; ++Index)
	{
		const FString Argument(UTF8_TO_TCHAR(ArgV[Index]));
		if (Index > 1)
		{
			Line += TEXT(" ");
		}
		int32 Space = INDEX_NONE;
		Line += Argument.FindChar(TEXT(' '), Space) ? TEXT("\"") + Argument + TEXT("\"") : Argument;
	}
	return Line;
}
