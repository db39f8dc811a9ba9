#pragma once

#include "Templates/Invoke.h"

namespace Algo
{
	/** How many elements equal the value. */
	template <typename RangeType, typename ValueType>
	[[nodiscard]] SIZE_T Count(const RangeType& Range, const ValueType& Value)
	{
		SIZE_T Number = 0;
		for (const auto& Element : Range)
		{
			Number += Element == Value ? 1 : 0;
		}
		return Number;
	}

	/** For how many elements the predicate holds. */
	template <typename RangeType, typename PredicateType>
	[[nodiscard]] SIZE_T CountIf(const RangeType& Range, PredicateType Predicate)
	{
		SIZE_T Number = 0;
		for (const auto& Element : Range)
		{
			Number += ::Invoke(Predicate, Element) ? 1 : 0;
		}
		return Number;
	}
}
