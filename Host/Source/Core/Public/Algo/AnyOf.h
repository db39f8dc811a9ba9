#pragma once

#include "Templates/Invoke.h"

namespace Algo
{
	/** Whether the projection of some element is true; false for an empty range. */
	template <typename RangeType, typename ProjectionType>
	[[nodiscard]] bool AnyOf(const RangeType& Range, ProjectionType Projection)
	{
		for (const auto& Element : Range)
		{
			if (::Invoke(Projection, Element))
			{
				return true;
			}
		}
		return false;
	}

	/** Whether the projection of no element is true. */
	template <typename RangeType, typename ProjectionType>
	[[nodiscard]] bool NoneOf(const RangeType& Range, ProjectionType Projection)
	{
		return !AnyOf(Range, Projection);
	}
}
