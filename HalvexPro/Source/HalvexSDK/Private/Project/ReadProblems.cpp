#include "Project/ReadProblems.h"

#include "HalvexSDKLog.h"

FReadProblems::FReadProblems(FString InName)
	: Name(MoveTemp(InName))
{
}

void FReadProblems::Add(uint32 Line, uint32 Column, const FString& What)
{
	if (++NumProblems > MaxMessages)
	{
		return;
	}
	const FString Place = Line > 0 ? FString::Printf(TEXT(":%u:%u"), Line, Column) : FString();
	Messages.Add(Name + Place + TEXT(": ") + What);
}

void FReadProblems::Log() const
{
	for (const FString& Message : Messages)
	{
		UE_LOG(LogHalvexSDK, Warning, TEXT("%s"), *Message);
	}
	if (NumProblems > MaxMessages)
	{
		UE_LOG(LogHalvexSDK, Warning, TEXT("%s: and %d more problems"), *Name, NumProblems - MaxMessages);
	}
}
