#pragma once

#include "CoreTypes.h"

#include <cstdlib>
#include <cstring>

enum
{
	/** Alignment that suits every plain type. */
	DEFAULT_ALIGNMENT = 0
};

/** Raw memory. */
struct FMemory
{
	/** A block of memory; null only for a failed allocation of zero bytes: the process ends when memory runs out. */
	static CORE_API void* Malloc(SIZE_T Count, uint32 Alignment = DEFAULT_ALIGNMENT);
	static CORE_API void* MallocZeroed(SIZE_T Count, uint32 Alignment = DEFAULT_ALIGNMENT);
	/** Changes a block's size, keeping its content; the block may move. A Count of 0 frees it. */
	static CORE_API void* Realloc(void* Original, SIZE_T Count, uint32 Alignment = DEFAULT_ALIGNMENT);
	static CORE_API void Free(void* Original);

	static void* Memcpy(void* Dest, const void* Src, SIZE_T Count) { return Count ? std::memcpy(Dest, Src, Count) : Dest; }
	static void* Memmove(void* Dest, const void* Src, SIZE_T Count) { return Count ? std::memmove(Dest, Src, Count) : Dest; }
	static void* Memset(void* Dest, uint8 Value, SIZE_T Count) { return Count ? std::memset(Dest, Value, Count) : Dest; }
	static void* Memzero(void* Dest, SIZE_T Count) { return Memset(Dest, 0, Count); }
	static int32 Memcmp(const void* A, const void* B, SIZE_T Count) { return Count ? std::memcmp(A, B, Count) : 0; }
	/** Exchanges the bytes of two blocks that do not overlap. */
	static CORE_API void Memswap(void* A, void* B, SIZE_T Count);

	template <typename T>
	static void Memzero(T& Value)
	{
		Memset(static_cast<void*>(&Value), 0, sizeof(T));
	}
};
