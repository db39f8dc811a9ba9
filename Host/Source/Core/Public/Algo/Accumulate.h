#pragma once

#include "Templates/Invoke.h"

namespace Algo
{
	/** Folds the elements into an initial value, in order. */
	template <typename RangeType, typename ResultType, typename OperationType>
	[[nodiscard]] ResultType Accumulate(const RangeType& Range, ResultType Init, OperationType Operation)
	{
		for (const auto& Element : Range)
		{
			Init = ::Invoke(Operation, MoveTemp(Init), Element);
		}
		return Init;
	}

	/** The sum of an initial value and the elements. */
	template <typename RangeType, typename ResultType>
	[[nodiscard]] ResultType Accumulate(const RangeType& Range, ResultType Init)
	{
		return Accumulate(Range, MoveTemp(Init), [](ResultType Sum, const auto& Element) { return Sum + Element; });
	}
}
