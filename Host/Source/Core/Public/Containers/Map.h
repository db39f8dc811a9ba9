#pragma once

#include "Containers/Set.h"

namespace Host
{
	/** What maps with single and with several values a key have in common. */
	template <typename InKeyType, typename InValueType, typename SetAllocator, typename KeyFuncs>
	class TMapBase
	{
	public:
		using KeyType = InKeyType;
		using ValueType = InValueType;
		using ElementType = TPair<KeyType, ValueType>;
		using ElementSetType = TSet<ElementType, KeyFuncs, SetAllocator>;

		/** Walks the pairs; RemoveCurrent is the one way to remove on the way. */
		template <bool bConst>
		class TBaseIterator : public ElementSetType::template TBaseIterator<bConst>
		{
		public:
			using Super = typename ElementSetType::template TBaseIterator<bConst>;
			using Super::Super;
			TBaseIterator& operator++() { Super::operator++(); return *this; }
			const KeyType& Key() const { return (**this).Key; }
			std::conditional_t<bConst, const ValueType, ValueType>& Value() const { return (**this).Value; }
		};

		using TIterator = TBaseIterator<false>;
		using TConstIterator = TBaseIterator<true>;

		int32 Num() const { return Pairs.Num(); }
		bool IsEmpty() const { return Pairs.IsEmpty(); }
		int32 GetMaxIndex() const { return Pairs.GetMaxIndex(); }
		bool IsValidId(FSetElementId Id) const { return Pairs.IsValidId(Id); }
		ElementType& Get(FSetElementId Id) { return Pairs[Id]; }
		const ElementType& Get(FSetElementId Id) const { return Pairs[Id]; }
		SIZE_T GetAllocatedSize() const { return Pairs.GetAllocatedSize(); }

		/** Removes all, with room for ExpectedNumElements; the next pair comes first in the order. */
		void Empty(int32 ExpectedNumElements = 0) { Pairs.Empty(ExpectedNumElements); }
		/** As Empty, keeping the memory. */
		void Reset() { Pairs.Reset(); }
		void Reserve(int32 Number) { Pairs.Reserve(Number); }
		/** Drops holes at the end and gives slack back. */
		void Shrink() { Pairs.Shrink(); }
		/** Moves pairs from the end into the holes. */
		void Compact() { Pairs.Compact(); }
		/** Closes the holes, keeping the order. */
		void CompactStable() { Pairs.CompactStable(); }

		/** The value of a key, or null. Of several, any one. */
		ValueType* Find(const KeyType& Key) { return FindByHash(KeyFuncs::GetKeyHash(Key), Key); }
		const ValueType* Find(const KeyType& Key) const { return FindByHash(KeyFuncs::GetKeyHash(Key), Key); }

		/** Finds by something that is comparable with keys and has the hash of the equal key. */
		template <typename ComparableKey>
		ValueType* FindByHash(uint32 KeyHash, const ComparableKey& Key)
		{
			ElementType* Pair = Pairs.FindByHash(KeyHash, Key);
			return Pair != nullptr ? &Pair->Value : nullptr;
		}

		template <typename ComparableKey>
		const ValueType* FindByHash(uint32 KeyHash, const ComparableKey& Key) const
		{
			return const_cast<TMapBase*>(this)->FindByHash(KeyHash, Key);
		}

		FSetElementId FindId(const KeyType& Key) const { return Pairs.FindId(Key); }
		bool Contains(const KeyType& Key) const { return Pairs.Contains(Key); }
		template <typename ComparableKey>
		bool ContainsByHash(uint32 KeyHash, const ComparableKey& Key) const { return Pairs.ContainsByHash(KeyHash, Key); }

		/** A copy of the value, or a default one for an unknown key. */
		ValueType FindRef(const KeyType& Key) const
		{
			const ValueType* Value = Find(Key);
			return Value != nullptr ? *Value : ValueType();
		}

		ValueType FindRef(const KeyType& Key, ValueType DefaultValue) const
		{
			const ValueType* Value = Find(Key);
			return Value != nullptr ? *Value : DefaultValue;
		}

		/** The key of the first pair with an equal value (a linear search), or null. */
		const KeyType* FindKey(const ValueType& Value) const
		{
			for (const ElementType& Pair : Pairs)
			{
				if (Pair.Value == Value)
				{
					return &Pair.Key;
				}
			}
			return nullptr;
		}

		/** Removes every pair of the key; returns how many. */
		int32 Remove(const KeyType& Key) { return Pairs.Remove(Key); }
		template <typename ComparableKey>
		int32 RemoveByHash(uint32 KeyHash, const ComparableKey& Key) { return Pairs.RemoveByHash(KeyHash, Key); }
		void Remove(FSetElementId Id) { Pairs.Remove(Id); }

		/** The distinct keys, in the order of iteration; returns how many. */
		template <typename Allocator>
		int32 GetKeys(TArray<KeyType, Allocator>& OutKeys) const
		{
			OutKeys.Reset(Num());
			TSet<KeyType> Seen;
			for (const ElementType& Pair : Pairs)
			{
				bool bSeen = false;
				if constexpr (KeyFuncs::bAllowDuplicateKeys)
				{
					Seen.Add(Pair.Key, &bSeen);
				}
				if (!bSeen)
				{
					OutKeys.Add(Pair.Key);
				}
			}
			return OutKeys.Num();
		}

		template <typename SetKeyFuncs, typename Allocator>
		int32 GetKeys(TSet<KeyType, SetKeyFuncs, Allocator>& OutKeys) const
		{
			OutKeys.Reset();
			for (const ElementType& Pair : Pairs)
			{
				OutKeys.Add(Pair.Key);
			}
			return OutKeys.Num();
		}

		template <typename Allocator>
		void GenerateKeyArray(TArray<KeyType, Allocator>& OutArray) const
		{
			OutArray.Empty(Num());
			for (const ElementType& Pair : Pairs)
			{
				OutArray.Add(Pair.Key);
			}
		}

		template <typename Allocator>
		void GenerateValueArray(TArray<ValueType, Allocator>& OutArray) const
		{
			OutArray.Empty(Num());
			for (const ElementType& Pair : Pairs)
			{
				OutArray.Add(Pair.Value);
			}
		}

		/** The pairs as an array, in the order of iteration. */
		TArray<ElementType> Array() const { return Pairs.Array(); }

		/** Reorders the pairs by their keys, until the next removal. Raw pointers are handed to the predicate dereferenced. */
		template <typename PredicateType>
		void KeySort(const PredicateType& Predicate) { Pairs.Sort(KeyPredicate(Predicate)); }
		template <typename PredicateType>
		void KeyStableSort(const PredicateType& Predicate) { Pairs.StableSort(KeyPredicate(Predicate)); }
		template <typename PredicateType>
		void ValueSort(const PredicateType& Predicate) { Pairs.Sort(ValuePredicate(Predicate)); }
		template <typename PredicateType>
		void ValueStableSort(const PredicateType& Predicate) { Pairs.StableSort(ValuePredicate(Predicate)); }

		TIterator CreateIterator() { return TIterator(Pairs); }
		TConstIterator CreateConstIterator() const { return TConstIterator(Pairs); }
		auto begin() { return Pairs.begin(); }
		auto begin() const { return Pairs.begin(); }
		auto end() { return Pairs.end(); }
		auto end() const { return Pairs.end(); }

	protected:
		template <typename PredicateType>
		static auto KeyPredicate(const PredicateType& Predicate)
		{
			return [&Predicate](const ElementType& A, const ElementType& B) { return TDereferenceWrapper<KeyType, PredicateType>(Predicate)(A.Key, B.Key); };
		}

		template <typename PredicateType>
		static auto ValuePredicate(const PredicateType& Predicate)
		{
			return [&Predicate](const ElementType& A, const ElementType& B) { return TDereferenceWrapper<ValueType, PredicateType>(Predicate)(A.Value, B.Value); };
		}

		/** Adds a pair. Of an equal key, where there may be only one, both key and value are replaced in place. */
		template <typename KeyArgType, typename... ValueArgTypes>
		ValueType& EmplacePair(uint32 KeyHash, KeyArgType&& Key, ValueArgTypes&&... Value)
		{
			if constexpr (!KeyFuncs::bAllowDuplicateKeys)
			{
				if (ElementType* Pair = Pairs.FindByHash(KeyHash, Key))
				{
					Pair->Value = ValueType(static_cast<ValueArgTypes&&>(Value)...);
					Pair->Key = static_cast<KeyArgType&&>(Key);
					return Pair->Value;
				}
			}
			const int32 Index = Pairs.AddWithHash(KeyHash, ElementType(static_cast<KeyArgType&&>(Key), ValueType(static_cast<ValueArgTypes&&>(Value)...)));
			return Pairs[FSetElementId::FromInteger(Index)].Value;
		}

		template <typename KeyArgType, typename... ValueArgTypes>
		ValueType& FindOrEmplacePair(uint32 KeyHash, KeyArgType&& Key, ValueArgTypes&&... Value)
		{
			if (ElementType* Pair = Pairs.FindByHash(KeyHash, Key))
			{
				return Pair->Value;
			}
			const int32 Index = Pairs.AddWithHash(KeyHash, ElementType(static_cast<KeyArgType&&>(Key), ValueType(static_cast<ValueArgTypes&&>(Value)...)));
			return Pairs[FSetElementId::FromInteger(Index)].Value;
		}

		ElementSetType Pairs;
	};
}

/**
 * Values found by the hash of their keys. The pairs live in a sparse array and iteration goes by its indices: without
 * removals that is the order of insertion; a removal leaves a hole, and the hole made last is filled first. The order is
 * no promise. Adding may move all pairs.
 */
template <typename InKeyType, typename InValueType, typename SetAllocator, typename KeyFuncs>
class TMap : public Host::TMapBase<InKeyType, InValueType, SetAllocator, KeyFuncs>
{
	static_assert(!KeyFuncs::bAllowDuplicateKeys, "A TMap has one value a key");

public:
	using Super = Host::TMapBase<InKeyType, InValueType, SetAllocator, KeyFuncs>;
	using KeyType = InKeyType;
	using ValueType = InValueType;
	using ElementType = typename Super::ElementType;

	TMap() = default;

	TMap(std::initializer_list<ElementType> List)
	{
		this->Reserve((int32)List.size());
		for (const ElementType& Pair : List)
		{
			Add(Pair.Key, Pair.Value);
		}
	}

	/** Adds a pair; an equal key keeps its place and gets the new value and the new key object. */
	ValueType& Add(const KeyType& Key, const ValueType& Value) { return this->EmplacePair(KeyFuncs::GetKeyHash(Key), Key, Value); }
	ValueType& Add(const KeyType& Key, ValueType&& Value) { return this->EmplacePair(KeyFuncs::GetKeyHash(Key), Key, static_cast<ValueType&&>(Value)); }
	ValueType& Add(KeyType&& Key, const ValueType& Value) { return this->EmplacePair(KeyFuncs::GetKeyHash(Key), static_cast<KeyType&&>(Key), Value); }
	ValueType& Add(KeyType&& Key, ValueType&& Value) { return this->EmplacePair(KeyFuncs::GetKeyHash(Key), static_cast<KeyType&&>(Key), static_cast<ValueType&&>(Value)); }
	/** Adds a default value. */
	ValueType& Add(const KeyType& Key) { return this->EmplacePair(KeyFuncs::GetKeyHash(Key), Key); }
	ValueType& Add(KeyType&& Key) { return this->EmplacePair(KeyFuncs::GetKeyHash(Key), static_cast<KeyType&&>(Key)); }
	ValueType& Add(const ElementType& Pair) { return Add(Pair.Key, Pair.Value); }

	ValueType& AddByHash(uint32 KeyHash, const KeyType& Key, const ValueType& Value) { return this->EmplacePair(KeyHash, Key, Value); }
	ValueType& AddByHash(uint32 KeyHash, const KeyType& Key, ValueType&& Value) { return this->EmplacePair(KeyHash, Key, static_cast<ValueType&&>(Value)); }

	template <typename KeyArgType, typename... ValueArgTypes>
	ValueType& Emplace(KeyArgType&& Key, ValueArgTypes&&... Value)
	{
		KeyType NewKey(static_cast<KeyArgType&&>(Key));
		const uint32 KeyHash = KeyFuncs::GetKeyHash(NewKey);
		return this->EmplacePair(KeyHash, static_cast<KeyType&&>(NewKey), static_cast<ValueArgTypes&&>(Value)...);
	}

	/** The value of the key, a default one being added for an unknown key. */
	ValueType& FindOrAdd(const KeyType& Key) { return this->FindOrEmplacePair(KeyFuncs::GetKeyHash(Key), Key); }
	ValueType& FindOrAdd(KeyType&& Key) { return this->FindOrEmplacePair(KeyFuncs::GetKeyHash(Key), static_cast<KeyType&&>(Key)); }
	ValueType& FindOrAdd(const KeyType& Key, const ValueType& Value) { return this->FindOrEmplacePair(KeyFuncs::GetKeyHash(Key), Key, Value); }
	ValueType& FindOrAdd(const KeyType& Key, ValueType&& Value) { return this->FindOrEmplacePair(KeyFuncs::GetKeyHash(Key), Key, static_cast<ValueType&&>(Value)); }
	ValueType& FindOrAddByHash(uint32 KeyHash, const KeyType& Key) { return this->FindOrEmplacePair(KeyHash, Key); }

	/** The value of a key that must be there. */
	ValueType& FindChecked(const KeyType& Key)
	{
		ValueType* Value = this->Find(Key);
		check(Value != nullptr);
		return *Value;
	}

	const ValueType& FindChecked(const KeyType& Key) const
	{
		return const_cast<TMap*>(this)->FindChecked(Key);
	}

	ValueType& operator[](const KeyType& Key) { return FindChecked(Key); }
	const ValueType& operator[](const KeyType& Key) const { return FindChecked(Key); }

	/** Removes a pair and hands its value over; false when the key is unknown, OutRemovedValue then keeps its content. */
	bool RemoveAndCopyValue(const KeyType& Key, ValueType& OutRemovedValue)
	{
		const FSetElementId Id = this->FindId(Key);
		if (!Id.IsValidId())
		{
			return false;
		}
		OutRemovedValue = MoveTempIfPossible(this->Get(Id).Value);
		this->Remove(Id);
		return true;
	}

	/** Removes the pair of a key that must be there. */
	ValueType FindAndRemoveChecked(const KeyType& Key)
	{
		ValueType Result = MoveTempIfPossible(FindChecked(Key));
		this->Remove(Key);
		return Result;
	}

	template <typename OtherAllocator, typename OtherKeyFuncs>
	void Append(const TMap<KeyType, ValueType, OtherAllocator, OtherKeyFuncs>& Other)
	{
		this->Reserve(this->Num() + Other.Num());
		for (const ElementType& Pair : Other)
		{
			Add(Pair.Key, Pair.Value);
		}
	}

	template <typename OtherAllocator, typename OtherKeyFuncs>
	void Append(TMap<KeyType, ValueType, OtherAllocator, OtherKeyFuncs>&& Other)
	{
		this->Reserve(this->Num() + Other.Num());
		for (ElementType& Pair : Other)
		{
			Add(MoveTemp(Pair.Key), MoveTemp(Pair.Value));
		}
		Other.Reset();
	}

	template <typename PredicateType>
	TMap FilterByPredicate(PredicateType Predicate) const
	{
		TMap Result;
		for (const ElementType& Pair : *this)
		{
			if (Predicate(Pair))
			{
				Result.Add(Pair.Key, Pair.Value);
			}
		}
		return Result;
	}

	/** Whether both hold the same pairs, in whatever order. */
	bool OrderIndependentCompareEqual(const TMap& Other) const
	{
		if (this->Num() != Other.Num())
		{
			return false;
		}
		for (const ElementType& Pair : *this)
		{
			const ValueType* Value = Other.Find(Pair.Key);
			if (Value == nullptr || !(*Value == Pair.Value))
			{
				return false;
			}
		}
		return true;
	}
};

/** As TMap, but a key may have several values. */
template <typename InKeyType, typename InValueType, typename SetAllocator, typename KeyFuncs>
class TMultiMap : public Host::TMapBase<InKeyType, InValueType, SetAllocator, KeyFuncs>
{
	static_assert(KeyFuncs::bAllowDuplicateKeys, "A TMultiMap has several values a key");

public:
	using Super = Host::TMapBase<InKeyType, InValueType, SetAllocator, KeyFuncs>;
	using KeyType = InKeyType;
	using ValueType = InValueType;
	using ElementType = typename Super::ElementType;

	ValueType& Add(const KeyType& Key, const ValueType& Value) { return this->EmplacePair(KeyFuncs::GetKeyHash(Key), Key, Value); }
	ValueType& Add(const KeyType& Key, ValueType&& Value) { return this->EmplacePair(KeyFuncs::GetKeyHash(Key), Key, static_cast<ValueType&&>(Value)); }

	/** Adds the pair unless an equal one is there. */
	ValueType& AddUnique(const KeyType& Key, const ValueType& Value)
	{
		ValueType* Found = FindPair(Key, Value);
		return Found != nullptr ? *Found : Add(Key, Value);
	}

	ValueType* FindPair(const KeyType& Key, const ValueType& Value)
	{
		for (auto It = this->CreateIterator(); It; ++It)
		{
			if (KeyFuncs::Matches(It.Key(), Key) && It.Value() == Value)
			{
				return &It.Value();
			}
		}
		return nullptr;
	}

	/** Adds all values of a key to an array, in the order of iteration. */
	template <typename Allocator>
	void MultiFind(const KeyType& Key, TArray<ValueType, Allocator>& OutValues) const
	{
		for (const ElementType& Pair : *this)
		{
			if (KeyFuncs::Matches(Pair.Key, Key))
			{
				OutValues.Add(Pair.Value);
			}
		}
	}

	/** How many values a key has. */
	int32 Num(const KeyType& Key) const
	{
		TArray<ValueType> Values;
		MultiFind(Key, Values);
		return Values.Num();
	}

	using Super::Num;

	/** Removes all equal pairs; returns how many. */
	int32 Remove(const KeyType& Key, const ValueType& Value)
	{
		int32 NumRemoved = 0;
		for (auto It = this->CreateIterator(); It; ++It)
		{
			if (KeyFuncs::Matches(It.Key(), Key) && It.Value() == Value)
			{
				It.RemoveCurrent();
				++NumRemoved;
			}
		}
		return NumRemoved;
	}

	using Super::Remove;
};
