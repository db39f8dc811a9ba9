#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"

namespace Host
{
	/** Reading and writing whole files, with the reason when it fails. Nothing is logged. */
	class FFiles
	{
	public:
		/**
		 * Reads a file of at most MaxBytes. Returns false, leaving the output alone, with the reason, when it is no readable
		 * file or is larger.
		 */
		CORE_API static bool Read(const FString& Filename, int64 MaxBytes, TArray<uint8>& OutBytes, FString& OutReason);

		/**
		 * Writes a file whole or not at all: beside it first, then in its place; a reader sees the old or the new content,
		 * also after a crash. Folders on the way are made. A link keeps pointing where it does.
		 */
		CORE_API static bool Write(const FString& Filename, const void* Bytes, int64 Size, FString& OutReason);

		/**
		 * Gives a file another name beside it, its own with the suffix behind it, and a number when that is taken; a link stays,
		 * and what it leads to gets the name. Returns false, with the reason, when it is no file or keeps its name.
		 */
		CORE_API static bool SetAside(const FString& Filename, const TCHAR* Suffix, FString& OutName, FString& OutReason);

		/** Whether nothing is there, not even a link to nowhere. */
		CORE_API static bool IsAbsent(const FString& Path);

		/** The path with every link followed; empty when nothing is there. */
		CORE_API static FString Resolve(const FString& Path);
	};
}
