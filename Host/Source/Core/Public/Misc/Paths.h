#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"

/** Paths as text, with forward slashes. Folders of the project end with a slash. Functions that ask the disk say so. */
class FPaths
{
public:
	// Folders

	/** The project's folder. */
	CORE_API static FString ProjectDir();
	CORE_API static FString ProjectConfigDir();
	CORE_API static FString ProjectContentDir();
	CORE_API static FString ProjectPluginsDir();
	/** The user's own folder for the project's files. */
	CORE_API static FString ProjectSavedDir();
	CORE_API static FString ProjectLogDir();
	CORE_API static FString ScreenShotDir();
	/** The user's own folder for the project's settings. */
	CORE_API static FString GeneratedConfigDir();

	// Parts of a path

	/** "png" of "Dir/A.png"; empty when the last part has no dot. */
	CORE_API static FString GetExtension(const FString& InPath, bool bIncludeDot = false);
	/** "A.png" of "Dir/A.png". */
	CORE_API static FString GetCleanFilename(const FString& InPath);
	/** "A" of "Dir/A.png"; "Dir/A" when the path is kept. */
	CORE_API static FString GetBaseFilename(const FString& InPath, bool bRemovePath = true);
	/** "Dir" of "Dir/A.png". */
	CORE_API static FString GetPath(const FString& InPath);
	/** The last part, also of a folder that ends with a slash. */
	CORE_API static FString GetPathLeaf(const FString& InPath);
	/** Replaces the extension; a path without one stays as it is. */
	CORE_API static FString ChangeExtension(const FString& InPath, const FString& InNewExtension);
	/** Replaces the extension or adds it. */
	CORE_API static FString SetExtension(const FString& InPath, const FString& InNewExtension);

	/** Joins with one slash between each two. Empty parts are left out. */
	template <typename... PathTypes>
	static FString Combine(const PathTypes&... InPaths)
	{
		const FStringView Parts[] = {FStringView(InPaths)...};
		return CombineParts(Parts, int32(sizeof...(PathTypes)));
	}

	// Forms of a path

	/** Slashes forward. */
	CORE_API static void NormalizeFilename(FString& InPath);
	/** Slashes forward, none at the end. */
	CORE_API static void NormalizeDirectoryName(FString& InPath);
	/** Takes out "." and "Name/..", without looking at the disk. Returns false, with the path as far as it got, when it leads above its start. */
	CORE_API static bool CollapseRelativeDirectories(FString& InPath);
	CORE_API static void RemoveDuplicateSlashes(FString& InPath);
	CORE_API static bool IsRelative(const FString& InPath);
	/** From the root, collapsed; a relative path starts from the working folder, or from the base given. */
	CORE_API static FString ConvertRelativePathToFull(const FString& InPath);
	CORE_API static FString ConvertRelativePathToFull(const FString& BasePath, const FString& InPath);
	/** Rewrites a path to start from a folder, or from a file's folder. Both are made full first. Returns false when they share nothing. */
	CORE_API static bool MakePathRelativeTo(FString& InPath, const TCHAR* InRelativeTo);
	/** By their text: whether the path is the folder or lies below it. */
	CORE_API static bool IsUnderDirectory(const FString& InPath, const FString& InDirectory);
	/** Whether both mean the same place, by their text. */
	CORE_API static bool IsSamePath(const FString& PathA, const FString& PathB);
	/** A name fit for a file: characters that files cannot have are replaced, or left out. */
	CORE_API static FString MakeValidFileName(const FString& InString, const TCHAR InReplacementChar = TEXT('\0'));

	// The disk

	CORE_API static bool FileExists(const FString& InPath);
	CORE_API static bool DirectoryExists(const FString& InPath);

private:
	CORE_API static FString CombineParts(const FStringView* Parts, int32 Count);
};
