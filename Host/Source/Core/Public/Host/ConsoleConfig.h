#pragma once

#include "Containers/UnrealString.h"
#include "HAL/IConsoleManager.h"

namespace Host
{
	/**
	 * Sets the console variables that a section of a configuration names, "r.Name=Value" a line. A variable that is not
	 * registered yet gets its value when it is. A value that is none of the variable's type, a rank below the last setter's and
	 * the name of a command are one warning each, and the other lines count.
	 * @param Section	such as "ConsoleVariables", without brackets
	 * @param Name		the configuration's name or file, as for GConfig
	 * @param SetBy		the rank at which the values are set
	 */
	CORE_API void ApplyConsoleVariables(const TCHAR* Section, const FString& Name, EConsoleVariableFlags SetBy);
}
