#pragma once

#include "CoreTypes.h"

namespace Host
{
	/** Walks an array by index, so that elements may be added and removed on the way. */
	template <typename ArrayType, typename ElementType>
	class TIndexedArrayIterator
	{
	public:
		explicit TIndexedArrayIterator(ArrayType& InArray, int32 StartIndex = 0)
			: Array(InArray)
			, Index(StartIndex)
		{
		}

		TIndexedArrayIterator& operator++()
		{
			++Index;
			return *this;
		}

		TIndexedArrayIterator& operator--()
		{
			--Index;
			return *this;
		}

		ElementType& operator*() const { return Array[Index]; }
		ElementType* operator->() const { return &Array[Index]; }
		explicit operator bool() const { return Array.IsValidIndex(Index); }
		bool operator!() const { return !(bool)*this; }
		int32 GetIndex() const { return Index; }
		void Reset() { Index = 0; }
		void SetToEnd() { Index = Array.Num(); }

		/** Removes the element; the next step leads to the one that followed it. */
		void RemoveCurrent()
		{
			Array.RemoveAt(Index);
			--Index;
		}

		void RemoveCurrentSwap()
		{
			Array.RemoveAtSwap(Index);
			--Index;
		}

		bool operator==(const TIndexedArrayIterator& Other) const { return &Array == &Other.Array && Index == Other.Index; }

	private:
		ArrayType& Array;
		int32 Index;
	};
}
