#pragma once

#include "CoreMinimal.h"

class UClass;
class UFunction;

namespace Host
{
	/** Adds a function with the parameters and the result of another to a class, to be given a script body. */
	UFunction* CopySignature(UClass& Class, const UFunction& Signature, FName Name);

	/** Adds a function without parameters and result. */
	UFunction* MakePlainFunction(UClass& Class, FName Name);
}
