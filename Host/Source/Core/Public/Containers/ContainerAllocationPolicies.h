#pragma once

#include "Containers/ContainersFwd.h"
#include "HAL/UnrealMemory.h"
#include "Misc/AssertionMacros.h"
#include "Templates/UnrealTemplate.h"

namespace Host
{
	/** Slack policy of growing containers: half as much again, so that repeated additions cost constant time each. */
	inline constexpr int32 GrownCapacity(int32 Num, int32 Max)
	{
		const int64 Grown = (int64)Max + (Max >> 1) + 4;
		const int64 Wanted = Grown > Num ? Grown : Num;
		return Wanted < MAX_int32 ? (int32)Wanted : MAX_int32;
	}
}

/*
 * Allocators of contiguous containers. Elements move between blocks by their bytes, without constructors: the engine's
 * rule for every element type. A type that holds its own address cannot be an element.
 */

/** Elements in a block of the heap. */
template <int Unused>
class TSizedHeapAllocator
{
public:
	static constexpr int32 InlineCapacity = 0;

	template <typename ElementType>
	class ForElementType
	{
	public:
		ForElementType() = default;
		ForElementType(const ForElementType&) = delete;
		ForElementType& operator=(const ForElementType&) = delete;

		~ForElementType()
		{
			if (Data != nullptr)
			{
				FMemory::Free(Data);
			}
		}

		ElementType* GetAllocation() const
		{
			return Data;
		}

		/** Makes room for Max elements, keeping the first Num. */
		void Resize(int32 Num, int32 Max)
		{
			(void)Num;
			Data = static_cast<ElementType*>(FMemory::Realloc(static_cast<void*>(Data), sizeof(ElementType) * (SIZE_T)Max, alignof(ElementType)));
		}

		/** Takes over the elements of another allocator, which is left empty. */
		void MoveToEmpty(ForElementType& Other, int32 Num)
		{
			(void)Num;
			if (Data != nullptr)
			{
				FMemory::Free(Data);
			}
			Data = Other.Data;
			Other.Data = nullptr;
		}

	private:
		ElementType* Data = nullptr;
	};
};

using FHeapAllocator = TSizedHeapAllocator<32>;

/** The first NumInlineElements elements inside the container itself, more of them in the secondary allocator. */
template <uint32 NumInlineElements, typename SecondaryAllocator = FDefaultAllocator>
class TInlineAllocator
{
public:
	static constexpr int32 InlineCapacity = (int32)NumInlineElements;

	template <typename ElementType>
	class ForElementType
	{
	public:
		ForElementType() = default;
		ForElementType(const ForElementType&) = delete;
		ForElementType& operator=(const ForElementType&) = delete;

		ElementType* GetAllocation() const
		{
			ElementType* Heap = Secondary.GetAllocation();
			return Heap != nullptr ? Heap : InlineElements();
		}

		void Resize(int32 Num, int32 Max)
		{
			ElementType* Heap = Secondary.GetAllocation();
			if (Max <= InlineCapacity)
			{
				if (Heap != nullptr)
				{
					FMemory::Memcpy(static_cast<void*>(InlineElements()), static_cast<const void*>(Heap), sizeof(ElementType) * (SIZE_T)Num);
					Secondary.Resize(0, 0);
				}
				return;
			}
			Secondary.Resize(Heap != nullptr ? Num : 0, Max);
			if (Heap == nullptr)
			{
				FMemory::Memcpy(static_cast<void*>(Secondary.GetAllocation()), static_cast<const void*>(InlineElements()), sizeof(ElementType) * (SIZE_T)Num);
			}
		}

		void MoveToEmpty(ForElementType& Other, int32 Num)
		{
			if (Other.Secondary.GetAllocation() == nullptr)
			{
				FMemory::Memcpy(static_cast<void*>(InlineElements()), static_cast<const void*>(Other.InlineElements()), sizeof(ElementType) * (SIZE_T)Num);
			}
			Secondary.MoveToEmpty(Other.Secondary, Num);
		}

	private:
		ElementType* InlineElements() const
		{
			return reinterpret_cast<ElementType*>(const_cast<uint8*>(Bytes));
		}

		alignas(ElementType) uint8 Bytes[sizeof(ElementType) * NumInlineElements];
		typename SecondaryAllocator::template ForElementType<ElementType> Secondary;
	};
};

/** At most NumInlineElements elements, all inside the container; asking for more is a failed check. */
template <uint32 NumInlineElements>
class TFixedAllocator
{
public:
	static constexpr int32 InlineCapacity = (int32)NumInlineElements;

	template <typename ElementType>
	class ForElementType
	{
	public:
		ForElementType() = default;
		ForElementType(const ForElementType&) = delete;
		ForElementType& operator=(const ForElementType&) = delete;

		ElementType* GetAllocation() const
		{
			return reinterpret_cast<ElementType*>(const_cast<uint8*>(Bytes));
		}

		void Resize(int32 Num, int32 Max)
		{
			(void)Num;
			check(Max <= InlineCapacity);
		}

		void MoveToEmpty(ForElementType& Other, int32 Num)
		{
			FMemory::Memcpy(static_cast<void*>(Bytes), static_cast<const void*>(Other.Bytes), sizeof(ElementType) * (SIZE_T)Num);
		}

	private:
		alignas(ElementType) uint8 Bytes[sizeof(ElementType) * NumInlineElements];
	};
};

/** Allocator of a sparse array: the elements' and the allocation bits'. */
template <typename InElementAllocator, typename InBitArrayAllocator>
class TSparseArrayAllocator
{
public:
	using ElementAllocator = InElementAllocator;
	using BitArrayAllocator = InBitArrayAllocator;
};

/** Allocator of a set: its sparse array's and its hash table's. */
template <typename InSparseArrayAllocator, typename InHashAllocator>
class TSetAllocator
{
public:
	using SparseArrayAllocator = InSparseArrayAllocator;
	using HashAllocator = InHashAllocator;
};

using FDefaultBitArrayAllocator = FDefaultAllocator;

/** Room for NumInlineElements elements inside the set or map. */
template <uint32 NumInlineElements>
using TInlineSparseArrayAllocator = TSparseArrayAllocator<TInlineAllocator<NumInlineElements>, TInlineAllocator<(NumInlineElements + 31) / 32>>;

namespace Host
{
	inline constexpr uint32 RoundUpToPowerOfTwo(uint32 Value)
	{
		uint32 Power = 1;
		while (Power < Value)
		{
			Power *= 2;
		}
		return Power;
	}
}

template <uint32 NumInlineElements>
using TInlineSetAllocator = TSetAllocator<TInlineSparseArrayAllocator<NumInlineElements>, TInlineAllocator<Host::RoundUpToPowerOfTwo(NumInlineElements)>>;
