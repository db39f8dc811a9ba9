#pragma once

#include "Templates/Invoke.h"

namespace Algo
{
	/** Index of the first element of a sorted range that does not come before the value. */
	template <typename RangeType, typename ValueType, typename PredicateType>
	[[nodiscard]] int32 LowerBound(const RangeType& Range, const ValueType& Value, PredicateType Predicate)
	{
		const auto* Data = GetData(Range);
		int32 Start = 0;
		int32 Count = (int32)GetNum(Range);
		while (Count > 0)
		{
			const int32 Half = Count / 2;
			if (Predicate(Data[Start + Half], Value))
			{
				Start += Half + 1;
				Count -= Half + 1;
			}
			else
			{
				Count = Half;
			}
		}
		return Start;
	}

	template <typename RangeType, typename ValueType>
	[[nodiscard]] int32 LowerBound(const RangeType& Range, const ValueType& Value)
	{
		return LowerBound(Range, Value, [](const auto& A, const auto& B) { return A < B; });
	}

	/** Index of the first element of a sorted range that comes behind the value. */
	template <typename RangeType, typename ValueType>
	[[nodiscard]] int32 UpperBound(const RangeType& Range, const ValueType& Value)
	{
		return LowerBound(Range, Value, [](const auto& A, const auto& B) { return !(B < A); });
	}

	/** Index of an element of a sorted range that equals the value, or INDEX_NONE. */
	template <typename RangeType, typename ValueType>
	[[nodiscard]] int32 BinarySearch(const RangeType& Range, const ValueType& Value)
	{
		const int32 Index = LowerBound(Range, Value);
		return Index < (int32)GetNum(Range) && !(Value < GetData(Range)[Index]) ? Index : (int32)INDEX_NONE;
	}
}
