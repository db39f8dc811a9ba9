#pragma once

#include "CoreMinimal.h"

/** What was wrong with a text from outside: a line for each problem, "file:line:column: what, and what was expected". */
class HALVEXSDK_API FReadProblems
{
public:
	/** So many lines are kept; what comes after them is counted only. */
	static constexpr int32 MaxMessages = 50;

	/** The name stands for the text in the messages. */
	explicit FReadProblems(FString InName);

	/** Line and column are counted from 1; 0 for a problem without a place. */
	void Add(uint32 Line, uint32 Column, const FString& What);

	bool IsEmpty() const { return NumProblems == 0; }
	int32 Num() const { return NumProblems; }
	const TArray<FString>& GetMessages() const { return Messages; }

	/** Writes the messages to the log as warnings, and how many more there were. */
	void Log() const;

private:
	FString Name;
	TArray<FString> Messages;
	int32 NumProblems = 0;
};
