#pragma once

#include "HAL/IConsoleManager.h"

namespace Host
{
	/** Sets a variable unless a setter of a higher rank has spoken: what the user typed or a file demands stays, without a warning. */
	inline void SetUnlessOutranked(IConsoleVariable& Variable, const TCHAR* Value, EConsoleVariableFlags SetBy)
	{
		if ((uint32(Variable.GetFlags()) & ECVF_SetByMask) <= uint32(SetBy))
		{
			Variable.Set(Value, SetBy);
		}
	}
}
