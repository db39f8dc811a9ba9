#pragma once

#include "Containers/KeyFuncs.h"
#include "Containers/SparseArray.h"

#include <initializer_list>

/** Place of an element in a set: its index in the sparse array. */
class FSetElementId
{
public:
	FSetElementId() = default;
	bool IsValidId() const { return Index != INDEX_NONE; }
	int32 AsInteger() const { return Index; }
	static FSetElementId FromInteger(int32 Integer) { FSetElementId Id; Id.Index = Integer; return Id; }
	friend bool operator==(FSetElementId A, FSetElementId B) { return A.Index == B.Index; }

private:
	int32 Index = INDEX_NONE;
};

/** What a set keeps of each element. */
template <typename InElementType>
struct TSetElement
{
	InElementType Value;
	/** Next element of the same bucket, or INDEX_NONE. */
	int32 HashNext;
	/** Kept, so that a growing table need not ask for the hashes again. */
	uint32 KeyHash;

	template <typename... ArgTypes>
	explicit TSetElement(uint32 InKeyHash, ArgTypes&&... Args)
		: Value(static_cast<ArgTypes&&>(Args)...)
		, HashNext(INDEX_NONE)
		, KeyHash(InKeyHash)
	{
	}
};

/**
 * Elements found by their hash. They live in a sparse array and iteration goes by its indices: without removals that is
 * the order of insertion; a removal leaves a hole, and the hole made last is filled first. The order is no promise.
 * Adding may move all elements.
 */
template <typename InElementType, typename KeyFuncs, typename Allocator>
class TSet
{
public:
	using ElementType = InElementType;
	using KeyFuncsType = KeyFuncs;
	using KeyType = typename KeyFuncs::KeyType;
	using FElement = TSetElement<ElementType>;
	using FElements = TSparseArray<FElement, typename Allocator::SparseArrayAllocator>;

	/** Walks the elements by index; RemoveCurrent is the one way to remove on the way. */
	template <bool bConst>
	class TBaseIterator
	{
	public:
		using FSet = std::conditional_t<bConst, const TSet, TSet>;
		using FItem = std::conditional_t<bConst, const ElementType, ElementType>;

		explicit TBaseIterator(FSet& InSet)
			: Set(&InSet)
			, It(InSet.Elements.CreateConstIterator())
		{
		}

		TBaseIterator& operator++()
		{
			++It;
			return *this;
		}

		FItem& operator*() const { return const_cast<FItem&>((*It).Value); }
		FItem* operator->() const { return &**this; }
		explicit operator bool() const { return (bool)It; }
		bool operator!() const { return !It; }
		FSetElementId GetId() const { return FSetElementId::FromInteger(It.GetIndex()); }
		void RemoveCurrent() requires(!bConst) { Set->Remove(GetId()); }
		friend bool operator==(const TBaseIterator& A, const TBaseIterator& B) { return A.It == B.It; }

	private:
		FSet* Set;
		typename FElements::TConstIterator It;
	};

	using TIterator = TBaseIterator<false>;
	using TConstIterator = TBaseIterator<true>;

	/** Iterator of a ranged-for, which notices additions and removals. */
	template <bool bConst>
	class TRangedForIterator
	{
	public:
		using FItem = std::conditional_t<bConst, const ElementType, ElementType>;

		TRangedForIterator(const FElements& InElements, const typename FElements::TConstIterator& InIt)
			: Elements(InElements)
			, It(InIt)
			, InitialNum(InElements.Num())
		{
		}

		TRangedForIterator& operator++()
		{
			++It;
			return *this;
		}

		FItem& operator*() const { return const_cast<FItem&>((*It).Value); }
		FItem* operator->() const { return &**this; }

		bool operator!=(const TRangedForIterator& Other) const
		{
			if (Elements.Num() != InitialNum) [[unlikely]]
			{
				InitialNum = Elements.Num();
				Host::ReportChangeDuringIteration();
			}
			return It != Other.It;
		}

	private:
		const FElements& Elements;
		typename FElements::TConstIterator It;
		mutable int32 InitialNum;
	};

	TSet() = default;
	TSet(std::initializer_list<ElementType> List) { Append(List); }
	explicit TSet(const TArray<ElementType>& Array) { Append(Array); }
	/** Keeps the holes and the order in which they will be filled. */
	TSet(const TSet&) = default;

	TSet(TSet&& Other)
		: Elements(MoveTemp(Other.Elements))
		, Buckets(MoveTemp(Other.Buckets))
	{
	}

	TSet& operator=(const TSet&) = default;

	TSet& operator=(TSet&& Other)
	{
		if (this != &Other)
		{
			Elements = MoveTemp(Other.Elements);
			Buckets = MoveTemp(Other.Buckets);
		}
		return *this;
	}

	int32 Num() const { return Elements.Num(); }
	bool IsEmpty() const { return Elements.Num() == 0; }
	int32 GetMaxIndex() const { return Elements.GetMaxIndex(); }
	bool IsValidId(FSetElementId Id) const { return Elements.IsValidIndex(Id.AsInteger()); }
	ElementType& operator[](FSetElementId Id) { return Elements[Id.AsInteger()].Value; }
	const ElementType& operator[](FSetElementId Id) const { return Elements[Id.AsInteger()].Value; }
	ElementType& Get(FSetElementId Id) { return Elements[Id.AsInteger()].Value; }
	const ElementType& Get(FSetElementId Id) const { return Elements[Id.AsInteger()].Value; }
	SIZE_T GetAllocatedSize() const { return Elements.GetAllocatedSize() + Buckets.GetAllocatedSize(); }

	// Finding

	FSetElementId FindId(const KeyType& Key) const { return FindIdByHash(KeyFuncs::GetKeyHash(Key), Key); }

	template <typename ComparableKey>
	FORCEINLINE FSetElementId FindIdByHash(uint32 KeyHash, const ComparableKey& Key) const
	{
		return FSetElementId::FromInteger(FindIndex(KeyHash, Key));
	}

	ElementType* Find(const KeyType& Key) { return FindByHash(KeyFuncs::GetKeyHash(Key), Key); }
	const ElementType* Find(const KeyType& Key) const { return FindByHash(KeyFuncs::GetKeyHash(Key), Key); }

	/** Finds by something that is comparable with keys and has the hash of the equal key. */
	template <typename ComparableKey>
	ElementType* FindByHash(uint32 KeyHash, const ComparableKey& Key)
	{
		const int32 Index = FindIndex(KeyHash, Key);
		return Index != INDEX_NONE ? &Elements.ElementAt(Index)->Value : nullptr;
	}

	template <typename ComparableKey>
	const ElementType* FindByHash(uint32 KeyHash, const ComparableKey& Key) const
	{
		return const_cast<TSet*>(this)->FindByHash(KeyHash, Key);
	}

	bool Contains(const KeyType& Key) const { return FindIndex(KeyFuncs::GetKeyHash(Key), Key) != INDEX_NONE; }
	template <typename ComparableKey>
	bool ContainsByHash(uint32 KeyHash, const ComparableKey& Key) const { return FindIndex(KeyHash, Key) != INDEX_NONE; }

	/** Some element; null when there is none. */
	ElementType* FindArbitraryElement()
	{
		TIterator It(*this);
		return It ? &*It : nullptr;
	}

	// Adding

	/** Adds an element; one with an equal key keeps its place and gets the new value. */
	FSetElementId Add(const ElementType& Element, bool* bIsAlreadyInSetPtr = nullptr) { return Emplace(Element, bIsAlreadyInSetPtr); }
	FSetElementId Add(ElementType&& Element, bool* bIsAlreadyInSetPtr = nullptr) { return Emplace(static_cast<ElementType&&>(Element), bIsAlreadyInSetPtr); }

	template <typename ArgType>
	FSetElementId Emplace(ArgType&& Arg, bool* bIsAlreadyInSetPtr = nullptr)
	{
		// The element exists before its key can be asked for.
		alignas(ElementType) uint8 Storage[sizeof(ElementType)];
		ElementType* Element = ::new (static_cast<void*>(Storage)) ElementType(static_cast<ArgType&&>(Arg));
		const uint32 KeyHash = KeyFuncs::GetKeyHash(KeyFuncs::GetSetKey(*Element));
		int32 Index = KeyFuncs::bAllowDuplicateKeys ? (int32)INDEX_NONE : FindIndex(KeyHash, KeyFuncs::GetSetKey(*Element));
		const bool bIsAlreadyInSet = Index != INDEX_NONE;
		if (bIsAlreadyInSet)
		{
			// Exchanged by their bytes, so that the former value is what ends here.
			Host::Sorting::SwapItems(Elements.ElementAt(Index)->Value, *Element);
		}
		else
		{
			Index = AddWithHash(KeyHash, static_cast<ElementType&&>(*Element));
		}
		DestructItem(Element);
		if (bIsAlreadyInSetPtr != nullptr)
		{
			*bIsAlreadyInSetPtr = bIsAlreadyInSet;
		}
		return FSetElementId::FromInteger(Index);
	}

	/** The element with an equal key, or this one added. */
	ElementType& FindOrAdd(const ElementType& Element, bool* bIsAlreadyInSetPtr = nullptr)
	{
		const uint32 KeyHash = KeyFuncs::GetKeyHash(KeyFuncs::GetSetKey(Element));
		const int32 Found = FindIndex(KeyHash, KeyFuncs::GetSetKey(Element));
		if (bIsAlreadyInSetPtr != nullptr)
		{
			*bIsAlreadyInSetPtr = Found != INDEX_NONE;
		}
		const int32 Index = Found != INDEX_NONE ? Found : AddWithHash(KeyHash, Element);
		return Elements.ElementAt(Index)->Value;
	}

	/** Adds an element whose key is known to be absent and to have that hash. Returns its index. */
	template <typename... ArgTypes>
	int32 AddWithHash(uint32 KeyHash, ArgTypes&&... Args)
	{
		const int32 Index = Elements.Emplace(KeyHash, static_cast<ArgTypes&&>(Args)...);
		if (Elements.Num() > Buckets.Num())
		{
			Rehash(Elements.Num());
		}
		else
		{
			Link(Index);
		}
		return Index;
	}

	template <typename RangeType>
	void Append(const RangeType& Range)
	{
		for (const ElementType& Element : Range)
		{
			Add(Element);
		}
	}

	// Removing

	void Remove(FSetElementId Id)
	{
		Unlink(Id.AsInteger());
		Elements.RemoveAt(Id.AsInteger());
	}

	/** Removes all elements with that key; returns how many. */
	int32 Remove(const KeyType& Key) { return RemoveByHash(KeyFuncs::GetKeyHash(Key), Key); }

	template <typename ComparableKey>
	int32 RemoveByHash(uint32 KeyHash, const ComparableKey& Key)
	{
		int32 NumRemoved = 0;
		for (int32 Index = FirstOf(KeyHash); Index != INDEX_NONE;)
		{
			const FElement& Element = *Elements.ElementAt(Index);
			const int32 Next = Element.HashNext;
			if (Element.KeyHash == KeyHash && KeyFuncs::Matches(KeyFuncs::GetSetKey(Element.Value), Key))
			{
				Remove(FSetElementId::FromInteger(Index));
				++NumRemoved;
				if constexpr (!KeyFuncs::bAllowDuplicateKeys)
				{
					break;
				}
			}
			Index = Next;
		}
		return NumRemoved;
	}

	/** Removes all, with room for ExpectedNumElements. */
	void Empty(int32 ExpectedNumElements = 0)
	{
		Elements.Empty(ExpectedNumElements);
		Buckets.Empty();
		if (ExpectedNumElements > 0)
		{
			Rehash(ExpectedNumElements);
		}
	}

	/** Removes all and keeps the memory. */
	void Reset()
	{
		if (Elements.GetMaxIndex() > 0)
		{
			Elements.Reset();
			ClearBuckets();
		}
	}

	void Reserve(int32 Number)
	{
		if (Number > Elements.Num())
		{
			Elements.Reserve(Number);
			if (Number > Buckets.Num())
			{
				Rehash(Number);
			}
		}
	}

	void Shrink()
	{
		Elements.Shrink();
		Relax();
	}

	/** Moves elements from the end into the holes. */
	void Compact()
	{
		if (Elements.Compact())
		{
			Rehash(Elements.Num());
		}
	}

	/** Closes the holes, keeping the order. */
	void CompactStable()
	{
		if (Elements.CompactStable())
		{
			Rehash(Elements.Num());
		}
	}

	/** Gives back hash buckets that are not needed. */
	void Relax()
	{
		if (BucketsFor(Elements.Num()) < Buckets.Num())
		{
			Buckets.Empty();
			Rehash(Elements.Num());
		}
	}

	/** Reorders the elements, until the next removal. Raw pointers are handed to the predicate dereferenced. */
	template <typename PredicateType>
	void Sort(const PredicateType& Predicate)
	{
		Elements.Sort(ElementPredicate(Predicate));
		Rehash(Elements.Num());
	}

	template <typename PredicateType>
	void StableSort(const PredicateType& Predicate)
	{
		Elements.StableSort(ElementPredicate(Predicate));
		Rehash(Elements.Num());
	}

	// Sets as a whole

	TSet Union(const TSet& Other) const
	{
		TSet Result(*this);
		Result.Append(Other);
		return Result;
	}

	TSet Intersect(const TSet& Other) const
	{
		return Filter([&Other](const ElementType& Element) { return Other.Contains(KeyFuncs::GetSetKey(Element)); });
	}

	/** The elements of this set that are not in the other. */
	TSet Difference(const TSet& Other) const
	{
		return Filter([&Other](const ElementType& Element) { return !Other.Contains(KeyFuncs::GetSetKey(Element)); });
	}

	/** Whether all elements of the other set are in this one. */
	bool Includes(const TSet& Other) const
	{
		return Other.Difference(*this).IsEmpty();
	}

	/** The elements in the order of iteration. */
	TArray<ElementType> Array() const
	{
		TArray<ElementType> Result;
		Result.Reserve(Num());
		for (const ElementType& Element : *this)
		{
			Result.Add(Element);
		}
		return Result;
	}

	TIterator CreateIterator() { return TIterator(*this); }
	TConstIterator CreateConstIterator() const { return TConstIterator(*this); }
	TRangedForIterator<false> begin() { return TRangedForIterator<false>(Elements, AsConst(Elements).begin()); }
	TRangedForIterator<true> begin() const { return TRangedForIterator<true>(Elements, Elements.begin()); }
	TRangedForIterator<false> end() { return TRangedForIterator<false>(Elements, AsConst(Elements).end()); }
	TRangedForIterator<true> end() const { return TRangedForIterator<true>(Elements, Elements.end()); }

private:
	static constexpr int32 MinBuckets = 8;

	static int32 BucketsFor(int32 NumElements)
	{
		int32 Count = MinBuckets;
		while (Count < NumElements)
		{
			Count *= 2;
		}
		return Count;
	}

	/** Hashes of small numbers and addresses are spread here, by a multiple of the golden ratio. */
	FORCEINLINE int32 BucketOf(uint32 KeyHash) const
	{
		return (int32)((KeyHash * 0x9E3779B1u) >> (std::countl_zero((uint32)Buckets.Num()) + 1));
	}

	FORCEINLINE int32 FirstOf(uint32 KeyHash) const
	{
		return Buckets.Num() != 0 ? Buckets.GetData()[BucketOf(KeyHash)] : (int32)INDEX_NONE;
	}

	template <typename ComparableKey>
	FORCEINLINE int32 FindIndex(uint32 KeyHash, const ComparableKey& Key) const
	{
		int32 Index = FirstOf(KeyHash);
		while (Index != INDEX_NONE)
		{
			const FElement& Element = *Elements.ElementAt(Index);
			if (Element.KeyHash == KeyHash && KeyFuncs::Matches(KeyFuncs::GetSetKey(Element.Value), Key))
			{
				break;
			}
			Index = Element.HashNext;
		}
		return Index;
	}

	FORCEINLINE void Link(int32 Index)
	{
		FElement& Element = *Elements.ElementAt(Index);
		int32& Bucket = Buckets.GetData()[BucketOf(Element.KeyHash)];
		Element.HashNext = Bucket;
		Bucket = Index;
	}

	void Unlink(int32 Index)
	{
		const FElement& Element = Elements[Index];
		int32* Place = &Buckets.GetData()[BucketOf(Element.KeyHash)];
		while (*Place != Index)
		{
			Place = &Elements.ElementAt(*Place)->HashNext;
		}
		*Place = Element.HashNext;
	}

	void ClearBuckets()
	{
		FMemory::Memset(Buckets.GetData(), 0xff, sizeof(int32) * (SIZE_T)Buckets.Num());
	}

	FORCENOINLINE void Rehash(int32 NumElements)
	{
		const int32 NumBuckets = BucketsFor(NumElements);
		if (NumBuckets > Buckets.Num())
		{
			Buckets.Empty(NumBuckets);
			Buckets.AddUninitialized(NumBuckets);
		}
		ClearBuckets();
		for (auto It = AsConst(Elements).CreateConstIterator(); It; ++It)
		{
			Link(It.GetIndex());
		}
	}

	template <typename PredicateType>
	static auto ElementPredicate(const PredicateType& Predicate)
	{
		return [&Predicate](const FElement& A, const FElement& B) { return TDereferenceWrapper<ElementType, PredicateType>(Predicate)(A.Value, B.Value); };
	}

	template <typename PredicateType>
	TSet Filter(const PredicateType& Predicate) const
	{
		TSet Result;
		for (const ElementType& Element : *this)
		{
			if (Predicate(Element))
			{
				Result.Add(Element);
			}
		}
		return Result;
	}

	FElements Elements;
	TArray<int32, typename Allocator::HashAllocator> Buckets;
};
