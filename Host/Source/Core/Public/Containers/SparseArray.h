#pragma once

#include "Containers/Array.h"
#include "Containers/BitArray.h"

/** A new slot of a sparse array. */
struct FSparseArrayAllocationInfo
{
	int32 Index;
	void* Pointer;
};

/**
 * An array whose elements keep their index when others are removed. A removal leaves a hole; the hole made last is the
 * next slot taken, and only without holes does the array grow at its end. Iteration goes by index.
 */
template <typename InElementType, typename Allocator = FDefaultSparseArrayAllocator>
class TSparseArray
{
public:
	using ElementType = InElementType;
	using FBits = TBitArray<typename Allocator::BitArrayAllocator>;
	using FBitIterator = TConstSetBitIterator<typename Allocator::BitArrayAllocator>;

	template <bool bConst>
	class TBaseIterator
	{
	public:
		using FArray = std::conditional_t<bConst, const TSparseArray, TSparseArray>;
		using FElement = std::conditional_t<bConst, const ElementType, ElementType>;

		TBaseIterator(FArray& InArray, const FBitIterator& InBits)
			: Array(&InArray)
			, Bits(InBits)
		{
		}

		TBaseIterator& operator++()
		{
			++Bits;
			return *this;
		}

		FElement& operator*() const { return (*Array)[Bits.GetIndex()]; }
		FElement* operator->() const { return &(*Array)[Bits.GetIndex()]; }
		explicit operator bool() const { return (bool)Bits; }
		bool operator!() const { return !Bits; }
		int32 GetIndex() const { return Bits.GetIndex(); }
		void RemoveCurrent() requires(!bConst) { Array->RemoveAt(GetIndex()); }
		friend bool operator==(const TBaseIterator& A, const TBaseIterator& B) { return A.Bits == B.Bits; }

	private:
		FArray* Array;
		FBitIterator Bits;
	};

	using TIterator = TBaseIterator<false>;
	using TConstIterator = TBaseIterator<true>;

	TSparseArray() = default;

	TSparseArray(const TSparseArray& Other)
		: AllocationFlags(Other.AllocationFlags)
		, FirstFreeIndex(Other.FirstFreeIndex)
		, NumFreeIndices(Other.NumFreeIndices)
	{
		Slots.AddUninitialized(Other.Slots.Num());
		if constexpr (std::is_trivially_copyable_v<ElementType>)
		{
			FMemory::Memcpy(static_cast<void*>(Slots.GetData()), static_cast<const void*>(Other.Slots.GetData()), sizeof(FSlot) * (SIZE_T)Slots.Num());
		}
		else
		{
			for (int32 Index = 0; Index < Slots.Num(); ++Index)
			{
				if (AllocationFlags[Index])
				{
					::new (Slots.GetData()[Index].Bytes) ElementType(*Other.ElementAt(Index));
				}
				else
				{
					Slots.GetData()[Index].Link = Other.Slots.GetData()[Index].Link;
				}
			}
		}
	}

	TSparseArray(TSparseArray&& Other)
		: Slots(MoveTemp(Other.Slots))
		, AllocationFlags(MoveTemp(Other.AllocationFlags))
		, FirstFreeIndex(Other.FirstFreeIndex)
		, NumFreeIndices(Other.NumFreeIndices)
	{
		Other.FirstFreeIndex = INDEX_NONE;
		Other.NumFreeIndices = 0;
	}

	~TSparseArray()
	{
		DestructElements();
	}

	TSparseArray& operator=(const TSparseArray& Other)
	{
		if (this != &Other)
		{
			*this = TSparseArray(Other);
		}
		return *this;
	}

	TSparseArray& operator=(TSparseArray&& Other)
	{
		if (this != &Other)
		{
			DestructElements();
			Slots = MoveTemp(Other.Slots);
			AllocationFlags = MoveTemp(Other.AllocationFlags);
			FirstFreeIndex = Other.FirstFreeIndex;
			NumFreeIndices = Other.NumFreeIndices;
			Other.FirstFreeIndex = INDEX_NONE;
			Other.NumFreeIndices = 0;
		}
		return *this;
	}

	int32 Num() const { return Slots.Num() - NumFreeIndices; }
	bool IsEmpty() const { return Num() == 0; }
	/** One above the highest index in use or in a hole. */
	int32 GetMaxIndex() const { return Slots.Num(); }
	bool IsCompact() const { return NumFreeIndices == 0; }
	bool IsValidIndex(int32 Index) const { return AllocationFlags.IsValidIndex(Index) && AllocationFlags[Index]; }
	bool IsAllocated(int32 Index) const { return AllocationFlags[Index]; }
	SIZE_T GetAllocatedSize() const { return Slots.GetAllocatedSize() + AllocationFlags.GetAllocatedSize(); }

	ElementType& operator[](int32 Index)
	{
		CheckAllocated(Index);
		return *ElementAt(Index);
	}

	const ElementType& operator[](int32 Index) const
	{
		CheckAllocated(Index);
		return *ElementAt(Index);
	}

	/** The element of an index that is known to be in use. */
	FORCEINLINE ElementType* ElementAt(int32 Index) { return reinterpret_cast<ElementType*>(Slots.GetData()[Index].Bytes); }
	FORCEINLINE const ElementType* ElementAt(int32 Index) const { return reinterpret_cast<const ElementType*>(Slots.GetData()[Index].Bytes); }

	/** A slot with raw memory. */
	FSparseArrayAllocationInfo AddUninitialized()
	{
		int32 Index = FirstFreeIndex;
		if (Index != INDEX_NONE)
		{
			Unlink(Index);
			AllocationFlags[Index] = true;
		}
		else
		{
			Index = Slots.AddUninitialized();
			AllocationFlags.Add(true);
		}
		return { Index, Slots.GetData()[Index].Bytes };
	}

	template <typename... ArgTypes>
	int32 Emplace(ArgTypes&&... Args)
	{
		const FSparseArrayAllocationInfo Allocation = AddUninitialized();
		::new (Allocation.Pointer) ElementType(static_cast<ArgTypes&&>(Args)...);
		return Allocation.Index;
	}

	int32 Add(const ElementType& Element) { return Emplace(Element); }
	int32 Add(ElementType&& Element) { return Emplace(static_cast<ElementType&&>(Element)); }

	void RemoveAt(int32 Index, int32 Count = 1)
	{
		for (int32 Removed = Index; Removed < Index + Count; ++Removed)
		{
			CheckAllocated(Removed);
			DestructItem(ElementAt(Removed));
			RemoveAtUninitialized(Removed);
		}
	}

	/** Makes a hole of a slot whose element is destroyed or moved away. */
	void RemoveAtUninitialized(int32 Index)
	{
		AllocationFlags[Index] = false;
		FLink& Link = Slots.GetData()[Index].Link;
		Link.Previous = INDEX_NONE;
		Link.Next = FirstFreeIndex;
		if (FirstFreeIndex != INDEX_NONE)
		{
			Slots.GetData()[FirstFreeIndex].Link.Previous = Index;
		}
		FirstFreeIndex = Index;
		++NumFreeIndices;
	}

	/** Removes all, with room for ExpectedNumElements; the next element gets index 0. */
	void Empty(int32 ExpectedNumElements = 0)
	{
		DestructElements();
		Slots.Empty(ExpectedNumElements);
		AllocationFlags.Empty(ExpectedNumElements);
		ForgetHoles();
	}

	/** As Empty, keeping the memory. */
	void Reset()
	{
		DestructElements();
		Slots.Reset();
		AllocationFlags.Reset();
		ForgetHoles();
	}

	void Reserve(int32 ExpectedNumElements)
	{
		Slots.Reserve(ExpectedNumElements);
		AllocationFlags.Reserve(ExpectedNumElements);
	}

	/** Drops the holes at the end and gives slack back. */
	void Shrink()
	{
		int32 NewMax = Slots.Num();
		while (NewMax > 0 && !AllocationFlags[NewMax - 1])
		{
			Unlink(--NewMax);
		}
		Truncate(NewMax);
		Slots.Shrink();
	}

	/** Moves elements from the end into the holes; returns whether any moved. */
	bool Compact()
	{
		if (IsCompact())
		{
			return false;
		}
		const int32 NewMax = Num();
		int32 From = Slots.Num();
		for (int32 Hole = 0; Hole < NewMax; ++Hole)
		{
			if (!AllocationFlags[Hole])
			{
				do
				{
					--From;
				} while (!AllocationFlags[From]);
				Relocate(Hole, From);
			}
		}
		ForgetHoles();
		Truncate(NewMax);
		return true;
	}

	/** Closes the holes, keeping the order; returns whether there were any. */
	bool CompactStable()
	{
		if (IsCompact())
		{
			return false;
		}
		const int32 NewMax = Num();
		int32 To = 0;
		for (int32 From = 0; From < Slots.Num(); ++From)
		{
			if (AllocationFlags[From])
			{
				if (From != To)
				{
					Relocate(To, From);
				}
				++To;
			}
		}
		ForgetHoles();
		Truncate(NewMax);
		return true;
	}

	/** Closes the holes and sorts. Raw pointers are handed to the predicate dereferenced. */
	template <typename PredicateType>
	void Sort(const PredicateType& Predicate)
	{
		CompactStable();
		::Sort(reinterpret_cast<FSortable*>(Slots.GetData()), Slots.Num(), FSortPredicate<PredicateType>{ Predicate });
	}

	template <typename PredicateType>
	void StableSort(const PredicateType& Predicate)
	{
		CompactStable();
		::StableSort(reinterpret_cast<FSortable*>(Slots.GetData()), Slots.Num(), FSortPredicate<PredicateType>{ Predicate });
	}

	TIterator CreateIterator() { return TIterator(*this, FBitIterator(AllocationFlags)); }
	TConstIterator CreateConstIterator() const { return TConstIterator(*this, FBitIterator(AllocationFlags)); }
	TIterator begin() { return CreateIterator(); }
	TConstIterator begin() const { return CreateConstIterator(); }
	TIterator end() { return TIterator(*this, FBitIterator(AllocationFlags, GetMaxIndex())); }
	TConstIterator end() const { return TConstIterator(*this, FBitIterator(AllocationFlags, GetMaxIndex())); }

	/** Whether the same elements stand at the same indices. */
	friend bool operator==(const TSparseArray& A, const TSparseArray& B)
	{
		if (A.Num() != B.Num())
		{
			return false;
		}
		for (auto It = A.CreateConstIterator(); It; ++It)
		{
			if (!B.IsValidIndex(It.GetIndex()) || !(*It == B[It.GetIndex()]))
			{
				return false;
			}
		}
		return true;
	}

private:
	/** Neighbours of a hole in the list of holes. */
	struct FLink
	{
		int32 Previous;
		int32 Next;
	};

	union FSlot
	{
		alignas(ElementType) uint8 Bytes[sizeof(ElementType)];
		FLink Link;
	};

	struct FSortable
	{
		FSlot Slot;
		const ElementType& Get() const { return *reinterpret_cast<const ElementType*>(Slot.Bytes); }
	};

	template <typename PredicateType>
	struct FSortPredicate
	{
		const PredicateType& Predicate;
		bool operator()(const FSortable& A, const FSortable& B) const { return TDereferenceWrapper<ElementType, PredicateType>(Predicate)(A.Get(), B.Get()); }
	};

	void CheckAllocated(int32 Index) const
	{
		check(IsValidIndex(Index));
	}

	void Unlink(int32 Index)
	{
		const FLink Link = Slots.GetData()[Index].Link;
		if (Link.Previous != INDEX_NONE)
		{
			Slots.GetData()[Link.Previous].Link.Next = Link.Next;
		}
		else
		{
			FirstFreeIndex = Link.Next;
		}
		if (Link.Next != INDEX_NONE)
		{
			Slots.GetData()[Link.Next].Link.Previous = Link.Previous;
		}
		--NumFreeIndices;
	}

	void Relocate(int32 To, int32 From)
	{
		RelocateItems(ElementAt(To), ElementAt(From), 1);
		AllocationFlags[To] = true;
		AllocationFlags[From] = false;
	}

	void Truncate(int32 NewMax)
	{
		Slots.SetNumUninitialized(NewMax, EAllowShrinking::No);
		AllocationFlags.SetNum(NewMax, false);
	}

	void ForgetHoles()
	{
		FirstFreeIndex = INDEX_NONE;
		NumFreeIndices = 0;
	}

	void DestructElements()
	{
		if constexpr (!std::is_trivially_destructible_v<ElementType>)
		{
			for (FBitIterator It(AllocationFlags); It; ++It)
			{
				DestructItem(ElementAt(It.GetIndex()));
			}
		}
	}

	TArray<FSlot, typename Allocator::ElementAllocator> Slots;
	FBits AllocationFlags;
	int32 FirstFreeIndex = INDEX_NONE;
	int32 NumFreeIndices = 0;
};
