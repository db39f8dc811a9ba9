#pragma once

#include "Containers/ContainersFwd.h"
#include "Templates/Tuple.h"
#include "Templates/TypeHash.h"

/** Base of the functions by which a set finds its elements: derived ones add GetSetKey, Matches and GetKeyHash. */
template <typename ElementType, typename InKeyType, bool bInAllowDuplicateKeys = false>
struct BaseKeyFuncs
{
	using KeyType = InKeyType;
	using KeyInitType = typename TCallTraits<InKeyType>::ParamType;
	using ElementInitType = typename TCallTraits<ElementType>::ParamType;
	/** Whether several elements may have one key. */
	static constexpr bool bAllowDuplicateKeys = bInAllowDuplicateKeys;
};

/** The element is its own key. */
template <typename ElementType, bool bInAllowDuplicateKeys>
struct DefaultKeyFuncs : BaseKeyFuncs<ElementType, ElementType, bInAllowDuplicateKeys>
{
	static FORCEINLINE const ElementType& GetSetKey(const ElementType& Element) { return Element; }

	template <typename ComparableKey>
	static FORCEINLINE bool Matches(const ElementType& A, const ComparableKey& B)
	{
		return A == B;
	}

	template <typename ComparableKey>
	static FORCEINLINE uint32 GetKeyHash(const ComparableKey& Key)
	{
		return GetTypeHashHelper(Key);
	}
};

/** The key of a pair. */
template <typename KeyType, typename ValueType, bool bInAllowDuplicateKeys>
struct TDefaultMapKeyFuncs : BaseKeyFuncs<TPair<KeyType, ValueType>, KeyType, bInAllowDuplicateKeys>
{
	static FORCEINLINE const KeyType& GetSetKey(const TPair<KeyType, ValueType>& Element) { return Element.Key; }

	template <typename ComparableKey>
	static FORCEINLINE bool Matches(const KeyType& A, const ComparableKey& B)
	{
		return A == B;
	}

	template <typename ComparableKey>
	static FORCEINLINE uint32 GetKeyHash(const ComparableKey& Key)
	{
		return GetTypeHashHelper(Key);
	}
};

template <typename KeyType, typename ValueType, bool bInAllowDuplicateKeys>
struct TDefaultMapHashableKeyFuncs : TDefaultMapKeyFuncs<KeyType, ValueType, bInAllowDuplicateKeys>
{
};
