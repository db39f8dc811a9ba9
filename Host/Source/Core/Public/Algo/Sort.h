#pragma once

#include "Templates/Invoke.h"
#include "Templates/Sorting.h"

/** Algorithms on ranges: arrays, views and plain arrays. Predicates get the elements as they are, pointers included. */
namespace Algo
{
	/** Sorts by <, not stably. */
	template <typename RangeType>
	void Sort(RangeType&& Range)
	{
		Host::Sorting::Sort(GetData(Range), (int64)GetNum(Range), TLess<>());
	}

	template <typename RangeType, typename PredicateType>
	void Sort(RangeType&& Range, PredicateType Predicate)
	{
		Host::Sorting::Sort(GetData(Range), (int64)GetNum(Range), Predicate);
	}

	/** Sorts by what a projection gives for each element. */
	template <typename RangeType, typename ProjectionType>
	void SortBy(RangeType&& Range, ProjectionType Projection)
	{
		Sort(Range, [&Projection](const auto& A, const auto& B) { return ::Invoke(Projection, A) < ::Invoke(Projection, B); });
	}

	template <typename RangeType, typename ProjectionType, typename PredicateType>
	void SortBy(RangeType&& Range, ProjectionType Projection, PredicateType Predicate)
	{
		Sort(Range, [&Projection, &Predicate](const auto& A, const auto& B) { return Predicate(::Invoke(Projection, A), ::Invoke(Projection, B)); });
	}

	template <typename RangeType, typename PredicateType>
	[[nodiscard]] bool IsSorted(const RangeType& Range, PredicateType Predicate)
	{
		const auto* Data = GetData(Range);
		const int64 Num = (int64)GetNum(Range);
		for (int64 Index = 1; Index < Num; ++Index)
		{
			if (Predicate(Data[Index], Data[Index - 1]))
			{
				return false;
			}
		}
		return true;
	}

	template <typename RangeType>
	[[nodiscard]] bool IsSorted(const RangeType& Range)
	{
		return IsSorted(Range, TLess<>());
	}
}
