#include "HAL/UnrealMemory.h"

#include <algorithm>
#include <cstdio>
#include <malloc.h>

namespace
{
	void* OrDie(void* Block, SIZE_T Count)
	{
		if (Block == nullptr && Count != 0)
		{
			// Nothing that needs memory can be done any more, the log included.
			std::fprintf(stderr, "Out of memory: %zu bytes\n", Count);
			std::abort();
		}
		return Block;
	}

	bool IsOverAligned(uint32 Alignment)
	{
		return Alignment > alignof(std::max_align_t);
	}
}

void* FMemory::Malloc(SIZE_T Count, uint32 Alignment)
{
	if (IsOverAligned(Alignment))
	{
		const SIZE_T Rounded = (Count + Alignment - 1) / Alignment * Alignment;
		return OrDie(std::aligned_alloc(Alignment, Rounded), Count);
	}
	return OrDie(std::malloc(Count), Count);
}

void* FMemory::MallocZeroed(SIZE_T Count, uint32 Alignment)
{
	return Memzero(Malloc(Count, Alignment), Count);
}

void* FMemory::Realloc(void* Original, SIZE_T Count, uint32 Alignment)
{
	if (Count == 0)
	{
		Free(Original);
		return nullptr;
	}
	if (!IsOverAligned(Alignment))
	{
		return OrDie(std::realloc(Original, Count), Count);
	}
	void* Moved = Malloc(Count, Alignment);
	if (Original != nullptr)
	{
		Memcpy(Moved, Original, std::min<SIZE_T>(Count, malloc_usable_size(Original)));
		Free(Original);
	}
	return Moved;
}

void FMemory::Free(void* Original)
{
	std::free(Original);
}

void FMemory::Memswap(void* A, void* B, SIZE_T Count)
{
	uint8* First = static_cast<uint8*>(A);
	std::swap_ranges(First, First + Count, static_cast<uint8*>(B));
}
