#pragma once

#include "Containers/StringView.h"
#include "UObject/NameTypes.h"

#include <atomic>
#include <mutex>

namespace Host
{
	/** One spelling of a name in the table. Never moves, never goes away. */
	struct FNameEntry
	{
		/** The spelling that was there first, of all that differ in case only. */
		FNameEntryId ComparisonId;
		int32 Len;
		TCHAR Text[1];

		FStringView View() const { return FStringView(Text, Len); }
	};

	/**
	 * The texts of all names. Looking one up takes no lock: the hash tables only ever gain entries, and a grown one
	 * replaces its predecessor, which stays for readers that are still in it.
	 */
	class FNameTable
	{
	public:
		static FNameTable& Get();

		/** Finds a spelling, adding it if asked to; false when it is not there. */
		bool FindOrAdd(FStringView Text, EFindName FindType, FNameEntryId& OutComparisonId, FNameEntryId& OutDisplayId);

		const FNameEntry& Resolve(FNameEntryId Id) const
		{
			const uint32 Value = Id.ToUnstableInt();
			const uint8* Block = Blocks[Value >> OffsetBits].load(std::memory_order_acquire);
			return *reinterpret_cast<const FNameEntry*>(Block + (SIZE_T)(Value & OffsetMask) * Stride);
		}

		bool IsValid(FNameEntryId Id) const;

	private:
		static constexpr uint32 OffsetBits = 16;
		static constexpr uint32 OffsetMask = (1u << OffsetBits) - 1;
		static constexpr uint32 MaxBlocks = 4096;
		static constexpr uint32 Stride = 8;
		static constexpr uint32 BlockBytes = Stride << OffsetBits;

		/** Open addressing; a slot holds the upper half of the hash and the identifier plus one, or 0. */
		struct FSlots
		{
			uint32 Mask;
			uint32 Num;
			std::atomic<uint64>* Items;
			/** The table that this one replaced. */
			FSlots* Previous;
		};

		template <bool bFold>
		class THashTable
		{
		public:
			THashTable();
			bool Find(const FNameTable& Owner, FStringView Text, FNameEntryId& OutId) const;
			/** Only under the lock. */
			void Add(const FNameTable& Owner, FStringView Text, FNameEntryId Id);

		private:
			static FSlots* NewSlots(uint32 Capacity, FSlots* Previous);
			static void Put(FSlots& Slots, uint64 Hash, uint32 Id);
			std::atomic<FSlots*> Current;
		};

		FNameTable();
		FNameEntryId AddEntry(FStringView Text);

		std::atomic<uint8*> Blocks[MaxBlocks] = {};
		/** Next free place, in strides. */
		uint32 NumBlocks = 0;
		uint32 NextOffset = 0;
		THashTable<false> BySpelling;
		THashTable<true> ByName;
		std::mutex AddLock;
	};
}
