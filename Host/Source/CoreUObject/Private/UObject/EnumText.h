#pragma once

#include "CoreMinimal.h"

class FNumericProperty;
class FOutputDevice;
class FProperty;
class UEnum;

namespace Host
{
	/** Reads an enumerator by name, short or whole, or several bits of a flags enumeration joined by "|", or a number. */
	const TCHAR* ImportEnumText(const FProperty& Property, const FNumericProperty& Integer, const UEnum& Enum, const TCHAR* Buffer, void* Value, FOutputDevice* ErrorText);

	/** Appends the enumerator's short name, the name that a user reads, or the number where no enumerator has it. */
	void ExportEnumText(const FNumericProperty& Integer, const UEnum& Enum, FString& ValueStr, const void* Value, int32 PortFlags);
}
