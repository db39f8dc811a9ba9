#pragma once

#include "Templates/Sorting.h"

namespace Algo
{
	/** Reverses a range in place. */
	template <typename RangeType>
	void Reverse(RangeType&& Range)
	{
		auto* Data = GetData(Range);
		for (int64 Low = 0, High = (int64)GetNum(Range) - 1; Low < High; ++Low, --High)
		{
			Host::Sorting::SwapItems(Data[Low], Data[High]);
		}
	}
}
