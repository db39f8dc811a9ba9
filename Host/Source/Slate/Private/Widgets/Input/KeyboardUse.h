#pragma once

#include "InputCoreTypes.h"

namespace Host
{
	/** The keys that press a button. */
	inline bool IsAcceptKey(const FKey& Key)
	{
		return Key == EKeys::Enter || Key == EKeys::SpaceBar;
	}
}
