#pragma once

#include "CoreMinimal.h"
#include "Images/HalvexImageFreshness.h"
#include "UObject/GCObject.h"

class UTexture2D;

/** Textures that were shown lately, up to a number of bytes. */
class FHalvexImageMemoryCache : public FGCObject
{
public:
	struct FEntry
	{
		TObjectPtr<UTexture2D> Texture;
		FHalvexImageFreshness Freshness;
		int64 Bytes = 0;
		uint64 LastUse = 0;
	};

	/** The entry, which now was used last; null when there is none. Valid until the next change. */
	FEntry* Find(const FString& Key);

	/** Keeps a texture, then lets go of the ones not used for longest while all together are too large. */
	void Add(const FString& Key, UTexture2D& Texture, const FHalvexImageFreshness& Freshness, int64 MaxBytes);

	void Clear();
	int64 GetBytes() const { return TotalBytes; }

	virtual void AddReferencedObjects(FReferenceCollector& Collector) override;
	virtual FString GetReferencerName() const override;

private:
	void Remove(const FString& Key);

	TMap<FString, FEntry> Entries;
	int64 TotalBytes = 0;
	uint64 NumUses = 0;
};
