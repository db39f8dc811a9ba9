#include "NameTable.h"

#include "HAL/UnrealMemory.h"
#include "Misc/AssertionMacros.h"

namespace Host
{
	template <bool bFold>
	FNameTable::THashTable<bFold>::THashTable()
		: Current(NewSlots(4096, nullptr))
	{
	}

	template <bool bFold>
	FNameTable::FSlots* FNameTable::THashTable<bFold>::NewSlots(uint32 Capacity, FSlots* Previous)
	{
		FSlots* Slots = new FSlots;
		Slots->Mask = Capacity - 1;
		Slots->Num = 0;
		Slots->Items = new std::atomic<uint64>[Capacity]();
		Slots->Previous = Previous;
		return Slots;
	}

	template <bool bFold>
	bool FNameTable::THashTable<bFold>::Find(const FNameTable& Owner, FStringView Text, FNameEntryId& OutId) const
	{
		const FSlots& Slots = *Current.load(std::memory_order_acquire);
		const uint64 Hash = Strings::Hash<bFold>(Text.GetData(), Text.Len());
		for (uint32 Place = (uint32)Hash & Slots.Mask;; Place = (Place + 1) & Slots.Mask)
		{
			const uint64 Item = Slots.Items[Place].load(std::memory_order_acquire);
			if (Item == 0)
			{
				return false;
			}
			if ((Item ^ Hash) >> 32 == 0)
			{
				const FNameEntryId Id = FNameEntryId::FromUnstableInt((uint32)Item - 1);
				if (Owner.Resolve(Id).View().Equals(Text, bFold ? ESearchCase::IgnoreCase : ESearchCase::CaseSensitive))
				{
					OutId = Id;
					return true;
				}
			}
		}
	}

	template <bool bFold>
	void FNameTable::THashTable<bFold>::Put(FSlots& Slots, uint64 Hash, uint32 Id)
	{
		uint32 Place = (uint32)Hash & Slots.Mask;
		while (Slots.Items[Place].load(std::memory_order_relaxed) != 0)
		{
			Place = (Place + 1) & Slots.Mask;
		}
		Slots.Items[Place].store((Hash >> 32 << 32) | (Id + 1), std::memory_order_release);
		++Slots.Num;
	}

	template <bool bFold>
	void FNameTable::THashTable<bFold>::Add(const FNameTable& Owner, FStringView Text, FNameEntryId Id)
	{
		FSlots* Slots = Current.load(std::memory_order_relaxed);
		if (Slots->Num >= Slots->Mask / 4 * 3)
		{
			FSlots* Grown = NewSlots((Slots->Mask + 1) * 2, Slots);
			for (uint32 Place = 0; Place <= Slots->Mask; ++Place)
			{
				const uint64 Item = Slots->Items[Place].load(std::memory_order_relaxed);
				if (Item != 0)
				{
					const FStringView Known = Owner.Resolve(FNameEntryId::FromUnstableInt((uint32)Item - 1)).View();
					Put(*Grown, Strings::Hash<bFold>(Known.GetData(), Known.Len()), (uint32)Item - 1);
				}
			}
			Current.store(Grown, std::memory_order_release);
			Slots = Grown;
		}
		Put(*Slots, Strings::Hash<bFold>(Text.GetData(), Text.Len()), Id.ToUnstableInt());
	}

	FNameTable::FNameTable()
	{
		FNameEntryId ComparisonId;
		FNameEntryId DisplayId;
		FindOrAdd(TEXTVIEW("None"), FNAME_Add, ComparisonId, DisplayId);
		check(ComparisonId.IsNone());
	}

	FNameTable& FNameTable::Get()
	{
		// Never destroyed: other objects' destructors may still use names.
		static FNameTable& Table = *new FNameTable;
		return Table;
	}

	FNameEntryId FNameTable::AddEntry(FStringView Text)
	{
		const uint32 Bytes = (uint32)(offsetof(FNameEntry, Text) + sizeof(TCHAR) * ((SIZE_T)Text.Len() + 1));
		const uint32 Strides = (Bytes + Stride - 1) / Stride;
		if (NumBlocks == 0 || NextOffset + Strides > OffsetMask + 1)
		{
			check(NumBlocks < MaxBlocks);
			Blocks[NumBlocks].store(static_cast<uint8*>(FMemory::Malloc(BlockBytes)), std::memory_order_release);
			++NumBlocks;
			NextOffset = 0;
		}
		const FNameEntryId Id = FNameEntryId::FromUnstableInt((NumBlocks - 1) << OffsetBits | NextOffset);
		NextOffset += Strides;

		FNameEntry& Entry = const_cast<FNameEntry&>(Resolve(Id));
		Entry.Len = Text.Len();
		FMemory::Memcpy(Entry.Text, Text.GetData(), sizeof(TCHAR) * (SIZE_T)Text.Len());
		Entry.Text[Text.Len()] = 0;
		return Id;
	}

	bool FNameTable::FindOrAdd(FStringView Text, EFindName FindType, FNameEntryId& OutComparisonId, FNameEntryId& OutDisplayId)
	{
		if (BySpelling.Find(*this, Text, OutDisplayId))
		{
			OutComparisonId = Resolve(OutDisplayId).ComparisonId;
			return true;
		}
		if (FindType == FNAME_Find)
		{
			const bool bFound = ByName.Find(*this, Text, OutComparisonId);
			OutDisplayId = OutComparisonId;
			return bFound;
		}
		checkf(Text.Len() < NAME_SIZE, TEXT("A name must be shorter than %d characters: %s"), NAME_SIZE, *FString(Text));

		std::lock_guard Lock(AddLock);
		// Another thread may have been quicker.
		if (!BySpelling.Find(*this, Text, OutDisplayId))
		{
			const bool bKnownName = ByName.Find(*this, Text, OutComparisonId);
			OutDisplayId = AddEntry(Text);
			FNameEntry& Entry = const_cast<FNameEntry&>(Resolve(OutDisplayId));
			Entry.ComparisonId = bKnownName ? OutComparisonId : OutDisplayId;
			if (!bKnownName)
			{
				ByName.Add(*this, Text, OutDisplayId);
			}
			BySpelling.Add(*this, Text, OutDisplayId);
		}
		OutComparisonId = Resolve(OutDisplayId).ComparisonId;
		return true;
	}

	bool FNameTable::IsValid(FNameEntryId Id) const
	{
		const uint32 Block = Id.ToUnstableInt() >> OffsetBits;
		return Block < MaxBlocks && Blocks[Block].load(std::memory_order_acquire) != nullptr;
	}
}
