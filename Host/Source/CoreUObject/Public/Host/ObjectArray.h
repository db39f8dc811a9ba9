#pragma once

#include "UObject/UObjectBase.h"

namespace Host
{
	/** What the object array keeps about one object, beside the object. */
	struct FObjectItem
	{
		/** Null while the place is free. */
		UObjectBase* Object = nullptr;
		EInternalObjectFlags Flags = EInternalObjectFlags::None;
		/** Identifies the object among those that had this place; 0 until a weak pointer asks. */
		int32 SerialNumber = 0;
		/** Next object of the same bucket of the name lookup; the next free place while this one is free. */
		int32 NextInBucket = INDEX_NONE;
		/** The objects inside this one, last made first. */
		int32 FirstInner = INDEX_NONE;
		int32 NextSibling = INDEX_NONE;
		int32 PreviousSibling = INDEX_NONE;

		bool HasAnyFlags(EInternalObjectFlags Mask) const { return (Flags & Mask) != EInternalObjectFlags::None; }
		void SetFlags(EInternalObjectFlags Mask) { Flags |= Mask; }
		void ClearFlags(EInternalObjectFlags Mask) { Flags &= ~Mask; }
	};

	/**
	 * All objects, in chunks that never move, so that a place in it stands for an object cheaply: in weak pointers, in the
	 * name lookup, and among the objects inside another. Game thread only.
	 */
	class COREUOBJECT_API FObjectArray
	{
	public:
		static FObjectArray& Get() { return Instance; }

		/** Enters an object with the class, outer, name and flags given. */
		void Add(UObjectBase& Object, UClass* Class, UObject* Outer, FName Name, EObjectFlags Flags);
		/** Takes the object out; its place may be used again at once, under another serial number. */
		void Remove(UObjectBase& Object);
		/** Moves the object to another name and outer. */
		void Move(UObjectBase& Object, FName NewName, UObject* NewOuter);

		/** One past the last place ever used. */
		int32 Num() const { return NumUsed; }
		/** Objects alive. */
		int32 NumAlive() const { return NumUsed - NumFree; }

		FObjectItem& At(int32 Index) { return Chunks[Index >> ChunkShift][Index & ChunkMask]; }
		bool IsValidIndex(int32 Index) const { return static_cast<uint32>(Index) < static_cast<uint32>(NumUsed); }

		UObject* ObjectAt(int32 Index);
		FObjectItem& ItemOf(const UObjectBase& Object) { return At(Object.InternalIndex); }

		/** Serial number of the object, given now if it has none. */
		int32 SerialNumberOf(const UObjectBase& Object);

		/** Object of the place if it is still the one of that serial number; null otherwise. */
		FObjectItem* Find(int32 Index, int32 SerialNumber)
		{
			if (!IsValidIndex(Index))
			{
				return nullptr;
			}
			FObjectItem& Item = At(Index);
			return Item.SerialNumber == SerialNumber && Item.Object ? &Item : nullptr;
		}

		/** The object of that name directly inside the outer; null for the outer asks for packages. */
		UObject* FindByName(const UObject* Outer, FName Name);

		/** First object directly inside the outer; follow with NextInner. */
		UObject* FirstInner(const UObjectBase& Outer) { return ObjectOrNull(ItemOf(Outer).FirstInner); }
		UObject* NextInner(const UObjectBase& Inner) { return ObjectOrNull(ItemOf(Inner).NextSibling); }

	private:
		static constexpr int32 ChunkShift = 13;
		static constexpr int32 ChunkMask = (1 << ChunkShift) - 1;
		static constexpr int32 MaxChunks = 4096;

		UObject* ObjectOrNull(int32 Index) { return Index == INDEX_NONE ? nullptr : ObjectAt(Index); }
		int32 TakePlace();
		uint32 BucketOf(const UObject* Outer, FName Name) const;
		void LinkName(int32 Index);
		void UnlinkName(int32 Index);
		void LinkInner(int32 Index);
		void UnlinkInner(int32 Index);
		void GrowBuckets();

		// Zero in every member, so that objects may be made before constructors of statics have run.
		static FObjectArray Instance;

		FObjectItem* Chunks[MaxChunks] = {};
		int32 NumUsed = 0;
		int32 NumFree = 0;
		/** Meaningful while NumFree is not 0. */
		int32 FirstFree = 0;
		int32 LastSerialNumber = 0;
		int32* Buckets = nullptr;
		uint32 NumBuckets = 0;
	};
}
