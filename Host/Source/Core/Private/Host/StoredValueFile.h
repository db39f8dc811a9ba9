#pragma once

#include "Containers/Array.h"
#include "Host/StoredValues.h"
#include "Misc/Optional.h"

namespace Host
{
	class FPrivateFolder;

	/**
	 * One value in the file of its store: "<store>.json" in a folder that only the user can enter, itself for the user's eyes
	 * only. Several programs may use a file at once. A file that is damaged, or no file, is set aside as ".damaged", with one
	 * line in the log; other failures are one line too. No line holds a value.
	 */
	class FStoredValueFile
	{
	public:
		enum class EEntry : uint8
		{
			/** The file says nothing of the value. */
			None,
			Value,
			/** It counts as forgotten wherever else it may still be. */
			Gone,
		};

		FStoredValueFile(const FString& InFolder, const FStoredValueName& InName);

		EEntry Find();
		/** What the last Find() found. */
		const FString& GetValue() const { return Value; }

		bool SetValue(const FString& NewValue);
		bool MarkGone();
		/** Takes the value, or the mark, out of the file. */
		bool Remove();

	private:
		/** A value that is not set is gone. */
		struct FEntry
		{
			FString Section;
			FString Key;
			TOptional<FString> Value;
		};

		enum class EReadResult : uint8
		{
			/** Also when there is no file, which is one without entries. */
			Read,
			Damaged,
			/** What is in it is not known. */
			Failed,
		};

		EReadResult Read(const FPrivateFolder& Folder, FString& OutReason);
		bool Parse(const TArray<uint8>& Bytes, FString& OutDamage);
		/** Reads under the lock; what is damaged is set aside. Returns false when it cannot be. */
		bool ReadToChange(FPrivateFolder& Folder);
		bool Write(const FPrivateFolder& Folder);
		/** Puts an entry in place of the one of that name; none takes it out. */
		bool Change(const TOptional<FEntry>& Entry);
		int32 FindEntry() const;
		bool Fail(const FString& Reason) const;

		const FString FolderPath;
		/** The name of the file in the folder. */
		const FString Filename;
		const FStoredValueName Name;
		TArray<FEntry> Entries;
		FString Value;
	};
}
