#pragma once

#include "Algo/Find.h"

namespace Algo
{
	/** Address of the first smallest element by the predicate; null of an empty range. */
	template <typename RangeType, typename PredicateType>
	[[nodiscard]] auto* MinElement(RangeType& Range, PredicateType Predicate)
	{
		std::remove_reference_t<decltype(*Host::BeginOf(Range))>* Smallest = nullptr;
		for (auto& Element : Range)
		{
			if (Smallest == nullptr || ::Invoke(Predicate, Element, *Smallest))
			{
				Smallest = &Element;
			}
		}
		return Smallest;
	}

	template <typename RangeType>
	[[nodiscard]] auto* MinElement(RangeType& Range)
	{
		return MinElement(Range, [](const auto& A, const auto& B) { return A < B; });
	}

	/** Address of the first largest element; null of an empty range. */
	template <typename RangeType>
	[[nodiscard]] auto* MaxElement(RangeType& Range)
	{
		return MinElement(Range, [](const auto& A, const auto& B) { return B < A; });
	}
}
