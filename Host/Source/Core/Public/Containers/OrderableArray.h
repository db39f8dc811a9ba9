#pragma once

#include "Containers/AllowShrinking.h"
#include "Misc/AssertionMacros.h"
#include "Templates/Sorting.h"

namespace Host
{
	/** Sorting an array, and using it as a binary heap, in which the element that comes first by the predicate is at index 0. */
	template <typename ArrayType, typename ElementType>
	class TOrderableArray
	{
	public:
		void Swap(int32 FirstIndex, int32 SecondIndex)
		{
			check(Self().IsValidIndex(FirstIndex) && Self().IsValidIndex(SecondIndex));
			SwapMemory(FirstIndex, SecondIndex);
		}

		/** As Swap, without the checks. */
		void SwapMemory(int32 FirstIndex, int32 SecondIndex)
		{
			if (FirstIndex != SecondIndex)
			{
				Host::Sorting::SwapItems(Self().GetData()[FirstIndex], Self().GetData()[SecondIndex]);
			}
		}

		/** Sorts by <, not stably; raw pointers are dereferenced for the comparison. */
		void Sort() { ::Sort(Self().GetData(), Self().Num()); }
		/** Sorts, not stably. The predicate says whether A goes before B; of raw pointers it gets the objects. */
		template <typename PredicateType>
		void Sort(const PredicateType& Predicate) { ::Sort(Self().GetData(), Self().Num(), Predicate); }
		/** Sorts and keeps the order of equal elements. */
		void StableSort() { ::StableSort(Self().GetData(), Self().Num()); }
		template <typename PredicateType>
		void StableSort(const PredicateType& Predicate) { ::StableSort(Self().GetData(), Self().Num(), Predicate); }

		template <typename PredicateType = TLess<>>
		void Heapify(const PredicateType& Predicate = PredicateType())
		{
			Host::Sorting::Heapify(Self().GetData(), Self().Num(), TDereferenceWrapper<ElementType, PredicateType>(Predicate));
		}

		template <typename PredicateType = TLess<>>
		int32 HeapPush(ElementType Item, const PredicateType& Predicate = PredicateType())
		{
			const int32 Index = Self().Emplace(static_cast<ElementType&&>(Item));
			return (int32)Host::Sorting::SiftUp(Self().GetData(), Index, TDereferenceWrapper<ElementType, PredicateType>(Predicate));
		}

		const ElementType& HeapTop() const { return Self()[0]; }
		ElementType& HeapTop() { return Self()[0]; }

		template <typename PredicateType = TLess<>>
		void HeapPop(ElementType& OutItem, const PredicateType& Predicate = PredicateType())
		{
			OutItem = MoveTempIfPossible(Self()[0]);
			HeapRemoveAt(0, Predicate);
		}

		template <typename PredicateType = TLess<>>
		void HeapPopDiscard(const PredicateType& Predicate = PredicateType())
		{
			HeapRemoveAt(0, Predicate);
		}

		template <typename PredicateType = TLess<>>
		void HeapRemoveAt(int32 Index, const PredicateType& Predicate = PredicateType())
		{
			Self().RemoveAtSwap(Index, 1, EAllowShrinking::No);
			if (Index < Self().Num())
			{
				const TDereferenceWrapper<ElementType, PredicateType> ComesFirst(Predicate);
				Host::Sorting::SiftDown(Self().GetData(), Index, Self().Num(), ComesFirst);
				Host::Sorting::SiftUp(Self().GetData(), Index, ComesFirst);
			}
		}

		template <typename PredicateType = TLess<>>
		void HeapSort(const PredicateType& Predicate = PredicateType())
		{
			Host::Sorting::HeapSort(Self().GetData(), Self().Num(), TDereferenceWrapper<ElementType, PredicateType>(Predicate));
		}

	private:
		ArrayType& Self() { return static_cast<ArrayType&>(*this); }
		const ArrayType& Self() const { return static_cast<const ArrayType&>(*this); }
	};
}
