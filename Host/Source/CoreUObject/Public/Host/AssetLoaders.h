#pragma once

#include "CoreMinimal.h"
#include "Templates/Function.h"

class UClass;
class UObject;
class UPackage;

DECLARE_LOG_CATEGORY_EXTERN(LogAssets, Log, All);

namespace Host
{
	class FJsonNode;

	/** One file that is to become an object. */
	struct FAssetRequest
	{
		/** Full path of the file. */
		FString Filename;
		/** "/Mount/Dir/Name", the name of Package. */
		FString PackageName;
		/** Name of the object to make in Package. */
		FName AssetName;
		UPackage* Package = nullptr;
	};

	/**
	 * Makes the objects of a file. What is made in the request's package under the asset's name, or under names derived from
	 * it such as "Name_C", is found by path from then on. Null, after a line in the log that names file and reason, when the
	 * file cannot be read; nothing of it must be left in the package then.
	 */
	using FAssetLoader = TFunction<UObject*(const FAssetRequest& Request)>;

	/**
	 * Fills an object from the root of its ".asset.json" file in place of the general reader: for classes whose files have a
	 * form of their own. False, after a line in the log, when the object is of no use.
	 */
	using FAssetReader = TFunction<bool(UObject* Object, const FJsonNode& Root, const FAssetRequest& Request)>;

	/**
	 * Which files stand for which objects: by the suffix of the file, ".asset.json" and so on. The path
	 * "/Mount/Dir/Name.Name" leads to the first file "Dir/Name<suffix>" under the mount.
	 */
	class COREUOBJECT_API FAssetLoaders
	{
	public:
		/** Suffixes are tried in the order in which they were added; one that is there is replaced. */
		static void Add(const FString& Suffix, FAssetLoader Loader);
		static void Remove(const FString& Suffix);
		static TArray<FString> GetSuffixes();

		/** Lets a reader fill the ".asset.json" files of a class, and of the classes derived from it that have none of their own. */
		static void AddReader(const FString& ClassPath, FAssetReader Reader);
		static void RemoveReader(const FString& ClassPath);

		/** The file of an object path, and its suffix. False when no file of a known suffix is there. */
		static bool FindFile(const FString& ObjectPath, FString& OutFilename, FString& OutSuffix);

		/** Paths "/Mount/Dir/Name.Name" of all files under a mounted root that have a known suffix, sorted. */
		static TArray<FString> FindAssets(const FString& Root);

		/**
		 * Loads the file of a path unless its objects are there. True when they are there afterwards; the path itself may still
		 * lead to nothing. False, with the reason, for a file that is missing or could not be read; the reason is empty when this
		 * call has logged it. A file that could not be read is read again only after it has changed.
		 */
		static bool Load(const FString& ObjectPath, FString& OutReason);

		/** True when a failed load of the path was reported already and nothing of it was loaded since. */
		static bool HasReportedFailure(const FString& ObjectPath);
		static void SetReportedFailure(const FString& ObjectPath);

		/**
		 * Reads the ".asset.json" files again that have changed since they were loaded, into the objects that they became, and
		 * announces the change to these. Returns the number of objects read. For seeing an edited file at once.
		 */
		static int32 ReloadChangedFiles();
	};
}
