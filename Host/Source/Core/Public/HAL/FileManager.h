#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "Misc/DateTime.h"

enum ECopyResult
{
	COPY_OK = 0,
	COPY_Fail = 1
};

/** Files and folders. What fails logs one warning line with the reason unless it is told to be quiet. */
class IFileManager
{
public:
	virtual ~IFileManager() = default;

	CORE_API static IFileManager& Get();

	/** Whether it is a file; false for a folder. */
	virtual bool FileExists(const TCHAR* Filename) = 0;
	virtual bool DirectoryExists(const TCHAR* InDirectory) = 0;
	/** In bytes; -1 when there is no such file. */
	virtual int64 FileSize(const TCHAR* Filename) = 0;
	/** When the file was last written, in UTC; the least date when there is no such file. */
	virtual FDateTime GetTimeStamp(const TCHAR* Path) = 0;

	/** Returns false when the file is not gone afterwards, or, with RequireExists, was not there. */
	virtual bool Delete(const TCHAR* Filename, bool RequireExists = false, bool EvenReadOnly = false, bool Quiet = false) = 0;
	virtual uint32 Copy(const TCHAR* Dest, const TCHAR* Src, bool Replace = true) = 0;
	virtual bool Move(const TCHAR* Dest, const TCHAR* Src, bool Replace = true) = 0;
	/** Returns true when the folder is there afterwards. Tree makes the folders on the way too. */
	virtual bool MakeDirectory(const TCHAR* Path, bool Tree = false) = 0;
	/** Tree deletes what is inside; links inside are deleted, not followed. */
	virtual bool DeleteDirectory(const TCHAR* Path, bool RequireExists = false, bool Tree = false) = 0;

	/** Names, without their folder, that fit a path whose last part may hold * and ?; sorted. */
	virtual void FindFiles(TArray<FString>& FileNames, const TCHAR* Filename, bool Files, bool Directories) = 0;
	/** Paths of what is anywhere below the folder and fits the pattern; sorted. Links to folders are not followed. */
	virtual void FindFilesRecursive(TArray<FString>& FileNames, const TCHAR* StartDirectory, const TCHAR* Filename, bool Files, bool Directories, bool bClearFileNames = true) = 0;
};
