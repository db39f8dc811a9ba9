#pragma once

#include "Templates/Invoke.h"

namespace Algo
{
	/** Whether the projection of every element is true; true for an empty range. */
	template <typename RangeType, typename ProjectionType>
	[[nodiscard]] bool AllOf(const RangeType& Range, ProjectionType Projection)
	{
		for (const auto& Element : Range)
		{
			if (!::Invoke(Projection, Element))
			{
				return false;
			}
		}
		return true;
	}
}
