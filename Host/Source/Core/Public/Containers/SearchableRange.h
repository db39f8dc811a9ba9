#pragma once

#include "CoreTypes.h"
#include "Templates/Invoke.h"

namespace Host
{
	/** Linear searches in a run of elements: for the classes that have GetData() and Num(). */
	template <typename RangeType, typename ElementType>
	class TSearchableRange
	{
	public:
		/** Index of the first equal element, or INDEX_NONE. */
		int32 Find(const ElementType& Item) const { return IndexOfByKey(Item); }

		bool Find(const ElementType& Item, int32& OutIndex) const
		{
			OutIndex = Find(Item);
			return OutIndex != INDEX_NONE;
		}

		int32 FindLast(const ElementType& Item) const
		{
			return FindLastByPredicate([&Item](const ElementType& Element) { return Element == Item; });
		}

		bool FindLast(const ElementType& Item, int32& OutIndex) const
		{
			OutIndex = FindLast(Item);
			return OutIndex != INDEX_NONE;
		}

		template <typename PredicateType>
		int32 FindLastByPredicate(PredicateType Predicate) const
		{
			const ElementType* Data = Self().GetData();
			for (int32 Index = Self().Num() - 1; Index >= 0; --Index)
			{
				if (::Invoke(Predicate, Data[Index]))
				{
					return Index;
				}
			}
			return INDEX_NONE;
		}

		template <typename KeyType>
		int32 IndexOfByKey(const KeyType& Key) const
		{
			const ElementType* Data = Self().GetData();
			const int32 Num = Self().Num();
			for (int32 Index = 0; Index < Num; ++Index)
			{
				if (Data[Index] == Key)
				{
					return Index;
				}
			}
			return INDEX_NONE;
		}

		template <typename PredicateType>
		int32 IndexOfByPredicate(PredicateType Predicate) const
		{
			const ElementType* Data = Self().GetData();
			const int32 Num = Self().Num();
			for (int32 Index = 0; Index < Num; ++Index)
			{
				if (::Invoke(Predicate, Data[Index]))
				{
					return Index;
				}
			}
			return INDEX_NONE;
		}

		template <typename KeyType>
		ElementType* FindByKey(const KeyType& Key) { return At(IndexOfByKey(Key)); }
		template <typename KeyType>
		const ElementType* FindByKey(const KeyType& Key) const { return At(IndexOfByKey(Key)); }
		template <typename PredicateType>
		ElementType* FindByPredicate(PredicateType Predicate) { return At(IndexOfByPredicate(MoveTemp(Predicate))); }
		template <typename PredicateType>
		const ElementType* FindByPredicate(PredicateType Predicate) const { return At(IndexOfByPredicate(MoveTemp(Predicate))); }

		template <typename KeyType>
		bool Contains(const KeyType& Key) const { return IndexOfByKey(Key) != INDEX_NONE; }
		template <typename PredicateType>
		bool ContainsByPredicate(PredicateType Predicate) const { return IndexOfByPredicate(MoveTemp(Predicate)) != INDEX_NONE; }

	private:
		ElementType* At(int32 Index) { return Index != INDEX_NONE ? Self().GetData() + Index : nullptr; }
		const ElementType* At(int32 Index) const { return Index != INDEX_NONE ? Self().GetData() + Index : nullptr; }
		RangeType& Self() { return static_cast<RangeType&>(*this); }
		const RangeType& Self() const { return static_cast<const RangeType&>(*this); }
	};
}
