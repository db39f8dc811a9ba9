#include "Misc/StringBuilder.h"

void FStringBuilderBase::Grow(int32 MinLength)
{
	const int32 NewCapacity = MinLength + MinLength / 2 + 16;
	const SIZE_T Bytes = sizeof(TCHAR) * ((SIZE_T)NewCapacity + 1);
	const bool bWasOnStack = Heap == nullptr;
	Heap = static_cast<TCHAR*>(FMemory::Realloc(Heap, Bytes));
	if (bWasOnStack)
	{
		FMemory::Memcpy(Heap, Data, sizeof(TCHAR) * ((SIZE_T)Length + 1));
	}
	Data = Heap;
	Capacity = NewCapacity;
}
