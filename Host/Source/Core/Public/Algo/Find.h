#pragma once

#include "Templates/Invoke.h"

namespace Host
{
	template <typename RangeType>
	auto BeginOf(RangeType& Range)
	{
		if constexpr (std::is_array_v<RangeType>)
		{
			return &Range[0];
		}
		else
		{
			return Range.begin();
		}
	}
}

namespace Algo
{
	/** Address of the first element for which the predicate holds, or null. */
	template <typename RangeType, typename PredicateType>
	[[nodiscard]] auto* FindByPredicate(RangeType& Range, PredicateType Predicate)
	{
		for (auto& Element : Range)
		{
			if (::Invoke(Predicate, Element))
			{
				return &Element;
			}
		}
		return static_cast<std::remove_reference_t<decltype(*Host::BeginOf(Range))>*>(nullptr);
	}

	/** Address of the first element that equals the value, or null. */
	template <typename RangeType, typename ValueType>
	[[nodiscard]] auto* Find(RangeType& Range, const ValueType& Value)
	{
		return FindByPredicate(Range, [&Value](const auto& Element) { return Element == Value; });
	}

	/** Address of the first element of which the projection equals the value, or null. */
	template <typename RangeType, typename ValueType, typename ProjectionType>
	[[nodiscard]] auto* FindBy(RangeType& Range, const ValueType& Value, ProjectionType Projection)
	{
		return FindByPredicate(Range, [&Value, &Projection](const auto& Element) { return ::Invoke(Projection, Element) == Value; });
	}
}
