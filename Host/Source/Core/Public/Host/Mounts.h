#pragma once

#include "Containers/Array.h"
#include "Containers/StringView.h"
#include "Containers/UnrealString.h"

namespace Host
{
	/**
	 * Where content paths lead: "/HalvexPro/" stands for a folder, and "/HalvexPro/Widgets/Style.Style" for a file in it.
	 * No path leads out of the folder that its root stands for.
	 */
	class FMounts
	{
	public:
		/** Lets a root, written "/Name/", stand for a folder. A root mounted before is replaced. Returns false, with one log line, when either is unfit. */
		CORE_API static bool Add(const FString& Root, const FString& Folder);
		CORE_API static void Remove(const FString& Root);
		/** The mounted roots, in the order in which they were added. */
		CORE_API static TArray<FString> GetRoots();
		/** The full path of a root's folder, ended by a slash; empty when it is not mounted. */
		CORE_API static FString GetFolder(const FString& Root);

		/**
		 * The file that a content path names, with a suffix such as ".asset.json" in place of its object part.
		 * Returns false, leaving the output alone, when there is no such file. A path that is malformed, stands under no
		 * root or leads out of its folder is refused with one log line; a file that is just missing logs nothing.
		 */
		CORE_API static bool FindFile(const FString& ObjectPath, const FString& Suffix, FString& OutFilename);

		/** As above, but the caller tells the reason, which is empty for a file that is just missing. */
		CORE_API static bool FindFile(const FString& ObjectPath, const FString& Suffix, FString& OutFilename, FString& OutReason);

		/**
		 * Whether a file that an asset names for itself, such as a font's, lies in the folder of the asset's root, every link
		 * followed. It need not be there.
		 */
		CORE_API static bool IsInMountOf(const FString& ObjectPath, const FString& Filename);

		/**
		 * Splits a content path into its package ("/HalvexPro/Widgets/Style") and object ("Style", empty when not written).
		 * Returns false, with the reason, when the path is malformed.
		 */
		CORE_API static bool SplitObjectPath(const FString& ObjectPath, FString& OutPackage, FString& OutObject, FString& OutReason);

		/** The package that a file under a mounted folder stands for, without the suffix; empty when it stands under none or has another suffix. */
		CORE_API static FString ToPackageName(const FString& Filename, const FString& Suffix);

		/** The packages under a root whose files have the suffix, sorted. */
		CORE_API static TArray<FString> FindPackages(const FString& Root, const FString& Suffix);
	};
}
