#pragma once

#include "Templates/Invoke.h"
#include "Templates/Sorting.h"

namespace Algo
{
	/** Sorts by < and keeps the order of equal elements. */
	template <typename RangeType>
	void StableSort(RangeType&& Range)
	{
		Host::Sorting::StableSort(GetData(Range), (int64)GetNum(Range), TLess<>());
	}

	template <typename RangeType, typename PredicateType>
	void StableSort(RangeType&& Range, PredicateType Predicate)
	{
		Host::Sorting::StableSort(GetData(Range), (int64)GetNum(Range), Predicate);
	}

	/** Sorts by what a projection gives for each element. */
	template <typename RangeType, typename ProjectionType>
	void StableSortBy(RangeType&& Range, ProjectionType Projection)
	{
		StableSort(Range, [&Projection](const auto& A, const auto& B) { return ::Invoke(Projection, A) < ::Invoke(Projection, B); });
	}
}
