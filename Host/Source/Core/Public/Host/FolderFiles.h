#pragma once

#include "Containers/Array.h"
#include "Containers/ArrayView.h"
#include "Containers/UnrealString.h"

namespace Host
{
	/** Files below a folder that somebody else chooses by their names. */
	class FFolderFiles
	{
	public:
		enum class ERead : uint8
		{
			Read,
			/** There is no regular file at that place, or the way to it leads through a link. */
			Absent,
			/** It is larger than is accepted, or cannot be read. */
			Failed,
		};

		/**
		 * Reads a file of at most MaxBytes: goes from the folder through the named ones step by step, so that no link on the way
		 * leads out, whoever puts one there meanwhile. Only the folder itself may be a link. Nothing is logged.
		 * @param Names	of the folders on the way and of the file: none is empty, has a slash, or is "." or ".."
		 */
		CORE_API static ERead Read(const FString& Folder, TConstArrayView<FString> Names, int64 MaxBytes, TArray<uint8>& OutBytes, FString& OutReason);
	};
}
