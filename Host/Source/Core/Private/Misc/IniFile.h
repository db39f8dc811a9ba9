#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "Misc/IniText.h"

namespace Host
{
	/** One file of configuration: its lines as they stand, of which a change touches only those that it must. */
	class FIniFile
	{
	public:
		/** Reads a file; one that does not exist is empty. What has no effect is one log line a file. */
		void Load(const FString& Filename);

		/** The lines in their order: entries have an effect, the others have none. */
		const TArray<FIniLine>& GetLines() const { return Lines; }

		/** Replaces every line of the key by plain ones; no values become one that clears what lower layers say. */
		void SetValues(const FString& Section, const FString& Key, const TArray<FString>& Values);
		/** Returns true when there was such a key. */
		bool RemoveKey(const FString& Section, const FString& Key);
		/** Takes the section's entries and its name out. Returns true when there was such a section. */
		bool RemoveSection(const FString& Section);

		/**
		 * Writes the file whole or not at all; a failure is one log line. A file that Load had to leave out is kept beside it,
		 * with ".damaged" behind its name.
		 */
		bool Save(const FString& Filename);

		/** The largest file that is read. */
		static constexpr int64 MaxBytes = 4 * 1024 * 1024;

	private:
		void ReadLines(const FString& Text);
		void ReportFaults(const FString& Filename) const;
		/** Where a new entry of the section belongs; the section is made when it is not there. */
		int32 FindEndOfSection(const FString& Section);

		TArray<FIniLine> Lines;
		/** The file could not be read: it must not be overwritten without a copy. */
		bool bLeftOut = false;
	};
}
