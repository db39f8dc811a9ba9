#pragma once

#include "CoreMinimal.h"
#include "Project/ProjectData.h"
#include "Project/ReadProblems.h"

/**
 * Reads projects: one JSON text, whether it comes from a folder or was fetched from an address. What is wrong is named with its
 * place and left out; all else is read. A unit needs an id of its own; with a wrong field it keeps that field's default.
 */
class HALVEXSDK_API FProjectReader
{
public:
	/** Name of the file in a project's folder. */
	static const TCHAR* const FileName;

	/**
	 * Reads the project of a folder and logs what is wrong.
	 * @return false when the file cannot be read, or not to its end; the project then holds what came before
	 */
	static bool LoadFolder(const FString& Folder, FProjectData& OutProject);

	/**
	 * Reads a project from bytes, UTF-8 with or without a byte order mark; nothing is logged.
	 * @return false when the text could not be read to its end; the project then holds what came before
	 */
	static bool ReadBytes(TConstArrayView<uint8> Bytes, FProjectData& OutProject, FReadProblems& Problems);
};
