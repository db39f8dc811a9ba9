#pragma once

#include "HAL/NativeFile.h"

namespace Host
{
	/**
	 * A folder that only the user can enter, and files in it that only the user can read, whatever the process's mask for new
	 * files is. Links are never followed, neither the folder itself nor files in it, so that nobody can lead what is written
	 * elsewhere. Names are those of files in the folder, without a slash. Nothing is logged.
	 */
	class FPrivateFolder
	{
	public:
		enum class EOpen : uint8
		{
			Opened,
			/** Only without bMake. */
			Absent,
			Failed,
		};

		/** Opens the folder; bMake makes it, and those on the way. The rights of a folder that others can enter are taken from them. */
		EOpen Open(const FString& Path, bool bMake, FString& OutReason);

		/** Waits until no other process holds the lock, two seconds at most. It is held until the folder is closed. */
		bool Lock(FString& OutReason);

		enum class ERead : uint8
		{
			Read,
			Absent,
			/** A link, a folder, somebody else's, or too large: what is there is no file of this folder. */
			Unfit,
			Failed,
		};

		/** bOutExposed: others could read it until now, when that right was taken from them. */
		ERead Read(const FString& File, int64 MaxBytes, TArray<uint8>& OutBytes, bool& bOutExposed, FString& OutReason) const;

		/** Writes a file whole or not at all. The lock must be held. */
		bool Write(const FString& File, const void* Bytes, SIZE_T Size, FString& OutReason) const;

		/** Gives a file, or what is in its place, the suffix, and a number when that name is taken. */
		bool SetAside(const FString& File, const TCHAR* Suffix, FString& OutName, FString& OutReason) const;

	private:
		FDescriptor Descriptor = FDescriptor(-1);
	};
}
