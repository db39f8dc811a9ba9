#pragma once

#include "CoreTypes.h"
#include "HAL/UnrealMemory.h"
#include "Templates/UnrealTemplate.h"

/*
 * Operations on runs of elements. "Relocate" moves elements by their bytes: they live on at the new place, and the old
 * place is raw memory.
 */

template <typename ElementType>
FORCEINLINE void DefaultConstructItems(ElementType* Items, int32 Num)
{
	if constexpr (std::is_trivially_default_constructible_v<ElementType>)
	{
		FMemory::Memzero(static_cast<void*>(Items), sizeof(ElementType) * (SIZE_T)(uint32)Num);
	}
	else
	{
		for (ElementType* End = Items + Num; Items != End; ++Items)
		{
			::new (static_cast<void*>(Items)) ElementType();
		}
	}
}

template <typename ElementType>
FORCEINLINE void DestructItem(ElementType* Item)
{
	if constexpr (!std::is_trivially_destructible_v<ElementType>)
	{
		Item->~ElementType();
	}
}

template <typename ElementType>
FORCEINLINE void DestructItems(ElementType* Items, int32 Num)
{
	if constexpr (!std::is_trivially_destructible_v<ElementType>)
	{
		for (ElementType* End = Items + Num; Items != End; ++Items)
		{
			Items->~ElementType();
		}
	}
}

template <typename ElementType, typename SourceType>
FORCEINLINE void ConstructItems(ElementType* Dest, const SourceType* Source, int32 Num)
{
	if constexpr (std::is_same_v<ElementType, SourceType> && std::is_trivially_copyable_v<ElementType>)
	{
		FMemory::Memcpy(static_cast<void*>(Dest), static_cast<const void*>(Source), sizeof(ElementType) * (SIZE_T)(uint32)Num);
	}
	else
	{
		for (ElementType* End = Dest + Num; Dest != End; ++Dest, ++Source)
		{
			::new (static_cast<void*>(Dest)) ElementType(*Source);
		}
	}
}

template <typename ElementType>
FORCEINLINE void RelocateItems(ElementType* Dest, const ElementType* Source, int32 Num)
{
	FMemory::Memmove(static_cast<void*>(Dest), static_cast<const void*>(Source), sizeof(ElementType) * (SIZE_T)(uint32)Num);
}

template <typename ElementType>
FORCEINLINE bool CompareItems(const ElementType* A, const ElementType* B, int32 Num)
{
	if constexpr (std::is_integral_v<ElementType> || std::is_enum_v<ElementType> || std::is_pointer_v<ElementType>)
	{
		return FMemory::Memcmp(A, B, sizeof(ElementType) * (SIZE_T)(uint32)Num) == 0;
	}
	else
	{
		for (const ElementType* End = A + Num; A != End; ++A, ++B)
		{
			if (!(*A == *B))
			{
				return false;
			}
		}
		return true;
	}
}
