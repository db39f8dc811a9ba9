#include "Host/RunCache.h"

#include "Host/SizedFont.h"

#include <cstring>

namespace Host
{
	template <typename T>
	static uint64 ReadWord(const uint8* Bytes)
	{
		T Word;
		std::memcpy(&Word, Bytes, sizeof(Word));
		return Word;
	}

	uint32 FRunCache::HashText(uint32 FontId, FStringView Text)
	{
		constexpr uint64 Multiplier = 0x9E3779B97F4A7C15ull;
		const uint8* Bytes = reinterpret_cast<const uint8*>(Text.GetData());
		const SIZE_T Count = static_cast<SIZE_T>(Text.Len()) * sizeof(TCHAR);
		uint64 Hash = (uint64(FontId) << 32) ^ Count;
		const auto Mix = [&Hash](uint64 Word)
		{
			Hash = (Hash ^ Word) * Multiplier;
			Hash ^= Hash >> 29;
		};
		if (Count >= sizeof(uint64))
		{
			// The last word may overlap the one before: that is faster than to gather a few bytes.
			for (SIZE_T Offset = 0; Offset < Count - sizeof(uint64); Offset += sizeof(uint64))
			{
				Mix(ReadWord<uint64>(Bytes + Offset));
			}
			Mix(ReadWord<uint64>(Bytes + Count - sizeof(uint64)));
		}
		else if (Count >= sizeof(uint32))
		{
			Mix(ReadWord<uint32>(Bytes) | (ReadWord<uint32>(Bytes + Count - sizeof(uint32)) << 32));
		}
		else if (Count != 0)
		{
			Mix(ReadWord<uint16>(Bytes));
		}
		return static_cast<uint32>(MixBits(Hash));
	}

	bool FRunCache::FEntry::Matches(uint32 InFontId, FStringView Text) const
	{
		if (FontId != InFontId || TextLength != Text.Len())
		{
			return false;
		}
		const int32 InPrefix = FMath::Min(TextLength, PrefixLength);
		if (InPrefix != 0 && std::memcmp(Prefix, Text.GetData(), static_cast<SIZE_T>(InPrefix) * sizeof(TCHAR)) != 0)
		{
			return false;
		}
		return TextLength <= PrefixLength
			|| std::memcmp(Run->GetText().GetData(), Text.GetData(), static_cast<SIZE_T>(TextLength) * sizeof(TCHAR)) == 0;
	}

	const FShapedRunPtr* FRunCache::Find(uint32 FontId, FStringView Text, uint32& OutHash)
	{
		OutHash = HashText(FontId, Text);
		FEntry* const Data = Entries.GetData();
		const int32 Found = Index.Find(OutHash, [&](int32 Candidate) { return Data[Candidate].Matches(FontId, Text); });
		if (Found == INDEX_NONE)
		{
			return nullptr;
		}
		Data[Found].bUsed = true;
		return &Data[Found].Run;
	}

	void FRunCache::Add(uint32 Hash, const FShapedRunRef& Run)
	{
		const SIZE_T RunSize = Run->GetAllocatedSize();
		// One text that would sweep out everything else is not worth it.
		if (RunSize > Limit / 4)
		{
			return;
		}
		const int32 NewEntry = FreeEntries.IsEmpty() ? Entries.AddDefaulted() : FreeEntries.Pop(EAllowShrinking::No);
		FEntry& Entry = Entries[NewEntry];
		Entry.Run = Run;
		Entry.Hash = Hash;
		Entry.FontId = Run->GetFont().GetId();
		Entry.bUsed = false;
		const FStringView Text = Run->GetText();
		Entry.TextLength = Text.Len();
		if (Text.Len() != 0)
		{
			std::memcpy(Entry.Prefix, Text.GetData(), static_cast<SIZE_T>(FMath::Min(Text.Len(), FEntry::PrefixLength)) * sizeof(TCHAR));
		}
		Index.Add(NewEntry, [this](int32 Known) { return Entries[Known].Hash; });
		Size += RunSize;
		MakeRoom();
	}

	void FRunCache::Drop(int32 EntryIndex)
	{
		FEntry& Entry = Entries[EntryIndex];
		Size -= Entry.Run->GetAllocatedSize();
		Index.Remove(EntryIndex, [this](int32 Known) { return Entries[Known].Hash; });
		Entry.Run.Reset();
		FreeEntries.Add(EntryIndex);
	}

	void FRunCache::MakeRoom()
	{
		while (Size > Limit)
		{
			Hand = Hand + 1 < Entries.Num() ? Hand + 1 : 0;
			FEntry& Entry = Entries[Hand];
			if (!Entry.Run.IsValid())
			{
				continue;
			}
			if (Entry.bUsed)
			{
				Entry.bUsed = false;
				continue;
			}
			Drop(Hand);
		}
	}

	void FRunCache::SetLimit(SIZE_T Bytes)
	{
		Limit = Bytes;
		MakeRoom();
	}

	void FRunCache::Empty()
	{
		Entries.Empty();
		FreeEntries.Empty();
		Index.Empty();
		Size = 0;
		Hand = 0;
	}
}
