#pragma once

#include "Containers/AllowShrinking.h"
#include "Containers/CheckedIterator.h"
#include "Containers/ContainerAllocationPolicies.h"
#include "Containers/IndexedArrayIterator.h"
#include "Containers/OrderableArray.h"
#include "Containers/SearchableRange.h"
#include "Misc/AssertionMacros.h"
#include "Templates/Invoke.h"
#include "Templates/MemoryOps.h"
#include "Templates/Sorting.h"
#include "Templates/TypeHash.h"

#include <initializer_list>

/**
 * A sequence in one block of memory. Copies copy the elements. Elements are moved by their bytes: a type that holds its
 * own address cannot be an element. An index out of range is a failed check.
 */
template <typename InElementType, typename InAllocatorType>
class TArray : public Host::TSearchableRange<TArray<InElementType, InAllocatorType>, InElementType>, public Host::TOrderableArray<TArray<InElementType, InAllocatorType>, InElementType>
{
	template <typename, typename>
	friend class TArray;

public:
	using SizeType = int32;
	using ElementType = InElementType;
	using AllocatorType = InAllocatorType;
	using TIterator = Host::TIndexedArrayIterator<TArray, ElementType>;
	using TConstIterator = Host::TIndexedArrayIterator<const TArray, const ElementType>;
	using RangedForIteratorType = Host::TCheckedPointerIterator<ElementType>;
	using RangedForConstIteratorType = Host::TCheckedPointerIterator<const ElementType>;

	TArray()
		: ArrayNum(0)
		, ArrayMax(AllocatorType::InlineCapacity)
	{
	}

	TArray(std::initializer_list<ElementType> List)
		: TArray()
	{
		Append(List.begin(), (int32)List.size());
	}

	TArray(const ElementType* Elements, int32 Count)
		: TArray()
	{
		Append(Elements, Count);
	}

	TArray(const TArray& Other)
		: TArray()
	{
		CopyToEmpty(Other.GetData(), Other.Num(), 0);
	}

	template <typename OtherElementType, typename OtherAllocator>
		requires(std::is_convertible_v<const OtherElementType&, ElementType> || std::is_same_v<OtherElementType, ElementType>)
	explicit(!std::is_same_v<OtherElementType, ElementType>) TArray(const TArray<OtherElementType, OtherAllocator>& Other)
		: TArray()
	{
		CopyToEmpty(Other.GetData(), Other.Num(), 0);
	}

	/** Copies with room for ExtraSlack further elements. */
	TArray(const TArray& Other, int32 ExtraSlack)
		: TArray()
	{
		CopyToEmpty(Other.GetData(), Other.Num(), ExtraSlack);
	}

	TArray(TArray&& Other)
		: TArray()
	{
		MoveFrom(Other);
	}

	~TArray()
	{
		DestructItems(GetData(), ArrayNum);
	}

	TArray& operator=(const TArray& Other)
	{
		if (this != &Other)
		{
			AssignCopy(Other.GetData(), Other.Num());
		}
		return *this;
	}

	template <typename OtherAllocator>
	TArray& operator=(const TArray<ElementType, OtherAllocator>& Other)
	{
		AssignCopy(Other.GetData(), Other.Num());
		return *this;
	}

	TArray& operator=(TArray&& Other)
	{
		if (this != &Other)
		{
			DestructItems(GetData(), ArrayNum);
			ArrayNum = 0;
			MoveFrom(Other);
		}
		return *this;
	}

	TArray& operator=(std::initializer_list<ElementType> List)
	{
		AssignCopy(List.begin(), (int32)List.size());
		return *this;
	}

	// Access

	ElementType* GetData() { return Allocator.GetAllocation(); }
	const ElementType* GetData() const { return Allocator.GetAllocation(); }
	int32 Num() const { return ArrayNum; }
	int32 Max() const { return ArrayMax; }
	int32 GetSlack() const { return ArrayMax - ArrayNum; }
	bool IsEmpty() const { return ArrayNum == 0; }
	bool IsValidIndex(int32 Index) const { return (uint32)Index < (uint32)ArrayNum; }
	static constexpr uint32 GetTypeSize() { return sizeof(ElementType); }
	SIZE_T GetAllocatedSize() const { return ArrayMax > AllocatorType::InlineCapacity ? sizeof(ElementType) * (SIZE_T)ArrayMax : 0; }

	FORCEINLINE ElementType& operator[](int32 Index)
	{
		RangeCheck(Index);
		return GetData()[Index];
	}

	FORCEINLINE const ElementType& operator[](int32 Index) const
	{
		RangeCheck(Index);
		return GetData()[Index];
	}

	/** The element IndexFromTheEnd places before the last one. */
	ElementType& Last(int32 IndexFromTheEnd = 0) { return (*this)[ArrayNum - IndexFromTheEnd - 1]; }
	const ElementType& Last(int32 IndexFromTheEnd = 0) const { return (*this)[ArrayNum - IndexFromTheEnd - 1]; }
	ElementType& Top() { return Last(); }
	const ElementType& Top() const { return Last(); }

	// Searching (see TSearchableRange for more)

	using Host::TSearchableRange<TArray, InElementType>::IndexOfByKey;
	using Host::TSearchableRange<TArray, InElementType>::IndexOfByPredicate;
	using Host::TSearchableRange<TArray, InElementType>::Find;

	/** A new array of the elements for which the predicate holds. */
	template <typename PredicateType>
	TArray FilterByPredicate(PredicateType Predicate) const
	{
		TArray Result;
		for (const ElementType& Element : *this)
		{
			if (::Invoke(Predicate, Element))
			{
				Result.Add(Element);
			}
		}
		return Result;
	}

	// Adding; each returns the index of the (first) new element

	int32 Add(const ElementType& Item)
	{
		CheckAddress(&Item);
		return Emplace(Item);
	}

	int32 Add(ElementType&& Item)
	{
		CheckAddress(&Item);
		return Emplace(static_cast<ElementType&&>(Item));
	}

	template <typename... ArgTypes>
	FORCEINLINE int32 Emplace(ArgTypes&&... Args)
	{
		const int32 Index = AddUninitialized();
		::new (static_cast<void*>(GetData() + Index)) ElementType(static_cast<ArgTypes&&>(Args)...);
		return Index;
	}

	template <typename... ArgTypes>
	ElementType& Emplace_GetRef(ArgTypes&&... Args)
	{
		const int32 Index = Emplace(static_cast<ArgTypes&&>(Args)...);
		return GetData()[Index];
	}

	ElementType& Add_GetRef(const ElementType& Item) { return Emplace_GetRef(Item); }
	ElementType& Add_GetRef(ElementType&& Item) { return Emplace_GetRef(static_cast<ElementType&&>(Item)); }
	void Push(const ElementType& Item) { Add(Item); }
	void Push(ElementType&& Item) { Add(static_cast<ElementType&&>(Item)); }

	/** Adds the element unless an equal one is there; returns the index of the one in the array. */
	int32 AddUnique(const ElementType& Item)
	{
		const int32 Index = Find(Item);
		return Index != INDEX_NONE ? Index : Add(Item);
	}

	int32 AddUnique(ElementType&& Item)
	{
		const int32 Index = Find(Item);
		return Index != INDEX_NONE ? Index : Add(static_cast<ElementType&&>(Item));
	}

	ElementType& AddDefaulted_GetRef()
	{
		// The index first: adding can move the elements.
		const int32 Index = AddDefaulted();
		return GetData()[Index];
	}

	ElementType& AddZeroed_GetRef()
	{
		// The index first: adding can move the elements.
		const int32 Index = AddZeroed();
		return GetData()[Index];
	}


	int32 AddDefaulted(int32 Count = 1)
	{
		const int32 Index = AddUninitialized(Count);
		DefaultConstructItems(GetData() + Index, Count);
		return Index;
	}

	int32 AddZeroed(int32 Count = 1)
	{
		const int32 Index = AddUninitialized(Count);
		FMemory::Memzero(static_cast<void*>(GetData() + Index), sizeof(ElementType) * (SIZE_T)Count);
		return Index;
	}

	/** Raw memory for Count more elements, to be constructed by the caller. */
	FORCEINLINE int32 AddUninitialized(int32 Count = 1)
	{
		const int32 OldNum = ArrayNum;
		if (Count > ArrayMax - OldNum) [[unlikely]]
		{
			Grow((int64)OldNum + Count);
		}
		ArrayNum = OldNum + Count;
		return OldNum;
	}

	template <typename OtherElementType, typename OtherAllocator>
	void Append(const TArray<OtherElementType, OtherAllocator>& Source)
	{
		check((const void*)this != (const void*)&Source);
		Append(Source.GetData(), Source.Num());
	}

	template <typename OtherAllocator>
	void Append(TArray<ElementType, OtherAllocator>&& Source)
	{
		check((const void*)this != (const void*)&Source);
		const int32 Index = AddUninitialized(Source.ArrayNum);
		RelocateItems(GetData() + Index, Source.GetData(), Source.ArrayNum);
		Source.ArrayNum = 0;
	}

	void Append(std::initializer_list<ElementType> List) { Append(List.begin(), (int32)List.size()); }

	template <typename OtherElementType>
	void Append(const OtherElementType* Elements, int32 Count)
	{
		const int32 Index = AddUninitialized(Count);
		ConstructItems(GetData() + Index, Elements, Count);
	}

	/** Appends whatever knows its elements' address and number, as a view does. */
	template <typename RangeType>
		requires requires(const RangeType& Range) { Range.GetData(); Range.Num(); }
	void Append(const RangeType& Range)
	{
		Append(Range.GetData(), (int32)Range.Num());
	}

	template <typename OtherElementType, typename OtherAllocator>
	TArray& operator+=(const TArray<OtherElementType, OtherAllocator>& Other)
	{
		Append(Other);
		return *this;
	}

	template <typename OtherAllocator>
	TArray& operator+=(TArray<ElementType, OtherAllocator>&& Other)
	{
		Append(static_cast<TArray<ElementType, OtherAllocator>&&>(Other));
		return *this;
	}

	TArray& operator+=(std::initializer_list<ElementType> List)
	{
		Append(List);
		return *this;
	}

	int32 Insert(const ElementType& Item, int32 Index)
	{
		CheckAddress(&Item);
		return EmplaceAt(Index, Item), Index;
	}

	int32 Insert(ElementType&& Item, int32 Index)
	{
		CheckAddress(&Item);
		return EmplaceAt(Index, static_cast<ElementType&&>(Item)), Index;
	}

	template <typename OtherAllocator>
	int32 Insert(const TArray<ElementType, OtherAllocator>& Items, int32 Index)
	{
		check((const void*)this != (const void*)&Items);
		return Insert(Items.GetData(), Items.Num(), Index);
	}

	int32 Insert(std::initializer_list<ElementType> List, int32 Index) { return Insert(List.begin(), (int32)List.size(), Index); }

	int32 Insert(const ElementType* Elements, int32 Count, int32 Index)
	{
		InsertUninitialized(Index, Count);
		ConstructItems(GetData() + Index, Elements, Count);
		return Index;
	}

	ElementType& Insert_GetRef(const ElementType& Item, int32 Index)
	{
		Insert(Item, Index);
		return GetData()[Index];
	}

	ElementType& Insert_GetRef(ElementType&& Item, int32 Index)
	{
		Insert(static_cast<ElementType&&>(Item), Index);
		return GetData()[Index];
	}


	template <typename... ArgTypes>
	void EmplaceAt(int32 Index, ArgTypes&&... Args)
	{
		InsertUninitialized(Index, 1);
		::new (static_cast<void*>(GetData() + Index)) ElementType(static_cast<ArgTypes&&>(Args)...);
	}

	template <typename... ArgTypes>
	ElementType& EmplaceAt_GetRef(int32 Index, ArgTypes&&... Args)
	{
		EmplaceAt(Index, static_cast<ArgTypes&&>(Args)...);
		return GetData()[Index];
	}

	void InsertDefaulted(int32 Index, int32 Count = 1)
	{
		InsertUninitialized(Index, Count);
		DefaultConstructItems(GetData() + Index, Count);
	}

	void InsertZeroed(int32 Index, int32 Count = 1)
	{
		InsertUninitialized(Index, Count);
		FMemory::Memzero(static_cast<void*>(GetData() + Index), sizeof(ElementType) * (SIZE_T)Count);
	}

	void InsertUninitialized(int32 Index, int32 Count = 1)
	{
		check(Count >= 0 && Index >= 0 && Index <= ArrayNum);
		const int32 OldNum = AddUninitialized(Count);
		ElementType* At = GetData() + Index;
		RelocateItems(At + Count, At, OldNum - Index);
	}

	/** Makes this array Size copies of the element. */
	void Init(const ElementType& Element, int32 Size)
	{
		Empty(Size);
		for (int32 Index = 0; Index < Size; ++Index)
		{
			Emplace(Element);
		}
	}

	// Removing

	ElementType Pop(EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		RangeCheck(0);
		ElementType Result = MoveTempIfPossible(GetData()[ArrayNum - 1]);
		RemoveAt(ArrayNum - 1, 1, AllowShrinking);
		return Result;
	}

	void RemoveAt(int32 Index, EAllowShrinking AllowShrinking = EAllowShrinking::Default) { RemoveAt(Index, 1, AllowShrinking); }

	void RemoveAt(int32 Index, int32 Count, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		CheckRange(Index, Count);
		ElementType* Removed = GetData() + Index;
		DestructItems(Removed, Count);
		RelocateItems(Removed, Removed + Count, ArrayNum - Index - Count);
		ArrayNum -= Count;
		ShrinkIfAllowed(AllowShrinking);
	}

	void RemoveAt(int32 Index, int32 Count, bool bAllowShrinking) = delete;

	void RemoveAtSwap(int32 Index, EAllowShrinking AllowShrinking = EAllowShrinking::Default) { RemoveAtSwap(Index, 1, AllowShrinking); }

	/** Fills the gap from the end instead of moving all that follows. */
	void RemoveAtSwap(int32 Index, int32 Count, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		CheckRange(Index, Count);
		ElementType* Removed = GetData() + Index;
		DestructItems(Removed, Count);
		const int32 NumBehind = ArrayNum - Index - Count;
		const int32 NumMoved = NumBehind < Count ? NumBehind : Count;
		RelocateItems(Removed, GetData() + ArrayNum - NumMoved, NumMoved);
		ArrayNum -= Count;
		ShrinkIfAllowed(AllowShrinking);
	}

	/** Removes all equal elements, keeping the order of the others; returns how many. */
	int32 Remove(const ElementType& Item)
	{
		CheckAddress(&Item);
		return RemoveAll([&Item](const ElementType& Element) { return Element == Item; });
	}

	int32 RemoveSingle(const ElementType& Item)
	{
		const int32 Index = Find(Item);
		if (Index == INDEX_NONE)
		{
			return 0;
		}
		RemoveAt(Index);
		return 1;
	}

	template <typename PredicateType>
	int32 RemoveAll(const PredicateType& Predicate)
	{
		ElementType* Data = GetData();
		const int32 OldNum = ArrayNum;
		int32 NumKept = 0;
		for (int32 Index = 0; Index < OldNum; ++Index)
		{
			if (::Invoke(Predicate, Data[Index]))
			{
				DestructItem(Data + Index);
			}
			else
			{
				if (NumKept != Index)
				{
					FMemory::Memcpy(static_cast<void*>(Data + NumKept), static_cast<const void*>(Data + Index), sizeof(ElementType));
				}
				++NumKept;
			}
		}
		ArrayNum = NumKept;
		return OldNum - NumKept;
	}

	int32 RemoveSwap(const ElementType& Item, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		CheckAddress(&Item);
		return RemoveAllSwap([&Item](const ElementType& Element) { return Element == Item; }, AllowShrinking);
	}

	int32 RemoveSingleSwap(const ElementType& Item, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		const int32 Index = Find(Item);
		if (Index == INDEX_NONE)
		{
			return 0;
		}
		RemoveAtSwap(Index, 1, AllowShrinking);
		return 1;
	}

	template <typename PredicateType>
	int32 RemoveAllSwap(const PredicateType& Predicate, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		const int32 OldNum = ArrayNum;
		for (int32 Index = 0; Index < ArrayNum;)
		{
			if (::Invoke(Predicate, GetData()[Index]))
			{
				RemoveAtSwap(Index, 1, EAllowShrinking::No);
			}
			else
			{
				++Index;
			}
		}
		if (ArrayNum != OldNum)
		{
			ShrinkIfAllowed(AllowShrinking);
		}
		return OldNum - ArrayNum;
	}

	// Room

	/** Removes all elements and leaves room for exactly Slack. */
	void Empty(int32 Slack = 0)
	{
		DestructItems(GetData(), ArrayNum);
		ArrayNum = 0;
		if (ArrayMax != Slack)
		{
			SetCapacity(Slack);
		}
	}

	/** Removes all elements and keeps the memory, unless that is smaller than NewSize elements. */
	void Reset(int32 NewSize = 0)
	{
		if (NewSize > ArrayMax)
		{
			Empty(NewSize);
			return;
		}
		DestructItems(GetData(), ArrayNum);
		ArrayNum = 0;
	}

	void Reserve(int32 Number)
	{
		check(Number >= 0);
		if (Number > ArrayMax)
		{
			SetCapacity(Number);
		}
	}

	/** Gives slack back. */
	void Shrink()
	{
		if (ArrayMax != ArrayNum)
		{
			SetCapacity(ArrayNum);
		}
	}

	void SetNum(int32 NewNum, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		if (NewNum > ArrayNum)
		{
			AddDefaulted(NewNum - ArrayNum);
		}
		else if (NewNum < ArrayNum)
		{
			RemoveAt(NewNum, ArrayNum - NewNum, AllowShrinking);
		}
	}

	void SetNumZeroed(int32 NewNum, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		if (NewNum > ArrayNum)
		{
			AddZeroed(NewNum - ArrayNum);
		}
		else
		{
			SetNum(NewNum, AllowShrinking);
		}
	}

	void SetNumUninitialized(int32 NewNum, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		if (NewNum > ArrayNum)
		{
			AddUninitialized(NewNum - ArrayNum);
		}
		else
		{
			SetNum(NewNum, AllowShrinking);
		}
	}

	// Comparison and iteration

	template <typename OtherAllocator>
	bool operator==(const TArray<ElementType, OtherAllocator>& Other) const
	{
		return ArrayNum == Other.Num() && CompareItems(GetData(), Other.GetData(), ArrayNum);
	}

	TIterator CreateIterator() { return TIterator(*this); }
	TConstIterator CreateConstIterator() const { return TConstIterator(*this); }
	RangedForIteratorType begin() { return RangedForIteratorType(ArrayNum, GetData()); }
	RangedForConstIteratorType begin() const { return RangedForConstIteratorType(ArrayNum, GetData()); }
	RangedForIteratorType end() { return RangedForIteratorType(ArrayNum, GetData() + ArrayNum); }
	RangedForConstIteratorType end() const { return RangedForConstIteratorType(ArrayNum, GetData() + ArrayNum); }

	/** Fails a check when the address is that of an element: adding may move that away. */
	FORCEINLINE void CheckAddress(const ElementType* Address) const
	{
		check((UPTRINT)Address - (UPTRINT)GetData() >= sizeof(ElementType) * (SIZE_T)ArrayMax);
	}

private:
	FORCEINLINE void RangeCheck(int32 Index) const
	{
		if ((uint32)Index >= (uint32)ArrayNum) [[unlikely]]
		{
			Host::ReportBadIndex(Index, ArrayNum);
		}
	}

	void CheckRange(int32 Index, int32 Count) const
	{
		check((Count >= 0) & (Index >= 0) & ((int64)Index + Count <= ArrayNum));
	}

	FORCENOINLINE void Grow(int64 NewNum)
	{
		check(NewNum >= ArrayNum && NewNum <= MAX_int32);
		SetCapacity(Host::GrownCapacity((int32)NewNum, ArrayMax));
	}

	void SetCapacity(int32 NewMax)
	{
		const int32 Capacity = NewMax > AllocatorType::InlineCapacity ? NewMax : AllocatorType::InlineCapacity;
		if (Capacity != ArrayMax)
		{
			Allocator.Resize(ArrayNum, Capacity);
			ArrayMax = Capacity;
		}
	}

	/** Gives memory back once more than half of a block that matters is slack. */
	void ShrinkIfAllowed(EAllowShrinking AllowShrinking)
	{
		const int32 Slack = ArrayMax - ArrayNum;
		if (AllowShrinking == EAllowShrinking::Yes && Slack > 64 && Slack > ArrayMax - ArrayMax / 4)
		{
			SetCapacity(ArrayNum);
		}
	}

	template <typename OtherElementType>
	void CopyToEmpty(const OtherElementType* Source, int32 Count, int32 ExtraSlack)
	{
		if (Count + ExtraSlack > ArrayMax)
		{
			SetCapacity(Count + ExtraSlack);
		}
		ArrayNum = Count;
		ConstructItems(GetData(), Source, Count);
	}

	void AssignCopy(const ElementType* Source, int32 Count)
	{
		DestructItems(GetData(), ArrayNum);
		ArrayNum = 0;
		CopyToEmpty(Source, Count, 0);
	}

	void MoveFrom(TArray& Other)
	{
		Allocator.MoveToEmpty(Other.Allocator, Other.ArrayNum);
		ArrayNum = Other.ArrayNum;
		ArrayMax = Other.ArrayMax;
		Other.ArrayNum = 0;
		Other.ArrayMax = AllocatorType::InlineCapacity;
	}

	typename AllocatorType::template ForElementType<ElementType> Allocator;
	int32 ArrayNum;
	int32 ArrayMax;
};

/** A hash of the elements in their order. */
template <typename ElementType, typename AllocatorType>
uint32 GetTypeHash(const TArray<ElementType, AllocatorType>& Array)
{
	uint32 Hash = 0;
	for (const ElementType& Element : Array)
	{
		Hash = HashCombineFast(Hash, GetTypeHash(Element));
	}
	return Hash;
}
