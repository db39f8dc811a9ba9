#pragma once

#include "CoreMinimal.h"
#include "HAL/CriticalSection.h"
#include "Images/HalvexImageFreshness.h"

/** A picture's file as it came from its server, with what the server said of it. */
struct FHalvexStoredImage
{
	FHalvexImageFreshness Freshness;
	TArray<uint8> Content;
};

/**
 * Pictures in a folder, one file each, named by the digest of address and size, so that neither names nor contents tell an
 * address. May be used on any thread; meant for background ones. A file is written whole or not at all; one that is damaged
 * is dropped with a line in the log.
 */
class FHalvexImageDiskCache
{
public:
	/** @param InMaxBytes of all files together */
	FHalvexImageDiskCache(const FString& InFolder, int64 InMaxBytes);

	/** The name of the file for a key. */
	static FString GetName(const FString& Key);

	/** False when the picture is not there, or damaged. */
	bool Read(const FString& Key, FHalvexStoredImage& OutImage);

	/** Stores a picture, then drops the oldest files while all together are too large. */
	void Write(const FString& Key, const FHalvexStoredImage& Image);

	void Remove(const FString& Key);

	/** Drops all files. */
	void Clear();

private:
	FString GetPath(const FString& Key) const;
	void Trim();

	FString Folder;
	int64 MaxBytes;
	/** Bytes of all files; -1 before they were counted. */
	int64 TotalBytes = -1;
	/** One for all, as the folder is. */
	static FCriticalSection Lock;
};
