#pragma once

#include "CoreTypes.h"

/** The containers by name, with their default arguments: for headers that only mention them. */

template <int Unused>
class TSizedHeapAllocator;
using FDefaultAllocator = TSizedHeapAllocator<32>;

template <typename InSparseArrayAllocator, typename InHashAllocator>
class TSetAllocator;
template <typename InElementAllocator, typename InBitArrayAllocator>
class TSparseArrayAllocator;
using FDefaultSparseArrayAllocator = TSparseArrayAllocator<FDefaultAllocator, FDefaultAllocator>;
using FDefaultSetAllocator = TSetAllocator<FDefaultSparseArrayAllocator, FDefaultAllocator>;

template <typename InElementType, typename InAllocatorType = FDefaultAllocator>
class TArray;
/** The engine's array for more elements than 32 bits count; here it holds no more than TArray. */
template <typename InElementType>
using TArray64 = TArray<InElementType, TSizedHeapAllocator<64>>;

template <typename InElementType, typename InSizeType = int32>
class TArrayView;
template <typename InElementType>
using TConstArrayView = TArrayView<const InElementType>;

template <typename InElementType, bool bInAllowDuplicateKeys = false>
struct DefaultKeyFuncs;
template <typename InElementType, typename KeyFuncs = DefaultKeyFuncs<InElementType>, typename Allocator = FDefaultSetAllocator>
class TSet;

template <typename KeyType, typename ValueType, bool bInAllowDuplicateKeys>
struct TDefaultMapHashableKeyFuncs;
template <typename InKeyType, typename InValueType, typename SetAllocator = FDefaultSetAllocator, typename KeyFuncs = TDefaultMapHashableKeyFuncs<InKeyType, InValueType, false>>
class TMap;
template <typename InKeyType, typename InValueType, typename SetAllocator = FDefaultSetAllocator, typename KeyFuncs = TDefaultMapHashableKeyFuncs<InKeyType, InValueType, true>>
class TMultiMap;

template <typename CharType>
class TStringView;
using FStringView = TStringView<TCHAR>;
using FAnsiStringView = TStringView<ANSICHAR>;
using FUtf8StringView = TStringView<UTF8CHAR>;

class FString;
