#pragma once

#include "CoreMinimal.h"
#include "Project/ProjectData.h"
#include "Project/ReadProblems.h"
#include "Project/UnitTableMapping.h"

/**
 * Reads units from a table of text (RFC 4180), as sales lists come: a header, then a unit a row, separated by commas, semicolons
 * or tabs, whichever the header has most of. Cells may stand in quotes, with line breaks inside. A row needs an id of its own;
 * an empty cell leaves the field's default, and so does a wrong one, which is named.
 */
class HALVEXSDK_API FUnitTableReader
{
public:
	/** Reads a file and logs what is wrong, and in one line which columns are left out. False when it cannot be read, or not to its end. */
	static bool LoadFile(const FString& Filename, const FUnitTableMapping& Mapping, TArray<FProjectUnit>& OutUnits);

	/** Reads UTF-8, or UTF-16 behind its byte order mark; nothing is logged. False when the text could not be read to its end. */
	static bool ReadBytes(TConstArrayView<uint8> Bytes, const FUnitTableMapping& Mapping, TArray<FProjectUnit>& OutUnits, FReadProblems& Problems);
};
