#pragma once

#include "CoreMinimal.h"
#include "Filters/UnitFilterSet.h"
#include "Project/ReadProblems.h"

/** The files that hold sets of filters: JSON in UTF-8, {"format": "unit-filters", "version": 1, "name": "...", "filters": [...]}. */
class HALVEXPRO_API FUnitFilterSetFile
{
public:
	static constexpr int32 Version = 1;

	/** The text of a file. Numbers without a limit are left out. */
	static FString ToJson(const FUnitFilterSet& Set);

	/**
	 * Reads the text of a file. A filter that is not understood is named and left out.
	 * @return false when it is no set of filters, or one of a newer version; that is one problem
	 */
	static bool FromJson(const FString& Text, FUnitFilterSet& OutSet, FReadProblems& Problems);

	/** Writes a file, whole or not at all. False, with a line in the log, when that failed. */
	static bool Save(const FString& Filename, const FUnitFilterSet& Set);

	/** Reads a file and logs what is wrong. */
	static bool Load(const FString& Filename, FUnitFilterSet& OutSet);

	/** Reads a file; nothing is logged. */
	static bool Read(const FString& Filename, FUnitFilterSet& OutSet, FReadProblems& Problems);
};
