#include "Host/ObjectArray.h"

#include "UObject/Object.h"

namespace Host
{
	constinit FObjectArray FObjectArray::Instance;

	UObject* FObjectArray::ObjectAt(int32 Index)
	{
		return static_cast<UObject*>(At(Index).Object);
	}

	int32 FObjectArray::TakePlace()
	{
		if (NumFree > 0)
		{
			const int32 Index = FirstFree;
			FirstFree = At(Index).NextInBucket;
			--NumFree;
			return Index;
		}
		const int32 Chunk = NumUsed >> ChunkShift;
		checkf(Chunk < MaxChunks, TEXT("more than %d objects"), MaxChunks << ChunkShift);
		if (!Chunks[Chunk])
		{
			Chunks[Chunk] = new FObjectItem[1 << ChunkShift];
		}
		return NumUsed++;
	}

	void FObjectArray::Add(UObjectBase& Object, UClass* Class, UObject* Outer, FName Name, EObjectFlags Flags)
	{
		const int32 Index = TakePlace();
		At(Index) = FObjectItem();
		At(Index).Object = &Object;
		At(Index).Flags = ((Flags & RF_MarkAsRootSet) ? EInternalObjectFlags::RootSet : EInternalObjectFlags::None)
			| ((Flags & RF_MarkAsNative) ? EInternalObjectFlags::Native : EInternalObjectFlags::None);
		Object.InternalIndex = Index;
		Object.ClassPrivate = Class;
		Object.OuterPrivate = Outer;
		Object.NamePrivate = Name;
		Object.ObjectFlags = Flags;
		LinkName(Index);
		LinkInner(Index);
	}

	void FObjectArray::Remove(UObjectBase& Object)
	{
		const int32 Index = Object.InternalIndex;
		UnlinkName(Index);
		UnlinkInner(Index);
		FObjectItem& Item = At(Index);
		Item.Object = nullptr;
		Item.SerialNumber = 0;
		Item.NextInBucket = FirstFree;
		FirstFree = Index;
		++NumFree;
		Object.InternalIndex = INDEX_NONE;
	}

	void FObjectArray::Move(UObjectBase& Object, FName NewName, UObject* NewOuter)
	{
		const int32 Index = Object.InternalIndex;
		UnlinkName(Index);
		UnlinkInner(Index);
		Object.NamePrivate = NewName;
		Object.OuterPrivate = NewOuter;
		LinkName(Index);
		LinkInner(Index);
	}

	int32 FObjectArray::SerialNumberOf(const UObjectBase& Object)
	{
		FObjectItem& Item = ItemOf(Object);
		if (Item.SerialNumber == 0)
		{
			Item.SerialNumber = ++LastSerialNumber;
		}
		return Item.SerialNumber;
	}

	UObject* FObjectArray::FindByName(const UObject* Outer, FName Name)
	{
		if (NumBuckets == 0)
		{
			return nullptr;
		}
		for (int32 Index = Buckets[BucketOf(Outer, Name)]; Index != INDEX_NONE; Index = At(Index).NextInBucket)
		{
			const UObjectBase* Candidate = At(Index).Object;
			if (Candidate->OuterPrivate == Outer && Candidate->NamePrivate == Name)
			{
				return ObjectAt(Index);
			}
		}
		return nullptr;
	}

	uint32 FObjectArray::BucketOf(const UObject* Outer, FName Name) const
	{
		// Names that are numbered one after the other lie side by side, as the objects do: with a hundred thousand of them, memory
		// that is read in order is what counts. Runs of other names and outers begin anywhere.
		return (HashCombineFast(PointerHash(Outer), Name.GetComparisonIndex().ToUnstableInt()) + static_cast<uint32>(Name.GetNumber())) & (NumBuckets - 1);
	}

	void FObjectArray::LinkName(int32 Index)
	{
		if (static_cast<uint32>(NumAlive()) > NumBuckets)
		{
			// Enters every object, this one included.
			GrowBuckets();
			return;
		}
		FObjectItem& Item = At(Index);
		int32& First = Buckets[BucketOf(Item.Object->OuterPrivate, Item.Object->NamePrivate)];
		Item.NextInBucket = First;
		First = Index;
	}

	void FObjectArray::UnlinkName(int32 Index)
	{
		const FObjectItem& Item = At(Index);
		int32* Link = &Buckets[BucketOf(Item.Object->OuterPrivate, Item.Object->NamePrivate)];
		while (*Link != Index)
		{
			Link = &At(*Link).NextInBucket;
		}
		*Link = Item.NextInBucket;
	}

	void FObjectArray::GrowBuckets()
	{
		delete[] Buckets;
		NumBuckets = NumBuckets == 0 ? 4096 : NumBuckets * 2;
		Buckets = new int32[NumBuckets];
		for (uint32 Bucket = 0; Bucket < NumBuckets; ++Bucket)
		{
			Buckets[Bucket] = INDEX_NONE;
		}
		for (int32 Index = 0; Index < NumUsed; ++Index)
		{
			FObjectItem& Item = At(Index);
			if (Item.Object)
			{
				int32& First = Buckets[BucketOf(Item.Object->OuterPrivate, Item.Object->NamePrivate)];
				Item.NextInBucket = First;
				First = Index;
			}
		}
	}

	void FObjectArray::LinkInner(int32 Index)
	{
		FObjectItem& Item = At(Index);
		Item.PreviousSibling = INDEX_NONE;
		Item.NextSibling = INDEX_NONE;
		if (const UObjectBase* Outer = Item.Object->OuterPrivate)
		{
			int32& First = ItemOf(*Outer).FirstInner;
			Item.NextSibling = First;
			if (First != INDEX_NONE)
			{
				At(First).PreviousSibling = Index;
			}
			First = Index;
		}
	}

	void FObjectArray::UnlinkInner(int32 Index)
	{
		FObjectItem& Item = At(Index);
		if (Item.NextSibling != INDEX_NONE)
		{
			At(Item.NextSibling).PreviousSibling = Item.PreviousSibling;
		}
		if (Item.PreviousSibling != INDEX_NONE)
		{
			At(Item.PreviousSibling).NextSibling = Item.NextSibling;
			return;
		}
		// The outer may be gone already: objects that die together leave in any order.
		const UObjectBase* Outer = Item.Object->OuterPrivate;
		if (Outer && Outer->InternalIndex >= 0)
		{
			ItemOf(*Outer).FirstInner = Item.NextSibling;
		}
	}
}
