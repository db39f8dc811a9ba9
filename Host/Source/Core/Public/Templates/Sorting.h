#pragma once

#include "HAL/UnrealMemory.h"
#include "Templates/Less.h"

/*
 * Sorting of runs. A predicate that is no strict weak ordering gives an unspecified order, but every element is still
 * there once and no memory outside the run is touched: every scan is bounded.
 */
namespace Host::Sorting
{
	inline constexpr int64 InsertionSortLimit = 16;

	template <typename T>
	void SwapItems(T& A, T& B)
	{
		alignas(T) uint8 Held[sizeof(T)];
		FMemory::Memcpy(static_cast<void*>(Held), static_cast<const void*>(&A), sizeof(T));
		FMemory::Memcpy(static_cast<void*>(&A), static_cast<const void*>(&B), sizeof(T));
		FMemory::Memcpy(static_cast<void*>(&B), static_cast<const void*>(Held), sizeof(T));
	}

	/** Stable. */
	template <typename T, typename PredicateType>
	void InsertionSort(T* First, int64 Num, const PredicateType& Less)
	{
		for (int64 Index = 1; Index < Num; ++Index)
		{
			int64 Place = Index;
			while (Place > 0 && Less(First[Index], First[Place - 1]))
			{
				--Place;
			}
			if (Place != Index)
			{
				alignas(T) uint8 Held[sizeof(T)];
				FMemory::Memcpy(static_cast<void*>(Held), static_cast<const void*>(First + Index), sizeof(T));
				FMemory::Memmove(static_cast<void*>(First + Place + 1), static_cast<const void*>(First + Place), sizeof(T) * (SIZE_T)(Index - Place));
				FMemory::Memcpy(static_cast<void*>(First + Place), static_cast<const void*>(Held), sizeof(T));
			}
		}
	}

	/** Lets the element at Index sink in a heap whose root comes first by the predicate. */
	template <typename T, typename PredicateType>
	void SiftDown(T* Heap, int64 Index, int64 Num, const PredicateType& ComesFirst)
	{
		for (;;)
		{
			int64 Child = Index * 2 + 1;
			if (Child >= Num)
			{
				return;
			}
			if (Child + 1 < Num && ComesFirst(Heap[Child + 1], Heap[Child]))
			{
				++Child;
			}
			if (!ComesFirst(Heap[Child], Heap[Index]))
			{
				return;
			}
			SwapItems(Heap[Child], Heap[Index]);
			Index = Child;
		}
	}

	/** Lets the element at Index rise; returns where it came to rest. */
	template <typename T, typename PredicateType>
	int64 SiftUp(T* Heap, int64 Index, const PredicateType& ComesFirst)
	{
		while (Index > 0)
		{
			const int64 Parent = (Index - 1) / 2;
			if (!ComesFirst(Heap[Index], Heap[Parent]))
			{
				break;
			}
			SwapItems(Heap[Index], Heap[Parent]);
			Index = Parent;
		}
		return Index;
	}

	template <typename T, typename PredicateType>
	void Heapify(T* Heap, int64 Num, const PredicateType& ComesFirst)
	{
		for (int64 Index = Num / 2 - 1; Index >= 0; --Index)
		{
			SiftDown(Heap, Index, Num, ComesFirst);
		}
	}

	template <typename T, typename PredicateType>
	void HeapSort(T* First, int64 Num, const PredicateType& Less)
	{
		const auto Greater = [&Less](const T& A, const T& B) { return Less(B, A); };
		Heapify(First, Num, Greater);
		for (int64 Last = Num - 1; Last > 0; --Last)
		{
			SwapItems(First[0], First[Last]);
			SiftDown(First, 0, Last, Greater);
		}
	}

	template <typename T, typename PredicateType>
	int64 MedianOfThree(const T* First, int64 A, int64 B, int64 C, const PredicateType& Less)
	{
		if (Less(First[B], First[A]))
		{
			Swap(A, B);
		}
		if (Less(First[C], First[B]))
		{
			B = Less(First[C], First[A]) ? A : C;
		}
		return B;
	}

	/** Index of an element near the middle of the order: the median of three, or of three medians in long runs. */
	template <typename T, typename PredicateType>
	int64 ChoosePivot(const T* First, int64 Num, const PredicateType& Less)
	{
		if (Num <= 128)
		{
			return MedianOfThree(First, 0, Num / 2, Num - 1, Less);
		}
		const int64 Step = Num / 8;
		const int64 Low = MedianOfThree(First, 0, Step, Step * 2, Less);
		const int64 Middle = MedianOfThree(First, Step * 3, Step * 4, Step * 5, Less);
		const int64 High = MedianOfThree(First, Num - 1 - Step * 2, Num - 1 - Step, Num - 1, Less);
		return MedianOfThree(First, Low, Middle, High, Less);
	}

	/** Divides the run around a median; returns where that stands. */
	template <typename T, typename PredicateType>
	int64 Partition(T* First, int64 Num, const PredicateType& Less)
	{
		SwapItems(First[0], First[ChoosePivot(First, Num, Less)]);
		const T& Pivot = First[0];
		int64 Low = 1;
		int64 High = Num - 1;
		for (;;)
		{
			while (Low <= High && Less(First[Low], Pivot))
			{
				++Low;
			}
			while (Low <= High && Less(Pivot, First[High]))
			{
				--High;
			}
			if (Low >= High)
			{
				break;
			}
			SwapItems(First[Low++], First[High--]);
		}
		// A single equal element may be left between the two.
		const int64 Middle = Low == High ? Low : High;
		SwapItems(First[0], First[Middle]);
		return Middle;
	}

	/** Quicksort that turns to heap sort where the medians keep being bad. */
	template <typename T, typename PredicateType>
	void IntroSort(T* First, int64 Num, int32 DepthLeft, const PredicateType& Less)
	{
		while (Num > InsertionSortLimit)
		{
			if (DepthLeft-- == 0)
			{
				HeapSort(First, Num, Less);
				return;
			}
			const int64 Middle = Partition(First, Num, Less);
			// Recursing into the smaller half keeps the stack flat.
			if (Middle < Num - Middle - 1)
			{
				IntroSort(First, Middle, DepthLeft, Less);
				First += Middle + 1;
				Num -= Middle + 1;
			}
			else
			{
				IntroSort(First + Middle + 1, Num - Middle - 1, DepthLeft, Less);
				Num = Middle;
			}
		}
		InsertionSort(First, Num, Less);
	}

	template <typename T, typename PredicateType>
	void Sort(T* First, int64 Num, const PredicateType& Less)
	{
		IntroSort(First, Num, 2 * (64 - __builtin_clzll((uint64)Num | 1)), Less);
	}

	/** Merges two neighbouring sorted runs; Buffer has room for the left one. */
	template <typename T, typename PredicateType>
	void MergeRuns(T* First, int64 NumLeft, int64 NumAll, T* Buffer, const PredicateType& Less)
	{
		if (!Less(First[NumLeft], First[NumLeft - 1]))
		{
			return;
		}
		FMemory::Memcpy(static_cast<void*>(Buffer), static_cast<const void*>(First), sizeof(T) * (SIZE_T)NumLeft);
		int64 Left = 0;
		int64 Right = NumLeft;
		int64 Out = 0;
		while (Left < NumLeft && Right < NumAll)
		{
			const T* Next = Less(First[Right], Buffer[Left]) ? First + Right++ : Buffer + Left++;
			FMemory::Memcpy(static_cast<void*>(First + Out++), static_cast<const void*>(Next), sizeof(T));
		}
		FMemory::Memcpy(static_cast<void*>(First + Out), static_cast<const void*>(Buffer + Left), sizeof(T) * (SIZE_T)(NumLeft - Left));
	}

	/** Merge sort: keeps the order of equal elements. */
	template <typename T, typename PredicateType>
	void StableSort(T* First, int64 Num, const PredicateType& Less)
	{
		for (int64 Start = 0; Start < Num; Start += InsertionSortLimit)
		{
			InsertionSort(First + Start, Num - Start < InsertionSortLimit ? Num - Start : InsertionSortLimit, Less);
		}
		if (Num <= InsertionSortLimit)
		{
			return;
		}
		T* Buffer = static_cast<T*>(FMemory::Malloc(sizeof(T) * (SIZE_T)Num, alignof(T)));
		for (int64 Width = InsertionSortLimit; Width < Num; Width *= 2)
		{
			for (int64 Start = 0; Start + Width < Num; Start += Width * 2)
			{
				const int64 NumAll = Num - Start < Width * 2 ? Num - Start : Width * 2;
				MergeRuns(First + Start, Width, NumAll, Buffer, Less);
			}
		}
		FMemory::Free(Buffer);
	}
}

/** Sorts a run, not stably. Raw pointers are handed to the predicate dereferenced. */
template <typename T, typename PredicateType>
void Sort(T* First, int32 Num, const PredicateType& Predicate)
{
	Host::Sorting::Sort(First, Num, TDereferenceWrapper<T, PredicateType>(Predicate));
}

template <typename T>
void Sort(T* First, int32 Num)
{
	Sort(First, Num, TLess<>());
}

/** Sorts a run and keeps the order of equal elements. Raw pointers are handed to the predicate dereferenced. */
template <typename T, typename PredicateType>
void StableSort(T* First, int32 Num, const PredicateType& Predicate)
{
	Host::Sorting::StableSort(First, Num, TDereferenceWrapper<T, PredicateType>(Predicate));
}

template <typename T>
void StableSort(T* First, int32 Num)
{
	StableSort(First, Num, TLess<>());
}
