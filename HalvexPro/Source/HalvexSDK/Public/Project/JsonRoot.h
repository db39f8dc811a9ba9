#pragma once

#include "CoreMinimal.h"

class FJsonObject;
class FReadProblems;

/** Texts in JSON that are one object. */
class HALVEXSDK_API FJsonRoot
{
public:
	/** The object of a text; null, and a problem that says where and why, when it is none. */
	static TSharedPtr<FJsonObject> Read(const FString& Text, FReadProblems& Problems);
};
