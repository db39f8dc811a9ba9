#pragma once

#include "CoreMinimal.h"
#include "Records/UnitData.h"

/**
 * Writes units as a table of text (RFC 4180): a header with the names of the fields, then a unit a row, separated by commas, in
 * UTF-8 behind a byte order mark. FUnitTableReader reads the same units back by its default mapping, but for spaces at the ends
 * of texts. Volumes are left out. Texts that a spreadsheet would take for a formula get an apostrophe in front, which the reader
 * takes away again.
 */
class HALVEXSDK_API FUnitTableWriter
{
public:
	/** The table without a byte order mark. Lines end with CR LF. */
	static FString Write(TConstArrayView<const FUnitData*> Units);

	/**
	 * Writes a file, whole or not at all; the folders on the way are made.
	 * @return false when the file could not be written; that is one line in the log
	 */
	static bool SaveFile(const FString& Filename, TConstArrayView<const FUnitData*> Units);
};
