#pragma once

#include "CoreMinimal.h"

namespace Host
{
	/**
	 * A hash table from hashes to indices into an array that the user keeps: open addressing with four bytes a cell, so
	 * that the table of even a hundred thousand entries stays in the processor's cache. The user knows the entries'
	 * hashes, and says which of several entries is the right one.
	 */
	class FFlatIndex
	{
	public:
		/** Indices from 0 to before this can be held. */
		static constexpr int32 MaxEntries = 1 << 22;

		/** Index of the entry for which IsMatch(Index) holds, or INDEX_NONE. It is asked about hardly any others. */
		template <typename TMatch>
		int32 Find(uint32 Hash, TMatch&& IsMatch) const
		{
			if (Cells.IsEmpty())
			{
				return INDEX_NONE;
			}
			const uint32* Data = Cells.GetData();
			const uint32 Tag = GetTag(Hash);
			for (uint32 Position = Hash & Mask;; Position = (Position + 1) & Mask)
			{
				const uint32 Cell = Data[Position];
				if ((Cell & TagMask) == Tag && Cell != Vacant)
				{
					const int32 Index = static_cast<int32>(Cell & IndexMask);
					if (IsMatch(Index))
					{
						return Index;
					}
				}
				else if (Cell == Vacant)
				{
					return INDEX_NONE;
				}
			}
		}

		/** Adds an entry that is not in the table. GetHash(Index) gives the hash of any entry. */
		template <typename TGetHash>
		void Add(int32 Index, TGetHash&& GetHash)
		{
			check(Index < MaxEntries);
			// At most thirteen sixteenths full, so that runs of occupied cells stay within a cache line or two.
			if ((Count + 1) * 16 > Cells.Num() * 13)
			{
				Grow(GetHash);
			}
			Place(Index, GetHash(Index));
			++Count;
		}

		template <typename TGetHash>
		void Remove(int32 Index, TGetHash&& GetHash)
		{
			uint32* Data = Cells.GetData();
			uint32 Hole = GetHash(Index) & Mask;
			const uint32 Cell = MakeCell(Index, GetHash(Index));
			while (Data[Hole] != Cell)
			{
				check(Data[Hole] != Vacant);
				Hole = (Hole + 1) & Mask;
			}
			// Entries further on may have been pushed there by this one: move up those that the hole would hide.
			for (uint32 Position = (Hole + 1) & Mask; Data[Position] != Vacant; Position = (Position + 1) & Mask)
			{
				const uint32 Home = GetHash(static_cast<int32>(Data[Position] & IndexMask)) & Mask;
				if (((Position - Home) & Mask) >= ((Position - Hole) & Mask))
				{
					Data[Hole] = Data[Position];
					Hole = Position;
				}
			}
			Data[Hole] = Vacant;
			--Count;
		}

		void Empty()
		{
			Cells.Empty();
			Mask = 0;
			Count = 0;
		}

		int32 Num() const { return Count; }

	private:
		static constexpr uint32 IndexMask = MaxEntries - 1;
		static constexpr uint32 TagMask = ~IndexMask;
		static constexpr uint32 Vacant = MAX_uint32;

		/** The uppermost bits of a hash; all ones would look like a vacant cell. */
		static uint32 GetTag(uint32 Hash)
		{
			const uint32 Tag = Hash & TagMask;
			return Tag == TagMask ? 0 : Tag;
		}

		static uint32 MakeCell(int32 Index, uint32 Hash)
		{
			return GetTag(Hash) | static_cast<uint32>(Index);
		}

		void Place(int32 Index, uint32 Hash)
		{
			uint32* Data = Cells.GetData();
			uint32 Position = Hash & Mask;
			while (Data[Position] != Vacant)
			{
				Position = (Position + 1) & Mask;
			}
			Data[Position] = MakeCell(Index, Hash);
		}

		template <typename TGetHash>
		void Grow(TGetHash&& GetHash)
		{
			const TArray<uint32> Old = MoveTemp(Cells);
			const int32 NewSize = FMath::Max(64, Old.Num() * 2);
			Cells.Init(Vacant, NewSize);
			Mask = static_cast<uint32>(NewSize - 1);
			for (const uint32 Cell : Old)
			{
				if (Cell != Vacant)
				{
					const int32 Index = static_cast<int32>(Cell & IndexMask);
					Place(Index, GetHash(Index));
				}
			}
		}

		TArray<uint32> Cells;
		uint32 Mask = 0;
		int32 Count = 0;
	};

	/** Mixes 64 bits well enough for tables whose size is a power of two. */
	inline uint64 MixBits(uint64 Value)
	{
		Value ^= Value >> 32;
		Value *= 0xD6E8FEB86659FD93ull;
		Value ^= Value >> 32;
		Value *= 0xD6E8FEB86659FD93ull;
		return Value ^ (Value >> 32);
	}
}
