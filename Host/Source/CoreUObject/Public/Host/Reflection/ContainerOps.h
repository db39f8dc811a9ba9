#pragma once

#include "Containers/Array.h"
#include "Containers/Map.h"
#include "Containers/Set.h"

#include <new>

namespace Host
{
	/** What reflection does with any container, whatever its element type. */
	struct FContainerOps
	{
		int32 Size;
		int32 Alignment;
		void (*Construct)(void* Dest);
		void (*Destruct)(void* Container);
		void (*Copy)(void* Dest, const void* Src);
		int32 (*Num)(const void* Container);
		/** Removes all elements and makes room for Slack. */
		void (*Empty)(void* Container, int32 Slack);
	};

	struct FArrayOps : FContainerOps
	{
		void* (*GetData)(void* Array);
		void (*InsertDefaulted)(void* Array, int32 Index, int32 Count);
		void (*RemoveAt)(void* Array, int32 Index, int32 Count);
		void (*Swap)(void* Array, int32 A, int32 B);
	};

	/** Sets and maps number their slots; free slots lie between used ones. */
	struct FSparseOps : FContainerOps
	{
		int32 (*GetMaxIndex)(const void* Container);
		bool (*IsValidIndex)(const void* Container, int32 Index);
		/** The element, or the key of a pair. */
		void* (*GetKey)(void* Container, int32 Index);
		/** The value of a pair; null for sets. */
		void* (*GetValue)(void* Container, int32 Index);
		/** Slot of the element or key; INDEX_NONE when it is not there. */
		int32 (*Find)(const void* Container, const void* Key);
		/** Adds a copy of the element, or a pair of the key and a default value, unless it is there. Returns its slot. */
		int32 (*Add)(void* Container, const void* Key);
		void (*RemoveAt)(void* Container, int32 Index);
	};

	template<typename TContainer>
	constexpr FContainerOps MakeContainerOps()
	{
		return {
			static_cast<int32>(sizeof(TContainer)),
			static_cast<int32>(alignof(TContainer)),
			[](void* Dest) { ::new (Dest) TContainer(); },
			[](void* Container) { static_cast<TContainer*>(Container)->~TContainer(); },
			[](void* Dest, const void* Src) { *static_cast<TContainer*>(Dest) = *static_cast<const TContainer*>(Src); },
			[](const void* Container) -> int32 { return static_cast<const TContainer*>(Container)->Num(); },
			[](void* Container, int32 Slack) { static_cast<TContainer*>(Container)->Empty(Slack); },
		};
	}

	/** Operations of one array type. */
	template<typename TElement, typename TAllocator>
	const FArrayOps* GetArrayOps()
	{
		using FArray = TArray<TElement, TAllocator>;
		static constexpr FArrayOps Ops = {
			MakeContainerOps<FArray>(),
			[](void* Array) -> void* { return static_cast<FArray*>(Array)->GetData(); },
			[](void* Array, int32 Index, int32 Count) { static_cast<FArray*>(Array)->InsertDefaulted(Index, Count); },
			[](void* Array, int32 Index, int32 Count) { static_cast<FArray*>(Array)->RemoveAt(Index, Count); },
			[](void* Array, int32 A, int32 B) { static_cast<FArray*>(Array)->Swap(A, B); },
		};
		return &Ops;
	}

	/** Operations of one set type. */
	template<typename TSetType, typename TElement>
	const FSparseOps* GetSetOps()
	{
		static constexpr FSparseOps Ops = {
			MakeContainerOps<TSetType>(),
			[](const void* Set) -> int32 { return static_cast<const TSetType*>(Set)->GetMaxIndex(); },
			[](const void* Set, int32 Index) { return static_cast<const TSetType*>(Set)->IsValidId(FSetElementId::FromInteger(Index)); },
			[](void* Set, int32 Index) -> void* { return &(*static_cast<TSetType*>(Set))[FSetElementId::FromInteger(Index)]; },
			nullptr,
			[](const void* Set, const void* Key) -> int32
			{
				return static_cast<const TSetType*>(Set)->FindId(*static_cast<const TElement*>(Key)).AsInteger();
			},
			[](void* Set, const void* Key) -> int32
			{
				return static_cast<TSetType*>(Set)->Add(*static_cast<const TElement*>(Key)).AsInteger();
			},
			[](void* Set, int32 Index) { static_cast<TSetType*>(Set)->Remove(FSetElementId::FromInteger(Index)); },
		};
		return &Ops;
	}

	/** Operations of one map type. */
	template<typename TMapType, typename TKey>
	const FSparseOps* GetMapOps()
	{
		static constexpr FSparseOps Ops = {
			MakeContainerOps<TMapType>(),
			[](const void* Map) -> int32 { return static_cast<const TMapType*>(Map)->GetMaxIndex(); },
			[](const void* Map, int32 Index) { return static_cast<const TMapType*>(Map)->IsValidId(FSetElementId::FromInteger(Index)); },
			[](void* Map, int32 Index) -> void* { return const_cast<TKey*>(&static_cast<TMapType*>(Map)->Get(FSetElementId::FromInteger(Index)).Key); },
			[](void* Map, int32 Index) -> void* { return &static_cast<TMapType*>(Map)->Get(FSetElementId::FromInteger(Index)).Value; },
			[](const void* Map, const void* Key) -> int32
			{
				return static_cast<const TMapType*>(Map)->FindId(*static_cast<const TKey*>(Key)).AsInteger();
			},
			[](void* Map, const void* Key) -> int32
			{
				TMapType& Typed = *static_cast<TMapType*>(Map);
				Typed.FindOrAdd(*static_cast<const TKey*>(Key));
				return Typed.FindId(*static_cast<const TKey*>(Key)).AsInteger();
			},
			[](void* Map, int32 Index) { static_cast<TMapType*>(Map)->Remove(TKey(static_cast<TMapType*>(Map)->Get(FSetElementId::FromInteger(Index)).Key)); },
		};
		return &Ops;
	}
}
