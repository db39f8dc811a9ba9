#pragma once

#include "CoreMinimal.h"
#include "Templates/SharedPointer.h"
#include "UObject/GCObject.h"

namespace Host
{
	/** Base of lists whose items keep themselves alive. */
	class FPlainListItems
	{
	protected:
		~FPlainListItems() = default;
		virtual void AddItemReferences(FReferenceCollector&) {}
	};

	/** Base of lists whose items are objects, which the list keeps alive while it shows them. */
	class FObjectListItems : public FGCObject
	{
	public:
		virtual void AddReferencedObjects(FReferenceCollector& Collector) override { AddItemReferences(Collector); }
		virtual FString GetReferencerName() const override { return TEXT("SListView"); }

	protected:
		virtual void AddItemReferences(FReferenceCollector& Collector) = 0;
	};

	/** Puts an item into a set, or takes it out. */
	template <typename ItemType>
	void SetContained(TSet<ItemType>& Items, const ItemType& Item, bool bContained)
	{
		if (bContained)
		{
			Items.Add(Item);
		}
		else
		{
			Items.Remove(Item);
		}
	}

	/** Takes objects out that were declared dead. */
	template <typename ItemType>
	void RemoveDeadObjects(TSet<ItemType>& Objects)
	{
		for (auto It = Objects.CreateIterator(); It; ++It)
		{
			if (!IsValid(*It))
			{
				It.RemoveCurrent();
			}
		}
	}
}

/**
 * What lists know of their items: a form of the type that may be null, and what keeps the items alive. Items are shared
 * pointers, shared references, or pointers to objects. Two that point to the same thing are the same item.
 */
template <typename ItemType>
struct TListTypeTraits;

template <typename T>
struct TListTypeTraits<TSharedPtr<T>>
{
	using NullableType = TSharedPtr<T>;
	using SerializerType = Host::FPlainListItems;

	static const void* GetKey(const TSharedPtr<T>& Item) { return Item.Get(); }
	static bool IsPtrValid(const NullableType& Item) { return Item.IsValid(); }
};

template <typename T>
struct TListTypeTraits<TSharedRef<T>>
{
	using NullableType = TSharedPtr<T>;
	using SerializerType = Host::FPlainListItems;

	static const void* GetKey(const TSharedRef<T>& Item) { return &Item.Get(); }
	static bool IsPtrValid(const NullableType& Item) { return Item.IsValid(); }
};

template <typename T>
	requires std::is_base_of_v<UObject, T>
struct TListTypeTraits<T*>
{
	using NullableType = T*;
	using SerializerType = Host::FObjectListItems;

	static const void* GetKey(const T* Item) { return Item; }
	static bool IsPtrValid(const T* Item) { return Item != nullptr; }
};
