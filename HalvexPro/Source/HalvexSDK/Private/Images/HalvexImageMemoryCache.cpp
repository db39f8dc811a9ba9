#include "Images/HalvexImageMemoryCache.h"

#include "Engine/Texture2D.h"

FHalvexImageMemoryCache::FEntry* FHalvexImageMemoryCache::Find(const FString& Key)
{
	FEntry* Entry = Entries.Find(Key);
	if (Entry)
	{
		Entry->LastUse = ++NumUses;
	}
	return Entry;
}

void FHalvexImageMemoryCache::Add(const FString& Key, UTexture2D& Texture, const FHalvexImageFreshness& Freshness, const int64 MaxBytes)
{
	Remove(Key);
	FEntry Entry;
	Entry.Texture = &Texture;
	Entry.Freshness = Freshness;
	Entry.Bytes = static_cast<int64>(Texture.GetSizeX()) * Texture.GetSizeY() * sizeof(FColor);
	Entry.LastUse = ++NumUses;
	TotalBytes += Entry.Bytes;
	Entries.Add(Key, Entry);
	while (TotalBytes > MaxBytes)
	{
		const FString* Oldest = nullptr;
		uint64 OldestUse = MAX_uint64;
		for (const TPair<FString, FEntry>& Pair : Entries)
		{
			if (Pair.Value.LastUse < OldestUse)
			{
				OldestUse = Pair.Value.LastUse;
				Oldest = &Pair.Key;
			}
		}
		Remove(FString(*Oldest));
	}
}

void FHalvexImageMemoryCache::Remove(const FString& Key)
{
	if (const FEntry* Entry = Entries.Find(Key))
	{
		TotalBytes -= Entry->Bytes;
		Entries.Remove(Key);
	}
}

void FHalvexImageMemoryCache::Clear()
{
	Entries.Empty();
	TotalBytes = 0;
}

void FHalvexImageMemoryCache::AddReferencedObjects(FReferenceCollector& Collector)
{
	for (TPair<FString, FEntry>& Pair : Entries)
	{
		Collector.AddReferencedObject(Pair.Value.Texture);
	}
}

FString FHalvexImageMemoryCache::GetReferencerName() const
{
	return TEXT("FHalvexImageMemoryCache");
}
